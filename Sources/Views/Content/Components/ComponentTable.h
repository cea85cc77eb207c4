#pragma once

#include <Base/FactoryTable.h>
#include <Configuration/ComponentItem.h>

class QWidget;

namespace velmar {

class ComponentView;
struct Services;

/// Makes the view of a component of one type, as a child of the parent. Never nullptr: the factory of a type
/// that comes from a module makes the empty view while the module isn't there, and logs why. A view may load
/// its content after it has been made.
using ComponentFactory = ComponentView *(*)(const ComponentItem &item, const Services &services,
                                            QWidget *parent);

using ComponentTable = FactoryTable<ComponentItem, ComponentFactory>;

/// The types of components. A component of a type that is not built yet gets the empty view and a line in the
/// log.
[[nodiscard]] const ComponentTable &componentTable();

/// Makes a view without content and without height.
[[nodiscard]] ComponentView *makeEmptyView(const Services &services, QWidget *parent);

} // namespace velmar
