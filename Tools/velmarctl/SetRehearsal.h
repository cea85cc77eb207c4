#pragma once

#include <cstddef>
#include <istream>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>

namespace velmar {

struct Configuration;

/// Runs an action set of a configuration without the interface, using the application's own dispatcher and
/// actions. Prints each action's start, outcome and duration, and the log lines, as they occur. Actions that
/// need the interface are reported but not done; alerts are presented on the terminal.
class SetRehearsal {
public:
    /// The streams must outlive this object. `set` must be the index of an existing set.
    SetRehearsal(std::shared_ptr<const Configuration> configuration, std::size_t set, std::istream &in,
                 std::ostream &out);
    ~SetRehearsal();

    /// Sets a variable, overriding its initial value in the configuration.
    void setVariable(std::string_view name, std::string value);

    /// Runs the set and returns when nothing of it can run any more; true if it ran to its end and no action
    /// failed. Must be called once only. Changes that the set makes to the computer are permanent.
    [[nodiscard]] bool run();

private:
    class Stage;
    std::unique_ptr<Stage> stage_;
};

} // namespace velmar
