#include <Variables/Content.h>

#include <utility>

namespace velmar {

Content::Content(std::shared_ptr<ContentManagerProtocol> contentManager)
    : contentManager_(std::move(contentManager)) {}

Content::~Content() {
    if (subscribed_) {
        contentManager_->removeObserver(contentManagerObserverId_);
    }
}

void Content::subscribe(std::weak_ptr<ContentObserver> observer, ObservedNames names) {
    if (!subscribed_.exchange(true)) {
        contentManager_->addObserver(contentManagerObserverId_, std::move(observer), std::move(names));
    }
}

void Content::setObservedNames(ObservedNames names) {
    contentManager_->setObservedNames(contentManagerObserverId_, std::move(names));
}

void Content::updateVariable(std::string_view name, std::string value, bool log) const {
    contentManager_->updateVariable(name, std::move(value), log);
}

void Content::updateVariables(const std::map<std::string, std::string> &variables) const {
    contentManager_->updateVariables(variables);
}

void Content::updatePlaceholder(GeneralSection::Placeholders placeholder, std::string value) const {
    contentManager_->updatePlaceholder(placeholder, std::move(value));
}

VariablesSnapshot Content::variables() const {
    return contentManager_->variables();
}

} // namespace velmar
