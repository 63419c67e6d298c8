#include "portdata/recordfiles.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "fakes/temporaryfolder.h"
#include "files/wholefiles.h"
#include "portdata/bytes.h"

namespace tarvane {
namespace {

namespace fs = std::filesystem;

HarmonicRecord named(const std::string& name) {
    HarmonicRecord port;
    port.PortName = name;
    port.Z0 = static_cast<float>(name.size());
    return port;
}

std::string area(int ports) {
    std::string text;
    for (int i = 1; i <= ports; ++i)
        text += textat(encode(named("Port " + std::to_string(i))), 0, 197);
    return text;
}

struct Files : testing::Test {
    fakes::TemporaryFolder folder;
    const std::string path = folder / "a.hc";

    std::ptrdiff_t filesin(const std::string& place) const {
        return std::distance(fs::directory_iterator(place), fs::directory_iterator());
    }
};

using RecordFiles = Files;
using ReplaceFile = Files;

TEST_F(RecordFiles, CountByLengthHalvesToEven) {
    using Row = std::pair<std::size_t, int>;
    for (const auto& [length, count] :
         {Row{0, 0}, Row{98, 0}, Row{99, 1}, Row{5 * 197 + 98, 5}, Row{5 * 197 + 99, 6}}) {
        putfile(path, area(6).substr(0, length));
        EXPECT_EQ(portcount(path), count) << length;
        const auto ports = readports(path);
        ASSERT_EQ(ports.size(), static_cast<std::size_t>(count)) << length;
        for (std::size_t i = 0; i < ports.size(); ++i)
            EXPECT_EQ(encode(ports[i]), encode(readport(path, static_cast<std::int16_t>(i + 1)))) << i;
    }
    fs::resize_file(path, 197ull * 40000);
    EXPECT_EQ(portcount(path), 32767);
}

TEST_F(RecordFiles, WhatIsNotThereReadsAsZeros) {
    putfile(path, area(3));
    for (const std::int16_t outside : std::initializer_list<std::int16_t>{-32768, 0, 4, 32767})
        EXPECT_EQ(readport(path, outside).PortName + readdepth(path, outside).Notes, "") << outside;
    for (const std::string& missing : {folder / "none.hc", folder.path()}) {
        EXPECT_FALSE(canopen(missing));
        EXPECT_EQ(readport(missing, 1).PortName, "");
        EXPECT_EQ(portcount(missing) + static_cast<int>(readports(missing).size()), 0);
    }
}

TEST_F(RecordFiles, WriteInPlaceAndGrowWithZeros) {
    putfile(path, area(3) + "tail");
    ASSERT_TRUE(writeport(path, 2, named("Étaples")));
    EXPECT_EQ(filetext(path).substr(0, 197), area(1));
    EXPECT_EQ(filetext(path).substr(394), area(3).substr(394) + "tail");
    EXPECT_EQ(trimmedname(readport(path, 2)), "Étaples");
    ASSERT_TRUE(writeport(path, 6, named("far")));
    EXPECT_EQ(filetext(path).size(), 6 * 197u);
    EXPECT_EQ(filetext(path).substr(595, 390), std::string(390, '\0'));
    const std::string before = filetext(path);
    EXPECT_FALSE(writeport(path, 0, named("none")));
    for (const std::string& refused : {folder.path(), path + "/below", folder / "no/folder.hc"})
        EXPECT_FALSE(writeport(refused, 1, named("nowhere"))) << refused;
    EXPECT_EQ(filetext(path), before);
    EXPECT_EQ(filesin(folder.path()), 1);
}

TEST_F(ReplaceFile, ADiskFullAtAnyByteLeavesTheOldFile) {
    const std::string old = area(2), wanted(3 * 197, 'n');
    putfile(path, old);
    for (std::size_t byte = 0; byte < wanted.size(); ++byte) {
        ASSERT_FALSE(onadiskof(byte, [&] { return replacefile(path, wanted); })) << byte;
        ASSERT_EQ(filetext(path), old) << byte;
        ASSERT_EQ(filesin(folder.path()), 1) << byte;
    }
    EXPECT_FALSE(onadiskof(2 * 197, [&] { return writeport(path, 3, named("third")); }));
    EXPECT_EQ(filetext(path), old);
    EXPECT_TRUE(onadiskof(wanted.size(), [&] { return replacefile(path, wanted); }));
    EXPECT_EQ(filetext(path), wanted);
}

TEST_F(ReplaceFile, FollowsLinksAndKeepsPermissions) {
    fs::create_directory(folder / "real");
    const std::string target = folder / "real/a.hc";
    fs::create_symlink("real/a.hc", folder / "link.hc");
    fs::create_symlink(folder / "link.hc", folder / "second.hc");
    putfile(target, "first");
    ASSERT_EQ(chmod(target.c_str(), 0640), 0);
    ASSERT_TRUE(replacefile(folder / "second.hc", std::string("second")));
    EXPECT_EQ(filetext(target), "second");
    EXPECT_TRUE(fs::is_symlink(folder / "link.hc"));
    EXPECT_EQ(fs::status(target).permissions(), fs::perms(0640));
    fs::create_symlink("ring2", folder / "ring1");
    fs::create_symlink("ring1", folder / "ring2");
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    for (const std::string& refused : {folder / "ring1", folder / "real", folder / "pipe", std::string()})
        EXPECT_FALSE(replacefile(refused, std::string("x"))) << refused;
    EXPECT_EQ(portcount(folder / "pipe") + readport(folder / "pipe", 1).Z0, 0) << "without waiting for a writer";
    if (geteuid() != 0) {
        ASSERT_EQ(chmod(target.c_str(), 0440), 0);
        EXPECT_FALSE(replacefile(target, std::string("third")));
        EXPECT_EQ(filetext(target), "second");
    }
    EXPECT_EQ(filesin(folder / "real"), 1);
}

}  // namespace
}  // namespace tarvane
