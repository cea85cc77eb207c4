#pragma once

#include <Base/FactoryTable.h>
#include <Configuration/ComponentItem.h>

class QWidget;

namespace velmar {

class ComponentView;
struct Services;

/// Creates the view of a component of one type, never nullptr, which the parent owns. If the module of the
/// type is not available, logs the reason and creates an empty view. A view may load its content later.
using ComponentFactory = ComponentView *(*)(const ComponentItem &item, const Services &services,
                                            QWidget *parent);

using ComponentTable = FactoryTable<ComponentItem, ComponentFactory>;

/// Returns the factories by type of component. A component of an unsupported type gets an empty view, which
/// is logged.
[[nodiscard]] const ComponentTable &componentTable();

/// Creates a view without content and height, which the parent owns.
[[nodiscard]] ComponentView *makeEmptyView(const Services &services, QWidget *parent);

} // namespace velmar
