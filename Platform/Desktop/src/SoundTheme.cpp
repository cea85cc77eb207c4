#include "SoundTheme.h"

#include <Foundation/UserDirectories.h>

#include <QFileInfo>
#include <QSettings>

#include <utility>

namespace velmar {

namespace {

constexpr qint64 largestIndex = 1024 * 1024; // bytes
const auto commonTheme = QStringLiteral("freedesktop");
const auto profile = QStringLiteral("stereo");
const QStringList suffixes{QStringLiteral(".disabled"), QStringLiteral(".oga"), QStringLiteral(".ogg"),
                           QStringLiteral(".wav")};

/// Content of a theme's index.
struct ThemeIndex {
    QStringList parents;
    QStringList subdirectories; // those for stereo or without a profile
};

std::optional<ThemeIndex> readIndex(const QString &path) {
    const QFileInfo file(path);
    if (!file.isFile() || file.size() > largestIndex) {
        return std::nullopt;
    }
    const QSettings index(path, QSettings::IniFormat);
    const auto list = [&](const char *key) {
        QStringList names;
        for (const QString &name :
             index.value(QStringLiteral("Sound Theme/") + QLatin1String(key)).toStringList()) {
            names += name.split(u';', Qt::SkipEmptyParts);
        }
        for (QString &name : names) {
            name = name.trimmed();
        }
        return names;
    };
    ThemeIndex result{.parents = list("Inherits"), .subdirectories = {}};
    for (const QString &name : list("Directories")) {
        if (index.value(name + QStringLiteral("/OutputProfile"), profile).toString() == profile) {
            result.subdirectories.append(name);
        }
    }
    return result;
}

bool isPlainName(const QString &name) {
    return !name.isEmpty() && !name.contains(u'/') && !name.startsWith(u'.') && !name.contains(QChar::Null);
}

} // namespace

SoundTheme::SoundTheme(QStringList directories, QString theme, const QString &locale)
    : directories_(std::move(directories)), theme_(std::move(theme)) {
    languages_ = {locale, locale.section(u'_', 0, 0), QStringLiteral("C"), QString()};
}

std::optional<QString> SoundTheme::find(const QString &name) const {
    for (QString part = name; isPlainName(part);) {
        QStringList visited;
        for (const QString &theme : {theme_, commonTheme}) {
            if (QString path = findInTheme(part, theme, visited); !path.isEmpty()) {
                return path;
            }
        }
        for (const QString &directory : directories_) {
            if (QString path = findInDirectory(part, directory); !path.isEmpty()) {
                return path;
            }
        }
        const qsizetype dash = part.lastIndexOf(u'-');
        part.truncate(std::max<qsizetype>(dash, 0));
    }
    return std::nullopt;
}

QString SoundTheme::findInTheme(const QString &name, const QString &theme, QStringList &visited) const {
    if (!isPlainName(theme) || visited.contains(theme)) {
        return {};
    }
    visited.append(theme);
    std::optional<ThemeIndex> index;
    for (const QString &directory : directories_) {
        if (!index) {
            index = readIndex(directory + u'/' + theme + QStringLiteral("/index.theme"));
        }
    }
    if (!index) {
        return {};
    }
    for (const QString &subdirectory : std::as_const(index->subdirectories)) {
        for (const QString &directory : directories_) {
            QString path = findInDirectory(name, directory + u'/' + theme + u'/' + subdirectory);
            if (!path.isEmpty()) {
                return path;
            }
        }
    }
    for (const QString &parent : std::as_const(index->parents)) {
        if (QString path = findInTheme(name, parent, visited); !path.isEmpty()) {
            return path;
        }
    }
    return {};
}

QString SoundTheme::findInDirectory(const QString &name, const QString &directory) const {
    for (const QString &language : languages_) {
        const QString folder = directory + u'/' + (language.isEmpty() ? language : language + u'/');
        for (const QString &suffix : suffixes) {
            if (QString path = folder + name + suffix; QFileInfo(path).isFile()) {
                return path;
            }
        }
    }
    return {};
}

QString SoundTheme::ofUser() {
    const QString own = QString::fromStdString(UserDirectories::configuration());
    for (const QString &directory : {own, QStringLiteral("/etc")}) {
        const QString path = directory + QStringLiteral("/gtk-3.0/settings.ini");
        const QFileInfo file(path);
        if (file.isFile() && file.size() <= largestIndex) {
            const QSettings settings(path, QSettings::IniFormat);
            QString theme = settings.value(QStringLiteral("Settings/gtk-sound-theme-name")).toString();
            if (!theme.isEmpty()) {
                return theme;
            }
        }
    }
    return commonTheme;
}

} // namespace velmar
