#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace velmar {

/// Finds sounds by name in the desktop's sound themes. Stateless and thread-safe.
class SoundTheme {
public:
    /// `directories` contain the themes and unthemed sounds. `theme` is the user's theme. Sounds in the
    /// language of `locale` ("de_DE") are preferred.
    SoundTheme(QStringList directories, QString theme, const QString &locale);

    /// Returns the path of a sound's file, which ends in ".disabled" if the theme disables the sound.
    /// Searches the theme, its parents, "freedesktop" and unthemed sounds in this order. A name that isn't
    /// found loses its last part: "dialog-warning" serves for "dialog-warning-battery".
    [[nodiscard]] std::optional<QString> find(const QString &name) const;

    /// Returns the theme in the user's GTK settings, by default "freedesktop".
    [[nodiscard]] static QString ofUser();

private:
    [[nodiscard]] QString findInTheme(const QString &name, const QString &theme, QStringList &visited) const;
    [[nodiscard]] QString findInDirectory(const QString &name, const QString &directory) const;

    QStringList directories_;
    QString theme_;
    QStringList languages_; // names of directories; the last one is empty
};

} // namespace velmar
