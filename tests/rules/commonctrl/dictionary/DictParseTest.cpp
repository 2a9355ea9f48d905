#include "dictionary/DictParse.h"

#include <gtest/gtest.h>

using namespace _qv_commonctrl;

namespace {

std::u16string textOf(const DictTexts& texts, std::u16string_view key) {
    const auto found = texts.find(key);
    return found == texts.end() ? u"(none)" : found->second;
}

std::u16string parsed(std::string_view line) {
    return textOf(ParseDict(line), u"K");
}

TEST(DictParse, KeyAndText) {
    EXPECT_EQ(u"text", parsed("K = text"));
    EXPECT_EQ(u"text", parsed("K=text"));
    EXPECT_EQ(u"two words", parsed(" \tK\t=  two words \t"));
    EXPECT_EQ(u"a = b", parsed("K = a = b"));
    EXPECT_EQ(u"", parsed("K ="));
    EXPECT_EQ(u"取消", parsed("K = \xE5\x8F\x96\xE6\xB6\x88"));
    EXPECT_EQ(u"\U0001F600", parsed("K = \xF0\x9F\x98\x80"));
}

TEST(DictParse, LinesThatSayNothing) {
    const DictTexts texts = ParseDict("# K = comment\n\nno equals\n= no key\n   \n#\n");
    EXPECT_TRUE(texts.empty());
}

TEST(DictParse, Escapes) {
    EXPECT_EQ(u"a\r\nb", parsed("K = a\\nb"));
    EXPECT_EQ(u"a\tb", parsed("K = a\\tb"));
    EXPECT_EQ(u" a ", parsed("K = \\sa\\s"));
    EXPECT_EQ(u"C:\\new", parsed("K = C:\\\\new"));
    EXPECT_EQ(u"\\x", parsed("K = \\x"));
    EXPECT_EQ(u"end\\", parsed("K = end\\"));
}

TEST(DictParse, LineEndsAndByteOrderMark) {
    const DictTexts texts = ParseDict("\xEF\xBB\xBF"
                                      "A = 1\r\nB = 2\nC = 3");
    EXPECT_EQ(3u, texts.size());
    EXPECT_EQ(u"1", textOf(texts, u"A"));
    EXPECT_EQ(u"2", textOf(texts, u"B"));
    EXPECT_EQ(u"3", textOf(texts, u"C"));
}

TEST(DictParse, LastOfSeveralCounts) {
    EXPECT_EQ(u"new", parsed("K = old\nK = new\n"));
}

TEST(DictParse, NulEndsNothing) {
    EXPECT_EQ(u"ab", parsed(std::string_view("K = a\0b", 7)));
}

TEST(DictParse, KeysAreCaseSensitive) {
    const DictTexts texts = ParseDict("k = small\nK = large\n");
    EXPECT_EQ(u"small", textOf(texts, u"k"));
    EXPECT_EQ(u"large", textOf(texts, u"K"));
}

TEST(DictParse, TooLongKeysAndTexts) {
    EXPECT_TRUE(ParseDict(std::string(kMaxDictKeyUnits + 1, 'K') + " = x").empty());
    EXPECT_EQ(1u, ParseDict(std::string(kMaxDictKeyUnits, 'K') + " = x").size());
    EXPECT_EQ(kMaxDictTextUnits, parsed("K = " + std::string(kMaxDictTextUnits + 100, 'x')).size());
    std::string pairs = "K = x";
    for (std::size_t i = 0; i < kMaxDictTextUnits; ++i)
        pairs += "\xF0\x9F\x98\x80";
    EXPECT_EQ(kMaxDictTextUnits - 1, parsed(pairs).size()); // a pair is never cut
}

TEST(DictParse, ManyLines) {
    std::string text;
    for (int i = 0; i < 100000; ++i)
        text += "KEY_" + std::to_string(i) + " = text " + std::to_string(i) + "\n";
    const DictTexts texts = ParseDict(text);
    EXPECT_EQ(100000u, texts.size());
    EXPECT_EQ(u"text 99999", textOf(texts, u"KEY_99999"));
}

TEST(DecodeUtf8, BrokenSequences) {
    struct {
        std::string_view bytes;
        std::u16string_view text;
    } const kTable[] = {
        {"", u""},
        {"a\x80z", u"a\xFFFDz"},                           // lone continuation
        {"\xC3", u"\xFFFD"},                               // cut short
        {"\xC3(", u"\xFFFD("},                             // no continuation
        {"\xC0\xAF", u"\xFFFD\xFFFD"},                     // longer than needed
        {"\xE0\x80\xAF", u"\xFFFD\xFFFD\xFFFD"},           // longer than needed
        {"\xED\xA0\x80", u"\xFFFD\xFFFD\xFFFD"},           // surrogate
        {"\xF4\x90\x80\x80", u"\xFFFD\xFFFD\xFFFD\xFFFD"}, // beyond the last character
        {"\xFF\xFE", u"\xFFFD\xFFFD"},                     // never valid
        {"\xF0\x9F\x98", u"\xFFFD\xFFFD\xFFFD"},           // cut short
        {"\xEF\xBF\xBD", u"\xFFFD"},                       // the replacement itself
    };
    for (const auto& row : kTable)
        EXPECT_EQ(row.text, DecodeUtf8(row.bytes));
}

TEST(DictParse, AnyBytesAreHarmless) {
    std::string bytes;
    for (int i = 0; i < 65536; ++i)
        bytes.push_back(static_cast<char>(i * 2654435761u >> 11));
    ParseDict(bytes);
    ParseDict("K = " + bytes);
}

} // namespace
