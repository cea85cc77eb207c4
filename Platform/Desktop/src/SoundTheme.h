#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace velmar {

/// The sounds of a desktop, found by name as its sound themes lay them out. Without state; any thread.
class SoundTheme {
public:
    /// `directories` hold the themes and sounds without one; `theme` is the user's; of sounds in several
    /// languages that of `locale` ("de_DE") is preferred.
    SoundTheme(QStringList directories, QString theme, const QString &locale);

    /// The path of a sound's file, which ends in ".disabled" if the theme turns the sound off. A theme goes
    /// before those that it inherits from, "freedesktop" and what has no theme. A name that isn't found is
    /// tried without its last part: "dialog-warning" is good for "dialog-warning-battery".
    [[nodiscard]] std::optional<QString> find(const QString &name) const;

    /// What the user has chosen in the settings that desktops write for programs, or else "freedesktop".
    [[nodiscard]] static QString ofUser();

private:
    [[nodiscard]] QString findInTheme(const QString &name, const QString &theme, QStringList &visited) const;
    [[nodiscard]] QString findInDirectory(const QString &name, const QString &directory) const;

    QStringList directories_;
    QString theme_;
    QStringList languages_; // Names of directories, the last one empty.
};

} // namespace velmar
