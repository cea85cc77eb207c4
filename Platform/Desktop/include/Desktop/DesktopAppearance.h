#pragma once

#include <QDBusVariant>
#include <QObject>
#include <QPalette>

#include <optional>

namespace velmar {

/// The user's preferences for a light or dark appearance and for animations. The desktop's palette decides
/// until the settings service has answered an asynchronous request. Main thread only.
class DesktopAppearance final : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Returns true if the palette has a dark appearance.
    [[nodiscard]] static bool isDark(const QPalette &palette);

    /// Returns true for a dark appearance. `desktopPalette` decides unless the user has a preference.
    [[nodiscard]] bool prefersDark(const QPalette &desktopPalette) const {
        return prefersDark_.value_or(isDark(desktopPalette));
    }

    /// Returns false if the desktop disables animations.
    [[nodiscard]] bool isAnimated() const { return isAnimated_; }

    /// Overrides the palette by the user's preference; std::nullopt leaves the decision to the palette.
    void setPrefersDark(std::optional<bool> prefersDark);
    void setAnimated(bool isAnimated) { isAnimated_ = isAnimated; }

    /// Requests the user's preferences from the settings service and follows their changes. Does nothing
    /// without a session bus. Call this after the first paint, which it would delay.
    void followSettingsService();

signals:
    void preferenceChanged();

private slots:
    void settingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    void readSetting(const QString &group, const QString &key);
    void apply(const QString &group, const QString &key, const QVariant &value);

    std::optional<bool> prefersDark_;
    bool isAnimated_ = true;
};

} // namespace velmar
