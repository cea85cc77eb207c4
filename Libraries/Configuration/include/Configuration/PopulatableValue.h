#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace velmar {

/// Whether values of T can contain references to variables. True for texts, types made of texts and
/// collections of these.
template <class T>
struct IsPopulatable : std::false_type {};
template <>
struct IsPopulatable<std::string> : std::true_type {};
template <class T>
struct IsPopulatable<std::optional<T>> : IsPopulatable<T> {};
template <class T>
struct IsPopulatable<std::vector<T>> : IsPopulatable<T> {};
template <class T>
struct IsPopulatable<std::map<std::string, T>> : IsPopulatable<T> {};

template <class T>
concept Populatable = IsPopulatable<std::remove_cv_t<T>>::value;

/// Calls `function` with every text of a value, in order; the keys of a dictionary are excluded. A class type
/// passes its texts through a member `visitTexts`, or a single read-only text through a member `text`.
template <Populatable T, class Function>
void visitTexts(T &value, Function &&function) {
    if constexpr (std::is_same_v<std::remove_cv_t<T>, std::string>) {
        function(value);
    } else if constexpr (requires { value.visitTexts(function); }) {
        value.visitTexts(function);
    } else if constexpr (requires { value.text(); }) {
        function(value.text());
    } else if constexpr (requires { value.has_value(); }) {
        if (value) {
            visitTexts(*value, function);
        }
    } else {
        for (auto &element : value) {
            if constexpr (requires { element.second; }) {
                visitTexts(element.second, function);
            } else {
                visitTexts(element, function);
            }
        }
    }
}

/// Passes the texts of one value through the plugins of the process (Plugin.h), in place.
void applyPlugins(std::span<std::string *const> texts);

/// Returns a value after its texts have passed through the plugins of the process.
template <Populatable T>
[[nodiscard]] T plugged(T value) {
    if constexpr (std::is_same_v<T, std::string>) {
        std::string *const text = &value;
        applyPlugins({&text, 1});
    } else if constexpr (requires { value.has_value(); }) {
        if (value) {
            *value = plugged(*std::move(value));
        }
    } else {
        std::vector<std::string *> texts;
        visitTexts(value, [&](std::string &text) { texts.push_back(&text); });
        applyPlugins(texts);
    }
    return value;
}

} // namespace velmar
