#include "diamonds/diamondfile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

#include "fakes/temporaryfolder.h"
#include "portdata/bytes.h"

namespace tarvane {
namespace {

struct DiamondFiles : testing::Test {
    fakes::TemporaryFolder folder;
    const std::string path = folder / "solent.l20", scratch = folder / "~scratch.~20", backup = path + ".bak";
    AreaBackups backups;

    /// A file of one byte a record, and a tail.
    void put(const std::string& letters, std::size_t tail = 0) {
        std::string text;
        for (const char letter : letters)
            text += std::string(165, letter);
        putfile(path, text + std::string(tail, 't'));
    }

    static std::string letters(const std::string& file) {
        const std::string text = filetext(file);
        std::string all;
        for (std::size_t at = 0; at + 165 <= text.size(); at += 165)
            all += text.substr(at, 165) == std::string(165, text[at]) ? text[at] : '?';
        return all + std::string(text.size() % 165, '.');
    }
};

TEST_F(DiamondFiles, FieldsStandAtTheirPlaces) {
    DiamondRecord record{50.75F, -1.5F, "Ä", {}};
    for (std::size_t i = 0; i < 13; ++i) {
        const auto value = static_cast<float>(i);
        record.streams[i] = {100 + value, 200 + value, 300 + value};
    }
    const DiamondBytes bytes = encode(record);
    ASSERT_EQ(bytes.size(), 165U);
    const struct {
        std::size_t offset;
        float value;
    } rows[] = {{0, 50.75F}, {4, -1.5F}, {9, 100},   {13, 200},  {17, 300}, {69, 105},
                {81, 106},   {93, 107},  {153, 112}, {157, 212}, {161, 312}};
    for (const auto& row : rows)
        EXPECT_EQ(numberat<float>(bytes, row.offset), row.value) << row.offset;
    EXPECT_EQ(textat(bytes, 8, 1), "\xC4");
    const DiamondRecord back = decodediamond(bytes);
    EXPECT_EQ(back.DiamondLat, record.DiamondLat);
    EXPECT_EQ(back.DiamondLong, record.DiamondLong);
    EXPECT_EQ(back.DiamondID, "Ä");
    EXPECT_EQ(back.streams, record.streams);
    EXPECT_EQ(decodediamond(std::span(bytes).first(10)).streams[0].StreamDir, 0);
}

TEST_F(DiamondFiles, WholeRecordsAreReadAndTheBytesBehindThemAreToldOf) {
    const struct {
        std::size_t length, diamonds, leftover;
    } rows[] = {{0, 0, 0}, {164, 0, 164}, {165, 1, 0}, {166, 1, 1}, {330, 2, 0}};
    for (const auto& row : rows) {
        putfile(path, std::string(row.length, 'x'));
        const DiamondFile file = readdiamonds(path);
        EXPECT_TRUE(file.read) << row.length;
        EXPECT_EQ(file.diamonds.size(), row.diamonds) << row.length;
        EXPECT_EQ(file.leftover, row.leftover) << row.length;
    }
    EXPECT_EQ(readdiamonds(folder / "none.l20").read.error, std::errc::no_such_file_or_directory);
    EXPECT_FALSE(readdiamonds(folder.path()).read);
    std::filesystem::resize_file(path, 165UL * 32768);
    EXPECT_EQ(readdiamonds(path).read.error, std::errc::file_too_large);
}

TEST_F(DiamondFiles, ChangesMoveTheOtherRecordsAsTheyAre) {
    const DiamondRecord record = decodediamond(std::vector(165, std::byte{'n'}));
    const struct {
        const char* what;
        std::size_t tail;
        std::function<DiamondEdit()> edit;
        const char* file;
        std::size_t lost;
    } rows[] = {
        {"add", 0, [&] { return adddiamond(backups, path, record); }, "abcn", 0},
        {"add behind a piece", 2, [&] { return adddiamond(backups, path, record); }, "abcn", 2},
        {"amend", 0, [&] { return amenddiamond(backups, path, 1, record); }, "anc", 0},
        {"amend before a piece", 2, [&] { return amenddiamond(backups, path, 2, record); }, "abn..", 0},
        {"delete the first", 0, [&] { return deletediamond(backups, path, scratch, 0); }, "bc", 0},
        {"delete the last before a piece", 2, [&] { return deletediamond(backups, path, scratch, 2); }, "ab", 2},
    };
    for (const auto& row : rows) {
        put("abc", row.tail);
        putfile(scratch, "left by another run");
        backups = {};
        const DiamondEdit edit = row.edit();
        EXPECT_TRUE(edit.written) << row.what;
        EXPECT_EQ(edit.lost, row.lost) << row.what;
        EXPECT_EQ(letters(path), row.file) << row.what;
        EXPECT_EQ(letters(backup), "abc" + std::string(row.tail, '.')) << row.what;
    }
    EXPECT_FALSE(canopen(scratch));
    put("a");
    EXPECT_TRUE(deletediamond(backups, path, scratch, 0).written);
    EXPECT_EQ(readdiamonds(path).diamonds.size(), 0U);
    EXPECT_TRUE(canopen(path)) << "the only record gone, an empty file is left";
    EXPECT_TRUE(adddiamond(backups, folder / "new.l20", record).written);
    EXPECT_EQ(letters(folder / "new.l20"), "n");
}

TEST_F(DiamondFiles, WhatCannotBeWrittenLeavesTheFileAsItWas) {
    const DiamondRecord record = decodediamond(std::vector(165, std::byte{'n'}));
    const std::function<DiamondEdit()> edits[] = {
        [&] { return adddiamond(backups, path, record); },
        [&] { return amenddiamond(backups, path, 1, record); },
        [&] { return deletediamond(backups, path, scratch, 1); },
    };
    for (const auto& edit : edits) {
        put("abc");
        EXPECT_FALSE(onadiskof(300, edit).written) << &edit - edits;
        EXPECT_EQ(letters(path), "abc") << &edit - edits;
        std::filesystem::remove(path);
        std::filesystem::create_directory(path);
        EXPECT_FALSE(edit().written) << &edit - edits << " over what can't be read";
        std::filesystem::remove(path);
    }
    put("abc");
    for (const std::size_t index : {3UL, static_cast<std::size_t>(-1)}) {
        EXPECT_EQ(amenddiamond(backups, path, index, record).written.error, std::errc::result_out_of_range);
        EXPECT_EQ(deletediamond(backups, path, scratch, index).written.error, std::errc::result_out_of_range);
    }
    EXPECT_FALSE(canopen(scratch) || canopen(backup));
    std::filesystem::create_directory(backup);
    for (const auto& edit : edits)
        EXPECT_FALSE(edit().written) << &edit - edits << " without a copy of the file as it was";
    EXPECT_EQ(letters(path), "abc");
}

}  // namespace
}  // namespace tarvane
