#include "PropertyListSamples.h"

#include <sys/resource.h>

using namespace velmar;

static std::string number(std::uint64_t value, int width) {
    std::string bytes;
    for (int byte = width - 1; byte >= 0; --byte) {
        bytes += byte < 8 ? static_cast<char>(value >> (8 * byte) & 0xFF) : '\0';
    }
    return bytes;
}

/// Returns a file of these objects with the first as root, references of one byte and `ballast` unreferenced
/// bytes.
static std::string fileOf(const std::vector<std::string> &objects, const std::string &offsetPatch = "",
                          std::size_t ballast = 0) {
    std::string bytes = "bplist00";
    // Reserved, since copies of the ballast would count in memoryPeak().
    bytes.reserve(ballast + (ballast >> 4));
    std::string table;
    for (const std::string &object : objects) {
        table += number(bytes.size(), 2);
        bytes += object;
    }
    if (!offsetPatch.empty()) {
        table.replace(0, offsetPatch.size(), offsetPatch);
    }
    bytes.append(ballast, '\0');
    const std::size_t tableOffset = bytes.size();
    bytes +=
        table + number(0, 6) + "\x02\x01" + number(objects.size(), 8) + number(0, 8) + number(tableOffset, 8);
    return bytes;
}

static std::string bytesOf(const PropertyList &value) {
    const std::vector<std::byte> bytes = value.binary();
    return std::string(reinterpret_cast<const char *>(bytes.data()), bytes.size());
}

using namespace std::string_literals;

TEST(PropertyListBinary, ReadsEveryFormOfAValue) {
    const std::pair<std::string, PropertyList> cases[] = {
        {"\x10\xFF"s, 255},
        {"\x12\xFF\xFF\xFF\xFF"s, std::int64_t{4294967295}},
        {"\x13"s + number(~std::uint64_t{0}, 8), -1},
        {"\x14"s + number(0, 8) + number(~std::uint64_t{0}, 8), ~std::uint64_t{0}},
        {"\x14"s + number(~std::uint64_t{0}, 8) + number(~std::uint64_t{4}, 8), -5},
        {"\x22"s + number(0x3FC00000, 4), 1.5},
        {"\x23"s + number(0xBFF8000000000000, 8), -1.5},
        {"\x33"s + number(0x3FF8000000000000, 8), PropertyList::Date{1.5}},
        {"\x42\x01\x02"s, PropertyList::Data{{std::byte{1}, std::byte{2}}}},
        {"\x5F\x13"s + number(2, 8) + "hi", "hi"},
        {"\x63\x20\xAC\xD8\x3D\xDE\x00"s, "€\U0001F600"},
    };
    for (const auto &[object, value] : cases) {
        const std::string file = fileOf({object});
        ASSERT_NO_THROW(EXPECT_EQ(PropertyList::read(file), value) << value.text()) << value.text();
        EXPECT_EQ(PropertyListDocument::read(file).root().offset(), 8U);
    }
}

TEST(PropertyListBinary, RefusesDamage) {
    const std::pair<std::string, std::string> cases[] = {
        {fileOf({"\x00"s}), "null and fill"},
        {fileOf({"\x15"s + number(0, 32)}), "an integer is not valid"},
        {fileOf({"\x14"s + number(1, 8) + number(0, 8)}), "between -2^63"},
        {fileOf({"\x21\x00\x00"s}), "a real number is not valid"},
        {fileOf({"\x32"s + number(0, 4)}), "a date is not valid"},
        {fileOf({"\x33"s + number(0x7FF8000000000000, 8)}), "a date is not valid"},
        {fileOf({"\x80\x01"s}), "type 0x8 are not supported"},
        {fileOf({"\x52h"s}), "outside of the file"},
        {fileOf({"\x5F\x22"s}), "count of an object"},
        {fileOf({"\x5F\x14"s + number(2, 16)}), "count of an object"},
        {fileOf({"\x5F\x13"s + number(~std::uint64_t{0}, 8)}), "outside of the file"},
        {fileOf({"\x51\x80"s}), "an ASCII string has other"},
        {fileOf({"\x61\xD8\x00"s}), "half of a surrogate"},
        {fileOf({"\x62\xD8\x00\x00\x41"s}), "half of a surrogate"},
        {fileOf({"\xA1\x01"s}), "a reference leads to no object"},
        {fileOf({"\xA1\x00"s}), "a value contains itself"},
        {fileOf({"\xA1\x01"s, "\xD1\x02\x00"s, "\x51k"s}), "a value contains itself"},
        {fileOf({"\xD1\x01\x01"s, "\x10\x01"s}), "a key is not a string"},
        {fileOf({"\x09"s}, number(9, 2)), "an object is outside"},
        {"bplist01" + fileOf({"\x09"s}).substr(8), "version of the binary form"},
        {"bplist00", "ends too early"},
    };
    for (const auto &[file, fragment] : cases) {
        const PropertyListError error = errorOfReading(file);
        EXPECT_EQ(error.line(), 0U);
        EXPECT_NE(error.errorDescription().find(fragment), std::string::npos)
            << error.errorDescription() << " and not " << fragment;
    }
    EXPECT_EQ(errorOfReading(fileOf({"\xA1\x00"s})).errorDescription(),
              "The property list is not valid at byte 8: a value contains itself.");
}

TEST(PropertyListBinary, RefusesATrailerThatDoesNotFit) {
    const std::string good = fileOf({"\x09"s});
    const std::size_t trailer = good.size() - 32;
    const std::pair<std::size_t, std::string> patches[] = {
        {6, "\x00"s},       {6, "\x09"s},
        {6, "\x01"s},       {7, "\x00"s},
        {7, "\x09"s},       {8, number(0, 8)},
        {8, number(2, 8)},  {8, number(std::uint64_t{1} << 63, 8)},
        {16, number(1, 8)}, {24, number(~std::uint64_t{0}, 8)},
        {24, number(8, 8)}, {24, number(good.size(), 8)}};
    ASSERT_NO_THROW(static_cast<void>(PropertyList::read(good)));
    for (const auto &[place, bytes] : patches) {
        std::string damaged = good;
        damaged.replace(trailer + place, bytes.size(), bytes);
        EXPECT_NE(errorOfReading(damaged).errorDescription().find("the trailer does not fit"),
                  std::string::npos)
            << place;
    }
}

TEST(PropertyListBinary, RefusesEveryStrictPrefixAndBearsEveryChangedByte) {
    PropertyList::Dictionary dictionary;
    dictionary.set("Title", "Grüße");
    dictionary.set("Items", PropertyList::Array{1, 0.5, true, PropertyList::Data{{std::byte{1}}}});
    const std::string whole = bytesOf(dictionary);
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_FALSE(errorOfReading(whole.substr(0, length)).errorDescription().empty());
    }
    for (std::size_t place = 0; place < whole.size(); ++place) {
        for (int value = 0; value < 256; ++value) {
            std::string damaged = whole;
            damaged[place] = static_cast<char>(value);
            try {
                const PropertyList read = PropertyList::read(damaged);
                EXPECT_EQ(PropertyList::read(read.binary()), read);
            } catch (const PropertyListError &error) {
                EXPECT_LE(error.offset(), whole.size());
            }
        }
    }
}

static void expectRefusal(const std::vector<std::string> &objects, std::string_view reason,
                          std::size_t ballast = 0) {
    const std::string text = errorOfReading(fileOf(objects, "", ballast)).errorDescription();
    EXPECT_NE(text.find(reason), std::string::npos) << text;
}

/// Returns the peak memory of the process in bytes; 0 under sanitizers, which need most of it themselves.
static std::size_t memoryPeak() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    return 0;
#else
    rusage usage{};
    EXPECT_EQ(getrusage(RUSAGE_SELF, &usage), 0);
    return static_cast<std::size_t>(usage.ru_maxrss) * 1024;
#endif
}

TEST(PropertyListBinary, RefusesSharedValuesThatExpandToGigabytes) {
    std::vector<std::string> arrays; // Each level refers ten times to the next: 10^9 texts.
    std::vector<std::string> dictionaries;
    for (int level = 1; level <= 9; ++level) {
        arrays.push_back("\xAA"s + std::string(10, static_cast<char>(level)));
        dictionaries.push_back("\xDA"s + std::string(10, '\xA') + std::string(10, static_cast<char>(level)));
    }
    arrays.push_back("\x54text");
    dictionaries.insert(dictionaries.end(), {"\xA0"s, "\x51k"s});
    expectRefusal(arrays, "more than 1000000 values");
    expectRefusal(dictionaries, "more than 1000000 values");
    expectRefusal({"\xAF\x11"s + number(4000, 2) + std::string(4000, '\1'),
                   "\x5F\x11"s + number(50000, 2) + std::string(50000, 'x')},
                  "expand to more than is allowed");
    EXPECT_LT(memoryPeak(), 200'000'000U);
}

TEST(PropertyListBinary, AllowsALargeFileNoMoreSharingThanASmallOne) {
    constexpr std::size_t ballast = 60 << 20;
    expectRefusal({"\xAF\x11"s + number(4000, 2) + std::string(4000, '\1'),
                   "\xAF\x11"s + number(4000, 2) + std::string(4000, '\2'), "\x09"},
                  "more than 1000000 values", ballast);
    expectRefusal({"\xAF\x11"s + number(4000, 2) + std::string(4000, '\1'),
                   "\x5F\x11"s + number(50000, 2) + std::string(50000, 'x')},
                  "expand to more than is allowed", ballast);
    EXPECT_LT(memoryPeak(), 200'000'000U);
}

TEST(PropertyListBinary, CountsObjectsThatLieOverEachOtherAsShared) {
    // Each of the 200 data objects begins within the one before and ends with the last.
    constexpr std::size_t count = 200;
    constexpr std::size_t length = 400'000;
    std::string bytes = "bplist00\xAF\x10"s + number(count, 1);
    for (std::size_t data = 1; data <= count; ++data) {
        bytes += static_cast<char>(data);
    }
    std::string table = number(8, 4);
    for (std::size_t data = count; data > 0; --data) {
        table += number(bytes.size(), 4);
        bytes += "\x4F\x12"s + number(length + 6 * (data - 1), 4);
    }
    const std::size_t tableOffset = bytes.size() + length;
    bytes += std::string(length, 'x') + table + number(0, 6) + "\x04\x01" + number(count + 1, 8) +
             number(0, 8) + number(tableOffset, 8);
    EXPECT_NE(errorOfReading(bytes).errorDescription().find("expand to more than is allowed"),
              std::string::npos);
}

TEST(PropertyListBinary, ReadsEachObjectOnceForNothing) {
    const std::string text(40 << 20, 'x'); // more than maximumSharedBytes
    EXPECT_EQ(*PropertyList::read(fileOf({"\x5F\x12"s + number(text.size(), 4) + text})).string(), text);
}

TEST(PropertyListBinary, RefusesDepth) {
    // 1001 nested arrays with references of two bytes.
    std::string deep = "bplist00";
    std::string table;
    for (unsigned level = 1; level <= 1000; ++level) {
        table += number(deep.size(), 2);
        deep += "\xA1"s + number(level, 2);
    }
    table += number(deep.size(), 2);
    deep += "\xA0";
    const std::size_t tableOffset = deep.size();
    deep += table + number(0, 6) + "\x02\x02" + number(1001, 8) + number(0, 8) + number(tableOffset, 8);
    EXPECT_NE(errorOfReading(deep).errorDescription().find("nested more than 256 deep"), std::string::npos);
}

TEST(PropertyListBinary, NotesKeysGivenTwice) {
    const std::string file =
        fileOf({"\xD1\x01\x02"s, "\x51r"s, "\xD2\x03\x04\x05\x06"s, "\x51k"s, "\x51k"s, "\x09"s, "\x08"s});
    const auto document = PropertyListDocument::read(file);
    ASSERT_EQ(document.duplicates().size(), 1U);
    EXPECT_EQ(document.duplicates()[0].path, "r");
    EXPECT_EQ(document.form(), PropertyListDocument::Form::Binary);
    EXPECT_EQ(document.lines().lineOf(document.root().offset()), 0U);
    EXPECT_EQ(document.root().find("r")->find("k")->boolean(), false);
}
