#include <Extensions/Evaluatable.h>
#include <Managers/Content.h>

#include <Support/RecordedLog.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace velmar {
namespace {

using expressions::Expression;
using testing::ElementsAre;
using NamedConditions = ConditionEvaluator::NamedConditions;

class EvaluatableTest : public testing::Test {
protected:
    void use(NamedConditions::Models conditions) {
        scope_.emplace(std::make_shared<ConditionEvaluator>(
            Config<NamedConditions>([](const Configuration &) { return NamedConditions(); },
                                    NamedConditions(std::move(conditions))),
            manager_));
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

// The other thread writes first Y, then X: what the condition asks holds in every single moment, if the named
// conditions and the variables are both of it.
TEST_F(EvaluatableTest, SeesOneMomentWhileAnotherThreadWrites) {
    manager_->updateVariables({{"X1", "0"}, {"Y1", "0"}});
    use({{"EQUAL", Expression("Y1 == X1")}, {"AHEAD", Expression("Y1 > X1")}});
    std::atomic<bool> isOver = false;
    std::thread writer([&] {
        for (int value = 1; value <= 20'000; ++value) {
            manager_->updateVariable("Y1", std::to_string(value), false);
            manager_->updateVariable("X1", std::to_string(value), false);
        }
        isOver = true;
    });
    const Expression always("EQUAL && Y1 == X1 || AHEAD && Y1 > X1");
    int wrong = 0;
    while (!isOver) {
        wrong += evaluate(always) ? 0 : 1;
    }
    writer.join();
    EXPECT_EQ(wrong, 0);
}

} // namespace
} // namespace velmar
