#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>

namespace velmar::Localization {

/// Returns the codes of the available languages, such as "de" or "zh_Hans", including English.
[[nodiscard]] QStringList languages();

/// Returns the first available language of the locale's languages, an empty text if there is none. A region
/// is ignored, a script is not: "de-AT" matches "de", but "zh-Hant-TW" doesn't match "zh_Hans".
[[nodiscard]] QString closestLanguage(const QLocale &locale);

/// Installs the texts of the interface and of Qt in the closest language, otherwise in English, and sets the
/// layout direction of that language. Call it once, after the application is created and before its first
/// text.
void install(const QLocale &locale = QLocale::system());

} // namespace velmar::Localization
