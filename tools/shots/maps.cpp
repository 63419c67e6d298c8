#include "shots/maps.h"

#include <QApplication>
#include <filesystem>

#include "atlas/frmmap.h"

namespace tarvane::shots {
namespace {

namespace fs = std::filesystem;

/// All areas with what is told of their ports.
void furnish(Stage& stage, const fs::path& folder) {
    for (const auto& entry : fs::directory_iterator(folder)) {
        const std::string name = entry.path().filename().string();
        if (name.ends_with(".hc") || name.ends_with("-about.csv"))
            fs::copy_file(entry.path(), stage.sessiononstage().folders.programfolder + "/" + name,
                          fs::copy_options::skip_existing);
    }
}

}  // namespace

void takemaps(Stage& stage, const std::string& area, const std::function<void(QWidget&, const QString&)>& take) {
    furnish(stage, fs::path(area).parent_path());
    MainContext context = stage.context();
    frmmap map(context);
    map.resize(1366, 740);
    take(map, "frmmap");
    QApplication::processEvents();
    map.map->zoom(2);
    for (const MapPort& port : map.map->ports())
        if (map.map->world().ports[port.place].name == "Newhaven") map.map->pointat(port.place);
    take(map, "frmmap-pointed");
    map.shownight(true);
    take(map, "frmmap-night");
    map.shownight(false);
    map.map->zoom(20);
    map.map->goinhand();
    take(map, "frmmap-harbour");
    map.map->wholeworld();
    take(map, "frmmap-world");
    for (std::size_t i = 0; i < map.map->world().areas.size(); ++i)
        if (map.map->world().areas[i].name == "Pacific Islands") map.map->fitarea(i);
    take(map, "frmmap-pacific");
    fs::remove(context.session.folders.programfolder + "/coast.bin");
    frmmap bare(context);
    bare.resize(700, 500);
    take(bare, "frmmap-without-coast");
}

}  // namespace tarvane::shots
