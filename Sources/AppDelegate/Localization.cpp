#include <AppDelegate/Localization.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <algorithm>
#include <memory>

namespace velmar::Localization {

namespace {

const auto folder = QStringLiteral(":/i18n");
const auto prefix = QStringLiteral("velmar_");
const auto suffix = QStringLiteral(".qm");
const auto english = QStringLiteral("en");

QString pathOf(const QString &language) {
    return folder + QLatin1Char('/') + prefix + language + suffix;
}

void install(std::unique_ptr<QTranslator> translator, bool isLoaded) {
    if (isLoaded && QCoreApplication::installTranslator(translator.get())) {
        translator.release()->setParent(QCoreApplication::instance());
    }
}

void installTexts(const QString &language) {
    auto translator = std::make_unique<QTranslator>();
    const bool isLoaded = translator->load(pathOf(language));
    install(std::move(translator), isLoaded);
}

void installTextsOfToolkit(const QLocale &language) {
    auto translator = std::make_unique<QTranslator>();
    const bool isLoaded = translator->load(language, QStringLiteral("qtbase"), QStringLiteral("_"),
                                           QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    install(std::move(translator), isLoaded);
}

} // namespace

QStringList languages() {
    QStringList codes = QDir(folder).entryList({prefix + QLatin1Char('*') + suffix}, QDir::Files, QDir::Name);
    for (QString &code : codes) {
        code = code.mid(prefix.size()).chopped(suffix.size());
    }
    return codes;
}

QString closestLanguage(const QLocale &locale) {
    // uiLanguages(): the languages of messages may differ from the language of numbers and dates.
    for (QString code : locale.uiLanguages()) {
        code.replace(QLatin1Char('-'), QLatin1Char('_'));
        for (; !code.isEmpty(); code.truncate(std::max(code.lastIndexOf(QLatin1Char('_')), qsizetype{0}))) {
            if (QFile::exists(pathOf(code))) {
                return code;
            }
        }
    }
    return {};
}

void install(const QLocale &locale) {
    // Translators are searched in reverse order of installation; English is complete.
    installTexts(english);
    const QString language = closestLanguage(locale);
    if (language.isEmpty() || language == english) {
        return;
    }
    installTextsOfToolkit(QLocale(language));
    installTexts(language);
    QGuiApplication::setLayoutDirection(QLocale(language).textDirection());
}

} // namespace velmar::Localization
