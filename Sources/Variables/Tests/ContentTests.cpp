#include <Configuration/Configuration.h>
#include <Variables/Content.h>
#include <Variables/ContentUpdater.h>
#include <Variables/ObservableContent.h>
#include <Variables/PopulatePlugin.h>

#include <Support/RecordedLog.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <barrier>
#include <functional>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace velmar {
namespace {

using testing::ElementsAre;

class Observer final : public ContentObserver {
public:
    explicit Observer(const std::shared_ptr<ContentManager> &manager) : content_(manager) {}

    static std::shared_ptr<Observer> of(const std::shared_ptr<ContentManager> &manager,
                                        ObservedNames names = std::nullopt) {
        auto observer = std::make_shared<Observer>(manager);
        observer->content_.subscribe(observer, std::move(names));
        return observer;
    }

    void variableDidChange(std::string_view name, const std::optional<std::string> &former,
                           const std::string &value) override {
        notices += fmt::format("{}:{}>{} ", name, former.value_or("-"), value);
        if (reaction) {
            reaction(value);
        }
    }

    std::string notices;
    std::function<void(const std::string &)> reaction;
    Content content_;
};

class ContentTest : public testing::Test {
protected:
    std::shared_ptr<ContentManager> manager_ = std::make_shared<ContentManager>();
    RecordedLog log_;
};

TEST_F(ContentTest, TellsAndLogsWhatAWriteChanges) {
    const auto observer = Observer::of(manager_);
    const struct {
        const char *name;
        const char *value;
        const char *notice;
        const char *line;
    } cases[] = {
        {"A", "1", "A:->1 ", "info: Successfully added a new variable [ A: '1' ]"},
        {"A", "1", "", ""},
        {"${A}", "2", "A:1>2 ", "info: Successfully updated a variable [ A: '2' ]"},
        {"${A", "3", "A:2>3 ", "info: Successfully updated a variable [ A: '3' ]"},
        {"A}", "3", "", ""},
        {"{A}", "", "{A:-> ", "info: Successfully added a new variable [ {A: '' ]"},
        {"${}", "n", ":->n ", "info: Successfully added a new variable [ : 'n' ]"},
        {"é", "É", "é:->É ", "info: Successfully added a new variable [ é: 'É' ]"},
        {"e\u0301", "E\u0301", "", ""},
    };
    for (const auto &[name, value, notice, line] : cases) {
        observer->notices.clear();
        manager_->updateVariable(name, value, true);
        EXPECT_EQ(observer->notices, notice) << name;
        const auto lines = log_.takeLines();
        EXPECT_EQ(lines.empty() ? "" : lines.front(), line) << name;
    }
    const VariablesSnapshot variables = manager_->variables();
    EXPECT_EQ(variables->at("é"), "E\u0301") << "the equal text is taken over";
    EXPECT_EQ(variables->size(), 4U);

    manager_->updateVariable("A", "unlogged", false);
    EXPECT_THAT(log_.takeLines(), ElementsAre());
    manager_->updateVariables({{"A", "4"}, {"B", "5"}});
    EXPECT_EQ(log_.takeLines().size(), 2U);
}

TEST_F(ContentTest, RegistersAndResetsWhatTheConfigurationHas) {
    Configuration configuration;
    GeneralSection general;
    const ExpressionsBook<std::string> book({{"A", "1"}, {"B", "${A}"}});
    general._variables.set(book);
    configuration._general.set(general);
    configuration.declaredVariables = {"A", "C", "D"};
    manager_->updateVariable("C", "given", false);
    const auto observer = Observer::of(manager_);
    manager_->registerVariables(configuration);
    EXPECT_EQ(observer->notices, "A:->1 B:->${A} D:-> ");
    EXPECT_EQ(log_.takeLines().size(), 2U) << "of the book alone";
    EXPECT_EQ(manager_->variables()->at("C"), "given");

    manager_->updateVariables({{"A", "2"}, {"C", "2"}});
    static_cast<void>(log_.takeLines());
    observer->notices.clear();
    manager_->resetVariables({"A", "B", "C", "unknown"}, book);
    EXPECT_EQ(observer->notices, "A:2>1 ") << "B has its value still";
    EXPECT_EQ(manager_->variables()->at("C"), "2") << "the book has no value for it";
    EXPECT_THAT(log_.lines(), ElementsAre());
}

TEST_F(ContentTest, PopulatesAllTextsOfAValueOrNone) {
    manager_->updateVariables({{"A", "${B}!"}, {"B", "x"}, {"C", "${D}"}, {"D", "${C}"}});
    static_cast<void>(log_.takeLines());
    const auto registration = Plugins::registerPlugin(std::make_shared<const PopulatePlugin>(manager_));
    const struct {
        std::vector<std::string> value;
        std::vector<std::string> populated;
        std::string_view line;
    } cases[] = {
        {{"plain", "$${A}", "${"}, {"plain", "$x!", "${"}, ""},
        {{"${A}", "${Z}"}, {"${A}", "${Z}"}, "warning: Use of undefined variable 'Z' in condition [ ${Z} ]"},
        {{"${C}"}, {"${C}"}, "warning: Circular reference involving C."},
    };
    for (const auto &[value, populated, line] : cases) {
        for (int reading = 0; reading < 2; ++reading) {
            EXPECT_EQ(plugged(value), populated);
            const auto lines = log_.takeLines();
            EXPECT_EQ(lines.size(), line.empty() ? 0U : 1U);
            EXPECT_TRUE(lines.empty() || lines.front().starts_with(line)) << lines.front();
        }
    }
}

TEST_F(ContentTest, ShowsInASnapshotTheStateOfItsMoment) {
    manager_->updateVariable("A", "1", false);
    const Variables *const address = &*manager_->variables();
    manager_->updateVariable("A", "2", false);
    const VariablesSnapshot before = manager_->variables();
    EXPECT_EQ(&*before, address) << "no snapshot was held: no copy";
    manager_->updateVariable("A", "2", false);
    EXPECT_EQ(&*manager_->variables(), address) << "nothing changed: no copy";
    EXPECT_EQ(manager_->variables().version(), before.version());

    manager_->updateVariable("A", "3", false);
    EXPECT_EQ(before->at("A"), "2");
    EXPECT_EQ(manager_->variables()->at("A"), "3");
    EXPECT_NE(manager_->variables().version(), before.version());
}

TEST_F(ContentTest, TellsWhoIsThereAndSubscribed) {
    auto gone = Observer::of(manager_);
    const auto silent = std::make_shared<Observer>(manager_);
    const auto twice = Observer::of(manager_);
    twice->content_.subscribe(silent);
    const auto removed = Observer::of(manager_);
    manager_->removeObserver(removed->content_.contentManagerObserverId());
    manager_->addObserver(UUID(), std::weak_ptr<ContentManagerObserver>(gone), std::nullopt);
    gone.reset();
    const auto throwing = Observer::of(manager_);
    throwing->reaction = [](const std::string &) { throw std::runtime_error("on purpose"); };

    manager_->updateVariable("A", "1", false);
    EXPECT_EQ(twice->notices + throwing->notices, "A:->1 A:->1 ");
    EXPECT_EQ(silent->notices + removed->notices, "");
}

TEST_F(ContentTest, LetsObserversWriteAndLeaveDuringANotice) {
    const auto writer = Observer::of(manager_);
    writer->reaction = [&](const std::string &value) {
        if (value.size() < 3) {
            writer->content_.updateVariable("A", value + "+", false);
        }
    };
    std::vector<std::shared_ptr<Observer>> leaving(10);
    for (auto &observer : leaving) {
        observer = Observer::of(manager_);
        observer->reaction = [&](const std::string &) { observer.reset(); };
    }
    manager_->updateVariable("A", "1", false);
    EXPECT_EQ(writer->notices, "A:->1 A:1>1+ A:1+>1++ ");
    EXPECT_THAT(leaving, testing::Each(nullptr));
    EXPECT_EQ(manager_->variables()->at("A"), "1++");
}

TEST_F(ContentTest, NotifiesTheObserversOfAName) {
    const auto ofAll = Observer::of(manager_);
    const auto others = Observer::of(manager_, VariableNames{"A", "B", "é"});
    const auto observer = Observer::of(manager_, VariableNames{});
    const struct {
        ObservedNames names;
        std::vector<const char *> notified;
        std::vector<const char *> silent;
    } cases[] = {
        {VariableNames{}, {}, {"A", "B", ""}},
        {VariableNames{"A"}, {"A", "${A}"}, {"B", "a", "AA"}},
        {VariableNames{"A", "B"}, {"A", "B"}, {"C"}},
        {VariableNames{"B", "C"}, {"B", "C"}, {"A"}},
        {VariableNames{"é", "e\u0301"}, {"é", "e\u0301"}, {"e", "B"}},
        {VariableNames{"e\u0301"}, {"é", "e\u0301"}, {"C"}},
        {VariableNames{""}, {"${}"}, {"é"}},
        {std::nullopt, {"A", "é", ""}, {}},
        {VariableNames{"C"}, {"C"}, {"A", "é"}},
        {VariableNames{}, {}, {"A", "C", "é"}},
    };
    int value = 0;
    int writes = 0;
    const auto notices = [&](const char *name) {
        observer->notices.clear();
        manager_->updateVariable(name, std::to_string(++value), false);
        ++writes;
        return std::ranges::count(observer->notices, ' ');
    };
    for (const auto &[names, notified, silent] : cases) {
        observer->content_.setObservedNames(names);
        observer->content_.setObservedNames(names);
        for (const char *const name : notified) {
            EXPECT_EQ(notices(name), 1) << name << " in case " << &names - &cases[0].names;
        }
        for (const char *const name : silent) {
            EXPECT_EQ(notices(name), 0) << name;
        }
    }
    EXPECT_EQ(std::ranges::count(ofAll->notices, ' '), writes);
    others->notices.clear();
    manager_->addObserver(others->content_.contentManagerObserverId(), others, VariableNames{"C"});
    manager_->updateVariables({{"A", "last"}, {"C", "last"}});
    EXPECT_THAT(others->notices, testing::AllOf(testing::StartsWith("C:"), testing::EndsWith(">last ")));
}

TEST_F(ContentTest, LetsObserversReplaceNamesDuringANotice) {
    std::vector<std::shared_ptr<Observer>> observers(10);
    for (auto &observer : observers) {
        observer = Observer::of(manager_, VariableNames{"A"});
        observer->reaction = [&](const std::string & /*value*/) {
            for (const auto &each : observers) {
                each->content_.setObservedNames(VariableNames{"B"});
            }
        };
    }
    manager_->updateVariables({{"A", "1"}, {"B", "1"}});
    manager_->updateVariable("A", "2", false);
    for (const auto &observer : observers) {
        EXPECT_EQ(observer->notices, "A:->1 B:->1 ") << "a notice that has begun goes on";
    }
}

/// Counts the notices of values that begin with "own".
class Counter final : public ObservableContent {
public:
    using ObservableContent::ObservableContent;
    void variableDidChange(std::string_view /*name*/, const std::optional<std::string> & /*former*/,
                           const std::string &value) override {
        notices += value.starts_with("own") ? 1 : 0;
    }
    std::atomic<int> notices = 0;
};

TEST_F(ContentTest, LosesNoWriteAfterNamesWereReplaced) {
    constexpr int rounds = 100;
    const auto nameOf = [](int round) { return "X" + std::to_string(round % 3); };
    const auto counter = std::make_shared<Counter>(manager_);
    counter->contentVariables().subscribe(counter, VariableNames{});
    std::atomic<bool> isOver = false;
    std::vector<std::thread> disturbing;
    for (int number = 0; number < 2; ++number) {
        disturbing.emplace_back([&, number] {
            for (int round = number; !isOver; ++round) {
                const auto passing = std::make_shared<Counter>(manager_);
                passing->contentVariables().subscribe(passing, VariableNames{nameOf(round)});
                passing->setConcerningVariables({nameOf(round + 1), "other"});
                manager_->updateVariable(nameOf(round + 1), std::to_string(number), false);
            }
        });
    }
    // The replacement is concurrent with the write of the first phase and precedes that of the second.
    std::barrier phase(2);
    std::thread writer([&] {
        for (int round = 0; round < rounds; ++round) {
            phase.arrive_and_wait();
            manager_->updateVariable("SEEN", fmt::format("own {}", round), false);
            phase.arrive_and_wait();
            manager_->updateVariable(nameOf(round), fmt::format("own {}", round), false);
            phase.arrive_and_wait();
        }
    });
    for (int round = 0; round < rounds; ++round) {
        counter->setConcerningVariables({});
        counter->notices = 0;
        phase.arrive_and_wait();
        counter->setConcerningVariables({nameOf(round), "SEEN"});
        const VariablesSnapshot variables = manager_->variables();
        const auto seen = variables->find("SEEN");
        const bool isRead = seen != variables->end() && seen->second == fmt::format("own {}", round);
        phase.arrive_and_wait();
        phase.arrive_and_wait();
        const int notices = counter->notices;
        EXPECT_TRUE(notices == 2 || (notices == 1 && isRead)) << notices << " in round " << round;
    }
    isOver = true;
    writer.join();
    for (std::thread &thread : disturbing) {
        thread.join();
    }
}

} // namespace
} // namespace velmar
