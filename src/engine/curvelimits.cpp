#include "engine/curvelimits.h"

#include <algorithm>
#include <cmath>

#include "text/numbers.h"

namespace tarvane {
namespace {

struct Band {
    double from, to, bottom;
};

// kept: between two bands, and below -4, the least height stands as it is
constexpr std::array<Band, 4> bottombands{{
    {-1, -0.0000001, -1},
    {-2, -1.00000001, -2},
    {-3, -2.0000001, -3},
    {-4, -3.0000001, -4},
}};

double widened(double least) {
    for (const Band& band : bottombands)
        if (least >= band.from && least <= band.to) return band.bottom;
    return least;
}

std::string note(const char* label, float value) {
    return value == 0 ? std::string{} : label + numbertext(value) + "M";
}

}  // namespace

CurveSeries curveseries(const std::array<TimedValue, 501>& samples, int samplecount, const Settings& settings) {
    CurveSeries series;
    const float option = settings.currentoutput;
    series.drawn = option == 1.0F || option == 2.0F || option == 3.0F;
    series.dotted = option == 3.0F;
    if (!series.drawn) return series;
    for (std::size_t i = 1; i <= static_cast<std::size_t>(samplecount); ++i) {
        series.curve1[i] = samples[i];
        series.curve2[i] = samples[i];
        if (series.dotted) {
            series.curve2[i].height -= settings.currentdraught;
            series.curve2[i].height -= settings.currentukc;
        }
    }
    const std::string depthnote = note(": User depth=", settings.userdepth);
    if (option == 1.0F) series.curvenote = "Depths to Chart Datum";
    if (option == 2.0F) series.curvenote = depthnote;
    if (series.dotted)
        series.curvenote =
            note(" : Draft=", settings.currentdraught) + note(" : Clearance=", settings.currentukc) + depthnote;
    return series;
}

CurveLimits curvelimits(const CurveSeries& series, const std::array<TimedValue, 501>& samples, int samplecount) {
    double greatest = 0, least = 0;
    for (std::size_t i = 1; i + 1 <= static_cast<std::size_t>(samplecount); ++i) {
        if (std::isfinite(series.curve1[i].height)) greatest = std::max(greatest, series.curve1[i].height);
        if (std::isfinite(samples[i].height)) least = std::min(least, samples[i].height);
    }
    return {std::floor(greatest) + 1, widened(least)};
}

}  // namespace tarvane
