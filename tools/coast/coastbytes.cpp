#include "coast/coastbytes.h"

#include <bit>

namespace tarvane::makecoast {
namespace {

void putlittle(std::string& bytes, std::uint64_t value, int count) {
    for (int i = 0; i < count; ++i)
        bytes += static_cast<char>(value >> (8 * i) & 0xFFU);
}

void putcount(std::string& bytes, std::uint64_t value) {
    for (; value >= 0x80U; value >>= 7)
        bytes += static_cast<char>((value & 0x7FU) | 0x80U);
    bytes += static_cast<char>(value);
}

void putstep(std::string& bytes, std::int64_t step) {
    putcount(bytes, static_cast<std::uint64_t>(step >= 0 ? 2 * step : -2 * step - 1));
}

void putring(std::string& bytes, const Ring& ring) {
    putcount(bytes, ring.points.size() * 2 + (ring.lake ? 1 : 0));
    GridPoint before;
    for (const GridPoint& each : ring.points) {
        putstep(bytes, each.x - before.x);
        putstep(bytes, each.y - before.y);
        before = each;
    }
}

}  // namespace

std::string coastbytes(const Land& land, const std::vector<int>& tolerances) {
    std::string body;
    for (const double each : {land.grid.longitude, land.grid.latitude, land.grid.eaststep, land.grid.northstep})
        putlittle(body, std::bit_cast<std::uint64_t>(each), 8);
    putcount(body, tolerances.size());
    for (const int tolerance : tolerances) {
        const std::vector<Ring> rings = simplified(land, tolerance / 1e6);
        putcount(body, static_cast<std::uint64_t>(tolerance));
        putcount(body, rings.size());
        for (const Ring& ring : rings)
            putring(body, ring);
    }
    std::uint32_t sum = 2166136261U;
    for (const char each : body)
        sum = (sum ^ static_cast<unsigned char>(each)) * 16777619U;
    std::string file = "TTCOAST1";
    putlittle(file, sum, 4);
    return file + body;
}

}  // namespace tarvane::makecoast
