#include "engine/springs.h"

#include <array>
#include <cmath>

namespace tarvane {
namespace {

/// Row numbers from 1, at most ten, just before each peak of a term's magnitude; the rest is 0.
struct PeakList {
    std::array<std::size_t, 12> rows{};
    std::size_t count = 0;
};

PeakList findpeaks(const Layer& layer, int samplecount) {
    PeakList peaks;
    for (std::size_t i = 1; i + 2 <= static_cast<std::size_t>(samplecount) && peaks.count < 10; ++i) {
        const double middle = std::abs(layer[i + 1].height);
        if (std::abs(layer[i].height) <= middle && middle > std::abs(layer[i + 2].height))
            peaks.rows[++peaks.count] = i;
    }
    return peaks;
}

struct StatusBand {
    double from, to;
    const char* status;
};

// kept: the bands are uneven, share their edges, and one is spelt without its blank
constexpr std::array<StatusBand, 14> statusbands{{
    {0, 0.3, "Springs"},
    {0.3, 1.4, "Springs +1 day"},
    {1.4, 1.9, "Springs +2 days"},
    {1.9, 2.5, "Springs +3 days"},
    {2.5, 3.3, "Neaps -3 days"},
    {3.3, 4.3, "Neaps -2 days"},
    {4.3, 5.2, "Neaps -1days"},
    {5.2, 6.8, "Neaps"},
    {6.8, 7.7, "Neaps +1 day"},
    {7.7, 8.5, "Neaps +2 days"},
    {8.5, 9.3, "Neaps +3 days"},
    {9.3, 10.2, "Springs -3 days"},
    {10.2, 10.9, "Springs -2 days"},
    {10.9, 14, "Springs -1 day"},
}};

}  // namespace

std::optional<double> findspringslag(const Prediction& prediction) {
    const Layer& s2 = prediction.s2layer;
    const Layer& m2 = prediction.m2layer;
    const PeakList s2peaks = findpeaks(s2, prediction.samplecount);
    const PeakList m2peaks = findpeaks(m2, prediction.samplecount);
    if (s2peaks.count == 0) return std::nullopt;
    // Of a single peak the second is the unused row 0, whose height is 0.
    const std::size_t first = s2peaks.rows[1], second = s2peaks.rows[2];
    const std::size_t s = s2[first].height > s2[second].height ? first : second;
    for (std::size_t j = 1; j <= 4; ++j) {
        const std::size_t m = m2peaks.rows[j];
        if (m > s && m2[m].height > m2[m2peaks.rows[j + 1]].height) return static_cast<double>(m - s) / 6;
    }
    return std::nullopt;
}

double meanspringrange(const HarmonicRecord& port) {
    return 2 * (double{port.M2Hm} + double{port.S2Hm});
}

double meanneaprange(const HarmonicRecord& port) {
    return 2 * (double{port.M2Hm} - double{port.S2Hm});
}

std::string springstext(double springslag) {
    for (const StatusBand& band : statusbands)
        if (springslag >= band.from && springslag <= band.to) return band.status;
    return {};
}

}  // namespace tarvane
