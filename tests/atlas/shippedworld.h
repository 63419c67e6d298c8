// The ports of all areas that ship, as their tables tell them. Must not need built areas.
#pragma once

#include <algorithm>
#include <filesystem>
#include <string>

#include "fakes/temporaryfolder.h"
#include "portdata/portscsv.h"
#include "portdata/recordfiles.h"
#include "world/worldports.h"

namespace tarvane {

/// Areas are called as their tables are, "us west coast", and lie nowhere.
inline World shippedworld() {
    World world;
    constexpr std::string_view ending = "-ports.csv";
    std::vector<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(TARVANE_DATA))
        if (entry.path().string().ends_with(ending)) files.push_back(entry.path().string());
    std::sort(files.begin(), files.end());
    for (const std::string& file : files) {
        const std::string stem = file.substr(0, file.size() - ending.size());
        std::string name = std::filesystem::path(stem).filename().string();
        std::replace(name.begin(), name.end(), '-', ' ');
        const AboutTable table = readabout(filetext(stem + "-about.csv"));
        std::int16_t number = 0;
        for (const HarmonicRecord& record : readportscsv(filetext(file)).ports) {
            ++number;
            world.ports.push_back({world.areas.size(), number, trimmedname(record), record.PortLat, record.PortLong,
                                   record.TimeZoneLetter, aboutport(table, record, number), false});
        }
        world.areas.push_back({"/areas/" + name + ".hc", name, ""});
    }
    return world;
}

}  // namespace tarvane
