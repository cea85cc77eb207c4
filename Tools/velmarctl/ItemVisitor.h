#pragma once

#include <UsageWarning.h>

#include <Configuration/CodingPath.h>
#include <Configuration/Configuration.h>
#include <Foundation/PropertyListValue.h>

#include <string>
#include <string_view>

namespace velmar {

/// Where an item stands in its file. Valid during the visit.
struct ItemPlace {
    const PropertyListValue &value;
    const CodingPath &path;

    /// Of the item as a whole.
    [[nodiscard]] UsageWarning warning(std::string message) const;
    /// Of one of the keys that the item gives.
    [[nodiscard]] UsageWarning warning(std::string_view key, std::string message) const;
};

/// Who looks at the items of a configuration; at those that it does not say otherwise of, in no way.
class ItemVisitor {
public:
    virtual ~ItemVisitor() = default;

    virtual void visitAppTermination(const AppTerminationSection & /*section*/, const ItemPlace & /*place*/) {
    }
    virtual void visitWindow(const WindowSection & /*section*/, const ItemPlace & /*place*/) {}
    virtual void visitMonitor(const MonitorItem & /*monitor*/, const ItemPlace & /*place*/) {}
    virtual void visitContainer(const ContainerItem & /*container*/, const ItemPlace & /*place*/) {}
    virtual void visitComponent(const ComponentItem & /*component*/, const ItemPlace & /*place*/) {}
    virtual void visitTrigger(const ActionTrigger & /*trigger*/, const ItemPlace & /*place*/) {}
    virtual void visitAction(const ActionItem & /*action*/, const ItemPlace & /*place*/) {}
    virtual void visitNotificationAction(const ActionItem::DisplayNotification::NotificationAction & /*item*/,
                                         const ItemPlace & /*place*/) {}

protected:
    ItemVisitor() = default;
    ItemVisitor(const ItemVisitor &) = default;
    ItemVisitor &operator=(const ItemVisitor &) = default;
};

/// Shows the visitor every item that the file gives, wherever it stands: in the order of the root's keys,
/// each before those within it. `file` is what the configuration was decoded from. As deep as the file, whose
/// depth the property list limits.
void visitItems(const Configuration &configuration, const PropertyListValue &file, ItemVisitor &visitor);

} // namespace velmar
