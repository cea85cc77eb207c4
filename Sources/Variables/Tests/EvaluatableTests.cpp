#include <Variables/Content.h>
#include <Variables/Evaluatable.h>

#include <Support/RecordedLog.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace velmar {
namespace {

using expressions::Expression;
using testing::ElementsAre;
using NamedConditions = ConditionEvaluator::NamedConditions;

class EvaluatableTest : public testing::Test {
protected:
    void use(NamedConditions::Models conditions, std::shared_ptr<ContentManagerProtocol> content = {}) {
        scope_.emplace(std::make_shared<ConditionEvaluator>(NamedConditions(std::move(conditions)),
                                                            content ? std::move(content) : manager_));
    }

    std::shared_ptr<ContentManager> manager_ = std::make_shared<ContentManager>();
    std::optional<Shared<ConditionEvaluator>::Scope> scope_;
    RecordedLog log_;
};

TEST_F(EvaluatableTest, SeesNamedConditionsLikeVariables) {
    use({{"READY", Expression("COUNT >= 3")}, {"LAB", Expression(R"(PLACE == "lab")")}});
    manager_->updateVariables({{"COUNT", "2"}, {"PLACE", "lab"}});
    EXPECT_FALSE(evaluate(Expression("READY && LAB")));
    manager_->updateVariable("COUNT", "3", false);
    EXPECT_TRUE(evaluate(Expression("READY && LAB")));
    manager_->updateVariable("READY", "false", false);
    EXPECT_TRUE(evaluate(Expression("READY"))) << "it stands before a variable of its name";
    use({{"READY", Expression("COUNT == 0")}});
    EXPECT_FALSE(evaluate(Expression("READY"))) << "another book, the same state";
}

TEST_F(EvaluatableTest, FailsAsLongAsANamedConditionDoes) {
    use({{"AA", Expression("COUNT > 0")}, {"BB", Expression("AA")}, {"CC", Expression("DD")}});
    const auto undefinedName = [] {
        try {
            static_cast<void>(evaluate(Expression("COUNT > 0")));
        } catch (const expressions::ExpressionError &error) {
            return error.as<expressions::ExpressionErrors::UndefinedVariable>()->name;
        }
        return std::string("none");
    };
    for (const char *const state : {"1", "2"}) {
        manager_->updateVariable("COUNT", state, false);
        EXPECT_EQ(undefinedName(), "AA") << "named conditions must not see each other";
        EXPECT_EQ(undefinedName(), "AA");
        EXPECT_THAT(log_.takeLines(), ElementsAre("warning: The condition 'BB' of 'Conditions' cannot be "
                                                  "evaluated. Undefined variable: AA"))
            << "once for a state";
    }
    manager_->updateVariables({{"AA", "true"}, {"DD", "true"}});
    EXPECT_TRUE(evaluate(Expression("COUNT > 0")));
    EXPECT_THROW(static_cast<void>(evaluate(Expression("EE"))), expressions::ExpressionError);
}

TEST_F(EvaluatableTest, TellsWhatAConditionDependsOn) {
    use({{"READY", Expression("COUNT >= 3")}, {"e\u0301e", Expression("READY")}});
    EXPECT_THAT(involvedVariables(Expression("READY && PLACE == OTHER")),
                ElementsAre("COUNT", "OTHER", "PLACE", "READY"))
        << "a named condition reads a variable where it names another one";
    use({{"READY", Expression("COUNT >= 3")}});
    EXPECT_THAT(involvedVariables(Expression("READY")), ElementsAre("COUNT"));
    use({});
    EXPECT_THAT(involvedVariables(Expression("READY")), ElementsAre("READY"));
}

// Changes the state at each read: Y1 gets ahead of X1, then X1 catches up.
class RestlessContent final : public ContentManagerProtocol {
public:
    explicit RestlessContent(std::shared_ptr<ContentManager> manager) : manager_(std::move(manager)) {}
    [[nodiscard]] VariablesSnapshot variables() const override {
        ++readings_;
        manager_->updateVariable(readings_ % 2 == 0 ? "X1" : "Y1", std::to_string((readings_ + 1) / 2),
                                 false);
        return manager_->variables();
    }
    void updateVariable(std::string_view, std::string, bool) override {}
    void updateVariables(const std::map<std::string, std::string> &) override {}
    void updatePlaceholder(GeneralSection::Placeholders, std::string) override {}
    void addObserver(const UUID &, std::weak_ptr<ContentManagerObserver>, ObservedNames) override {}
    void setObservedNames(const UUID &, ObservedNames) override {}
    void removeObserver(const UUID &) override {}

private:
    std::shared_ptr<ContentManager> manager_;
    mutable int readings_ = 0;
};

TEST_F(EvaluatableTest, ReadsConditionsAndVariablesOfOneMoment) {
    manager_->updateVariable("X1", "0", false);
    use({{"EQUAL", Expression("Y1 == X1")}, {"AHEAD", Expression("Y1 > X1")}},
        std::make_shared<RestlessContent>(manager_));
    for (int evaluation = 0; evaluation < 4; ++evaluation) {
        EXPECT_TRUE(evaluate(Expression("EQUAL && Y1 == X1 || AHEAD && Y1 > X1")));
    }
}

TEST_F(EvaluatableTest, IsEvaluatedByManyThreads) {
    use({{"LARGE", Expression("COUNT > 0")}});
    manager_->updateVariable("COUNT", "1", false);
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([&] {
            for (int value = 1; value <= 500; ++value) {
                manager_->updateVariable("COUNT", std::to_string(value), false);
                EXPECT_TRUE(evaluate(Expression("LARGE")));
            }
        });
    }
    for (auto &thread : threads) {
        thread.join();
    }
}

} // namespace
} // namespace velmar
