// Makes the coast's file of Natural Earth's land at 1:10 million: "makecoast land-10m.json coast.bin", the former as
// the package world-atlas holds it.
#include <cstdio>
#include <exception>
#include <fstream>
#include <nlohmann/json.hpp>

#include "coast/coastbytes.h"
#include "files/wholefiles.h"
#include "world/coast.h"

int main(int argc, char** argv) {
    using namespace tarvane;
    if (argc != 3) {
        std::fputs("usage: makecoast LAND.json OUT\n", stderr);
        return 2;
    }
    try {
        std::ifstream in(argv[1]);
        const makecoast::Land land = makecoast::readland(nlohmann::json::parse(in));
        const std::string file = makecoast::coastbytes(land, {0, 20, 45, 100, 220, 500});
        const WriteOutcome written = replacefile(argv[2], file);
        if (!written) throw std::runtime_error(written.reason());
        const Coast coast = decodecoast(std::as_bytes(std::span(file)));
        for (const CoastLevel& level : coast.levels) {
            std::size_t points = 0;
            for (const CoastRing& ring : level.rings)
                points += ring.points.size() - 1;
            std::printf("%g: %zu rings, %zu points\n", level.tolerance, level.rings.size(), points);
        }
        if (!coast.fault.empty()) throw std::runtime_error(coast.fault);
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "makecoast: %s: %s\n", argv[1], fault.what());
        return 1;
    }
    return 0;
}
