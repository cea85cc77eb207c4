#include <Views/Content/Containers/ContainerViewModel.h>
#include <Views/Content/Slides/SlideViewModel.h>
#include <Views/Navigation/NavigationNotifications.h>
#include <Views/Navigation/NavigationViewModel.h>

#include <Support/RecordedLog.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace velmar {
namespace {

class Element final : public MandatorySupervised, public std::enable_shared_from_this<Element> {
public:
    [[nodiscard]] const UUID &mandatoryIdentifier() const override { return identifier_; }
    [[nodiscard]] bool isValid() const override { return isValid_; }
    void setMandatorySupervisor(std::weak_ptr<MandatorySupervisor> supervisor) override {
        supervisor_ = std::move(supervisor);
        set(isValid_);
    }
    void showWarnings() override { ++warnings; }
    void set(bool isValid) {
        isValid_ = isValid;
        if (const auto supervisor = supervisor_.lock()) {
            supervisor->elementDidChange(shared_from_this());
        }
    }
    int warnings = 0;

private:
    UUID identifier_;
    std::weak_ptr<MandatorySupervisor> supervisor_;
    bool isValid_ = true;
};

/// Two elements in a container in a slide.
class Supervision : public testing::Test {
protected:
    Supervision() {
        container->setMandatorySupervisor(slide);
        left->setMandatorySupervisor(container);
        right->setMandatorySupervisor(container);
        for (const auto name : {NavigationNotifications::slideHasInvalidMandatoryElements,
                                NavigationNotifications::allMandatoryElementsInSlideAreValid}) {
            tokens.push_back(
                center.addObserver(std::string(name), [this, name] { posted.emplace_back(name); }));
        }
    }

    const std::string invalid = "slideHasInvalidMandatoryElements";
    const std::string valid = "allMandatoryElementsInSlideAreValid";
    RecordedLog log;
    NotificationCenter center;
    std::shared_ptr<SlideViewModel> slide = std::make_shared<SlideViewModel>(center);
    std::shared_ptr<ContainerViewModel> container = std::make_shared<ContainerViewModel>();
    std::shared_ptr<Element> left = std::make_shared<Element>();
    std::shared_ptr<Element> right = std::make_shared<Element>();
    std::vector<NotificationCenter::Token> tokens;
    std::vector<std::string> posted;
};

TEST_F(Supervision, ASlideWithoutMandatoryElementsIsValidOnArrival) {
    SlideViewModel empty(center);
    empty.willAppear();
    EXPECT_EQ(posted, std::vector{valid});
    EXPECT_TRUE(log.lines().empty()) << "an arrival is not logged";
}

TEST_F(Supervision, AContainerTellsItsSlideOnlyWhenItsValidityChanges) {
    slide->willAppear();
    posted.clear();
    left->set(false);
    right->set(false);
    right->set(true);
    left->set(true);
    EXPECT_EQ(posted, (std::vector{invalid, valid}));
    EXPECT_EQ(log.lines(),
              (std::vector<std::string>{"debug: The slide contains invalid (or empty) mandatory elements",
                                        "debug: All the mandatory elements in the slide are valid"}));
}

TEST_F(Supervision, AHiddenSlideKeepsSilentAndTellsOnArrival) {
    slide->willAppear();
    slide->willDisappear();
    posted.clear();
    left->set(false);
    EXPECT_TRUE(posted.empty());
    slide->willAppear();
    EXPECT_EQ(posted, std::vector{invalid});
}

TEST_F(Supervision, WarningsReachEachElement) {
    slide->showWarnings();
    EXPECT_EQ(left->warnings, 1);
    EXPECT_EQ(right->warnings, 1);
}

class Bar final : public NavigationViewModelDelegate {
public:
    void reachedFirstSlide() override { calls += 'f'; }
    void reachedLastSlide() override { calls += 'l'; }
    void reachedSoleSlide() override { calls += 's'; }
    void reevaluateButtons() override { calls += 'n'; }
    std::string calls;
};

TEST(NavigationModel, FollowsTheNotificationsWhileItLives) {
    using namespace NavigationNotifications;
    NotificationCenter center;
    Bar bar;
    {
        NavigationViewModel model(bar, center);
        EXPECT_TRUE(model.isCurrentSlideValid());
        center.post(slideHasInvalidMandatoryElements);
        EXPECT_FALSE(model.isCurrentSlideValid());
        center.post(allMandatoryElementsInSlideAreValid);
        EXPECT_TRUE(model.isCurrentSlideValid());

        center.post(currentSlideWantsToHidePreviousButton);
        EXPECT_TRUE(model.currentSlideHidePreviousButton());
        EXPECT_FALSE(model.currentSlideHideNextButton());
        center.post(currentSlideWantsToHideNextButton);
        EXPECT_TRUE(model.currentSlideHideNextButton());
        center.post(evaluateButtonsHide);
        EXPECT_FALSE(model.currentSlideHidePreviousButton() || model.currentSlideHideNextButton());

        for (const auto name :
             {willReachFirstSlide, willReachLastSlide, willReachSoleSlide, navigateToNthSlide}) {
            center.post(name);
        }
        EXPECT_EQ(bar.calls, "flsn");
    }
    center.post(willReachFirstSlide);
    EXPECT_EQ(bar.calls, "flsn");
}

} // namespace
} // namespace velmar
