#include <Desktop/DesktopAppearance.h>

#include <Desktop/SessionBus.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace velmar {

namespace {

const auto service = QStringLiteral("org.freedesktop.portal.Desktop");
const auto path = QStringLiteral("/org/freedesktop/portal/desktop");
const auto interface = QStringLiteral("org.freedesktop.portal.Settings");
const auto appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const auto colorSchemeKey = QStringLiteral("color-scheme");
const auto desktopGroup = QStringLiteral("org.gnome.desktop.interface");
const auto animationsKey = QStringLiteral("enable-animations");

} // namespace

bool DesktopAppearance::isDark(const QPalette &palette) {
    return palette.color(QPalette::WindowText).lightnessF() > palette.color(QPalette::Window).lightnessF();
}

void DesktopAppearance::setPrefersDark(std::optional<bool> prefersDark) {
    if (prefersDark_ != prefersDark) {
        prefersDark_ = prefersDark;
        emit preferenceChanged();
    }
}

void DesktopAppearance::followSettingsService() {
    if (!hasSessionBus()) {
        return;
    }
    // The slot is found by its type names, which otherwise only the accessibility bridge registers.
    qRegisterMetaType<QDBusVariant>();
    QDBusConnection::sessionBus().connect(service, path, interface, QStringLiteral("SettingChanged"), this,
                                          SLOT(settingChanged(QString, QString, QDBusVariant)));
    readSetting(appearanceGroup, colorSchemeKey);
    readSetting(desktopGroup, animationsKey);
}

void DesktopAppearance::settingChanged(const QString &group, const QString &key, const QDBusVariant &value) {
    apply(group, key, value.variant());
}

void DesktopAppearance::readSetting(const QString &group, const QString &key) {
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Read"));
    call.setArguments({group, key});
    auto *watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, group, key] {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        watcher->deleteLater();
        if (!reply.isError()) {
            // The service wraps the value twice.
            const QVariant outer = reply.value().variant();
            apply(group, key,
                  outer.canConvert<QDBusVariant>() ? outer.value<QDBusVariant>().variant() : outer);
        }
    });
}

void DesktopAppearance::apply(const QString &group, const QString &key, const QVariant &value) {
    if (group == appearanceGroup && key == colorSchemeKey) {
        // 0 means no preference, 1 dark, 2 light.
        const uint scheme = value.toUInt();
        setPrefersDark(scheme == 0 ? std::nullopt : std::optional(scheme == 1));
    } else if (group == desktopGroup && key == animationsKey) {
        setAnimated(value.toBool());
    }
}

} // namespace velmar
