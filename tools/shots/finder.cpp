#include "shots/finder.h"

#include <filesystem>

#include "atlas/frmfinder.h"

namespace tarvane::shots {
namespace {

namespace fs = std::filesystem;

/// Copies of the areas and their tables that the stage doesn't have; gone with it.
class Areas {
  public:
    Areas(const std::string& from, const std::string& to) {
        for (const auto& entry : fs::directory_iterator(from)) {
            const fs::path copy = fs::path(to) / entry.path().filename();
            const std::string name = copy.filename().string();
            if (fs::exists(copy) || (!name.ends_with(".hc") && !name.ends_with("-about.csv"))) continue;
            fs::copy_file(entry.path(), copy);
            copies.push_back(copy);
        }
    }
    ~Areas() {
        std::error_code ignored;
        for (const fs::path& copy : copies)
            fs::remove(copy, ignored);
    }
    Areas(const Areas&) = delete;
    Areas& operator=(const Areas&) = delete;

  private:
    std::vector<fs::path> copies;
};

}  // namespace

void takefinder(Stage& stage, const std::string& areas, const std::function<void(QWidget&, const QString&)>& take) {
    MainContext context = stage.context();
    const ProgramFolders& folders = stage.sessiononstage().folders;
    const Areas copies(areas, folders.programfolder);
    World world = readworld(folders);
    const std::string keeps = finderkeepspath(folders);
    for (const char* name : {"Dover", "St Helier (Jersey)"})
        togglefavourite(keeps, {"UK.hc", name});
    for (const KeptPort& each : {KeptPort{"France.hc", "Brest"}, KeptPort{"Australia.hc", "Hobart (Tas)"}})
        noterecent(keeps, each);
    const struct {
        const char *text, *name;
        Lighting light;
    } shots[] = {{"", "frmfinder-empty", Lighting::day},
                 {"newport us", "frmfinder", Lighting::day},
                 {"sydney", "frmfinder-sydney", Lighting::day},
                 {"sydny australia", "frmfinder-nearmiss", Lighting::dark},
                 {"xyzzy", "frmfinder-none", Lighting::day},
                 {"near 50.1 N 1.4 W", "frmfinder-near", Lighting::day},
                 {"near 50.1", "frmfinder-unfinished", Lighting::day},
                 {"kingston", "frmfinder-night", Lighting::night}};
    for (const auto& shot : shots) {
        frmfinder window(context, world, shot.light, &stage.window());
        window.onabout = window.onmap = [](std::size_t) {};
        window.type(shot.text);
        take(window, shot.name);
    }
    fs::remove(keeps);
}

}  // namespace tarvane::shots
