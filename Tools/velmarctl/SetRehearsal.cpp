#include <SetRehearsal.h>

#include <PrintableText.h>
#include <TerminalInterface.h>

#include <Configuration/Configuration.h>
#include <Dispatch/DispatchQueue.h>
#include <Dispatch/MainThreadQueue.h>
#include <Managers/ActionDispatcher.h>
#include <Managers/ConditionEvaluator.h>
#include <Managers/PopulatePlugin.h>
#include <Models/Actions/ActionSurroundings.h>
#include <Models/Actions/DispatchableItem.h>
#include <logger/BaseDestination.h>
#include <logger/ScopedDestinations.h>

#include <fmt/chrono.h>
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <atomic>
#include <chrono>
#include <mutex>
#include <utility>

namespace velmar {

namespace {

using Clock = std::chrono::steady_clock;

std::string since(Clock::time_point start) {
    return fmt::format("{:.1f} ms", std::chrono::duration<double, std::milli>(Clock::now() - start).count());
}

/// Prints lines of several threads, each whole.
class Transcript {
public:
    explicit Transcript(std::ostream &out) : out_(out) {}

    void line(std::string_view text) {
        const std::lock_guard lock(mutex_);
        out_ << printable(text, "\n      ") << std::endl; // At once: an action may take its time.
    }
    void detail(std::string_view text) { line(fmt::format("    {}", text)); }

private:
    std::mutex mutex_;
    std::ostream &out_;
};

class LogLines final : public BaseDestination {
public:
    explicit LogLines(Transcript &transcript) : BaseDestination(settings()), transcript_(transcript) {}

    void write(std::span<const LogRecord> records) override {
        for (const LogRecord &record : records) {
            static constexpr std::array levels{"verbose", "debug", "info", "warning", "error"};
            transcript_.detail(
                fmt::format("{}: {}", levels.at(static_cast<std::size_t>(record.level)), record.message));
        }
    }

private:
    static DestinationSettings settings() {
        DestinationSettings settings;
        settings.asynchronously = false;
        settings.minLevel = LogLevel::info;
        return settings;
    }
    Transcript &transcript_;
};

/// What is under way and how it has gone.
struct Progress {
    std::atomic<int> running{0}; ///< Actions.
    std::atomic<bool> hasFailed{false};
    std::atomic<bool> isOver{false}; ///< The dispatcher has let go of the completion handler.
    std::atomic<bool> hasCompleted{false};
};

/// An action that reports on itself.
class ReportedAction final : public Dispatchable {
public:
    ReportedAction(std::shared_ptr<Dispatchable> action, std::string name, Transcript &transcript,
                   Progress &progress, MainQueue &mainQueue)
        : action_(std::move(action)),
          name_(std::move(name)),
          transcript_(transcript),
          progress_(progress),
          mainQueue_(mainQueue) {}

    [[nodiscard]] const ActionItem &item() const override { return action_->item(); }
    [[nodiscard]] const SuccessCompletionBlock &successCompletionBlock() const override {
        return successCompletionBlock_;
    }
    void setSuccessCompletionBlock(SuccessCompletionBlock block) override {
        successCompletionBlock_ = std::move(block);
    }

    void dispatch() override {
        ++progress_.running;
        transcript_.line(fmt::format("{}: started", name_));
        // Ends with the action: one that goes without having told anything has not been run.
        auto report = std::make_shared<Report>(*this, std::move(successCompletionBlock_));
        action_->setSuccessCompletionBlock([report](bool success) { report->tell(success); });
        report.reset();
        std::exchange(action_, nullptr)->dispatch();
    }

private:
    class Report {
    public:
        Report(const ReportedAction &action, SuccessCompletionBlock block)
            : name_(action.name_),
              transcript_(action.transcript_),
              progress_(action.progress_),
              mainQueue_(action.mainQueue_),
              block_(std::move(block)) {}
        Report(const Report &) = delete;
        Report &operator=(const Report &) = delete;

        ~Report() {
            if (!hasTold_) {
                transcript_.line(fmt::format("{}: not run, its condition does not hold", name_));
            }
            --progress_.running;
            mainQueue_.async([] {}); // Whoever waits for the end looks again.
        }

        void tell(bool success) {
            hasTold_ = true;
            transcript_.line(
                fmt::format("{}: {} after {}", name_, success ? "succeeded" : "failed", since(start_)));
            if (!success) {
                progress_.hasFailed = true;
            }
            if (const auto block = std::exchange(block_, nullptr)) {
                block(success);
            }
        }

    private:
        std::string name_;
        Transcript &transcript_;
        Progress &progress_;
        MainQueue &mainQueue_;
        SuccessCompletionBlock block_;
        Clock::time_point start_ = Clock::now();
        bool hasTold_ = false;
    };

    std::shared_ptr<Dispatchable> action_;
    std::string name_;
    Transcript &transcript_;
    Progress &progress_;
    MainQueue &mainQueue_;
    SuccessCompletionBlock successCompletionBlock_;
};

} // namespace

class SetRehearsal::Stage {
public:
    Stage(std::shared_ptr<const Configuration> configuration, std::size_t set, std::istream &in,
          std::ostream &out)
        : configuration_(std::move(configuration)),
          set_{UUID(), {configuration_, &configuration_->_actionSets()[set].set}},
          transcript_(out),
          alerts_(mainQueue_, in, say_),
          pasteboard_(say_),
          sounds_(mainQueue_, say_) {
        contentManager_->registerVariables(*configuration_);
        slides_->addObserver(slideObserver_);
    }

    void setVariable(std::string_view name, std::string value) {
        contentManager_->updateVariable(name, std::move(value), false);
    }

    bool run() {
        const ScopedDestinations log({std::make_shared<LogLines>(transcript_)});
        const auto plugin =
            Plugins::registerPlugin(std::make_shared<const AppManager::PopulatePlugin>(contentManager_));
        const Shared<ConditionEvaluator>::Scope evaluator(std::make_shared<ConditionEvaluator>(
            Config<ConditionEvaluator::NamedConditions>(
                [](const Configuration &c) -> decltype(auto) { return c._conditions(); },
                configuration_->_conditions()),
            contentManager_));
        const auto start = Clock::now();
        dispatch();
        const bool isChained = set_.item->_type() == ActionItems::ExecutionType::chained;
        // A chain that has stopped keeps its handler: nothing runs then, and nothing waits to.
        static_cast<void>(mainQueue_.runUntil(
            [&] {
                return progress_.isOver || (isChained && DispatchQueue::global().waitUntilIdle(forever) &&
                                            progress_.running == 0);
            },
            forever));
        transcript_.line(fmt::format("The set {} after {}.",
                                     progress_.hasCompleted ? "ran to its end" : "stopped before its end",
                                     since(start)));
        return progress_.hasCompleted && !progress_.hasFailed;
    }

private:
    static constexpr std::chrono::hours forever{24 * 365};

    void dispatch() {
        const auto dispatcher = std::make_shared<ActionDispatcher>(
            [this](std::shared_ptr<const ActionItem> item) { return reported(std::move(item)); });
        dispatcher_ = dispatcher;
        const std::shared_ptr<void> handlerLives(nullptr, [this](void *) {
            progress_.isOver = true;
            mainQueue_.async([] {});
        });
        dispatcher->dispatch(set_, [this, handlerLives] { progress_.hasCompleted = true; });
    }

    std::shared_ptr<Dispatchable> reported(std::shared_ptr<const ActionItem> item) {
        const auto type = std::visit(
            [](const auto &action) { return std::remove_cvref_t<decltype(action)>::typeIdentifier; },
            item->value);
        const auto number = item.get() - set_.item->_actions().data();
        auto name = fmt::format("{} {}", number, rawString(type));
        return std::make_shared<ReportedAction>(velmar::dispatchable(std::move(item), surroundings_),
                                                std::move(name), transcript_, progress_, mainQueue_);
    }

    std::shared_ptr<const Configuration> configuration_;
    ActionSet set_;
    Transcript transcript_;
    Progress progress_;
    MainThreadQueue mainQueue_;
    SayLine say_ = [this](const std::string &line) { transcript_.detail(line); };
    TerminalAlertPresenter alerts_;
    TerminalPasteboard pasteboard_;
    TerminalSoundPlayer sounds_;
    std::shared_ptr<TerminalSlides> slideObserver_ = std::make_shared<TerminalSlides>(say_);
    std::shared_ptr<SlidesActionManager> slides_ = std::make_shared<SlidesActionManager>();
    std::shared_ptr<ContentManager> contentManager_ = std::make_shared<ContentManager>();
    std::shared_ptr<const ActionSurroundings> surroundings_ = std::make_shared<const ActionSurroundings>(
        ActionSurroundings{.mainQueue = mainQueue_,
                           .alerts = alerts_,
                           .pasteboard = pasteboard_,
                           .sounds = sounds_,
                           .terminateApp = [this] { say_("termination, not done here"); },
                           .contentManager = contentManager_,
                           .slides = slides_});
    std::shared_ptr<ActionDispatcher> dispatcher_;
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
