#pragma once

#include <cstddef>
#include <istream>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>

namespace velmar {

struct Configuration;

/// Runs one set of actions of a configuration without the interface, by the application's own dispatcher and
/// actions, and prints what happens as it happens: each action with its start, outcome and time, and the
/// lines of the log. What needs the interface is said and not done; alerts are put to the terminal.
class SetRehearsal {
public:
    /// The streams must outlive the rehearsal. The set must exist.
    SetRehearsal(std::shared_ptr<const Configuration> configuration, std::size_t set, std::istream &in,
                 std::ostream &out);
    ~SetRehearsal();

    /// In place of what the configuration gives the variable at the start.
    void setVariable(std::string_view name, std::string value);

    /// Once. Returns when nothing of the set can happen any more; true if it ran to its end and no action of
    /// it failed. Whatever the set changes on this computer stays changed.
    [[nodiscard]] bool run();

private:
    class Stage;
    std::unique_ptr<Stage> stage_;
};

} // namespace velmar
