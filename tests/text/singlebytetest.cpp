#include "text/singlebyte.h"

#include <gtest/gtest.h>

#include <set>

namespace tarvane {
namespace {

TEST(SingleByte, EveryCodeComesBackButTheFiveUnassigned) {
    const std::set<int> unassigned = {0x81, 0x8D, 0x8F, 0x90, 0x9D};
    std::set<std::string> seen;
    for (int code = 0; code < 256; ++code) {
        const std::string byte(1, static_cast<char>(code));
        const std::string text = fromsinglebyte(byte);
        EXPECT_EQ(charactercount(text), 1u) << code;
        EXPECT_EQ(fitssinglebyte(text), !unassigned.contains(code)) << code;
        EXPECT_EQ(tosinglebyte(text), unassigned.contains(code) ? "?" : byte) << code;
        EXPECT_EQ(seen.insert(text).second, !unassigned.contains(code) || code == 0x81) << code;
    }
    EXPECT_EQ(fromsinglebyte("\x80\x8C\x92\x99\xE9\xFF"), "€Œ’™éÿ");
    EXPECT_EQ(tosinglebyte("Ouessant – Ω 日本 😀"), "Ouessant \x96 ? ?? ?");
    EXPECT_FALSE(fitssinglebyte("\xC2\x81"));
}

TEST(Utf8, BrokenBytesAreSingleUnknownCharacters) {
    for (const std::string text : {"\x80", "\xC3", "\xC0\xAF", "\xE2\x82", "\xED\xA0\x80", "\xF4\x90\x80\x80",
                                   "\xF8\x88\x80\x80", "\xE0\x80\xAF", "\xF0\x80\x80\xAF"}) {
        EXPECT_FALSE(validutf8(text) || fitssinglebyte(text));
        EXPECT_EQ(tosinglebyte("a" + text + "b"), "a" + std::string(text.size(), '?') + "b");
        EXPECT_EQ(uppercase("a" + text + "b"), "A" + text + "B");
    }
    EXPECT_TRUE(validutf8("aé€😀\xEF\xBF\xBD"));
    EXPECT_EQ(codepoints("aé€😀"), U"aé€😀");
    EXPECT_EQ(leftcharacters("Saint-Élie", 7) + leftcharacters("é", 9) + leftcharacters("é", 0), "Saint-Éé");
}

TEST(CaseFolds, ReachEveryLetterOfTheCodePageAndNothingElse) {
    EXPECT_EQ(uppercase("abz àéîøþ šœžÿ ßƒ÷× Ω ω"), "ABZ ÀÉÎØÞ ŠŒŽŸ ßƒ÷× Ω ω");
    int letters = 0;
    for (int code = 1; code < 256; ++code) {
        const std::string text = fromsinglebyte(std::string(1, static_cast<char>(code)));
        if (lowercase(text) == text) continue;
        EXPECT_EQ(uppercase(lowercase(text)), text) << code;
        ++letters;
    }
    EXPECT_EQ(letters, 26 + 30 + 4);
}

TEST(Trims, TakeBlanksOnly) {
    EXPECT_EQ(trim("  a b\t "), "a b\t");
    EXPECT_EQ(ltrim("  a ") + "|" + rtrim("  a ") + "|" + trim("   "), "a |  a|");
}

}  // namespace
}  // namespace tarvane
