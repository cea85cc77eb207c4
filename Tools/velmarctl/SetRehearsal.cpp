#include <SetRehearsal.h>

#include <ReportedAction.h>
#include <TerminalServices.h>

#include <Actions/Action.h>
#include <Actions/ActionContext.h>
#include <Actions/ActionDispatcher.h>
#include <Actions/DispatchableItem.h>
#include <Configuration/Configuration.h>
#include <Dispatch/DispatchQueue.h>
#include <Variables/ConditionEvaluator.h>
#include <Variables/PopulatePlugin.h>
#include <logger/BaseDestination.h>
#include <logger/ScopedDestinations.h>

#include <fmt/format.h>

#include <chrono>
#include <span>
#include <utility>

namespace velmar {

namespace {

/// Prints the application's log records.
class LogLines final : public BaseDestination {
public:
    explicit LogLines(std::shared_ptr<RehearsalRecord> record)
        : BaseDestination(DestinationSettings{.asynchronously = false, .minLevel = LogLevel::info}),
          record_(std::move(record)) {}

    void write(std::span<const LogRecord> records) override {
        for (const LogRecord &record : records) {
            record_->detail(fmt::format("{}: {}", nameOf(record.level), record.message));
        }
    }

private:
    std::shared_ptr<RehearsalRecord> record_;
};

} // namespace

class SetRehearsal::Stage {
public:
    Stage(std::shared_ptr<const Configuration> configuration, std::size_t set, std::istream &in,
          std::ostream &out)
        : configuration_(std::move(configuration)),
          set_{UUID(), {configuration_, &configuration_->_actionSets()[set].set}},
          record_(std::make_shared<RehearsalRecord>(out)),
          services_(record_->mainQueue, in, say_, contentManager_) {
        contentManager_->registerVariables(*configuration_);
        slides_->addObserver(slideObserver_);
    }
    ~Stage() { record_->close(); }
    Stage(const Stage &) = delete;
    Stage &operator=(const Stage &) = delete;

    void setVariable(std::string_view name, std::string value) {
        contentManager_->updateVariable(name, std::move(value), false);
    }

    bool run() {
        const ScopedDestinations log({std::make_shared<LogLines>(record_)});
        const auto plugin = Plugins::registerPlugin(std::make_shared<const PopulatePlugin>(contentManager_));
        const Shared<ConditionEvaluator>::Scope evaluator(
            std::make_shared<ConditionEvaluator>(configuration_->_conditions(), contentManager_));
        const auto start = std::chrono::steady_clock::now();
        dispatch();
        static_cast<void>(record_->mainQueue.runUntil([this] { return isOver(); }, forever));
        const std::chrono::duration<double, std::milli> duration = std::chrono::steady_clock::now() - start;
        record_->line(fmt::format("The set {} after {:.1f} ms.", outcome(), duration.count()));
        return record_->hasCompleted && !record_->hasFailed;
    }

private:
    static constexpr std::chrono::hours forever{24 * 365};

    // A parallel set releases its handler at the end, and so does a chain that isn't run. A stopped chain
    // keeps its handler, but has neither running actions nor pending functions.
    [[nodiscard]] bool isOver() const {
        const bool isChained = set_.item->_type() == ActionItems::ExecutionType::chained;
        return record_->isOver ||
               (isChained && DispatchQueue::global().waitUntilIdle(forever) && record_->runningActions == 0);
    }

    [[nodiscard]] const char *outcome() const {
        if (record_->hasCompleted) {
            return "ran to its end";
        }
        return record_->madeActions == 0 && set_.item->_condition.rawValue()
                   ? "was not run, for its condition,"
                   : "stopped before its end";
    }

    void dispatch() {
        const std::shared_ptr<void> handlerLives(nullptr, [record = record_](void *) {
            record->isOver = true;
            record->changed();
        });
        dispatcher_->dispatch(set_, [record = record_, handlerLives] { record->hasCompleted = true; });
    }

    [[nodiscard]] std::shared_ptr<Dispatchable> reported(std::shared_ptr<const ActionItem> item) const {
        const auto number = item.get() - set_.item->_actions().data();
        auto name = fmt::format("{} {}", number, typeOf(*item));
        return std::make_shared<ReportedAction>(velmar::dispatchable(context_, std::move(item)),
                                                std::move(name), record_);
    }

    std::shared_ptr<const Configuration> configuration_;
    ActionSet set_;
    std::shared_ptr<RehearsalRecord> record_;
    SayLine say_ = [record = record_](const std::string &line) { record->detail(line); };
    std::shared_ptr<ContentManager> contentManager_ = std::make_shared<ContentManager>();
    TerminalServices services_;
    std::shared_ptr<TerminalSlides> slideObserver_ = std::make_shared<TerminalSlides>(say_);
    std::shared_ptr<SlidesActionManager> slides_ = std::make_shared<SlidesActionManager>();
    std::shared_ptr<const ActionContext> context_ = std::make_shared<const ActionContext>(
        ActionContext{.services = services_.bundle(),
                      .terminateApp = [say = say_] { say("termination, not done here"); },
                      .slides = slides_});
    std::shared_ptr<ActionDispatcher> dispatcher_ = std::make_shared<ActionDispatcher>(
        [this](std::shared_ptr<const ActionItem> item) { return reported(std::move(item)); });
};

SetRehearsal::SetRehearsal(std::shared_ptr<const Configuration> configuration, std::size_t set,
                           std::istream &in, std::ostream &out)
    : stage_(std::make_unique<Stage>(std::move(configuration), set, in, out)) {}

SetRehearsal::~SetRehearsal() = default;

void SetRehearsal::setVariable(std::string_view name, std::string value) {
    stage_->setVariable(name, std::move(value));
}

bool SetRehearsal::run() {
    return stage_->run();
}

} // namespace velmar
