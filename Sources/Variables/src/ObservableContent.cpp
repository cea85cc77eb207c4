#include <Variables/ObservableContent.h>

#include <Base/Domain.h>

#include <utility>

namespace velmar {

ObservableContent::ObservableContent(std::shared_ptr<ContentManagerProtocol> contentManager)
    : names_({}, std::string(Domain::bundleIdentifier) + ".ObservableContent.names"),
      _contentVariables(std::move(contentManager)) {}

void ObservableContent::setConcerningVariables(const VariableNames &names) {
    names_.set(Names(names.begin(), names.end()));
}

bool ObservableContent::isConcernedBy(std::string_view variable) const {
    return names_.withValue([variable](const Names &names) { return names.contains(variable); });
}

void ObservableContent::variableDidChange(std::string_view name, const std::optional<std::string> &former,
                                          const std::string &value) {
    if (isConcernedBy(name)) {
        concerningVariableDidChange(name, former, value);
    }
}

} // namespace velmar
