#include "VelmarView.h"

#include <Actions/SlidesActionManager.h>
#include <Views/Navigation/NavigationButton.h>

#include <QAnimationDriver>

#include <fmt/ranges.h>

#include <string>
#include <string_view>
#include <vector>

namespace velmar {
namespace {

/// Keeps every animation at its first frame.
class StoppedAnimations final : public QAnimationDriver {
public:
    StoppedAnimations() { install(); }
    ~StoppedAnimations() override { uninstall(); }
    [[nodiscard]] qint64 elapsed() const override { return 0; }
};

class Navigation : public VelmarView {
protected:
    using Names = std::vector<std::string_view>;

    /// Shows the slide at the index. One letter per slide: "p" hides Previous, "n" hides Next, "." neither.
    void start(std::string_view letters, int index) {
        std::string slides;
        for (const char letter : letters) {
            std::string slide = slideOf(textComponent("Text"));
            if (letter != '.') {
                slide.insert(slide.find("<key>"), fmt::format("<key>Hide{}Button</key><true/>",
                                                              letter == 'p' ? "Previous" : "Next"));
            }
            slides += slide;
        }
        write("Simple", slides);
        view->reloadInterfaceSavingVariables();
        bar = view->findChild<NavigationViewController *>();
        SlidesActionManager::shared()->navigateToIndex(index);
        settle();
        posted.clear();
        quits.count = 0;
    }

    /// Runs the steps: "<" and ">" press a button; other steps are posted. `posted` then holds the
    /// notifications of the last step.
    void run(const Names &steps) {
        for (const std::string_view step : steps) {
            posted.clear();
            if (step == "<" || step == ">") {
                (step == "<" ? bar->previousButton() : bar->nextButton()).click();
            } else {
                center.post(step);
                posted.erase(posted.begin());
            }
            settle();
        }
    }

    /// Returns the titles of the enabled visible buttons and the index of the slide.
    std::string shown() {
        std::string text;
        for (const NavigationButton *button : {&bar->previousButton(), &bar->nextButton()}) {
            if (!button->isConcealed() && button->isEnabled()) {
                text += button->text().toStdString() + " ";
            }
        }
        return text + std::to_string(content->currentSlideIndex());
    }

    /// Returns the titles of the buttons that fade out ("-") and in ("+").
    std::string fading() {
        std::string text;
        for (NavigationButton *button : {&bar->previousButton(), &bar->nextButton()}) {
            const QImage picture = button->grab().toImage();
            QImage blank = picture;
            blank.fill(picture.pixel(0, 0));
            if (button->isVisible() && (button->isConcealed() || picture == blank)) {
                text += (button->isConcealed() ? "-" : "+") + button->text().toStdString();
            }
        }
        return text;
    }
};

TEST_F(Navigation, FollowsPressesAndNotificationsByPositionAndValidity) {
    const std::string_view next = "willNavigateToNextSlideNotification";
    const std::string_view previous = "willNavigateToPreviousSlideNotification";
    const std::string_view toFirst = "willReachFirstSlideNotification";
    const std::string_view toMiddle = "navigateToNthSlide";
    const std::string_view toLast = "willReachLastSlideNotification";
    const std::string_view toSole = "willReachSoleSlideNotification";
    const std::string_view atFirst = "didReachFirstSlideNotification";
    const std::string_view atLast = "didReachLastSlideNotification";
    const std::string_view atSole = "didReachSoleSlideNotification";
    const std::string_view invalid = "slideHasInvalidMandatoryElements";
    const std::string_view valid = "allMandatoryElementsInSlideAreValid";
    const std::string_view hidePrevious = "currentSlideWantsToHidePreviousButton";
    const std::string_view hideNext = "currentSlideWantsToHideNextButton";
    const std::string_view hideNeither = "evaluateButtonsHide";
    const struct {
        const char *slides;
        int index;
        Names steps;
        const char *shown;
        const char *fading;
        Names posted;
        int quits = 0;
    } rows[] = {
        // A press at each position.
        {"...", 0, {">"}, "Back On 1", "", {next, toMiddle, valid}},
        {"...", 0, {"<"}, "On 0", "", {}},
        {"...", 1, {">"}, "Back Done 2", "", {next, toLast, valid, atLast}},
        {"...", 1, {"<"}, "On 0", "-Back", {previous, toFirst, valid, atFirst}},
        {"...", 2, {">"}, "Back Done 2", "", {next}, 1},
        {"...", 2, {"<"}, "Back On 1", "", {previous, toMiddle, valid}},
        {".", 0, {">"}, "Done 0", "", {next}, 1},
        {".", 0, {"<"}, "Done 0", "", {}},
        // The same on an invalid slide.
        {"...", 0, {invalid, ">"}, "On 0", "", {next, toFirst, atFirst}},
        {"...", 0, {invalid, "<"}, "On 0", "", {}},
        {"...", 1, {invalid, ">"}, "Back On 1", "", {next, toMiddle}},
        {"...", 1, {invalid, "<"}, "On 0", "-Back", {previous, toFirst, valid, atFirst}},
        {"...", 2, {invalid, ">"}, "Back Done 2", "", {next}},
        {"...", 2, {invalid, "<"}, "Back On 1", "", {previous, toMiddle, valid}},
        {".", 0, {invalid, ">"}, "Done 0", "", {next}},
        {".", 0, {invalid, "<"}, "Done 0", "", {}},
        {".", 0, {invalid, valid, ">"}, "Done 0", "", {next}, 1},
        // A press shows the other button at once, a notification lets it fade in.
        {"..", 0, {">"}, "Back Done 1", "", {next, toLast, valid, atLast}},
        {"..", 0, {next}, "Back Done 1", "+Back", {toLast, valid, atLast}},
        {".n", 1, {"<"}, "On 0", "-Back", {previous, toFirst, valid, atFirst}},
        {".n", 1, {previous}, "0", "-Back", {toFirst, valid, atFirst}},
        {".n", 1, {hideNeither, previous}, "On 0", "-Back+On", {toFirst, valid, atFirst}},
        {".n", 1, {invalid, "<"}, "On 0", "-Back+On", {previous, toFirst, valid, atFirst}},
        {"...", 0, {previous}, "On 0", "", {}},
        {".", 0, {next}, "Done 0", "", {}, 1},
        // A press hides at once what the slide hides, a notification lets it fade out.
        {".p.", 0, {">"}, "On 1", "", {next, hidePrevious, toMiddle, valid}},
        {".p.", 1, {">"}, "Back Done 2", "", {next, toLast, valid, atLast}},
        {".n.", 0, {">"}, "Back 1", "", {next, hideNext, toMiddle, valid}},
        {"..p", 1, {">"}, "Done 2", "", {next, hidePrevious, toLast, valid, atLast}},
        {"..p", 1, {next}, "Done 2", "-Back", {hidePrevious, toLast, valid, atLast}},
        {"n..", 1, {"<"}, "0", "-Back", {previous, hideNext, toFirst, valid, atFirst}},
        {"n", 0, {}, "0", "", {}},
        // Arrivals announced by the test.
        {"...", 0, {toMiddle}, "Back On 0", "", {}},
        {"...", 0, {toLast}, "Back Done 0", "+Back", {atLast}},
        {"...", 0, {toSole}, "Done 0", "", {atSole}},
        {"...", 0, {hideNext, toFirst}, "0", "-On", {atFirst}},
        {"...", 1, {hidePrevious, hideNext, toMiddle}, "1", "", {}},
        {"...", 1, {hidePrevious, hideNext, hideNeither, toMiddle}, "Back On 1", "", {}},
        {"...", 1, {toFirst}, "On 1", "-Back", {atFirst}},
        {"...", 1, {toLast}, "Back Done 1", "", {atLast}},
        {"...", 1, {toSole}, "Back Done 1", "", {atSole}},
        {"...", 2, {toMiddle}, "Back On 2", "", {}},
        {"...", 2, {toFirst}, "On 2", "-Back", {atFirst}},
        {"...", 2, {toSole}, "Back Done 2", "", {atSole}},
        {"...", 2, {hidePrevious, hideNext, toLast}, "2", "-Back-Done", {atLast}},
        {".", 0, {toMiddle}, "Back On 0", "", {}},
        {".", 0, {toFirst}, "On 0", "", {atFirst}},
        {".", 0, {toLast}, "Back Done 0", "+Back", {atLast}},
        {".", 0, {hideNext, toSole}, "0", "-Done", {atSole}},
    };
    for (const auto &row : rows) {
        for (const bool isAnimated : {false, true}) {
            const std::string where =
                fmt::format("{} {} {} {}", row.slides, row.index, fmt::join(row.steps, " "), isAnimated);
            const StoppedAnimations animations;
            appearance().setAnimated(false);
            start(row.slides, row.index);
            appearance().setAnimated(isAnimated);
            run(row.steps);
            EXPECT_EQ(shown(), row.shown) << where;
            EXPECT_EQ(quits.count, row.quits) << where;
            EXPECT_EQ(fading(), isAnimated ? row.fading : "") << where;
            if (!isAnimated) { // The last post comes after the animation.
                EXPECT_EQ(posted, row.posted) << where;
            }
        }
    }
}

TEST_F(Navigation, ShowsNothingNewOnANotificationThatTellsOfNoArrival) {
    using namespace NavigationNotifications;
    const struct {
        const char *slides;
        int index;
        const char *shown;
    } positions[] = {
        {"...", 0, "On 0"}, {"...", 1, "Back On 1"}, {"...", 2, "Back Done 2"}, {".", 0, "Done 0"}};
    appearance().setAnimated(false);
    for (const auto &[slides, index, expected] : positions) {
        for (const std::string_view name :
             {slideHasInvalidMandatoryElements, allMandatoryElementsInSlideAreValid,
              currentSlideWantsToHidePreviousButton, currentSlideWantsToHideNextButton, evaluateButtonsHide,
              didReachFirstSlide, didReachLastSlide, didReachSoleSlide}) {
            start(slides, index);
            run({name});
            EXPECT_EQ(shown(), expected) << name;
            EXPECT_EQ(posted, Names()) << name;
        }
    }
}

} // namespace
} // namespace velmar
