#include "SupervisedElement.h"

#include <Base/NavigationNotifications.h>
#include <Views/Content/Containers/ContainerViewModel.h>
#include <Views/Content/Slides/SlideViewModel.h>

#include <Support/RecordedLog.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace velmar {
namespace {

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
    std::shared_ptr<SupervisedElement> left = std::make_shared<SupervisedElement>();
    std::shared_ptr<SupervisedElement> right = std::make_shared<SupervisedElement>();
    std::vector<NotificationObserver> tokens;
    std::vector<std::string> posted;
};

TEST_F(Supervision, AContainerTellsItsSlideOnlyWhenItsValidityChanges) {
    slide->willAppear();
    EXPECT_EQ(std::exchange(posted, {}), std::vector{valid});
    EXPECT_TRUE(log.lines().empty()) << "an arrival is not logged";
    left->set(false);
    right->set(false);
    right->set(true);
    left->set(true);
    EXPECT_EQ(posted, (std::vector{invalid, valid}));
    EXPECT_EQ(log.lines(),
              (std::vector<std::string>{"debug: The slide contains invalid (or empty) mandatory elements",
                                        "debug: All the mandatory elements in the slide are valid"}));
}

TEST_F(Supervision, AnElementThatLeftNoLongerCountsUntilItComesBack) {
    slide->willAppear();
    left->set(false);
    posted.clear();
    container->elementWasRemoved(*left);
    EXPECT_EQ(std::exchange(posted, {}), std::vector{valid});
    container->elementWasRemoved(*left);
    left->set(false);
    EXPECT_TRUE(posted.empty()) << "what it reports late is nobody's any more";
    left->setMandatorySupervisor(container);
    EXPECT_EQ(posted, std::vector{invalid});
}

TEST_F(Supervision, WarningsComeInTheOrderOfFilingWhateverTheyBringAbout) {
    std::vector<std::shared_ptr<SupervisedElement>> many(8);
    std::vector<int> warned;
    for (int index = 0; index < 8; ++index) {
        auto &element = many[static_cast<std::size_t>(index)] = std::make_shared<SupervisedElement>();
        element->warned = [&, index] {
            warned.push_back(index);
            container->elementWasRemoved(*many[static_cast<std::size_t>(index)]);
        };
        element->setMandatorySupervisor(container);
    }
    many.front()->set(false);
    slide->showWarnings();
    EXPECT_EQ(warned, (std::vector{0, 1, 2, 3, 4, 5, 6, 7}));
}

TEST_F(Supervision, AHiddenSlideKeepsSilentAndTellsOnArrival) {
    slide->willAppear();
    slide->willDisappear();
    posted.clear();
    left->set(false);
    EXPECT_TRUE(posted.empty());
    slide->willAppear();
    EXPECT_EQ(posted, std::vector{invalid});
    slide->showWarnings();
    EXPECT_EQ(std::pair(left->warnings, right->warnings), std::pair(1, 1));
}

} // namespace
} // namespace velmar
