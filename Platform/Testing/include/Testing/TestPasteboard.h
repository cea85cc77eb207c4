#pragma once

#include <Interaction/SimplePasteboard.h>

#include <optional>

namespace velmar {

/// A fake that stores the text.
class TestPasteboard final : public SimplePasteboard {
public:
    std::optional<std::string> content;
    bool accepts = true;

    [[nodiscard]] bool setString(const std::string &text) override {
        if (accepts) {
            content = text;
        }
        return accepts;
    }
};

} // namespace velmar
