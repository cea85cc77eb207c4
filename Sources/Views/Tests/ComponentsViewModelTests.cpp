#include <Views/Content/Containers/ComponentsViewModel.h>

#include <Configuration/Configuration.h>
#include <Support/RecordedLog.h>

#include <gtest/gtest.h>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace velmar {
namespace {

/// Components with the conditions "ONE", none, "TWO". The views record their calls; the test ends the
/// animations.
class Components : public testing::Test, protected ComponentsControllerProtocol {
protected:
    void takeKeyboardFocusAway() override { asked.emplace_back("focus"); }
    void prepare(const ComponentsChange &change) override {
        asked.push_back(fmt::format("-{} +{}", change.removed, change.inserted));
    }
    void giveKeyboardFocusBack() override { asked.emplace_back("focus back"); }
    void animateRemoval(std::function<void()> completion) override {
        asked.emplace_back("removal");
        end = std::move(completion);
    }
    void rebuildLayout() override { asked.emplace_back("rebuild"); }
    void animateInsertion(std::function<void()> completion) override {
        asked.emplace_back("insertion");
        end = std::move(completion);
    }

    static ComponentItem item(const std::optional<std::string> &condition) {
        ComponentItem::Text text;
        if (condition) {
            text.common._condition.set(Expression(*condition));
        }
        return {text};
    }

    ComponentsViewModel model() { return {{item("ONE"), item({}), item("TWO")}, conditions, *this}; }
    void set(const char *name, bool value) { manager->updateVariable(name, value ? "true" : "false", false); }
    void set(bool one, bool two) {
        set("ONE", one);
        set("TWO", two);
    }

    using Asked = std::vector<std::string>;
    static std::string shown(const ComponentsViewModel &components) {
        std::string text;
        for (std::size_t position = 0; position < components.items().size(); ++position) {
            text += components.isShown(position) ? 'x' : '.';
        }
        return text;
    }
    void endAnimation() { std::exchange(end, nullptr)(); }

    RecordedLog log;
    std::shared_ptr<ContentManager> manager = std::make_shared<ContentManager>();
    std::shared_ptr<ConditionEvaluator> conditions =
        std::make_shared<ConditionEvaluator>(ConditionEvaluator::NamedConditions(), manager);
    Asked asked;
    std::function<void()> end;
};

TEST_F(Components, AnswerAllRequestsOfAnAnimationByOneReloadWithTheLastValues) {
    using enum ComponentsViewModel::State;
    set(true, false);
    ComponentsViewModel components = model();
    set("ONE", false);
    components.reload();
    EXPECT_EQ(components.state(), removing);
    for (const bool value : {true, false, true}) {
        set("ONE", value);
        components.reload();
    }
    endAnimation();
    EXPECT_EQ(components.state(), inserting);
    components.reload();
    EXPECT_EQ(shown(components), ".x.") << "what is under way is not disturbed";
    asked.clear();
    endAnimation();
    EXPECT_EQ(asked, (Asked{"focus", "-[] +[0]", "focus back", "rebuild", "insertion"}));
    asked.clear();
    endAnimation();
    EXPECT_EQ(components.state(), idle);
    EXPECT_EQ(asked, Asked()) << "no request is left over";
    EXPECT_EQ(shown(components), "xx.");
    components.reload();
    EXPECT_EQ(asked, (Asked{"focus", "focus back"})) << "nothing changes";
}

TEST_F(Components, AreHiddenByAConditionThatCannotBeEvaluated) {
    set("TWO", true);
    EXPECT_EQ(shown(model()), ".xx");
    EXPECT_EQ(log.lines(), Asked{"error: Unable to evaluate the expression ONE. Undefined variable: ONE"});
}

} // namespace
} // namespace velmar
