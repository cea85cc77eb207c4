#pragma once

#include <Foundation/PropertyListDocument.h>

#include <gtest/gtest.h>

#include <random>

namespace velmar {

inline PropertyListError errorOfReading(std::string_view bytes) {
    try {
        static_cast<void>(PropertyList::read(bytes));
    } catch (const PropertyListError &error) {
        return error;
    }
    ADD_FAILURE() << "was read: " << bytes.substr(0, 200);
    return PropertyListError("", 0, 0);
}

/// Returns a pseudo-random tree with values of every kind.
inline PropertyList randomTree(std::mt19937 &random, int depth) {
    const auto below = [&](unsigned limit) { return static_cast<int>(random() % limit); };
    static const std::vector<std::string> texts = {
        "", "plain", " \t\n", "a\r\nb\r", "<&>\"'", "]]>", "grüße", "\U0001F600", std::string(300, 'x')};
    static const std::vector<double> reals = {
        0.0, -0.0, 0.1, 1e308, 5e-324, -1.5, 1e22, std::numeric_limits<double>::infinity(), std::nan("")};
    switch (below(depth > 0 ? 10 : 7)) {
    case 0:
        return below(2) == 0;
    case 1:
        return std::numeric_limits<std::int64_t>::min() >> below(64);
    case 2:
        return std::numeric_limits<std::uint64_t>::max() >> below(64);
    case 3:
        return reals[random() % reals.size()];
    case 4:
        return texts[random() % texts.size()];
    case 5:
        return PropertyList::Data{std::vector<std::byte>(random() % 100, std::byte{0xA5})};
    case 6:
        return PropertyList::Date{below(2000000000) * 10.0 - 1e10};
    case 7: {
        PropertyList::Array array;
        for (int count = below(20); count > 0; --count) {
            array.push_back(randomTree(random, depth - 1));
        }
        return array;
    }
    default: {
        PropertyList::Dictionary dictionary;
        for (int count = below(20); count > 0; --count) {
            dictionary.set(texts[random() % texts.size()] + std::to_string(count),
                           randomTree(random, depth - 1));
        }
        return dictionary;
    }
    }
}

/// Returns `depth` nested arrays.
inline PropertyList nestedArrays(std::size_t depth) {
    PropertyList value(PropertyList::Array{});
    for (std::size_t level = 1; level < depth; ++level) {
        PropertyList::Array array;
        array.push_back(std::move(value));
        value = PropertyList(std::move(array));
    }
    return value;
}

} // namespace velmar
