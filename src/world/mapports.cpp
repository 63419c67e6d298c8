#include "world/mapports.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tarvane {
namespace {

constexpr double leastapart = 16;
constexpr double reach = 12;  // of a click

double squareapart(const MapPoint& one, const MapPoint& other) {
    const double east = one.x - other.x, across = east - std::round(east), down = one.y - other.y;
    return across * across + down * down;
}

/// The user's own first.
int rankof(Trust trust) {
    constexpr std::array ranks{1, 2, 3, 0, 4};
    return ranks.at(static_cast<std::size_t>(trust));
}

/// How far two ports at a depth are apart, squared.
double squareat(int depth) {
    return std::ldexp(1.0, -2 * depth);
}

/// From which depth on a port is as far as it must be from those shown there.
int depthamong(const MapPort& port, const std::vector<MapPort>& before) {
    int depth = 0;
    for (const MapPort& each : before) {
        const double apart = squareapart(port.point, each.point);
        while (depth < deepestmap && apart < squareat(std::max(depth, each.depth)))
            depth = std::max(depth, each.depth) + 1;
    }
    return std::min(depth, deepestmap);
}

}  // namespace

std::vector<MapPort> mapports(const World& world, const std::string& first) {
    std::vector<MapPort> all, placed;
    for (std::size_t place = 0; place < world.ports.size(); ++place) {
        const WorldPort& port = world.ports[place];
        // What a damaged file tells needn't be a place.
        if (!std::isfinite(port.latitude) || !(std::abs(port.longitude) <= 360)) continue;
        all.push_back({place, mappoint(port.latitude, port.longitude), trustof(port.about, port.own), 0});
    }
    const auto later = [&](const MapPort& port) {
        return 2 * rankof(port.trust) + (world.areas[world.ports[port.place].area].path == first ? 0 : 1);
    };
    std::stable_sort(all.begin(), all.end(),
                     [&](const MapPort& one, const MapPort& other) { return later(one) < later(other); });
    for (MapPort& each : all) {
        each.depth = depthamong(each, placed);
        placed.push_back(each);
    }
    std::stable_sort(placed.begin(), placed.end(),
                     [](const MapPort& one, const MapPort& other) { return one.depth < other.depth; });
    return placed;
}

int depthof(const MapView& view) {
    if (view.scale < leastapart) return 0;
    return view.scale >= greatestscale ? deepestmap : std::ilogb(view.scale / leastapart);
}

std::optional<std::size_t> hitport(const std::vector<MapPort>& ports, const MapView& view, Place place,
                                   std::optional<std::size_t> inhand) {
    const int depth = depthof(view);
    std::optional<std::size_t> nearest;
    double least = reach * reach;
    for (std::size_t i = 0; i < ports.size(); ++i) {
        if (ports[i].depth > depth && ports[i].place != inhand) continue;
        const Place mark = view.placeof(ports[i].point);
        const double right = mark.x - place.x, down = mark.y - place.y, apart = right * right + down * down;
        // Where several lie on one place the first of them is shown.
        if (apart >= least) continue;
        least = apart;
        nearest = i;
    }
    return nearest;
}

std::vector<std::size_t> portsfrommiddle(const std::vector<MapPort>& ports, const MapView& view) {
    const int depth = depthof(view);
    std::vector<std::size_t> seen;
    for (std::size_t i = 0; i < ports.size(); ++i)
        if (ports[i].depth <= depth && Area{0, 0, view.width, view.height}.holds(view.placeof(ports[i].point)))
            seen.push_back(i);
    std::stable_sort(seen.begin(), seen.end(), [&](std::size_t one, std::size_t other) {
        return squareapart(ports[one].point, view.middle) < squareapart(ports[other].point, view.middle);
    });
    return seen;
}

}  // namespace tarvane
