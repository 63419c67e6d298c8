#include "atlas/finderkeeps.h"

#include <algorithm>
#include <filesystem>

#include "portdata/jsonmembers.h"

namespace tarvane {
namespace {

using nlohmann::json;

std::string filename(const std::string& path) {
    return std::filesystem::path(path).filename().string();
}

std::vector<KeptPort> portsof(const JsonMembers& file, const char* name) {
    std::vector<KeptPort> ports;
    file.each(name, [&](const json& element) {
        KeptPort kept;
        const JsonMembers members(element, file.whole());
        members.take("area", kept.area);
        members.take("name", kept.name);
        if (kept.area.empty() || kept.name.empty())
            file.whole() = false;
        else if (std::find(ports.begin(), ports.end(), kept) == ports.end())
            ports.push_back(kept);
    });
    return ports;
}

void takekeeps(const json& object, FinderKeeps& keeps) {
    const JsonMembers file(object, keeps.state.whole);
    keeps.favourites = portsof(file, "favourites");
    keeps.recents = portsof(file, "recents");
    file.take("untold", keeps.state.untold);
}

json listof(const std::vector<KeptPort>& ports) {
    json list = json::array();
    for (const KeptPort& port : ports)
        list.push_back({{"area", port.area}, {"name", port.name}});
    return list;
}

KeptText textof(const FinderKeeps& keeps) {
    return [keeps](const std::string& untold) {
        json object{{"favourites", listof(keeps.favourites)}, {"recents", listof(keeps.recents)}};
        if (!untold.empty()) object["untold"] = untold;
        constexpr int indent = 2;
        return object.dump(indent, ' ', false, json::error_handler_t::replace) + "\n";
    };
}

WriteOutcome write(const std::string& path, const FinderKeeps& keeps) {
    return writekept(path, keeps.state, textof(keeps));
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
    FinderKeeps keeps;
    const std::string text = readkept(path, keeps.state);
    if (!text.empty()) takekeeps(json::parse(text, nullptr, false), keeps);
    if (keeps.recents.size() > mostrecents) keeps.recents.resize(mostrecents);
    return keeps;
}

std::string tellfinderkeeps(const std::string& path) {
    const FinderKeeps keeps = readfinderkeeps(path);
    return tellkept(path, keeps.state, "no favourites and no recent ports are listed", textof(keeps));
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
