#include <AppDelegate/Localization.h>

#include <QApplication>

#include <gtest/gtest.h>

#include <vector>

namespace velmar {
namespace {

TEST(Localization, TakesTheLanguageOfARegionAndNeverAnotherScript) {
    const std::vector<std::pair<const char *, const char *>> table = {
        {"ar", "ar"},      {"de", "de"},         {"de_AT", "de"}, {"en_GB", "en"}, {"es_MX", "es"},
        {"fr_CH", "fr"},   {"it", "it"},         {"ja_JP", "ja"}, {"nl_BE", "nl"}, {"pt_BR", "pt"},
        {"zh", "zh_Hans"}, {"zh_SG", "zh_Hans"}, {"zh_TW", ""},   {"sv_SE", ""},   {"C", ""}};
    for (const auto &[code, language] : table) {
        EXPECT_EQ(Localization::closestLanguage(QLocale(QLatin1String(code))), QLatin1String(language))
            << code;
    }
    EXPECT_EQ(Localization::languages().size(), 10);
}

TEST(Localization, GivesTextsAndTheirDirectionAndEnglishWhereThereAreNone) {
    struct Case {
        const char *code;
        const char *quit;
        Qt::LayoutDirection direction;
    };
    for (const auto &[code, quit, direction] :
         {Case{"ar_SA", "إنهاء", Qt::RightToLeft}, Case{"de_CH", "Beenden", Qt::LeftToRight},
          Case{"sv", "Quit", Qt::LeftToRight}}) {
        int argumentCount = 1;
        char name[] = "test";
        char *arguments[] = {name, nullptr};
        const QApplication application(argumentCount, arguments);
        Localization::install(QLocale(QLatin1String(code)));
        EXPECT_EQ(qtTrId("navigation.buttons.quit"), QString::fromUtf8(quit));
        EXPECT_EQ(QGuiApplication::layoutDirection(), direction);
    }
}

} // namespace
} // namespace velmar
