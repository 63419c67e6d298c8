#include "portdata/recordfiles.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>

#include "fakes/temporaryfolder.h"
#include "portdata/bytes.h"

namespace tarvane {
namespace {

namespace fs = std::filesystem;

HarmonicRecord named(const std::string& name, float z0) {
    HarmonicRecord port;
    port.PortNo = "1";
    port.PortName = name;
    port.TimeZoneLetter = "L";
    port.Z0 = z0;
    return port;
}

std::string area(int ports) {
    std::string text;
    for (int i = 1; i <= ports; ++i)
        text += textat(encode(named("Port " + std::to_string(i), static_cast<float>(i))), 0, 197);
    return text;
}

std::size_t filesin(const std::string& folder) {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

TEST(Recordfiles, CountByLengthHalvesToEven) {
    const fakes::TemporaryFolder folder;
    const std::string path = folder / "a.hc";
    const struct {
        std::size_t length;
        int ports;
    } rows[] = {{0, 0}, {98, 0}, {99, 1}, {197, 1}, {5 * 197 + 98, 5}, {5 * 197 + 99, 6}, {197 * 197, 197}};
    for (const auto& row : rows) {
        putfile(path, (area(197) + "x").substr(0, row.length));
        EXPECT_EQ(portcount(path), row.ports) << row.length;
        const auto ports = readports(path);
        ASSERT_EQ(ports.size(), static_cast<std::size_t>(row.ports)) << row.length;
        for (std::size_t i = 0; i < ports.size(); ++i) {
            EXPECT_EQ(encode(ports[i]), encode(readport(path, static_cast<std::int16_t>(i + 1)))) << i;
        }
    }
    fs::resize_file(path, 197ull * 40000);
    EXPECT_EQ(portcount(path), 32767);
}

TEST(Recordfiles, ReadOneRecordAndZerosElsewhere) {
    const fakes::TemporaryFolder folder;
    const std::string path = folder / "a.hc";
    putfile(path, area(3) + area(1).substr(0, 120));
    EXPECT_EQ(trimmedname(readport(path, 1)), "Port 1");
    EXPECT_EQ(readport(path, 3).Z0, 3.0f);
    EXPECT_EQ(trimmedname(readport(path, 4)), "Port 1");
    EXPECT_EQ(readport(path, 4).MHm2[0], 0.0f);
    for (const int number : {-32768, -1, 0, 5, 32767}) {
        const auto outside = static_cast<std::int16_t>(number);
        EXPECT_EQ(readport(path, outside).PortName, "") << outside;
        EXPECT_EQ(readdepth(path, outside).Notes, "") << outside;
    }
    EXPECT_TRUE(canopen(path));
    for (const std::string& missing : {folder / "none.hc", folder.path()}) {
        EXPECT_FALSE(canopen(missing));
        EXPECT_EQ(readport(missing, 1).PortName, "");
        EXPECT_EQ(portcount(missing), 0);
        EXPECT_TRUE(readports(missing).empty());
    }
}

TEST(Recordfiles, WriteInPlaceAndGrowWithZeros) {
    const fakes::TemporaryFolder folder;
    const std::string path = folder / "a.hc";
    putfile(path, area(3) + "tail");
    ASSERT_TRUE(writeport(path, 2, named("Étaples", 9)));
    EXPECT_EQ(filetext(path).size(), 3 * 197u + 4);
    EXPECT_EQ(filetext(path).substr(0, 197), area(1));
    EXPECT_EQ(filetext(path).substr(394), area(3).substr(394) + "tail");
    EXPECT_EQ(trimmedname(readport(path, 2)), "Étaples");
    ASSERT_TRUE(writeport(path, 6, named("far", 1)));
    EXPECT_EQ(filetext(path).size(), 6 * 197u);
    EXPECT_EQ(filetext(path).substr(595, 390), std::string(390, '\0'));
    ASSERT_TRUE(writedepth(folder / "new.DEP", 3, {"Port", 3, 4.5f, 0, 0, "note"}));
    EXPECT_EQ(filetext(folder / "new.DEP").size(), 3 * 305u);
    EXPECT_EQ(readdepth(folder / "new.DEP", 3).UserDepth, 4.5f);
    EXPECT_EQ(readdepth(folder / "new.DEP", 2).DepthPortName, "");
    const std::string before = filetext(path);
    EXPECT_FALSE(writeport(path, 0, named("none", 1)));
    for (const std::string& refused : {folder.path(), path + "/below", folder / "no/folder.hc"})
        EXPECT_FALSE(writeport(refused, 1, named("nowhere", 1))) << refused;
    EXPECT_EQ(filetext(path), before);
    EXPECT_EQ(filesin(folder.path()), 2u);
}

/// No file may grow past so many bytes while it lives.
class FullDisk {
  public:
    explicit FullDisk(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &old_);
        const rlimit limit{bytes, old_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &old_);
        std::signal(SIGXFSZ, handler_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

  private:
    rlimit old_{};
    void (*handler_)(int);
};

TEST(Replacefile, ADiskFullAtAnyByteLeavesTheOldFile) {
    const fakes::TemporaryFolder folder;
    const std::string path = folder / "a.hc";
    const std::string old = area(2);
    putfile(path, old);
    const std::string wanted(3 * 197, 'n');
    for (std::size_t byte = 0; byte < wanted.size(); ++byte) {
        bool replaced = true;
        {
            const FullDisk disk(byte);
            replaced = replacefile(path, wanted);
        }
        ASSERT_FALSE(replaced) << byte;
        ASSERT_EQ(filetext(path), old) << byte;
        ASSERT_EQ(filesin(folder.path()), 1u) << byte;
    }
    bool written = true;
    {
        const FullDisk disk(2 * 197);
        written = writeport(path, 3, named("third", 1));
    }
    EXPECT_FALSE(written);
    EXPECT_EQ(filetext(path), old);
    const FullDisk disk(wanted.size());
    EXPECT_TRUE(replacefile(path, wanted));
    EXPECT_EQ(filetext(path), wanted);
}

TEST(Replacefile, FollowsLinksAndKeepsPermissions) {
    const fakes::TemporaryFolder folder;
    fs::create_directory(folder / "real");
    const std::string target = folder / "real/a.hc";
    const std::string link = folder / "link.hc";
    fs::create_symlink("real/a.hc", link);
    fs::create_symlink(link, folder / "second.hc");
    ASSERT_TRUE(replacefile(link, std::string("first")));
    EXPECT_EQ(filetext(target), "first");
    ASSERT_EQ(chmod(target.c_str(), 0640), 0);
    ASSERT_TRUE(replacefile(folder / "second.hc", std::string("second")));
    EXPECT_EQ(filetext(target), "second");
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(fs::status(target).permissions(), fs::perms(0640));
    fs::create_symlink("ring2", folder / "ring1");
    fs::create_symlink("ring1", folder / "ring2");
    EXPECT_FALSE(replacefile(folder / "ring1", std::string("x")));
    EXPECT_FALSE(replacefile(folder / "real", std::string("x")));
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_FALSE(replacefile(folder / "pipe", std::string("x")));
    EXPECT_TRUE(fs::is_fifo(folder / "pipe"));
    EXPECT_EQ(portcount(folder / "pipe") + readport(folder / "pipe", 1).Z0, 0) << "without waiting for a writer";
    EXPECT_FALSE(replacefile("", std::string("x")));
    if (geteuid() != 0) {
        ASSERT_EQ(chmod(target.c_str(), 0440), 0);
        EXPECT_FALSE(replacefile(target, std::string("third")));
        EXPECT_EQ(filetext(target), "second");
    }
    EXPECT_EQ(filesin(folder / "real"), 1u);
}

}  // namespace
}  // namespace tarvane
