#pragma once

#include <Configuration/PopulatableBody.h>

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

namespace velmar {

/// The body of a request: a value, or values in arrays and dictionaries.
struct BodyItem {
    static constexpr std::string_view typeName = "BodyItem";

    using Array = std::vector<BodyItem>;
    using Dictionary = std::map<std::string, BodyItem>;
    using BodyValue = std::variant<std::string, bool, std::int64_t, double, Array, Dictionary>;

    BodyValue value;

    /// Adds a value to a dictionary, replacing the value of an existing key, or appends it to an array.
    /// Throws ConfigurationError (RequestBodyGroup) if the body is of another type.
    void add(BodyItem item, std::string key);
    void append(BodyItem item);

    /// Calls `function` with each text at any depth. Keys are excluded.
    template <class Function>
    void visitTexts(Function &function) {
        visitTexts(*this, function);
    }
    template <class Function>
    void visitTexts(Function &function) const {
        visitTexts(*this, function);
    }

private:
    template <class Body, class Function>
    static void visitTexts(Body &body, Function &function) {
        std::visit(
            [&](auto &held) {
                using Held = std::remove_cvref_t<decltype(held)>;
                if constexpr (std::is_same_v<Held, std::string>) {
                    function(held);
                } else if constexpr (std::is_same_v<Held, Array>) {
                    for (auto &element : held) {
                        element.visitTexts(function);
                    }
                } else if constexpr (std::is_same_v<Held, Dictionary>) {
                    for (auto &[key, element] : held) {
                        element.visitTexts(function);
                    }
                }
            },
            body.value);
    }
};

} // namespace velmar
