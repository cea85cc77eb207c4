#include <Foundation/URL.h>

#include <gtest/gtest.h>

#include <filesystem>

namespace velmar {
namespace {

TEST(URL, TakesTextsApart) {
    const struct {
        const char *text;
        const char *absoluteString;
        const char *scheme; // "" for none
        const char *path;
        const char *last;
    } cases[] = {
        {"https://Example.org:8443/a/b.tar.gz?x=1#y", "https://Example.org:8443/a/b.tar.gz?x=1#y", "https",
         "/a/b.tar.gz", "b.tar.gz"},
        {"HTTP://me:secret@[::1]:80", "HTTP://me:secret@[::1]:80", "http", "", ""},
        {"file:///Library/Managed%20Preferences/", "file:///Library/Managed%20Preferences/", "file",
         "/Library/Managed Preferences", "Managed Preferences"},
        {"/Users/me/a picture.png", "/Users/me/a%20picture.png", "", "/Users/me/a picture.png",
         "a picture.png"},
        {"/100%/été{1}", "/100%25/%C3%A9t%C3%A9%7B1%7D", "", "/100%/été{1}", "été{1}"},
        {"a%2", "a%252", "", "a%2", "a%2"},
        {"/", "/", "", "/", "/"},
        {"//", "//", "", "", ""},
        {"/home/.profile", "/home/.profile", "", "/home/.profile", ".profile"},
        {"x-apple:settings", "x-apple:settings", "x-apple", "settings", "settings"},
        {"12:30.png", "12:30.png", "", "12:30.png", "12:30.png"},
        {"http://münchen.de/#a#b", "http://m%C3%BCnchen.de/#a%23b", "http", "/", "/"},
    };
    for (const auto &each : cases) {
        const auto url = URL::fromString(each.text);
        ASSERT_TRUE(url) << each.text;
        EXPECT_EQ(url->text(), each.text);
        EXPECT_EQ(url->absoluteString(), each.absoluteString);
        EXPECT_EQ(url->scheme().value_or(""), each.scheme) << each.text;
        EXPECT_EQ(url->path(), each.path);
        EXPECT_EQ(url->lastPathComponent(), each.last) << each.text;
    }
}

TEST(URL, RefusesTextsThatAreNone) {
    for (const char *text : {"", "http://a b/", "http://host:port/", "http://[::1/", "http://[x]/",
                             "http://a%2/", "line\nfeed", "\x7F", "\xFF"}) {
        EXPECT_FALSE(URL::fromString(text)) << text;
    }
}

TEST(URL, KeepsPlaceholdersUntilTheyArePopulated) {
    for (const char *text : {"${BASE}/icon.png", "http://${HOST}:${PORT}/a b", "http://a b/${X}"}) {
        const auto url = URL::fromString(text);
        ASSERT_TRUE(url) << text;
        EXPECT_TRUE(url->hasPlaceholders());
        EXPECT_EQ(url->text(), text);
    }
    EXPECT_FALSE(URL::fromString("/a$b}${c")->hasPlaceholders());
}

TEST(URL, IsMadeFromPaths) {
    const URL file = URL::file("/Library/50% #1?/é.plist");
    EXPECT_EQ(file.absoluteString(), "file:///Library/50%25%20%231%3F/%C3%A9.plist");
    EXPECT_EQ(file.path(), "/Library/50% #1?/é.plist");
    EXPECT_TRUE(file.isFileURL());
    EXPECT_EQ(URL::file("/a%20b").path(), "/a%20b");
    EXPECT_EQ(URL::file("/\xFF").path(), "/\xFF");
    EXPECT_EQ(URL::file("/").absoluteString(), "file:///");
    EXPECT_EQ(URL::file("/tmp", true).absoluteString(), "file:///tmp/");
    EXPECT_EQ(URL::file("below").path(), std::filesystem::current_path().string() + "/below");
}

TEST(URL, AppendsComponents) {
    const URL directory = URL::file("/Library/Managed Preferences");
    EXPECT_EQ(directory.appendingPathComponent("Velmar.plist").path(),
              "/Library/Managed Preferences/Velmar.plist");
    EXPECT_EQ(directory.appendingPathComponent("a/b c").absoluteString(),
              "file:///Library/Managed%20Preferences/a/b%20c");
    EXPECT_EQ(directory.appendingPathComponent("/etc/passwd").path(),
              "/Library/Managed Preferences/etc/passwd");
    EXPECT_EQ(directory.appendingPathComponent("d", true).absoluteString(),
              "file:///Library/Managed%20Preferences/d/");
    EXPECT_EQ(URL::fromString("https://h?q=1")->appendingPathComponent("a?").text(), "https://h/a%3F?q=1");
    EXPECT_EQ(URL::fromString("https://h/api/")->appendingPathComponent("v1").text(), "https://h/api/v1");
}

} // namespace
} // namespace velmar
