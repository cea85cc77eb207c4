#pragma once

#include <Variables/ContentManager.h>

#include <concepts>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

namespace velmar {

/// A value whose every write is published as the variable of a placeholder: whole numbers in decimal, a bool
/// as "true" or "false". Not thread-safe.
template <std::integral T>
class ContentUpdater {
public:
    /// Does not publish the initial value. `contentManager` must not be null.
    ContentUpdater(T wrappedValue, GeneralSection::Placeholders placeholder,
                   std::shared_ptr<ContentManagerProtocol> contentManager = ContentManager::shared())
        : wrappedValue_(wrappedValue),
          placeholder_(placeholder),
          contentManager_(std::move(contentManager)) {}

    [[nodiscard]] T operator()() const noexcept { return wrappedValue_; }

    void set(T value) {
        wrappedValue_ = value;
        contentManager_->updatePlaceholder(placeholder_, text());
    }

private:
    [[nodiscard]] std::string text() const {
        if constexpr (std::is_same_v<T, bool>) {
            return wrappedValue_ ? "true" : "false";
        } else {
            return std::to_string(wrappedValue_);
        }
    }

    T wrappedValue_;
    GeneralSection::Placeholders placeholder_;
    std::shared_ptr<ContentManagerProtocol> contentManager_;
};

} // namespace velmar
