#pragma once

#include <Configuration/Plugin.h>
#include <Variables/ContentManager.h>

#include <memory>

namespace velmar {

/// Puts the values of variables in the place of the references in every text that is read from the
/// configuration. All texts of one value see the same moment; if one cannot be populated, the value is left
/// as it is, with a line at warning level for each reading. A value without "${" costs a look at it and
/// nothing else. Any thread.
class PopulatePlugin final : public Plugin {
public:
    explicit PopulatePlugin(
        std::shared_ptr<const ContentManagerProtocol> contentManager = ContentManager::shared());

    void filter(std::span<std::string *const> texts) const override;

private:
    std::shared_ptr<const ContentManagerProtocol> contentManager_;
};

} // namespace velmar
