#include "portdata/depthmatch.h"

#include <gtest/gtest.h>

#include <cctype>
#include <cmath>

#include "fakes/temporaryfolder.h"
#include "portdata/bytes.h"
#include "portdata/recordfiles.h"
#include "portdata/userdepths.h"

namespace tarvane {
namespace {

/// Ports named by a letter each.
std::vector<HarmonicRecord> portsof(const std::string& letters) {
    std::vector<HarmonicRecord> ports(letters.size());
    for (std::size_t i = 0; i < letters.size(); ++i)
        ports[i].PortName = letters[i];
    return ports;
}

/// Records made for ports of these letters, a capital for one with a depth of the user's; "=" for one without a name.
std::vector<std::byte> depthsof(const std::string& letters) {
    std::vector<std::byte> bytes;
    for (std::size_t i = 0; i < letters.size(); ++i) {
        const bool own = std::isupper(letters[i]) != 0 || letters[i] == '=';
        UserDepthRecord record =
            newdepthrecord(portsof({static_cast<char>(std::tolower(letters[i]))})[0], static_cast<std::int16_t>(i + 1));
        if (letters[i] == '=') record.DepthPortName.clear();
        if (own) record.UserDepth = static_cast<float>(i + 1);
        record.DepthSpare2 = 7;
        const auto encoded = encode(record);
        bytes.insert(bytes.end(), encoded.begin(), encoded.end());
    }
    return bytes;
}

/// The records as letters again; "?" for one whose number isn't its place.
std::string lettersof(std::span<const std::byte> bytes) {
    std::string letters;
    for (std::size_t i = 0; i * userdepthrecordsize < bytes.size(); ++i) {
        const auto record = bytes.subspan(i * userdepthrecordsize, userdepthrecordsize);
        const char name = static_cast<char>(record[0]);
        const bool own = numberat<float>(record, 37) != 0;
        const bool numbered = numberat<std::int16_t>(record, 35) == static_cast<std::int16_t>(i + 1);
        const char letter = name == ' ' ? '=' : own ? static_cast<char>(std::toupper(name)) : name;
        letters += numbered ? letter : '?';
    }
    return letters;
}

TEST(DepthMatch, EachGoesToThePortOfItsNameAndNoneIsGuessed) {
    const struct {
        const char *what, *ports, *records, *matched;
        int elsewhere, moved, stayed, dropped;
        std::vector<std::string> lost, left;
    } rows[] = {
        {"nothing to do", "abc", "aBc", "aBc", 0, 0, 3, 0, {}, {}},
        {"a port was deleted", "acd", "ABCd", "ACd", 3, 2, 1, 1, {"b: 2 m"}, {}},
        {"the last port was deleted", "ab", "aBC", "aB", 1, 0, 2, 1, {"c: 3 m"}, {}},
        {"a port was inserted as told", "aabc", "ABc", "AaBc", 2, 2, 1, 0, {}, {}},
        {"a port took another name", "xb", "aB", "xB", 1, 0, 1, 1, {}, {}},
        {"a short file", "abc", "C", "abC", 1, 1, 0, 0, {}, {}},
        {"doubles are left, and who would take their place",
         "baa",
         "ABA",
         "ABA",
         2,
         0,
         3,
         0,
         {},
         {"1, made for a: 1 m", "2, made for b: 2 m"}},
        {"a double without the user's words makes way", "baa", "aBA", "BaA", 2, 1, 1, 1, {}, {}},
        {"two records of the one port left",
         "xa",
         "XBAA",
         "XaAA",
         3,
         0,
         3,
         1,
         {"b: 2 m"},
         {"3, made for a: 3 m", "4, made for a: 4 m"}},
        {"a double past the last port", "aa", "ABbA", "Aa?A", 3, 0, 2, 2, {"b: 2 m"}, {"4, made for a: 4 m"}},
        {"no name at all", "ba", "=B", "=B", 1, 0, 2, 0, {}, {"2, made for b: 2 m"}},
    };
    for (const auto& row : rows) {
        const DepthMatch match = matchdepths(portsof(row.ports), depthsof(row.records));
        EXPECT_EQ(lettersof(match.matched), row.matched) << row.what;
        EXPECT_EQ((std::vector<int>{match.elsewhere, match.moved, match.stayed, match.dropped}),
                  (std::vector<int>{row.elsewhere, row.moved, row.stayed, row.dropped}))
            << row.what;
        EXPECT_EQ(match.lost, row.lost) << row.what;
        EXPECT_EQ(match.left, row.left) << row.what;
    }
}

TEST(DepthMatch, TellsTheUsersWordsFromAPosition) {
    HarmonicRecord port;
    port.PortLat = -50.75F, port.PortLong = 1.3F;
    UserDepthRecord record = newdepthrecord(port, 1);
    EXPECT_FALSE(holdsowntext(record)) << record.Notes;
    for (const char* note : {"Position of the bar", "Position 50.45N 1.30W!", "bar", "Position 1N 2W N"}) {
        record.Notes = note;
        EXPECT_TRUE(holdsowntext(record)) << note;
    }
    record.Notes = "  ";
    EXPECT_FALSE(holdsowntext(record));
    record.UserDepth = std::nanf("");
    EXPECT_TRUE(holdsowntext(record));
}

TEST(DepthMatch, TheFileAsItWasIsKeptEachTime) {
    fakes::TemporaryFolder folder;
    const std::string area = folder / "UK.hc", depths = folder / "UK.DEP";
    const auto put = [&](const std::string& letters) {
        const auto bytes = depthsof(letters);
        putfile(depths, textat(bytes, 0, bytes.size()));
    };
    put("AB");
    EXPECT_EQ(matchdepths(area, depths).elsewhere, 0) << "without its area nothing is dropped";
    writeport(area, 1, portsof("b")[0]);
    for (const char* before : {"AB", "aB"}) {
        put(before);
        const std::string was = filetext(depths);
        EXPECT_TRUE(writematched(depths, matchdepths(area, depths)));
        EXPECT_EQ(filetext(depths + ".bak"), was);
        EXPECT_EQ(lettersof(readwhole(depths)), "B");
        EXPECT_EQ(readdepth(depths, 1).DepthSpare2, 7) << "moved as it is";
    }
}

}  // namespace
}  // namespace tarvane
