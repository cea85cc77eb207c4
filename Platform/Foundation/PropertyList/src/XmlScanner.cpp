#include "XmlScanner.h"

#include "ByteMarks.h"
#include "PropertyListText.h"

#include <Foundation/PropertyListError.h>

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <strings.h>

namespace velmar {

static constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
static constexpr std::string_view cdataStart = "<![CDATA[";

static constexpr bool isWhiteSpace(char character) noexcept {
    return character == ' ' || character == '\t' || character == '\n' || character == '\r';
}

static constexpr std::array<bool, 256> tableOf(std::string_view characters) noexcept {
    std::array<bool, 256> table{};
    for (const char character : characters) {
        table[static_cast<unsigned char>(character)] = true;
    }
    return table;
}

static constexpr auto endsName = tableOf(" \t\r\n></=\"'&");

static bool contains(const std::array<bool, 256> &table, char character) noexcept {
    return table[static_cast<unsigned char>(character)];
}

static bool equalsIgnoringCase(std::string_view left, std::string_view right) noexcept {
    return left.size() == right.size() && strncasecmp(left.data(), right.data(), left.size()) == 0;
}

void XmlScanner::fail(std::string_view reason, std::size_t offset) const {
    const auto end = text_.begin() + static_cast<std::ptrdiff_t>(std::min(offset, text_.size()));
    throw PropertyListError(reason, offset,
                            1 + static_cast<std::size_t>(std::count(text_.begin(), end, '\n')));
}

XmlScanner::Tag XmlScanner::root() {
    if (startsWith(byteOrderMark)) {
        position_ += byteOrderMark.size();
    }
    if (startsWith("<?xml") && isWhiteSpace(peek(5))) {
        declaration();
    }
    skipWhiteSpace();
    while (skipMiscellaneous()) {
    }
    if (startsWith("<!DOCTYPE")) {
        documentType();
    }
    Tag tag = next();
    if (tag.form == Tag::Form::End || tag.name != "plist") {
        fail(fmt::format("the root element is <{}> and not <plist>", shortened(tag.name)), tag.offset);
    }
    return tag;
}

void XmlScanner::declaration() {
    const std::size_t start = position_;
    position_ += std::string_view("<?xml").size();
    while (const std::optional<Attribute> part = attribute()) {
        if (part->name == "encoding" && !equalsIgnoringCase(part->value, "UTF-8") &&
            !equalsIgnoringCase(part->value, "US-ASCII") && !equalsIgnoringCase(part->value, "ASCII")) {
            fail(fmt::format("the encoding '{}' is not supported, only UTF-8", shortened(part->value)),
                 start);
        }
        if (part->name == "version" && !part->value.starts_with("1.")) {
            fail(fmt::format("the XML version '{}' is not supported", shortened(part->value)), start);
        }
    }
    if (!startsWith("?>")) {
        fail("the XML declaration is not complete", start);
    }
    position_ += 2;
}

void XmlScanner::documentType() {
    const std::size_t start = position_;
    position_ += std::string_view("<!DOCTYPE").size();
    skipWhiteSpace();
    if (const std::string_view type = name(); type != "plist") {
        fail(fmt::format("the document type is '{}' and not 'plist'", shortened(type)), start);
    }
    while (position_ < text_.size() && text_[position_] != '>') {
        const char character = text_[position_];
        if (character == '[') {
            fail("declarations inside of the document type are not allowed", position_);
        }
        ++position_;
        if (character == '"' || character == '\'') {
            position_ = text_.find(character, position_);
            if (position_ == text_.npos) {
                fail("the document type does not end", start);
            }
            ++position_;
        }
    }
    if (position_ == text_.size()) {
        fail("the document type does not end", start);
    }
    ++position_;
}

bool XmlScanner::skipMiscellaneous() {
    if (peek(1) != '!' && peek(1) != '?') {
        return false;
    }
    if (startsWith("<!--")) {
        skipPast("-->", "comment");
    } else if (startsWith("<?")) {
        if (startsWith("<?xml") && isWhiteSpace(peek(5))) {
            fail("the XML declaration is not at the beginning", position_);
        }
        skipPast("?>", "processing instruction");
    } else {
        return false;
    }
    skipWhiteSpace();
    return true;
}

void XmlScanner::skipPast(std::string_view terminator, std::string_view what) {
    // Skips the opening mark, which must not overlap the terminator.
    const std::size_t begin = position_ + (terminator.size() == 3 ? 4 : 2);
    const std::size_t end = text_.find(terminator, begin);
    if (end == text_.npos) {
        fail(fmt::format("the {} does not end", what), position_);
    }
    position_ = end + terminator.size();
}

void XmlScanner::skipWhiteSpace() noexcept {
    // Valid XML text contains only white space up to U+0020.
    position_ =
        ByteMarks::find(text_, position_, [](ByteMarks::Word bytes) { return ByteMarks::above(bytes, ' '); });
}

char XmlScanner::peek(std::size_t distance) const noexcept {
    return text_.size() - position_ > distance ? text_[position_ + distance] : '\0';
}

bool XmlScanner::startsWith(std::string_view prefix) const noexcept {
    return text_.substr(position_).starts_with(prefix);
}

std::string_view XmlScanner::name() noexcept {
    const std::size_t start = position_;
    std::size_t end = start;
    while (end < text_.size() && !contains(endsName, text_[end])) {
        ++end;
    }
    position_ = end;
    return text_.substr(start, end - start);
}

std::optional<XmlScanner::Attribute> XmlScanner::attribute() {
    skipWhiteSpace();
    if (position_ == text_.size() || text_[position_] == '>' || text_[position_] == '/' ||
        text_[position_] == '?') {
        return std::nullopt;
    }
    const std::size_t start = position_;
    Attribute found{name(), {}};
    skipWhiteSpace();
    if (found.name.empty() || peek() != '=') {
        fail("an attribute is not of the form name=\"value\"", start);
    }
    ++position_;
    skipWhiteSpace();
    const char quote = peek();
    const std::size_t end = text_.find(quote, position_ + 1);
    if ((quote != '"' && quote != '\'') || end == text_.npos) {
        fail("an attribute is not of the form name=\"value\"", start);
    }
    found.value = text_.substr(position_ + 1, end - position_ - 1);
    position_ = end + 1;
    return found;
}

XmlScanner::Tag XmlScanner::next() {
    skipWhiteSpace();
    if (peek(1) == '!' || peek(1) == '?') {
        while (skipMiscellaneous()) {
        }
    }
    const std::size_t start = position_;
    if (start == text_.size()) {
        fail("the text ends before the property list does", start);
    }
    if (text_[start] != '<') {
        fail("there is text between the elements", start);
    }
    ++position_;
    Tag tag{{}, start, Tag::Form::Start};
    if (peek() == '/') {
        tag.form = Tag::Form::End;
        ++position_;
    }
    tag.name = name();
    if (tag.name.empty() || tag.name.starts_with('!')) {
        fail("there is a '<' that begins no element", start);
    }
    if (peek() != '>') {
        while (const std::optional<Attribute> found = attribute()) {
            if (tag.name != "plist" || tag.form == Tag::Form::End) {
                fail(fmt::format("the element <{}> has an attribute", shortened(tag.name)), start);
            }
            if (found->name == "version" && found->value != "1.0" && found->value != "0.9") {
                fail(fmt::format("the version '{}' of property lists is not known", shortened(found->value)),
                     start);
            }
        }
        if (tag.form == Tag::Form::Start && peek() == '/') {
            tag.form = Tag::Form::Empty;
            ++position_;
        }
    }
    if (peek() != '>') {
        fail(fmt::format("the tag of <{}> does not end", shortened(tag.name)), start);
    }
    ++position_;
    return tag;
}

std::string_view XmlScanner::text(const Tag &start) {
    if (start.form == Tag::Form::Empty) {
        return {};
    }
    const std::size_t begin = position_;
    position_ = ByteMarks::find(text_, begin, [](ByteMarks::Word bytes) {
        return ByteMarks::equal(bytes, '<') | ByteMarks::equal(bytes, '&') | ByteMarks::equal(bytes, '\r');
    });
    if (peek() != '<' || peek(1) != '/') {
        return unusualText(start, begin);
    }
    const std::string_view plain = text_.substr(begin, position_ - begin);
    endTag(start);
    return plain;
}

std::string_view XmlScanner::unusualText(const Tag &start, std::size_t begin) {
    decoded_.assign(text_, begin, position_ - begin);
    while (!startsWith("</")) {
        if (position_ == text_.size()) {
            fail(fmt::format("the text ends inside of the element <{}>", start.name), start.offset);
        }
        const std::size_t part = position_;
        if (text_[part] == '&') {
            appendReference();
        } else if (startsWith(cdataStart)) {
            skipPast("]]>", "CDATA section");
            appendPlain(text_.substr(part + cdataStart.size(), position_ - part - cdataStart.size() - 3));
        } else if (startsWith("<!--")) {
            skipPast("-->", "comment");
        } else if (startsWith("<?")) {
            skipPast("?>", "processing instruction");
        } else if (text_[part] == '<') {
            fail(fmt::format("the element <{}> contains another tag", start.name), part);
        } else {
            position_ = std::min(text_.find_first_of("<&", part), text_.size());
            appendPlain(text_.substr(part, position_ - part));
        }
    }
    endTag(start);
    return decoded_;
}

// Normalises line ends to line feeds.
void XmlScanner::appendPlain(std::string_view plain) {
    for (std::size_t index = 0; index < plain.size(); ++index) {
        if (plain[index] != '\r') {
            decoded_ += plain[index];
        } else if (!plain.substr(index + 1).starts_with('\n')) {
            decoded_ += '\n';
        }
    }
}

void XmlScanner::appendReference() {
    constexpr std::size_t longest = 12; // longer than any character reference with leading zeros
    const std::size_t start = position_;
    const std::string_view whole = text_.substr(start + 1, longest);
    const std::string_view reference = whole.substr(0, whole.find(';'));
    const bool isComplete = reference.size() < whole.size();
    if (isComplete && reference.starts_with('#')) {
        const char32_t character = characterOfNumber(reference.substr(1));
        if (!isCharacterOfXml(character)) {
            fail(fmt::format("'&{};' is no character", reference), start);
        }
        appendUtf8(decoded_, character);
    } else if (isComplete && reference == "amp") {
        decoded_ += '&';
    } else if (isComplete && reference == "lt") {
        decoded_ += '<';
    } else if (isComplete && reference == "gt") {
        decoded_ += '>';
    } else if (isComplete && reference == "quot") {
        decoded_ += '"';
    } else if (isComplete && reference == "apos") {
        decoded_ += '\'';
    } else {
        fail("there is a '&' that begins no known reference; '&' itself is written '&amp;'", start);
    }
    position_ = start + reference.size() + 2;
}

char32_t XmlScanner::characterOfNumber(std::string_view number) const noexcept {
    const bool isHexadecimal = number.starts_with('x');
    number.remove_prefix(isHexadecimal ? 1 : 0);
    std::uint32_t character = 0;
    const char *end = number.data() + number.size();
    const auto [stop, error] = std::from_chars(number.data(), end, character, isHexadecimal ? 16 : 10);
    return error == std::errc() && stop == end ? char32_t{character} : U'\0';
}

// Returns true if the name of the start tag and '>' follow. Most names with '>' fit into one word.
bool XmlScanner::isNameOf(const Tag &start) const noexcept {
    using Word = ByteMarks::Word;
    const std::size_t size = start.name.size() + 1;
    if (size <= sizeof(Word) && text_.size() - position_ >= sizeof(Word)) {
        const Word difference =
            ByteMarks::load(text_.data() + position_) ^ ByteMarks::load(start.name.data());
        if (difference << (8 * (sizeof(Word) - size)) == 0 && text_[position_ + size - 1] == '>') {
            return true;
        }
    }
    return startsWith(start.name) && peek(start.name.size()) == '>';
}

void XmlScanner::endTag(const Tag &start) {
    const std::size_t offset = position_;
    position_ += 2;
    if (isNameOf(start)) {
        position_ += start.name.size() + 1;
        return;
    }
    const std::string_view found = name();
    if (found != start.name) {
        // A truncated file is reported as such, not as a wrong tag.
        fail(position_ == text_.size()
                 ? fmt::format("the text ends inside of the element <{}>", start.name)
                 : fmt::format("the element <{}> is ended by </{}>", start.name, shortened(found)),
             offset);
    }
    if (peek() != '>') {
        skipWhiteSpace();
    }
    if (peek() != '>') {
        fail(fmt::format("the tag </{}> does not end", start.name), offset);
    }
    ++position_;
}

void XmlScanner::finish() {
    skipWhiteSpace();
    while (skipMiscellaneous()) {
    }
    if (position_ < text_.size()) {
        fail("there is something after the end of the property list", position_);
    }
}

} // namespace velmar
