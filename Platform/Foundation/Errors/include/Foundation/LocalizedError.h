#pragma once

#include <exception>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>

namespace velmar {

/// An error with a message for the user. Base class of all errors that the program throws.
class LocalizedError : public std::exception {
public:
    /// Returns the message, UTF-8. Messages of this program are complete sentences.
    [[nodiscard]] const std::string &errorDescription() const noexcept { return *description_; }
    [[nodiscard]] const char *what() const noexcept override { return description_->c_str(); }

protected:
    explicit LocalizedError(std::string description)
        : description_(std::make_shared<const std::string>(std::move(description))) {}

private:
    // Shared, because copying an exception must not throw.
    std::shared_ptr<const std::string> description_;
};

/// An error that is one of several cases. A case is a plain struct with its payload as members and
/// `std::string errorDescription() const`. Callers test for the case, not for its message:
///
///     catch (const VelmarError &error) { if (const auto *missing = error.as<VelmarError::MissingFile>()) ...
///     }
///
/// An error family derives from this class and inherits its constructors.
template <class... Cases>
class ErrorOfCases : public LocalizedError {
public:
    using Case = std::variant<Cases...>;

    template <class C>
    requires(std::is_same_v<C, Cases> || ...)
        ErrorOfCases(C value) // NOLINT(google-explicit-constructor): a case converts to its error
        : LocalizedError(value.errorDescription()), case_(std::make_shared<const Case>(std::move(value))) {}

    [[nodiscard]] const Case &value() const noexcept { return *case_; }

    /// Returns the payload if the error is the case C, otherwise nullptr. Owned by the error.
    template <class C>
    [[nodiscard]] const C *as() const noexcept {
        return std::get_if<C>(case_.get());
    }

private:
    std::shared_ptr<const Case> case_;
};

} // namespace velmar
