#pragma once

#include <concepts>
#include <optional>
#include <span>
#include <string_view>
#include <tuple>
#include <variant>

namespace velmar::expressions {

/// A value of one of the three operand kinds.
using Value = std::variant<std::string_view, double, bool>;

/// Requirements of both operator types: a closed set of operators, each identified by a text.
template <class T>
concept OperatorProtocol = std::equality_comparable<T> && requires(const T &each) {
    { each.description() } -> std::same_as<std::string_view>;
    { T::all() } -> std::same_as<std::span<const T>>;
};

template <OperatorProtocol T>
[[nodiscard]] std::optional<T> operatorWithText(std::string_view text) noexcept {
    for (const T &each : T::all()) {
        if (each.description() == text) {
            return each;
        }
    }
    return std::nullopt;
}

/// A comparison operator. Texts are compared by canonical equivalence.
class Operator {
public:
    /// Returns all operators in the declared order: == != > >= < <= <: ~= =~
    [[nodiscard]] static std::span<const Operator> all() noexcept;

    [[nodiscard]] std::string_view description() const noexcept { return row_->description; }
    /// Compares two values of one kind. Returns std::nullopt if the operator doesn't support that kind.
    template <class T>
    [[nodiscard]] std::optional<bool> evaluate(T left, T right) const {
        const auto function = std::get<bool (*)(T, T)>(row_->functions);
        return function != nullptr ? std::optional(function(left, right)) : std::nullopt;
    }
    /// Compares two values. Also returns std::nullopt if their kinds differ.
    [[nodiscard]] std::optional<bool> evaluate(const Value &left, const Value &right) const;

    bool operator==(const Operator &) const = default;

private:
    // A null function means that the kind is not supported.
    struct Row {
        std::string_view description;
        std::tuple<bool (*)(std::string_view, std::string_view), bool (*)(double, double),
                   bool (*)(bool, bool)>
            functions;
    };
    constexpr explicit Operator(const Row &row) : row_(&row) {}

    const Row *row_; ///< A row of the static table in all().
};

/// A logical operator on two booleans.
class LogicOperator {
public:
    static const LogicOperator disjunction; ///< ||
    static const LogicOperator conjunction; ///< &&

    /// Returns all operators in the declared order: || &&
    [[nodiscard]] static std::span<const LogicOperator> all() noexcept;

    [[nodiscard]] constexpr std::string_view description() const noexcept { return isAnd_ ? "&&" : "||"; }
    [[nodiscard]] constexpr bool evaluate(bool left, bool right) const noexcept {
        return isAnd_ ? left && right : left || right;
    }

    bool operator==(const LogicOperator &) const = default;

private:
    constexpr explicit LogicOperator(bool isAnd) : isAnd_(isAnd) {}

    bool isAnd_;
};

inline constexpr LogicOperator LogicOperator::disjunction{false};
inline constexpr LogicOperator LogicOperator::conjunction{true};

} // namespace velmar::expressions
