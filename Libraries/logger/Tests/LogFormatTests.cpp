#include <logger/LogFormat.h>

#include <cstdlib>
#include <ctime>
#include <memory>

#include <gtest/gtest.h>

#include <unicode/smpdtfmt.h>

namespace velmar {
namespace {

using namespace std::chrono_literals;

// 2024-02-09 14:02:11.0459 in this test's time zone, UTC+5:30.
const auto time = std::chrono::system_clock::time_point(1'707'467'531s + 45'900us);

// Sets the time zone regardless of the environment of the test.
class LocalTimeZone : public testing::Environment {
public:
    void SetUp() override {
        setenv("TZ", "IST-5:30", 1);
        tzset();
    }
};
[[maybe_unused]] const auto *const localTimeZone = testing::AddGlobalTestEnvironment(new LocalTimeZone);

std::string printed(std::string_view format, bool colored = false, LogLevel level = LogLevel::warning) {
    LogRecord record;
    record.level = level;
    record.time = time;
    record.where = {"/home/ada/Sources/App.Manager.cpp", "loadFile", 42};
    record.message = std::string("done $L $M\0\xff", 12);
    record.context = "[The file doesn't exist.]";
    record.thread = "worker";
    std::string line;
    LogFormat(format).append(
        line, record, {.levelColor = {"1m", "2m", "3m", "4m", "5m"}, .reset = "<", .escape = ">"}, colored);
    return line;
}

TEST(LogFormat, PrintsEachTokenAndAnyOtherTextAsItStands) {
    const std::string message("done $L $M\\x00\xff");
    const struct {
        std::string_view format;
        std::string expected;
    } cases[] = {
        {"[Velmar] $DHH:mm:ss$d $L > $M $X",
         "[Velmar] 14:02:11 ⚠️ > " + message + " [The file doesn't exist.]"},
        {"$N|$F|$l|$T", "App.Manager|loadFile|42|worker"},
        {"$M$M", message + message},
        {"$$L$", "$⚠️$"},
        {"$Q $DHH:mm $L", "$Q $DHH:mm ⚠️"},
        {"$d$D$d!", "$d!"},
        {"a$Dyyyy$db$Dss$d", "a2024b11"},
        {"$C$L$c", "⚠️"},
        {"", ""},
    };
    for (const auto &[format, expected] : cases) {
        EXPECT_EQ(printed(format), expected) << format;
    }
    EXPECT_EQ(printed("$C$L$c", true), ">4m⚠️<");
    std::string levels;
    for (const auto level :
         {LogLevel::verbose, LogLevel::debug, LogLevel::info, LogLevel::warning, LogLevel::error}) {
        levels += printed("$L", false, level);
    }
    EXPECT_EQ(levels, "🖨⚙️ℹ️⚠️🛑") << "with the presentation selectors of three";
}

TEST(LogFormat, LetsNoMessageForgeALineOrSteerATerminal) {
    const struct {
        std::string message;
        std::string context;
        std::string expected;
    } cases[] = {
        {"x\n[Velmar] 00:00:00 🛑 > forged", "", "x\n [Velmar] 00:00:00 🛑 > forged "},
        {"x\n\n[Velmar]\n[Velmar]", "", "x\n\n [Velmar]\n [Velmar] "},
        {"x", "y\r\n[Velmar]\tz", "x y\\x0D\n [Velmar]\tz"},
        {"x\n[Other]\ny", "", "x\n[Other]\ny "},
        {"\x1b[2J\x7f\b", "\xC2\x9B[2J", "\\x1B[2J\\x7F\\x08 \\x9B[2J"},
        {"50\xC2\xA0€ \xC2", "", "50\xC2\xA0€ \xC2 "},
    };
    for (const auto &[message, context, expected] : cases) {
        LogRecord record;
        record.message = message;
        record.context = context;
        // Text before the appended line must stay unchanged.
        std::string line = "[Velmar] before\n";
        LogFormat("[Velmar] $M $X").append(line, record, {}, false);
        EXPECT_EQ(line, "[Velmar] before\n[Velmar] " + expected);
    }
}

std::string dated(std::string_view pattern, std::chrono::system_clock::time_point at) {
    std::string text;
    DatePattern(pattern).append(text, at);
    return text;
}

TEST(DatePattern, PrintsTheUsualFieldsLikeIcu) {
    const std::string_view patterns[] = {
        "HH:mm:ss",  "yyyy-MM-dd'T'HH:mm:ss.SSS", "d/M/yy H:m:s", "hh h", "y yyyyy MM M",
        "SSSS S SS", "''yyyy'' 'it''s' 'M'",      "'open HH",     "",     "ä日HH€"};
    for (const auto at : {time, time + 10h, time - 1'200'000h, time + 14'278ms, time - 14h - 2min}) {
        for (const auto pattern : patterns) {
            UErrorCode status = U_ZERO_ERROR;
            icu::SimpleDateFormat oracle(icu::UnicodeString::fromUTF8(icu::StringPiece(
                                             pattern.data(), static_cast<int>(pattern.size()))),
                                         icu::Locale("en", "US", "POSIX"), status);
            ASSERT_TRUE(U_SUCCESS(status));
            oracle.adoptTimeZone(icu::TimeZone::createTimeZone("GMT+05:30"));
            icu::UnicodeString expected;
            const auto milliseconds = std::chrono::floor<std::chrono::milliseconds>(at.time_since_epoch());
            oracle.format(static_cast<UDate>(milliseconds.count()), expected);
            std::string text;
            expected.toUTF8String(text);
            // ICU counts whole milliseconds only.
            EXPECT_EQ(dated(pattern, std::chrono::system_clock::time_point(milliseconds)), text) << pattern;
        }
    }
}

TEST(DatePattern, LeavesOtherFieldsToIcuInTheLocalTimeZoneAndCutsTheFractionOff) {
    EXPECT_EQ(dated("EEE d MMM yyyy, h:mm a Z", time), "Fri 9 Feb 2024, 2:02 PM +0530");
    EXPECT_EQ(dated("SSSSSSS", time), "0459000");
    EXPECT_EQ(dated("ss.S", std::chrono::system_clock::time_point(-1ms)), "59.9");
}

} // namespace
} // namespace velmar
