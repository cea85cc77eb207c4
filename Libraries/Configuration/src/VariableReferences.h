#pragma once

#include <optional>
#include <string_view>

namespace velmar {

/// Iterates over the references to variables in a text, from left to right. The text must outlive this
/// object.
class VariableReferences {
public:
    struct Reference {
        std::string_view before; ///< The text since the previous reference.
        std::string_view name;
    };

    explicit VariableReferences(std::string_view text) : rest_(text) {}

    /// Returns std::nullopt after the last reference.
    [[nodiscard]] std::optional<Reference> next() {
        const std::size_t begin = rest_.find("${");
        if (begin == std::string_view::npos) {
            return std::nullopt;
        }
        const std::size_t end = rest_.find('}', begin + 2);
        if (end == std::string_view::npos) {
            return std::nullopt;
        }
        const Reference reference{rest_.substr(0, begin), rest_.substr(begin + 2, end - begin - 2)};
        rest_.remove_prefix(end + 1);
        return reference;
    }

    /// Returns the text after the references read so far.
    [[nodiscard]] std::string_view rest() const { return rest_; }

private:
    std::string_view rest_;
};

} // namespace velmar
