#include <Configuration/ComponentItem.h>

#include <Configuration/ItemCoding.h>

namespace velmar {

VariableNames usedVariables(const ComponentItem &component) {
    return usedVariables<ComponentItem>(component);
}

} // namespace velmar
