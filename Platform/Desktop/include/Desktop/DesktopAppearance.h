#pragma once

#include <QDBusVariant>
#include <QObject>
#include <QPalette>

#include <optional>

namespace velmar {

/// How the user wants programs to look: light or dark, with or without motion. The desktop's palette decides
/// until its settings service has answered, which is asked without waiting. Main thread.
class DesktopAppearance final : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Whether a palette is that of a dark appearance.
    [[nodiscard]] static bool isDark(const QPalette &palette);

    /// Light or dark, given the palette that the desktop offers.
    [[nodiscard]] bool prefersDark(const QPalette &desktopPalette) const {
        return prefersDark_.value_or(isDark(desktopPalette));
    }

    /// False when the desktop turns animations off.
    [[nodiscard]] bool isAnimated() const { return isAnimated_; }

    /// The user's word, over that of the palette; none leaves it to the palette.
    void setPrefersDark(std::optional<bool> prefersDark);
    void setAnimated(bool isAnimated) { isAnimated_ = isAnimated; }

    /// Asks the settings service for the user's preferences and follows their changes. Does nothing where
    /// there is no session bus. To be called after the first paint, which it would hold up.
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
