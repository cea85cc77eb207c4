#include "AccessibleScrollArea.h"

#include <QAbstractScrollArea>
#include <QAccessibleWidget>

namespace velmar {

namespace {

// Called for each class of an object's hierarchy, most derived first, before the toolkit's own factory.
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
