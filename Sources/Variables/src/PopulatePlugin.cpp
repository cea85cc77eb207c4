#include <Variables/PopulatePlugin.h>

#include <logger/Logger.h>

#include <utility>
#include <vector>

namespace velmar {

PopulatePlugin::PopulatePlugin(std::shared_ptr<const ContentManagerProtocol> contentManager)
    : contentManager_(std::move(contentManager)) {}

void PopulatePlugin::filter(std::span<std::string *const> texts) const {
    try {
        std::vector<std::string *> references;
        for (std::string *const text : texts) {
            if (text->find("${") != std::string::npos) {
                references.push_back(text);
            }
        }
        if (references.empty()) {
            return;
        }
        std::vector<std::string> results;
        results.reserve(references.size());
        const VariablesSnapshot variables = contentManager_->variables();
        for (const std::string *const text : references) {
            results.push_back(populated(*text, *variables));
        }
        for (std::size_t i = 0; i < results.size(); ++i) {
            references[i]->swap(results[i]);
        }
    } catch (const std::exception &error) {
        Logger::warning([&] { return error.what(); });
    }
}

} // namespace velmar
