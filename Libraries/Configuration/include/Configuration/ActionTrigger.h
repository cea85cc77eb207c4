#pragma once

#include <Foundation/RegularExpression.h>

#include <string>
#include <variant>

namespace velmar {

/// What fires a set of actions. In the file one text.
struct ActionTrigger {
    struct VariableUpdate {
        std::string variable;
        bool operator==(const VariableUpdate &) const = default;
    };
    struct AppLaunch {
        RegularExpression bundleIdentifier; ///< Is searched for in the identifier of the application.
        bool operator==(const AppLaunch &) const = default;
    };
    struct Custom {
        std::string name;
        bool operator==(const Custom &) const = default;
    };
    struct Launch {
        bool operator==(const Launch &) const = default;
    };
    struct Termination {
        bool operator==(const Termination &) const = default;
    };
    struct PreviousButtonClick {
        bool operator==(const PreviousButtonClick &) const = default;
    };
    struct NextButtonClick {
        bool operator==(const NextButtonClick &) const = default;
    };

    std::variant<VariableUpdate, AppLaunch, Custom, Launch, Termination, PreviousButtonClick, NextButtonClick>
        value;

    /// As the file has it: "Launch", "Update(NAME)".
    [[nodiscard]] std::string text() const;

    bool operator==(const ActionTrigger &) const = default;
};

} // namespace velmar
