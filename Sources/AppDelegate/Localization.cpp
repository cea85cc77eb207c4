#include <AppDelegate/Localization.h>

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

#include <memory>

namespace velmar::Localization {

namespace {

void install(const QLocale &locale) {
    auto translator = std::make_unique<QTranslator>();
    if (translator->load(locale, QStringLiteral("velmar"), QStringLiteral("_"), QStringLiteral(":/i18n")) &&
        QCoreApplication::installTranslator(translator.get())) {
        translator.release()->setParent(QCoreApplication::instance());
    }
}

} // namespace

void install() {
    // The last one installed is asked first, and English has every text.
    install(QLocale(QLocale::English));
    // Looked up by its uiLanguages(): the languages of messages may differ from that of numbers and dates.
    install(QLocale::system());
}

} // namespace velmar::Localization
