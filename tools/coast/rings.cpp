#include "coast/rings.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <nlohmann/json.hpp>
#include <stdexcept>

#include "world/mapview.h"

namespace tarvane::makecoast {
namespace {

using nlohmann::json;

constexpr std::size_t overlap = 300;  // points by which a ring about the pole goes over its own beginning

Grid readgrid(const json& topology) {
    const json& transform = topology.at("transform");
    Grid grid;
    grid.longitude = transform.at("translate").at(0);
    grid.latitude = transform.at("translate").at(1);
    grid.eaststep = transform.at("scale").at(0);
    grid.northstep = transform.at("scale").at(1);
    grid.round = std::llround(360 / grid.eaststep);
    if (std::abs(static_cast<double>(grid.round) * grid.eaststep - 360) > 1e-6 || grid.longitude != -180)
        throw std::runtime_error("its grid doesn't go once round the world");
    return grid;
}

std::vector<std::vector<GridPoint>> readarcs(const json& topology) {
    std::vector<std::vector<GridPoint>> arcs;
    for (const json& arc : topology.at("arcs")) {
        std::vector<GridPoint>& points = arcs.emplace_back();
        GridPoint at;
        for (const json& step : arc) {
            at.x += step.at(0).get<std::int64_t>();
            at.y += step.at(1).get<std::int64_t>();
            points.push_back(at);
        }
    }
    return arcs;
}

/// The arcs of a ring, one after the other; one that is counted from -1 downwards runs backwards.
std::vector<GridPoint> joined(const json& ring, const std::vector<std::vector<GridPoint>>& arcs) {
    std::vector<GridPoint> points;
    for (const json& each : ring) {
        const auto number = each.get<std::int64_t>();
        std::vector<GridPoint> arc = arcs.at(static_cast<std::size_t>(number >= 0 ? number : ~number));
        if (number < 0) std::reverse(arc.begin(), arc.end());
        for (const GridPoint& point : arc)
            if (points.empty() || points.back() != point) points.push_back(point);
    }
    if (points.size() > 1 && points.front() == points.back()) points.pop_back();
    return points;
}

/// Longitudes go on where they leapt from one side of the world to the other. How often the ring goes round.
std::int64_t unwrap(std::vector<GridPoint>& points, std::int64_t round) {
    std::int64_t turns = 0;
    const std::int64_t start = points.front().x;
    std::int64_t before = start;
    for (GridPoint& each : points) {
        const std::int64_t x = each.x;
        if (x - before > round / 2) --turns;
        if (before - x > round / 2) ++turns;
        before = x;
        each.x += turns * round;
    }
    if (start - before > round / 2) --turns;
    if (before - start > round / 2) ++turns;
    return turns;
}

/// Goes over its own beginning, so that no seam is seen, and over the pole.
void closeoverpole(std::vector<GridPoint>& points, const Grid& grid, std::int64_t turns) {
    std::vector<GridPoint> more(points.begin(), points.begin() + std::min(overlap, points.size()));
    for (GridPoint& each : more)
        each.x += turns * grid.round;
    points.insert(points.end(), more.begin(), more.end());
    const std::int64_t pole = std::llround((-90 - grid.latitude) / grid.northstep);
    const std::int64_t first = points.front().x, last = points.back().x;
    points.push_back({last, pole});
    points.push_back({first, pole});
}

/// Where rings were cut at the date line: the line from point `at` to the next.
struct Cut {
    std::size_t ring = 0, at = 0;
    GridPoint from, to;
};

std::vector<Cut> findcuts(const std::vector<Ring>& rings, std::int64_t round) {
    std::vector<Cut> cuts;
    for (std::size_t ring = 0; ring < rings.size(); ++ring) {
        const std::vector<GridPoint>& points = rings[ring].points;
        for (std::size_t at = 0; at < points.size(); ++at) {
            const GridPoint &from = points[at], &to = points[(at + 1) % points.size()];
            if (from.x == to.x && from.x % round == 0) cuts.push_back({ring, at, from, to});
        }
    }
    return cuts;
}

/// Puts the other ring, moved round the world, in the place of the cut of the first.
void splice(Ring& ring, const Cut& cut, const Ring& other, const Cut& othercut) {
    std::vector<GridPoint> path;
    const std::size_t size = other.points.size();
    // From behind the other's cut all round to its beginning; its two ends are the first ring's own.
    for (std::size_t i = 2; i < size; ++i)
        path.push_back(other.points[(othercut.at + i) % size]);
    for (GridPoint& each : path)
        each.x += cut.from.x - othercut.from.x;
    ring.points.insert(ring.points.begin() + static_cast<std::ptrdiff_t>(cut.at) + 1, path.begin(), path.end());
}

/// Joins two rings that share a cut; false when there are none.
bool joincut(std::vector<Ring>& rings, std::int64_t round) {
    const std::vector<Cut> cuts = findcuts(rings, round);
    for (const Cut& cut : cuts)
        for (const Cut& other : cuts) {
            if (cut.ring == other.ring || cut.from.y != other.to.y || cut.to.y != other.from.y) continue;
            splice(rings[cut.ring], cut, rings[other.ring], other);
            rings.erase(rings.begin() + static_cast<std::ptrdiff_t>(other.ring));
            return true;
        }
    return false;
}

double areaof(const Ring& ring) {
    double twice = 0;
    for (std::size_t i = 0; i < ring.points.size(); ++i) {
        const GridPoint &from = ring.points[i], &to = ring.points[(i + 1) % ring.points.size()];
        twice += static_cast<double>(from.x * to.y - to.x * from.y);
    }
    return std::abs(twice);
}

/// Square of the distance of a point from the line between two others.
double offline(const MapPoint& point, const MapPoint& from, const MapPoint& to) {
    const double x = to.x - from.x, y = to.y - from.y, length = x * x + y * y;
    const double part =
        length > 0 ? std::clamp(((point.x - from.x) * x + (point.y - from.y) * y) / length, 0.0, 1.0) : 0;
    const double right = point.x - from.x - part * x, down = point.y - from.y - part * y;
    return right * right + down * down;
}

/// Marks what is to be kept between two points that are, by Douglas and Peucker.
void keepbetween(const std::vector<MapPoint>& points, std::size_t from, std::size_t to, double tolerance,
                 std::vector<bool>& kept) {
    std::vector<std::pair<std::size_t, std::size_t>> stretches{{from, to}};
    while (!stretches.empty()) {
        const auto [first, last] = stretches.back();
        stretches.pop_back();
        double most = tolerance * tolerance;
        std::size_t farthest = first;
        for (std::size_t i = first + 1; i < last; ++i)
            if (const double off = offline(points[i], points[first], points[last]); off > most) {
                most = off;
                farthest = i;
            }
        if (farthest == first) continue;
        kept[farthest] = true;
        stretches.emplace_back(first, farthest);
        stretches.emplace_back(farthest, last);
    }
}

Ring simplifiedring(const Ring& ring, const Grid& grid, double tolerance) {
    std::vector<MapPoint> points;
    for (const GridPoint& each : ring.points)
        points.push_back(mappoint(grid.latitude + grid.northstep * static_cast<double>(each.y),
                                  grid.longitude + grid.eaststep * static_cast<double>(each.x)));
    points.push_back(points.front());
    const auto distance = [&](const MapPoint& point) {
        return std::hypot(point.x - points[0].x, point.y - points[0].y);
    };
    const auto far = std::max_element(points.begin(), points.end(), [&](const MapPoint& one, const MapPoint& other) {
        return distance(one) < distance(other);
    });
    std::vector<bool> kept(points.size());
    const auto middle = static_cast<std::size_t>(far - points.begin());
    kept[0] = kept[middle] = true;
    keepbetween(points, 0, middle, tolerance, kept);
    keepbetween(points, middle, points.size() - 1, tolerance, kept);
    Ring simple{{}, ring.lake};
    for (std::size_t i = 0; i < ring.points.size(); ++i)
        if (kept[i]) simple.points.push_back(ring.points[i]);
    return simple;
}

}  // namespace

Land readland(const json& topology) {
    Land land{readgrid(topology), {}};
    const auto arcs = readarcs(topology);
    for (const json& geometry : topology.at("objects").at("land").at("geometries"))
        for (const json& polygon : geometry.at("arcs")) {
            bool lake = false;
            for (const json& each : polygon) {
                Ring ring{joined(each, arcs), lake};
                lake = true;
                if (ring.points.size() < 3) continue;
                const std::int64_t turns = unwrap(ring.points, land.grid.round);
                if (turns != 0) closeoverpole(ring.points, land.grid, turns);
                land.rings.push_back(std::move(ring));
            }
        }
    while (joincut(land.rings, land.grid.round)) {
    }
    std::stable_sort(land.rings.begin(), land.rings.end(),
                     [](const Ring& one, const Ring& other) { return areaof(one) > areaof(other); });
    return land;
}

std::vector<Ring> simplified(const Land& land, double tolerance) {
    if (tolerance <= 0) return land.rings;
    std::vector<Ring> rings;
    for (const Ring& each : land.rings)
        if (Ring ring = simplifiedring(each, land.grid, tolerance); ring.points.size() >= 3)
            rings.push_back(std::move(ring));
    return rings;
}

}  // namespace tarvane::makecoast
