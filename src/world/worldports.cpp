#include "world/worldports.h"

#include <algorithm>
#include <filesystem>
#include <iterator>

#include "portdata/datafolder.h"
#include "portdata/portknown.h"
#include "portdata/recordfiles.h"

namespace tarvane {
namespace {

namespace fs = std::filesystem;

/// Of a file's size and last change; empty when there is none.
std::string stampof(const std::string& path) {
    std::error_code odd;
    const auto size = fs::file_size(path, odd);
    if (odd) return "";
    const auto written = fs::last_write_time(path, odd);
    return std::to_string(size) + " " + std::to_string(written.time_since_epoch().count());
}

/// Of what the notes tell of the making of an area's ports.
std::string stampof(const AreaNotes& notes) {
    std::string stamp;
    for (const PortNote& note : notes)
        if (note.made) stamp += " " + note.made->mark;
    return stamp;
}

WorldArea areaat(const ProgramFolders& folders, const OwnPorts& own, const std::string& path) {
    const std::string file = fs::path(path).filename().string();
    const auto notes = own.areas.find(file);
    return {path, namebeforepoint(file),
            stampof(path) + ", " + stampof(datafile(folders, aboutname(file))) + "," +
                (notes == own.areas.end() ? "" : stampof(notes->second))};
}

std::vector<WorldArea> findareas(const ProgramFolders& folders, const std::string& another) {
    std::vector<std::string> paths = everyarea(folders);
    if (!another.empty() && std::find(paths.begin(), paths.end(), another) == paths.end()) paths.push_back(another);
    std::vector<WorldArea> areas;
    const OwnPorts own = readownports(ownportspath(folders));
    for (const std::string& path : paths)
        areas.push_back(areaat(folders, own, path));
    return areas;
}

void readarea(const ProgramFolders& folders, const WorldArea& area, std::size_t place, std::vector<WorldPort>& ports) {
    const AreaKnown known = knownarea(folders, area.path);
    std::int16_t number = 0;
    for (const HarmonicRecord& record : readports(area.path)) {
        ++number;
        const PortKnown port = whatisknown(known, record, number);
        ports.push_back({place, number, trimmedname(record), record.PortLat, record.PortLong, record.TimeZoneLetter,
                         port.about, port.own.has_value()});
    }
}

}  // namespace

World readworld(const ProgramFolders& folders, const std::string& another) {
    World world;
    rereadworld(folders, world, another);
    return world;
}

World readoneworld(const ProgramFolders& folders, const std::string& path) {
    World world{{areaat(folders, readownports(ownportspath(folders)), path)}, {}};
    readarea(folders, world.areas.front(), 0, world.ports);
    return world;
}

bool rereadworld(const ProgramFolders& folders, World& world, const std::string& another) {
    std::vector<WorldArea> areas = findareas(folders, another);
    const auto same = [](const WorldArea& one, const WorldArea& other) {
        return one.path == other.path && one.stamp == other.stamp;
    };
    if (std::equal(areas.begin(), areas.end(), world.areas.begin(), world.areas.end(), same)) return false;
    std::vector<WorldPort> ports;
    for (std::size_t place = 0; place < areas.size(); ++place) {
        const auto known = std::find_if(world.areas.begin(), world.areas.end(),
                                        [&](const WorldArea& each) { return same(each, areas[place]); });
        if (known == world.areas.end()) {
            readarea(folders, areas[place], place, ports);
            continue;
        }
        const auto before = static_cast<std::size_t>(known - world.areas.begin());
        for (const WorldPort& port : world.ports) {
            if (port.area != before) continue;
            ports.push_back(port);
            ports.back().area = place;
        }
    }
    world = {std::move(areas), std::move(ports)};
    return true;
}

std::optional<std::size_t> worldplace(const World& world, const std::string& area, int number) {
    const auto port = std::find_if(world.ports.begin(), world.ports.end(), [&](const WorldPort& each) {
        return each.number == number && world.areas[each.area].path == area;
    });
    if (port == world.ports.end()) return std::nullopt;
    return static_cast<std::size_t>(port - world.ports.begin());
}

std::optional<std::size_t> worldplace(const World& world, const std::string& area, int number,
                                      const std::string& name) {
    const auto place = worldplace(world, area, number);
    return place && world.ports[*place].name == name ? place : std::nullopt;
}

std::string goneport(const std::string& area, const std::string& name) {
    return name + " isn't where it was: " + area + " has changed or is gone";
}

}  // namespace tarvane
