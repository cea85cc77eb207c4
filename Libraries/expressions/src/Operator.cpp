#include <expressions/Operator.h>

#include <Foundation/UnicodeText.h>

#include <algorithm>
#include <array>
#include <compare>
#include <functional>
#include <string>

namespace velmar::expressions {

namespace {

bool isDifferent(std::string_view left, std::string_view right) {
    return !UnicodeText::isEqual(left, right);
}

template <class Relation>
bool isOrdered(std::string_view left, std::string_view right) {
    const std::weak_ordering order = UnicodeText::compare(left, right);
    return Relation()(std::is_lt(order) ? -1 : std::is_gt(order) ? 1 : 0, 0);
}

template <class Relation, class T>
bool holds(T left, T right) {
    return Relation()(left, right);
}

// Returns true if `wanted` is one of the comma-separated items. It is composed only once, because both texts
// may be megabytes long.
bool listHolds(std::string_view list, std::string_view wanted) {
    std::string storage;
    if (!UnicodeText::isAscii(wanted)) {
        storage = UnicodeText::composed(wanted);
        wanted = storage;
    }
    while (!list.empty()) {
        const std::size_t length = std::min(list.find(','), list.size());
        const std::string_view piece = UnicodeText::trimmed(list.substr(0, length));
        if (length > 0 &&
            (piece == wanted || (!UnicodeText::isAscii(piece) && UnicodeText::composed(piece) == wanted))) {
            return true;
        }
        list.remove_prefix(std::min(length + 1, list.size()));
    }
    return false;
}

} // namespace

std::span<const Operator> Operator::all() noexcept {
    static constexpr std::array<Row, 9> rows = {{
        {"==", {UnicodeText::isEqual, holds<std::equal_to<>, double>, holds<std::equal_to<>, bool>}},
        {"!=", {isDifferent, holds<std::not_equal_to<>, double>, holds<std::not_equal_to<>, bool>}},
        {">", {isOrdered<std::greater<>>, holds<std::greater<>, double>, nullptr}},
        {">=", {isOrdered<std::greater_equal<>>, holds<std::greater_equal<>, double>, nullptr}},
        {"<", {isOrdered<std::less<>>, holds<std::less<>, double>, nullptr}},
        {"<=", {isOrdered<std::less_equal<>>, holds<std::less_equal<>, double>, nullptr}},
        {"<:", {listHolds, nullptr, nullptr}},
        {"~=", {UnicodeText::hasPrefix, nullptr, nullptr}},
        {"=~", {UnicodeText::hasSuffix, nullptr, nullptr}},
    }};
    static constexpr std::array<Operator, 9> operators = {
        Operator(rows[0]), Operator(rows[1]), Operator(rows[2]), Operator(rows[3]), Operator(rows[4]),
        Operator(rows[5]), Operator(rows[6]), Operator(rows[7]), Operator(rows[8])};
    return operators;
}

std::optional<bool> Operator::evaluate(const Value &left, const Value &right) const {
    if (left.index() != right.index()) {
        return std::nullopt;
    }
    if (const auto *text = std::get_if<std::string_view>(&left)) {
        return evaluate(*text, std::get<std::string_view>(right));
    }
    if (const auto *number = std::get_if<double>(&left)) {
        return evaluate(*number, std::get<double>(right));
    }
    return evaluate(std::get<bool>(left), std::get<bool>(right));
}

std::span<const LogicOperator> LogicOperator::all() noexcept {
    static constexpr std::array<LogicOperator, 2> operators = {disjunction, conjunction};
    return operators;
}

} // namespace velmar::expressions
