#include "adjust/constantrows.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "text/numbers.h"

namespace tarvane {
namespace {

constexpr double radians = std::numbers::pi / 180;

}  // namespace

ConstantTexts textsof(const HarmonicRecord& record) {
    ConstantTexts texts;
    for (std::size_t i = 0; i < constantrows.size(); ++i)
        texts[i] = numbertext(record.*constantrows[i].field);
    return texts;
}

HarmonicRecord recordof(const ConstantTexts& texts) {
    HarmonicRecord record;
    for (std::size_t i = 0; i < constantrows.size(); ++i)
        record.*constantrows[i].field = static_cast<float>(val(texts[i]));
    record.MHm2.fill(record.M2Hm);
    return record;
}

std::string steptext(const ConstantRow& row, int value) {
    return row.hundredths ? numbertext(value / 100.0) : numbertext(value);
}

int stepof(const ConstantRow& row, double value) {
    const double steps = roundeven(row.hundredths ? value * 100 : value);
    return static_cast<int>(std::clamp(std::isnan(steps) ? 0.0 : steps, double(row.lowest), double(row.highest)));
}

ConstantTexts plainmeans(const HarmonicRecord& first, const HarmonicRecord& second) {
    ConstantTexts means;
    for (std::size_t i = 0; i < constantrows.size(); ++i) {
        const auto field = constantrows[i].field;
        // kept: phases too, with no care for north
        means[i] = numbertext((first.*field + second.*field) / 2);
    }
    return means;
}

bool acrossnorth(const ConstantRow& row, const HarmonicRecord& first, const HarmonicRecord& second) {
    return row.phase && std::abs(first.*row.field - second.*row.field) > 180;
}

double circlemean(double first, double second, double weight) {
    const double x = weight * std::cos(first * radians) + (1 - weight) * std::cos(second * radians);
    const double y = weight * std::sin(first * radians) + (1 - weight) * std::sin(second * radians);
    if (std::hypot(x, y) < 1e-9) return std::fmod(std::fmod(first, 360) + 360, 360);
    const double degrees = std::atan2(y, x) / radians;
    const double turned = degrees < 0 ? degrees + 360 : degrees;
    return turned < 360 ? turned : 0;
}

// By the haversine formula.
double globeangle(double latitude, double longitude, const HarmonicRecord& port) {
    const double across = std::sin((port.PortLat - latitude) * radians / 2);
    const double along = std::sin((port.PortLong - longitude) * radians / 2);
    const double h = across * across + std::cos(latitude * radians) * std::cos(port.PortLat * radians) * along * along;
    return 2 * std::asin(std::min(1.0, std::sqrt(h))) / radians;
}

double distanceweight(double tofirst, double tosecond) {
    const double whole = tofirst + tosecond;
    return whole > 0 ? tosecond / whole : 0.5;
}

ConstantTexts distancemeans(const HarmonicRecord& first, const HarmonicRecord& second, double latitude,
                            double longitude) {
    const double weight =
        distanceweight(globeangle(latitude, longitude, first), globeangle(latitude, longitude, second));
    ConstantTexts means;
    for (std::size_t i = 0; i < constantrows.size(); ++i) {
        const ConstantRow& row = constantrows[i];
        const double one = first.*row.field, other = second.*row.field;
        const double mean = row.phase ? circlemean(one, other, weight) : weight * one + (1 - weight) * other;
        means[i] = format(mean, row.phase ? "0.0#" : "0.000#");
    }
    return means;
}

}  // namespace tarvane
