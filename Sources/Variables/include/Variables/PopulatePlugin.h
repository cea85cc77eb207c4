#pragma once

#include <Configuration/Plugin.h>
#include <Variables/ContentManager.h>

#include <memory>

namespace velmar {

/// Replaces the references to variables in every text read from the configuration. All texts of one value
/// are populated from one snapshot; if one fails, the whole value is unchanged and each read logs a warning.
/// Values without "${" are returned unchanged after one scan. Thread-safe.
class PopulatePlugin final : public Plugin {
public:
    explicit PopulatePlugin(
        std::shared_ptr<const ContentManagerProtocol> contentManager = ContentManager::shared());

    void filter(std::span<std::string *const> texts) const override;

private:
    std::shared_ptr<const ContentManagerProtocol> contentManager_;
};

} // namespace velmar
