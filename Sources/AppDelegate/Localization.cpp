#include <AppDelegate/Localization.h>

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

namespace velmar::Localization {

namespace {

bool install(const QLocale &locale) {
    auto *translator = new QTranslator(QCoreApplication::instance());
    return translator->load(locale, QStringLiteral("velmar"), QStringLiteral("_"),
                            QStringLiteral(":/i18n")) &&
           QCoreApplication::installTranslator(translator);
}

} // namespace

void install() {
    // The last one installed is asked first, and English has every text.
    install(QLocale(QLocale::English));
    if (QLocale().language() != QLocale::English) {
        install(QLocale());
    }
}

} // namespace velmar::Localization
