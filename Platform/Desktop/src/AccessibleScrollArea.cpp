#include "AccessibleScrollArea.h"

#include <QAbstractScrollArea>
#include <QAccessibleWidget>

namespace velmar {

namespace {

// Asked for each class of an object, from its own up, before the toolkit's factory is.
QAccessibleInterface *interfaceOf(const QString &className, QObject *object) {
    if (className != QLatin1String("QScrollArea") && className != QLatin1String("QAbstractScrollArea")) {
        return nullptr;
    }
    auto *const area = qobject_cast<QAbstractScrollArea *>(object);
    return area == nullptr ? nullptr : new QAccessibleWidget(area, QAccessible::Client);
}

} // namespace

void installAccessibleScrollAreas() {
    QAccessible::installFactory(&interfaceOf);
}

} // namespace velmar
