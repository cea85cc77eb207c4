#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>

namespace velmar::Localization {

/// The languages that there are texts in, as "de" or "zh_Hans"; English is among them.
[[nodiscard]] QStringList languages();

/// The first of a user's languages that there are texts in, none if there is no such language. A language of
/// a region counts as the language, a script does not: "de-AT" is "de", but "zh-Hant-TW" is not "zh_Hans".
[[nodiscard]] QString closestLanguage(const QLocale &locale);

/// Gives the texts of the interface, and those of the toolkit, in the closest language, or in English; the
/// interface is laid out in the direction of that language. Once, after the application is made and before
/// its first text.
void install(const QLocale &locale = QLocale::system());

} // namespace velmar::Localization
