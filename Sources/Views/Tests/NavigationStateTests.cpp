#include <Views/Navigation/NavigationState.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

namespace velmar {
namespace {

TEST(NavigationState, FollowsFromTheSlideItsPlaceAndItsValidity) {
    const struct {
        std::size_t index;
        std::size_t count;
        bool isValid;
        bool hidesPrevious;
        bool hidesNext;
        const char *shown; ///< Visible buttons; "!" if a press of the next button doesn't move.
    } rows[] = {
        {0, 1, true, false, false, "quit!"},
        {0, 1, false, false, true, "!"},
        {0, 2, true, false, false, "next"},
        {0, 2, false, false, false, "next!"},
        {0, 2, true, true, true, ""},
        {1, 2, true, false, false, "previous quit!"},
        {1, 2, true, true, false, "quit!"},
        {1, 2, false, false, true, "previous !"},
        {1, 3, true, false, false, "previous next"},
        {1, 3, false, false, false, "previous next!"},
        {1, 3, true, true, false, "next"},
        {1, 3, true, false, true, "previous "},
        {2, 3, true, false, false, "previous quit!"},
    };
    for (const auto &row : rows) {
        const NavigationState state{slidePosition(row.index, row.count), row.isValid, row.hidesPrevious,
                                    row.hidesNext};
        std::string shown = state.isPreviousButtonHidden() ? "" : "previous ";
        shown += state.isNextButtonHidden() ? "" : state.nextButtonQuits() ? "quit" : "next";
        shown += state.nextButtonMoves() ? "" : "!";
        EXPECT_EQ(shown, row.shown) << row.index << " of " << row.count;
        EXPECT_EQ(slideArrival(state.position).position, state.position);
    }
}

} // namespace
} // namespace velmar
