#include "SupervisedElement.h"

#include <Base/NavigationNotifications.h>
#include <Views/Content/ContentView/ContentViewModel.h>
#include <Views/Content/Slides/SlideViewModel.h>

#include <Support/RecordedLog.h>
#include <Testing/TestMainQueue.h>

#include <gtest/gtest.h>

#include <fmt/format.h>

#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <vector>

namespace velmar {
namespace {

class Controller final : public ContentViewControllerProtocol {
public:
    void transition(int from, int to) override {
        transitions.push_back(fmt::format("{}>{}", from, to));
        didTransition();
    }
    [[nodiscard]] bool isTransitionUnderWay() const override { return isMoving; }
    std::function<void()> didTransition = [] {};
    bool isMoving = false;
    [[nodiscard]] std::shared_ptr<SlideViewModel> currentSlideViewModel() const override { return slide; }
    std::shared_ptr<SlideViewModel> slide;
    std::vector<std::string> transitions;
};

class SideContainer final : public ContentViewModelTerminationDelegate {
public:
    [[nodiscard]] bool isSideContainerValid() const override { return isValid; }
    void showSideContainerWarnings() override {
        ++warnings;
        isValid = isValidAfterWarning;
    }
    bool isValid = false;
    bool isValidAfterWarning = false;
    int warnings = 0;
};

class QuitAttempts final : public AppTerminationManagerProtocol {
public:
    void tryToQuitApplication() override { ++count; }
    int count = 0;
};

SlideItem slide(bool hidesPrevious = false, bool hidesNext = false) {
    SlideItem item;
    item._hidePreviousButton.set(hidesPrevious);
    item._hideNextButton.set(hidesNext);
    return item;
}

class ContentModel : public testing::Test {
protected:
    void start(std::vector<SlideItem> slides,
               WindowSection::OnScreen onScreen = WindowSection::OnScreen::simple) {
        ContentViewModel::Settings settings;
        settings._onScreen.setOverrideValue(onScreen);
        settings._onboardSlides.setOverrideValue(std::move(slides));
        settings._menubarSlide.setOverrideValue(slide(false, true));
        settings.slidesActionManager = slidesActionManager;
        model = std::make_shared<ContentViewModel>(queue, quits, center, settings);
        controller.slide = std::make_shared<SlideViewModel>(center);
        model->setController(&controller);
        model->setupNotifications();
        using namespace NavigationNotifications;
        for (const auto name :
             {currentSlideWantsToHidePreviousButton, currentSlideWantsToHideNextButton, evaluateButtonsHide,
              willReachFirstSlide, willReachLastSlide, willReachSoleSlide, navigateToNthSlide}) {
            tokens.push_back(
                center.addObserver(std::string(name), [this, name] { posted.emplace_back(name); }));
        }
    }

    /// Makes the current slide invalid.
    void invalidate() {
        element->setMandatorySupervisor(controller.slide);
        element->set(false);
        controller.slide->willAppear();
    }

    void next() { center.post(NavigationNotifications::willNavigateToNextSlide); }
    void previous() { center.post(NavigationNotifications::willNavigateToPreviousSlide); }

    std::vector<std::string> takePosted() { return std::exchange(posted, {}); }
    std::vector<std::string> takeTransitions() {
        queue.runUntilEmpty();
        return std::exchange(controller.transitions, {});
    }

    using Names = std::vector<std::string>;
    RecordedLog log;
    NotificationCenter center;
    TestMainQueue queue;
    QuitAttempts quits;
    std::shared_ptr<SlidesActionManager> slidesActionManager = std::make_shared<SlidesActionManager>();
    Controller controller;
    std::shared_ptr<SupervisedElement> element = std::make_shared<SupervisedElement>();
    std::shared_ptr<ContentViewModel> model;
    std::vector<NotificationObserver> tokens;
    Names posted;
};

TEST_F(ContentModel, FollowsTheRequestsOfActionsOnTheMainThread) {
    start({slide(), slide(), slide()});
    constexpr std::int64_t far = std::numeric_limits<std::int64_t>::max();
    const struct {
        bool byOffset;
        std::int64_t number;
        const char *transition; ///< nullptr if no transition is expected.
        const char *line = nullptr;
    } cases[] = {
        {false, 2, "0>2"},
        {true, -1, "2>1"},
        {true, 2, nullptr, "Slide jump with offset 2 at slide 1 is out of bounds. Slides count: 3."},
        {true, -far, nullptr,
         "Slide jump with offset -9223372036854775807 at slide 1 is out of bounds. Slides count: 3."},
        {false, 3, nullptr, "There is no slide 3. Slides count: 3."},
        {false, -1, nullptr, "There is no slide -1. Slides count: 3."},
        {false, 0, "1>0"},
    };
    for (const auto &[byOffset, number, transition, line] : cases) {
        const int before = model->selectedSlideIndex();
        byOffset ? slidesActionManager->navigateByOffset(number)
                 : slidesActionManager->navigateToIndex(number);
        EXPECT_EQ(model->selectedSlideIndex(), before); // The move is posted.
        EXPECT_EQ(takeTransitions(), transition != nullptr ? Names{transition} : Names()) << number;
        const auto lines = log.takeLines();
        EXPECT_EQ(lines, line != nullptr ? Names{std::string("warning: ") + line} : Names());
    }
}

TEST_F(ContentModel, SaysWhatASlideWantsHiddenAndThenWhereItStands) {
    const std::string hidePrevious = "currentSlideWantsToHidePreviousButton";
    const std::string hideNext = "currentSlideWantsToHideNextButton";
    const std::string first = "willReachFirstSlideNotification";
    const std::string last = "willReachLastSlideNotification";
    const std::string sole = "willReachSoleSlideNotification";
    const std::string nth = "navigateToNthSlide";
    using enum WindowSection::OnScreen;
    const struct {
        std::vector<SlideItem> slides;
        WindowSection::OnScreen onScreen;
        std::vector<Names> posted;
    } rows[] = {{{slide()}, simple, {{sole}}},
                {{slide(true, true), slide(false, true), slide(), slide(true, false)},
                 simple,
                 {{hidePrevious, hideNext, first}, {hideNext, nth}, {nth}, {hidePrevious, last}}},
                {{slide(), slide()}, menuBar, {{hideNext, sole}}}};
    for (const auto &row : rows) {
        start(row.slides, row.onScreen);
        takePosted();
        for (std::size_t index = 0; index < row.posted.size(); ++index) {
            model->setSelectedIndex(static_cast<int>(index), false);
            EXPECT_EQ(takePosted(), row.posted[index]) << index;
        }
        tokens.clear();
    }
}

TEST_F(ContentModel, HoldsTheUserOnAnInvalidSlideOnlyForward) {
    start({slide(), slide(true), slide()});
    model->setSelectedIndex(1, false);
    invalidate();
    takePosted();
    next();
    EXPECT_EQ(takeTransitions(), Names{});
    EXPECT_EQ(element->warnings, 1);
    EXPECT_EQ(takePosted(), (Names{"currentSlideWantsToHidePreviousButton", "navigateToNthSlide"}))
        << "the slide that stays is announced all the same";
    EXPECT_EQ(log.lines().back(), "warning: Transition to the next slides prevented since the slide "
                                  "contains invalid mandatory elements");
    previous();
    EXPECT_EQ(takeTransitions(), Names{"1>0"});
    EXPECT_EQ(element->warnings, 1);
}

TEST_F(ContentModel, HoldsTheUserOnASlideThatIsInvalidFromItsArrival) {
    start({slide(), slide(), slide()});
    controller.didTransition = [this] { invalidate(); };
    next();
    next();
    EXPECT_EQ(model->selectedSlideIndex(), 1);
    EXPECT_EQ(takeTransitions(), Names{"0>1"});
}

TEST_F(ContentModel, TakesNoPressForAQuitBeforeTheLastSlideIsOnShow) {
    start({slide(), slide()});
    controller.isMoving = true;
    next();
    next();
    EXPECT_EQ(quits.count, 0);
    controller.isMoving = false;
    next();
    EXPECT_EQ(quits.count, 1);
}

TEST_F(ContentModel, AsksTheSlideAndTheSideContainerBeforeItQuits) {
    const struct {
        bool isValid;
        bool isValidAfterWarning;
        int warnings;
        int quits;
    } cases[] = {{true, true, 0, 1}, {false, false, 1, 0}, {false, true, 1, 1}};
    for (const auto &row : cases) {
        start({slide()});
        SideContainer side;
        side.isValid = row.isValid;
        side.isValidAfterWarning = row.isValidAfterWarning;
        model->setTerminationDelegate(&side);
        quits.count = 0;
        model->tryToQuitApplication();
        EXPECT_EQ(side.warnings, row.warnings);
        EXPECT_EQ(quits.count, row.quits);
        model->setTerminationDelegate(nullptr);
    }
    quits.count = 0;
    invalidate();
    next();
    EXPECT_EQ(std::pair(quits.count, element->warnings), std::pair(0, 1));
    EXPECT_EQ(log.lines().back(),
              "warning: App termination prevented since the slide contains invalid mandatory elements");
    center.post(NavigationNotifications::allMandatoryElementsInSlideAreValid);
    next();
    EXPECT_EQ(quits.count, 1);
}

TEST_F(ContentModel, StaysWhereItIsAtAnIndexThatIsNoneAndAtAReloadThatKeepsTheCount) {
    start({});
    model->setSelectedIndex(0, true);
    EXPECT_EQ(takePosted(), Names{});
    tokens.clear();
    start({slide(), slide()});
    model->setSelectedIndex(3, true);
    previous();
    EXPECT_EQ(log.lines().back(), "warning: No previous slide to transition to");
    EXPECT_EQ(model->selectedSlideIndex(), 0);
    EXPECT_EQ(takeTransitions(), Names{});
    model->setSelectedIndex(2, true);
    EXPECT_EQ(takePosted(), Names{}) << "there is no slide to tell of behind the last one";
    previous();
    EXPECT_EQ(takeTransitions(), (Names{"0>2", "2>1"}));
    takePosted();
    model->reloadSlidesIfCountChanged([] {});
    EXPECT_EQ(model->selectedSlideIndex(), 1);
    EXPECT_EQ(takePosted(), Names{"evaluateButtonsHide"});
}

TEST_F(ContentModel, PublishesWhichSlideIsCurrentAndWhetherItIsValid) {
    const auto manager = std::make_shared<ContentManager>();
    const Shared<ContentManager>::Scope scope(manager);
    start({slide(), slide()});
    const auto published = [&] {
        const VariablesSnapshot variables = manager->variables();
        return variables->at("CURRENT_SLIDE_INDEX") + " " + variables->at("CURRENT_SLIDE_VALID");
    };
    model->setSelectedIndex(0, false);
    invalidate();
    EXPECT_EQ(published(), "0 false");
    next();
    EXPECT_EQ(published(), "0 false") << "the user was held back";
    element->set(true);
    next();
    EXPECT_EQ(published(), "1 true");
}

TEST_F(ContentModel, MakesNoTransitionOnceItsControllerIsGone) {
    start({slide(), slide()});
    slidesActionManager->navigateToIndex(1);
    model->setController(nullptr);
    EXPECT_EQ(takeTransitions(), Names{});
    EXPECT_EQ(model->selectedSlideIndex(), 1);
    slidesActionManager->navigateToIndex(0);
    model.reset();
    EXPECT_EQ(takeTransitions(), Names{});
}

} // namespace
} // namespace velmar
