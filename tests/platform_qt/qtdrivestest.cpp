#include "platform/qt/qtdrives.h"

#include <gtest/gtest.h>

namespace tarvane {
namespace {

TEST(QtDrives, TheTreeItselfComesFirstAndMediaAreKnownByTheirPlaces) {
    const std::vector<Drive> drives = QtDrives().drives();
    ASSERT_FALSE(drives.empty());
    EXPECT_EQ(drives[0], (Drive{"/", ""}));
    for (std::size_t i = 1; i < drives.size(); ++i)
        EXPECT_TRUE(mountedmedium(drives[i].path)) << drives[i].path;
    for (const char* path : {"/media/anna/CHARTS", "/run/media/anna/CHARTS", "/mnt", "/mnt/stick"})
        EXPECT_TRUE(mountedmedium(path)) << path;
    for (const char* path : {"/", "/home", "/mediatheque", "/run/user/1000", "/boot/efi"})
        EXPECT_FALSE(mountedmedium(path)) << path;
}

}  // namespace
}  // namespace tarvane
