#pragma once

#include <optional>
#include <string_view>

namespace velmar {

/// The references to variables in a text, from left to right. The text outlives it.
class VariableReferences {
public:
    struct Reference {
        std::string_view before; ///< What stands between the reference before and this one.
        std::string_view name;
    };

    explicit VariableReferences(std::string_view text) : rest_(text) {}

    /// None after the last one.
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

    /// What stands behind the references so far.
    [[nodiscard]] std::string_view rest() const { return rest_; }

private:
    std::string_view rest_;
};

} // namespace velmar
