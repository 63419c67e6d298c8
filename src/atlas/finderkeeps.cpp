#include "atlas/finderkeeps.h"

#include <algorithm>
#include <filesystem>
#include <nlohmann/json.hpp>

namespace tarvane {
namespace {

using nlohmann::json;

std::string filename(const std::string& path) {
    return std::filesystem::path(path).filename().string();
}

std::vector<KeptPort> portsof(const json& object, const char* name) {
    std::vector<KeptPort> ports;
    const auto list = object.find(name);
    if (list == object.end() || !list->is_array()) return ports;
    for (const json& each : *list) {
        if (!each.is_object() || !each.contains("area") || !each.contains("name")) continue;
        const json &area = each["area"], &port = each["name"];
        if (!area.is_string() || !port.is_string()) continue;
        const KeptPort kept{area.get<std::string>(), port.get<std::string>()};
        if (std::find(ports.begin(), ports.end(), kept) == ports.end()) ports.push_back(kept);
    }
    return ports;
}

json listof(const std::vector<KeptPort>& ports) {
    json list = json::array();
    for (const KeptPort& port : ports)
        list.push_back({{"area", port.area}, {"name", port.name}});
    return list;
}

json objectof(const std::string& text) {
    return json::parse(text, nullptr, false);
}

WriteOutcome write(const std::string& path, const FinderKeeps& keeps) {
    const std::string before = wholetext(path);
    if (!before.empty() && !objectof(before).is_object())
        if (const WriteOutcome saved = replacefile(path + ".broken", before); !saved) return saved;
    const json object{{"favourites", listof(keeps.favourites)}, {"recents", listof(keeps.recents)}};
    constexpr int indent = 2;
    return replacefile(path, object.dump(indent, ' ', false, json::error_handler_t::replace) + "\n");
}

}  // namespace

KeptPort keptport(const World& world, std::size_t place) {
    const WorldPort& port = world.ports[place];
    return {filename(world.areas[port.area].path), port.name};
}

std::vector<std::size_t> keptplaces(const World& world, const std::vector<KeptPort>& kept) {
    std::vector<std::string> files;
    for (const WorldArea& area : world.areas)
        files.push_back(filename(area.path));
    std::vector<std::size_t> places;
    for (const KeptPort& wanted : kept)
        for (std::size_t place = 0; place < world.ports.size(); ++place)
            if (world.ports[place].name == wanted.name && files[world.ports[place].area] == wanted.area)
                places.push_back(place);
    return places;
}

std::string finderkeepspath(const ProgramFolders& folders) {
    return folders.configfolder() + "/Finder.json";
}

FinderKeeps readfinderkeeps(const std::string& path) {
    const json object = objectof(wholetext(path));
    if (!object.is_object()) return {};
    FinderKeeps keeps{portsof(object, "favourites"), portsof(object, "recents")};
    if (keeps.recents.size() > mostrecents) keeps.recents.resize(mostrecents);
    return keeps;
}

WriteOutcome togglefavourite(const std::string& path, const KeptPort& port) {
    FinderKeeps keeps = readfinderkeeps(path);
    if (std::erase(keeps.favourites, port) == 0) keeps.favourites.push_back(port);
    return write(path, keeps);
}

WriteOutcome noterecent(const std::string& path, const KeptPort& port) {
    FinderKeeps keeps = readfinderkeeps(path);
    if (!keeps.recents.empty() && keeps.recents.front() == port) return {};
    std::erase(keeps.recents, port);
    keeps.recents.insert(keeps.recents.begin(), port);
    if (keeps.recents.size() > mostrecents) keeps.recents.resize(mostrecents);
    return write(path, keeps);
}

}  // namespace tarvane
