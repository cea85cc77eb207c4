#include <Extensions/Evaluatable.h>
#include <Managers/Content.h>

#include <Support/RecordedLog.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

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

TEST_F(EvaluatableTest, GivesAHundredObserversOfTwoWritingThreadsOneMoment) {
    // A thread writes first Y, then X: what stands in the brackets holds in every single moment, if
    // conditions and variables are both of it.
    struct Reader final : ContentObserver {
        void variableDidChange(std::string_view, const std::optional<std::string> &,
                               const std::string &) override {
            wrong += evaluate(always) ? 0 : 1;
            ++notices;
        }
        Expression always{"(E1 && Y1 == X1 || A1 && Y1 > X1) && (E2 && Y2 == X2 || A2 && Y2 > X2)"};
        std::atomic<int> notices{0};
        std::atomic<int> wrong{0};
    };
    manager_->updateVariables({{"X1", "0"}, {"Y1", "0"}, {"X2", "0"}, {"Y2", "0"}});
    use({{"E1", Expression("Y1 == X1")},
         {"A1", Expression("Y1 > X1")},
         {"E2", Expression("Y2 == X2")},
         {"A2", Expression("Y2 > X2")}});
    std::vector<std::shared_ptr<Reader>> readers;
    for (int i = 0; i < 101; ++i) {
        readers.push_back(std::make_shared<Reader>());
        manager_->addObserver(UUID(), readers.back());
    }
    constexpr int writes = 25;
    const auto write = [&](const std::string &thread) {
        for (int i = 1; i <= writes; ++i) {
            Content passing(manager_);
            passing.subscribe(readers.front());
            passing.updateVariable("Y" + thread, std::to_string(i), false);
            passing.updateVariable("X" + thread, std::to_string(i), false);
        }
    };
    std::thread other(write, "1");
    write("2");
    other.join();
    for (const auto &reader : readers) {
        EXPECT_EQ(reader->wrong, 0);
        EXPECT_TRUE(reader->notices == 4 * writes || reader == readers.front()) << reader->notices;
    }
}

} // namespace
} // namespace velmar
