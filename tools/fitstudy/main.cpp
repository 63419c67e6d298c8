// How well constants derived for a hidden port predict it: "fitstudy AREA.hc [YEAR]". Each port of the area whose two
// neighbours in the file keep its zone time is hidden and derived from them three ways: the plain mean, the mean by
// distance, and that mean fitted to one day's hourly readings, made from the port's own constants with 3 cm of noise.
// The waters of the year are then compared with those of the port's own constants.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

#include "adjust/constantrows.h"
#include "engine/heightfit.h"
#include "engine/prediction.h"
#include "portdata/recordfiles.h"
#include "text/numbers.h"

namespace {

using namespace tarvane;

constexpr int daysofstudy = 365;
constexpr double noise = 0.03;  // metres
constexpr double matching = 3;  // hours
constexpr std::int16_t readingday = 100;

struct Water {
    double hours = 0;  ///< from the year's first 00:00
    double height = 0;
    bool high = false;
};

/// The year's waters, each at the top of the parabola through its three samples.
std::vector<Water> watersof(const HarmonicRecord& record, int year) {
    std::vector<Water> waters;
    Prediction prediction;
    for (std::int16_t day = 1; day <= daysofstudy; ++day) {
        predictday({record, 1, 0, 1}, {year, 0, day, 0}, prediction);
        findturningpoints(prediction);
        for (int i = 1; i <= prediction.turningcount; ++i) {
            const double time = prediction.turningpoints[static_cast<std::size_t>(i)].time;
            const auto row = static_cast<std::size_t>(std::lround(time * 6)) + 1;
            const auto& samples = prediction.curvesamples;
            const double left = samples[row - 1].height, top = samples[row].height, right = samples[row + 1].height;
            const double bend = left - 2 * top + right;
            const double offset = bend == 0 ? 0 : (left - right) / (2 * bend);
            waters.push_back({(day - 1) * 24.0 + time + offset / 6, top - (left - right) * offset / 4, bend < 0});
        }
    }
    return waters;
}

/// How far waters lie from the true ones, minutes and metres.
struct Misses {
    std::vector<double> minutes, metres;
    int unmatched = 0;

    void add(const std::vector<Water>& truth, const std::vector<Water>& derived) {
        for (const Water& water : truth) {
            const Water* nearest = nullptr;
            for (const Water& each : derived)
                if (each.high == water.high && std::abs(each.hours - water.hours) < matching &&
                    (!nearest || std::abs(each.hours - water.hours) < std::abs(nearest->hours - water.hours)))
                    nearest = &each;
            if (!nearest) {
                ++unmatched;
                continue;
            }
            minutes.push_back(std::abs(nearest->hours - water.hours) * 60);
            metres.push_back(std::abs(nearest->height - water.height));
        }
    }
};

double share(std::vector<double> values, double part) {
    if (values.empty()) return NAN;
    std::sort(values.begin(), values.end());
    return values[static_cast<std::size_t>(part * static_cast<double>(values.size() - 1))];
}

void printline(const char* name, const Misses& misses) {
    std::printf("%-26s %7.1f %7.1f %8.3f %8.3f %8d\n", name, share(misses.minutes, 0.5), share(misses.minutes, 0.9),
                share(misses.metres, 0.5), share(misses.metres, 0.9), misses.unmatched);
}

std::vector<Reading> hourlyreadings(const HarmonicRecord& record, int year, std::mt19937& generator) {
    std::normal_distribution<double> error(0, noise);
    const auto inputs = heightinputs(record, 0, year, readingday);
    std::vector<Reading> readings;
    for (int hour = 0; inputs && hour <= 24; ++hour)
        readings.push_back({static_cast<double>(hour), heightformula(*inputs, hour).height + error(generator)});
    return readings;
}

HarmonicRecord fitted(const HarmonicRecord& start, const HeightFit& fit) {
    HarmonicRecord record = start;
    const HarmonicConstants& found = fit.constants;
    const double values[] = {found.Z0,  found.M2g,  found.M2Hm, found.S2g, found.S2Hm, found.K1g, found.K1Hm,
                             found.O1g, found.O1Hm, found.SF4,  found.LF4, found.SF6,  found.LF6};
    for (std::size_t i = 0; i < constantrows.size(); ++i)
        record.*constantrows[i].field = static_cast<float>(values[i]);
    return record;
}

int study(const std::string& area, int year) {
    const std::vector<HarmonicRecord> ports = readports(area);
    std::mt19937 generator(1);  // the same noise at each run
    Misses plain, distance, fit;
    int hidden = 0, refused = 0;
    for (std::size_t i = 1; i + 1 < ports.size(); ++i) {
        const HarmonicRecord &before = ports[i - 1], &port = ports[i], &behind = ports[i + 1];
        if (before.TimeZoneLetter != port.TimeZoneLetter || behind.TimeZoneLetter != port.TimeZoneLetter) continue;
        const std::vector<Water> truth = watersof(port, year);
        const HarmonicRecord mean = recordof(plainmeans(before, behind));
        const HarmonicRecord near = recordof(distancemeans(before, behind, port.PortLat, port.PortLong));
        const HeightFit found =
            fitheights(seasonalconstants(near, 0), year, readingday, hourlyreadings(port, year, generator));
        ++hidden;
        plain.add(truth, watersof(mean, year));
        distance.add(truth, watersof(near, year));
        if (!found.refusal.empty()) {
            ++refused;
            std::printf("%s: %s\n", trimmedname(port).c_str(), found.refusal.c_str());
        }
        fit.add(truth, watersof(fitted(near, found), year));
    }
    std::printf("%d ports hidden, %d fits refused. Errors of high and low waters of %d:\n", hidden, refused, year);
    std::printf("%-26s %7s %7s %8s %8s %8s\n", "", "minutes", "90 %", "metres", "90 %", "unmatched");
    printline("plain mean", plain);
    printline("mean by distance", distance);
    printline("fitted to a day's readings", fit);
    return hidden > 0 ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    const double year = argc == 3 ? tarvane::val(argv[2]) : 2026;
    if (argc < 2 || argc > 3 || year < 1900 || year > 2200) {
        std::fprintf(stderr, "usage: fitstudy AREA.hc [YEAR]\n");
        return 2;
    }
    return study(argv[1], static_cast<int>(year));
}
