#include "world/coast.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <optional>

#include "files/wholefiles.h"
#include "world/mapview.h"

namespace tarvane {
namespace {

constexpr char filemark[] = "TTCOAST1";
constexpr std::size_t headsize = sizeof filemark - 1 + 4;
constexpr double offbypixels = 0.7;         // no more of a level can be seen
constexpr double southernmost = 1.3;        // y: no coast lies so far south
constexpr double meridiannear = 1e-7;       // x: on the date line
constexpr std::size_t leastring = 7;        // bytes: a number and three points
constexpr double leaststep = 1e-4;          // of a grid, degrees
constexpr std::int64_t farthest = 1 << 24;  // steps of the grid

std::uint32_t sumof(std::span<const std::byte> bytes) {
    std::uint32_t sum = 2166136261U;
    for (const std::byte each : bytes)
        sum = (sum ^ static_cast<std::uint32_t>(each)) * 16777619U;
    return sum;
}

/// Reads on through bytes; once there are too few, or a number is out of all reason, `bad` stays set.
class Bytes {
  public:
    explicit Bytes(std::span<const std::byte> bytes) : left_(bytes) {}

    double number() {
        std::uint64_t bits = 0;
        for (int shift = 0; shift < 64; shift += 8)
            bits |= static_cast<std::uint64_t>(next()) << shift;
        return std::bit_cast<double>(bits);
    }

    std::uint64_t count() {
        std::uint64_t value = 0;
        for (int shift = 0; shift < 35; shift += 7) {
            const unsigned byte = next();
            value |= static_cast<std::uint64_t>(byte & 0x7FU) << shift;
            if (byte < 0x80U) return value;
        }
        bad = true;
        return 0;
    }

    std::int64_t step() {
        const std::uint64_t value = count();
        return value % 2 == 0 ? static_cast<std::int64_t>(value / 2) : -static_cast<std::int64_t>(value / 2) - 1;
    }

    std::size_t size() const { return left_.size(); }

    bool bad = false;

  private:
    unsigned next() {
        if (left_.empty()) {
            bad = true;
            return 0;
        }
        const auto byte = static_cast<unsigned>(left_.front());
        left_ = left_.subspan(1);
        return byte;
    }

    std::span<const std::byte> left_;
};

struct Grid {
    double longitude = 0, latitude = 0, eaststep = 0, northstep = 0;

    bool sound() const {
        return std::abs(longitude) <= 360 && std::abs(latitude) <= 90 && eaststep > 0 && eaststep <= 1 &&
               northstep >= leaststep && northstep <= 1;
    }
};

/// The projected latitudes of a grid, each reckoned once: that is what takes time.
class Rows {
  public:
    explicit Rows(const Grid& grid)
        : grid_(grid), known_(static_cast<std::size_t>(180 / grid.northstep) + 2, unknown) {}

    float operator[](std::int64_t north) {
        if (north < 0 || north >= static_cast<std::int64_t>(known_.size())) return projected(north);
        float& y = known_[static_cast<std::size_t>(north)];
        if (y == unknown) y = projected(north);
        return y;
    }

  private:
    static constexpr float unknown = -1000;

    float projected(std::int64_t north) const {
        return static_cast<float>(mappoint(grid_.latitude + grid_.northstep * static_cast<double>(north), 0).y);
    }

    Grid grid_;
    std::vector<float> known_;
};

void widen(CoastBox& box, const CoastPoint& point) {
    box.left = std::min(box.left, point.x);
    box.top = std::min(box.top, point.y);
    box.right = std::max(box.right, point.x);
    box.bottom = std::max(box.bottom, point.y);
}

CoastBox boxof(std::span<const CoastPoint> points) {
    CoastBox box{points[0].x, points[0].y, points[0].x, points[0].y};
    for (const CoastPoint& each : points)
        widen(box, each);
    return box;
}

void boxpieces(CoastRing& ring) {
    const std::span<const CoastPoint> points = ring.points;
    ring.box = boxof(points);
    ring.pieces.reserve(points.size() / coastpiece + 1);
    for (std::size_t first = 0; first + 1 < points.size(); first += coastpiece)
        ring.pieces.push_back(boxof(points.subspan(first, std::min(coastpiece + 1, points.size() - first))));
}

std::optional<CoastRing> readring(Bytes& bytes, const Grid& grid, Rows& rows) {
    const std::uint64_t head = bytes.count(), points = head / 2;
    // A point takes two bytes at least.
    if (bytes.bad || points < 3 || points > bytes.size() / 2) return std::nullopt;
    CoastRing ring;
    ring.lake = head % 2 != 0;
    ring.points.reserve(points + 1);
    std::int64_t east = 0, north = 0;
    for (std::uint64_t i = 0; i < points; ++i) {
        east += bytes.step();
        north += bytes.step();
        if (bytes.bad || std::abs(east) > farthest || std::abs(north) > farthest) return std::nullopt;
        const double x = (grid.longitude + grid.eaststep * static_cast<double>(east)) / 360 + 0.5;
        if (std::abs(x) > 4) return std::nullopt;
        ring.points.push_back({static_cast<float>(x), rows[north]});
    }
    ring.points.push_back(ring.points.front());
    boxpieces(ring);
    return ring;
}

std::optional<CoastLevel> readlevel(Bytes& bytes, const Grid& grid, Rows& rows) {
    CoastLevel level;
    level.tolerance = static_cast<double>(bytes.count()) / 1e6;
    const std::uint64_t rings = bytes.count();
    if (bytes.bad || rings > bytes.size() / leastring) return std::nullopt;
    level.rings.reserve(rings);
    for (std::uint64_t i = 0; i < rings; ++i) {
        std::optional<CoastRing> ring = readring(bytes, grid, rows);
        if (!ring) return std::nullopt;
        level.rings.push_back(std::move(*ring));
    }
    return level;
}

Coast broken() {
    return {{}, std::string("No coast is shown: its file ") + coastfile + " is broken."};
}

}  // namespace

Coast decodelevels(std::span<const std::byte> body) {
    Bytes bytes(body);
    Grid grid;
    for (double* each : {&grid.longitude, &grid.latitude, &grid.eaststep, &grid.northstep})
        *each = bytes.number();
    const std::uint64_t levels = bytes.count();
    if (bytes.bad || !grid.sound() || levels < 1 || levels > 16) return broken();
    Rows rows(grid);
    Coast coast;
    for (std::uint64_t i = 0; i < levels; ++i) {
        std::optional<CoastLevel> level = readlevel(bytes, grid, rows);
        if (!level) return broken();
        coast.levels.push_back(std::move(*level));
    }
    if (bytes.size() != 0) return broken();
    return coast;
}

Coast decodecoast(std::span<const std::byte> file) {
    if (file.size() < headsize || std::memcmp(file.data(), filemark, sizeof filemark - 1) != 0) return broken();
    std::uint32_t sum = 0;
    for (std::size_t i = 0; i < 4; ++i)
        sum |= static_cast<std::uint32_t>(file[headsize - 4 + i]) << (8 * i);
    const std::span<const std::byte> body = file.subspan(headsize);
    return sum == sumof(body) ? decodelevels(body) : broken();
}

Coast readcoast(const std::string& programfolder) {
    const std::string path = programfolder + "/" + coastfile;
    std::error_code odd;
    if (!std::filesystem::exists(path, odd))
        return {{}, std::string("No coast is shown: its file ") + coastfile + " can't be found."};
    const std::optional<std::vector<std::byte>> bytes = wholefile(path);
    if (!bytes) return {{}, std::string("No coast is shown: its file ") + coastfile + " can't be read."};
    return decodecoast(*bytes);
}

const CoastLevel* coastlevel(const Coast& coast, double scale) {
    const CoastLevel* fitting = nullptr;
    for (const CoastLevel& each : coast.levels)
        if (!fitting || each.tolerance * scale <= offbypixels) fitting = &each;
    return fitting;
}

bool cutline(const CoastPoint& from, const CoastPoint& to) {
    const auto onmeridian = [](float x) { return std::abs(x - std::round(x)) < meridiannear; };
    return from.y > southernmost || to.y > southernmost || (from.x == to.x && onmeridian(from.x));
}

}  // namespace tarvane
