#include "portdata/areaedits.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <functional>

#include "fakes/temporaryfolder.h"
#include "files/wholefiles.h"
#include "portdata/bytes.h"
#include "portdata/heightfiles.h"

namespace tarvane {
namespace {

/// A record of one letter, which no codec would write so.
HarmonicBytes lettered(char letter) {
    HarmonicBytes bytes;
    bytes.fill(static_cast<std::byte>(letter));
    return bytes;
}

struct AreaEdits : testing::Test {
    fakes::TemporaryFolder folder;
    const std::string path = folder / "UK.hc", scratch = folder / "scratch.hc", backup = folder / "UK.hc.bak";
    AreaBackups backups;

    void put(const std::string& letters) {
        std::string text;
        for (const char letter : letters)
            text += std::string(harmonicrecordsize, letter);
        putfile(path, text);
    }

    /// The first letter of each record; a record that isn't whole shows as "?".
    std::string letters(const std::string& file) const {
        const std::string text = filetext(file);
        std::string all;
        for (std::size_t at = 0; at < text.size(); at += harmonicrecordsize) {
            const std::string record = text.substr(at, harmonicrecordsize);
            all += record == std::string(harmonicrecordsize, record[0]) ? record[0] : '?';
        }
        return all;
    }
};

TEST_F(AreaEdits, RecordsMoveAsTold) {
    const struct {
        const char* what;
        std::function<AreaEdit(AreaEdits&)> edit;
        const char *file, *scratch;
        int ports, newport;
    } rows[] = {
        {"delete the first", [](AreaEdits& t) { return deleteport(t.backups, t.path, t.scratch, 1); }, "bc", "bc", 2,
         0},
        {"delete the last", [](AreaEdits& t) { return deleteport(t.backups, t.path, t.scratch, 3); }, "ab", "ab", 2, 0},
        {"insert behind the first",
         [](AreaEdits& t) { return insertport(t.backups, t.path, t.scratch, 1, lettered('n')); }, "aabc", "aabc", 4, 0},
        {"insert behind the last",
         [](AreaEdits& t) { return insertport(t.backups, t.path, t.scratch, 3, lettered('n')); }, "abccn", "abccn", 5,
         5},
        {"add", [](AreaEdits& t) { return addport(t.backups, t.path, lettered('n')); }, "abcn", "", 4, 4},
        {"change", [](AreaEdits& t) { return changeport(t.backups, t.path, 2, lettered('n')); }, "anc", "", 3, 2},
        {"gather the second",
         [](AreaEdits& t) {
             gatherport(t.scratch, t.path, 2);
             gatherport(t.scratch, t.path, 1);
             return addport(t.backups, t.path, lettered('n'));
         },
         "abcn", "ba", 4, 4},
        {"append itself", [](AreaEdits& t) { return appendports(t.backups, t.path, t.path); }, "abcabc", "", 6, 6},
    };
    for (const auto& row : rows) {
        put("abc");
        putfile(scratch, "");
        backups = {};
        const AreaEdit edit = row.edit(*this);
        EXPECT_TRUE(edit.written) << row.what;
        EXPECT_EQ(letters(path), row.file) << row.what;
        EXPECT_EQ(letters(scratch), row.scratch) << row.what;
        EXPECT_EQ(edit.ports, row.ports) << row.what;
        EXPECT_EQ(edit.newport, row.newport) << row.what;
        EXPECT_EQ(letters(backup), "abc") << row.what;
    }
}

TEST_F(AreaEdits, OneBackupARunHoldsTheFileAsItWas) {
    EXPECT_TRUE(addport(backups, path, lettered('a')).written) << "a file that isn't there is made";
    EXPECT_FALSE(canopen(backup));
    backups = {};
    addport(backups, path, lettered('b'));
    addport(backups, path, lettered('c'));
    EXPECT_EQ(letters(backup), "a");
    EXPECT_EQ(letters(path), "abc");
    // Where no copy can be kept nothing is written.
    AreaBackups next;
    std::filesystem::remove(backup);
    std::filesystem::create_directory(backup);
    const AreaEdit refused = deleteport(next, path, scratch, 1);
    EXPECT_FALSE(refused.written);
    EXPECT_EQ(refused.ports, 3);
    EXPECT_EQ(letters(path), "abc");
}

TEST_F(AreaEdits, NothingIsWrittenOverAFileThatCannotBeReadNorForAPortThatIsNotThere) {
    put("abc");
    const std::function<AreaEdit()> edits[] = {
        [&] { return addport(backups, path, lettered('n')); },
        [&] { return changeport(backups, path, 2, lettered('n')); },
        [&] { return deleteport(backups, path, scratch, 2); },
        [&] { return insertport(backups, path, scratch, 2, lettered('n')); },
        [&] { return appendports(backups, path, folder / "none.hc"); },
        [&] { return appendports(backups, folder / "new.hc", path); },
        [&] { return gatherport(scratch, path, 1); },
        [&] { return AreaEdit{keepbackup(backups, path)}; },
    };
    // A folder in the file's place can be read by nobody, whoever runs this.
    std::filesystem::rename(path, folder / "away");
    std::filesystem::create_directory(path);
    for (const auto& edit : edits)
        EXPECT_FALSE(edit().written) << &edit - edits;
    std::filesystem::remove(path);
    for (const bool there : {false, true}) {
        if (there) std::filesystem::rename(folder / "away", path);
        for (const std::int16_t number : std::initializer_list<std::int16_t>{-1, 0, 4}) {
            EXPECT_FALSE(changeport(backups, path, number, lettered('n')).written) << number;
            EXPECT_FALSE(deleteport(backups, path, scratch, number).written) << number;
            EXPECT_FALSE(insertport(backups, path, scratch, number, lettered('n')).written) << number;
            EXPECT_FALSE(gatherport(scratch, path, number).written) << number;
        }
        EXPECT_EQ(canopen(path), there);
    }
    EXPECT_EQ(letters(path), "abc");
    EXPECT_FALSE(canopen(scratch) || canopen(backup) || canopen(folder / "new.hc"));
    std::filesystem::resize_file(path, 197UL * 32768);
    EXPECT_EQ(changeport(backups, path, 1, lettered('n')).written.error, std::errc::file_too_large);
    EXPECT_EQ(std::filesystem::file_size(path), 197UL * 32768);
}

TEST_F(AreaEdits, APieceOfARecordIsFilledWithZeros) {
    putfile(path, std::string(197, 'a') + std::string(120, 'b'));
    EXPECT_EQ(addport(backups, path, lettered('n')).newport, 3);
    EXPECT_EQ(filetext(path).substr(197, 197), std::string(120, 'b') + std::string(77, '\0'));
    putfile(path, std::string(197, 'a') + std::string(98, 'b'));
    EXPECT_EQ(addport(backups, path, lettered('n')).newport, 2);
    EXPECT_EQ(letters(path), "an");
}

struct HeightFiles : testing::Test {
    fakes::TemporaryFolder folder;
    const std::string path = folder / "creek.ht";

    static std::vector<HeightRecord> count(std::size_t n) {
        std::vector<HeightRecord> all;
        for (std::size_t i = 0; i < n; ++i)
            all.push_back({static_cast<float>(i) + 0.25F, static_cast<float>(i) / 4});
        return all;
    }
};

TEST_F(HeightFiles, AShorterListLeavesTheOldTail) {
    EXPECT_EQ(writeheights(path, count(20)).remaining, 0U);
    std::vector<HeightRecord> dozen(12, HeightRecord{3, 9});
    const HeightsSaved saved = writeheights(path, dozen);
    EXPECT_TRUE(saved.written);
    EXPECT_EQ(saved.remaining, 8U);
    const ObservedHeights read = readheights(path);
    EXPECT_EQ(read.fault, "");
    ASSERT_EQ(read.readings.size(), 20U);
    EXPECT_EQ(read.readings[11].obsheight, 9);
    EXPECT_EQ(read.readings[12].obstime, 12.25F);
    const std::string bytes = filetext(path).substr(0, heightrecordsize);
    EXPECT_EQ(bytes, std::string("\0\0\x40\x40\0\0\x10\x41", 8) + std::string(12, '\0') + std::string(35, ' '));
}

TEST_F(HeightFiles, FilesThatCannotBeUsedSayWhy) {
    EXPECT_EQ(readheights(path).fault, "The file of heights can't be read");
    putfile(path, "");
    EXPECT_EQ(readheights(path).fault, "");
    writeheights(path, count(2));
    putfile(path, filetext(path) + "tail");
    EXPECT_EQ(readheights(path).fault, "The file of heights ends within a reading");
    writeheights(path, count(1));
    EXPECT_EQ(readheights(path).readings.size(), 2U);
    EXPECT_EQ(readheights(path).fault, "") << "what is saved over a broken file can be read";
    for (const HeightRecord& wild : {HeightRecord{std::nanf(""), 1}, {-0.1F, 1}, {24.1F, 1}, {3, INFINITY}}) {
        std::filesystem::remove(path);
        writeheights(path, {wild});
        EXPECT_EQ(readheights(path).fault, "The file of heights holds readings that are no heights of a day");
    }
    EXPECT_FALSE(writeheights(folder / "none/creek.ht", count(1)).written);
}

}  // namespace
}  // namespace tarvane
