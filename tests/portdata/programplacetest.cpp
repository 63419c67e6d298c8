#include "files/programplace.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "fakes/temporaryfolder.h"
#include "files/wholefiles.h"

namespace tarvane {
namespace {

TEST(programplace, isthefolderofareasandaninstalledonekeepsnochanges) {
    struct Row {
        const char* what;
        std::vector<const char*> files;
        bool installed;
    };
    const Row rows[] = {
        {"the built tree", {"bin/UK.hc"}, false},
        {"installed", {"share/tarvane-tides/UK.hc"}, true},
        {"installed, the areas not yet unpacked", {"share/tarvane-tides/Sample.way"}, true},
        {"a built tree that shares its parent with an installed one",
         {"bin/creek.HC", "share/tarvane-tides/UK.hc"},
         false},
        {"a folder is no area", {"bin/UK.hc/a", "share/tarvane-tides/UK.hc"}, true},
        {"no areas anywhere", {"bin/tides", "share/man/tides.1"}, false},
    };
    for (const Row& row : rows) {
        const fakes::TemporaryFolder root;
        std::filesystem::create_directories(root / "bin");
        for (const char* file : row.files) {
            std::filesystem::create_directories(std::filesystem::path(root / file).parent_path());
            EXPECT_TRUE(replacefile(root / file, std::string("x")));
        }
        const ProgramPlace place = programplace(root / "bin");
        EXPECT_EQ(place.installed, row.installed) << row.what;
        EXPECT_EQ(place.folder, root / (row.installed ? "share/tarvane-tides" : "bin")) << row.what;
        EXPECT_EQ(place.keepschanges(), !row.installed) << row.what << ", all of which can be written";
    }
}

}  // namespace
}  // namespace tarvane
