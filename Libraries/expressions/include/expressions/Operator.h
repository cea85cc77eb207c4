#pragma once

#include <concepts>
#include <optional>
#include <span>
#include <string_view>
#include <tuple>
#include <variant>

namespace velmar::expressions {

/// A value of one of the three kinds that operands have.
using Value = std::variant<std::string_view, double, bool>;

/// What the two families of operators share: a closed set, each with a text that identifies it.
template <class T>
concept OperatorProtocol = std::equality_comparable<T> && requires(const T &each) {
    { each.description() } -> std::same_as<std::string_view>;
    { T::all() } -> std::same_as<std::span<const T>>;
};

template <OperatorProtocol T>
[[nodiscard]] std::optional<T> operatorWithText(std::string_view text) noexcept {
    for (const T &each : T::all()) {
        if (each.description() == text)
            return each;
    }
    return std::nullopt;
}

/// An operator that compares two values. Texts are equal, ordered, begin and end by canonical equivalence.
class Operator {
public:
    /// In the declared order: == != > >= < <= <: ~= =~
    [[nodiscard]] static std::span<const Operator> all() noexcept;

    [[nodiscard]] std::string_view description() const noexcept { return row_->description; }
    /// Of two values of one kind; absent if the operator says nothing about that kind.
    template <class T>
    [[nodiscard]] std::optional<bool> evaluate(T left, T right) const {
        const auto function = std::get<bool (*)(T, T)>(row_->functions);
        return function != nullptr ? std::optional(function(left, right)) : std::nullopt;
    }
    /// Absent also where the kinds differ.
    [[nodiscard]] std::optional<bool> evaluate(const Value &left, const Value &right) const;

    bool operator==(const Operator &) const = default;

private:
    // A null function is no result.
    struct Row {
        std::string_view description;
        std::tuple<bool (*)(std::string_view, std::string_view), bool (*)(double, double),
                   bool (*)(bool, bool)>
            functions;
    };
    constexpr explicit Operator(const Row &row) : row_(&row) {}

    const Row *row_; ///< Of the one table.
};

/// An operator that links two booleans.
class LogicOperator {
public:
    static const LogicOperator disjunction; ///< ||
    static const LogicOperator conjunction; ///< &&

    /// In the declared order: || &&
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
