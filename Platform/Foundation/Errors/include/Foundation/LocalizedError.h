#pragma once

#include <exception>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>

namespace velmar {

/// An error with a text for its reader. Everything that the program throws derives from it.
class LocalizedError : public std::exception {
public:
    /// The text, UTF-8, complete sentences where the texts of the program are.
    [[nodiscard]] const std::string &errorDescription() const noexcept { return *description_; }
    [[nodiscard]] const char *what() const noexcept override { return description_->c_str(); }

protected:
    explicit LocalizedError(std::string description)
        : description_(std::make_shared<const std::string>(std::move(description))) {}

private:
    // Shared, so that copying an exception cannot throw.
    std::shared_ptr<const std::string> description_;
};

/// An error that is one of several cases. A case is a plain struct with its payload as members and
/// `std::string errorDescription() const`; a caller asks for the case and not for its text:
///
///     catch (const VelmarError &error) { if (const auto *missing = error.as<VelmarError::MissingFile>()) ...
///     }
///
/// A family derives from it and inherits the constructors.
template <class... Cases>
class ErrorOfCases : public LocalizedError {
public:
    using Case = std::variant<Cases...>;

    template <class C>
    requires(std::is_same_v<C, Cases> || ...)
        ErrorOfCases(C value) // NOLINT(google-explicit-constructor): a case is its error
        : LocalizedError(value.errorDescription()), case_(std::make_shared<const Case>(std::move(value))) {}

    [[nodiscard]] const Case &value() const noexcept { return *case_; }

    /// The payload if the error is the case C, otherwise null.
    template <class C>
    [[nodiscard]] const C *as() const noexcept {
        return std::get_if<C>(case_.get());
    }

private:
    std::shared_ptr<const Case> case_;
};

} // namespace velmar
