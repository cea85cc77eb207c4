#pragma once

#include <Foundation/RegularExpression.h>

#include <string>
#include <variant>

namespace velmar {

/// An event that starts a set of actions. A string in the file.
struct ActionTrigger {
    struct VariableUpdate {
        std::string variable;
        bool operator==(const VariableUpdate &) const = default;
    };
    struct AppLaunch {
        RegularExpression bundleIdentifier; ///< Matches any part of the identifier.
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

    /// Returns the form in the file, such as "Launch" or "Update(NAME)".
    [[nodiscard]] std::string text() const;

    bool operator==(const ActionTrigger &) const = default;
};

} // namespace velmar
