#include "engine/heightfit.h"

#include <Eigen/LU>
#include <algorithm>
#include <cmath>
#include <numeric>
#include <optional>

#include "text/numbers.h"

namespace tarvane {
namespace {

constexpr std::size_t leastreadings = 10;
constexpr double halftide = 6.2;         // hours
constexpr double leastdifference = 0.1;  // metres
constexpr double widestshift = 4;        // hours
constexpr double leastscale = 0.02;      // metres
constexpr double wildscales = 4;
constexpr double leastwild = 0.15;  // metres
constexpr double tukeyscales = 4.685;
constexpr double poorfit = 0.4;  // of the readings' own spread
constexpr int mostrounds = 60;

using Parameters = Eigen::Vector3d;  // level, factor, shift
using Residuals = std::vector<double>;
using Slopes = std::vector<Parameters>;

Parameters parametersof(const FitChange& change) {
    return {change.level, change.factor, change.shift};
}

FitChange changeof(const Parameters& parameters) {
    return {parameters[0], parameters[1], parameters[2]};
}

/// The curve that readings are compared with.
class Curve {
  public:
    Curve(const HarmonicConstants& constants, const AnglesAndFactors& day, const AnglesAndFactors& next)
        : basis{constants, day, next, speedsandrates(day, next), constants.Z0, 0, 1} {}

    const SpeedsAndRates& rates() const { return basis.rates; }

    HeightInputs changed(const Parameters& parameters) const {
        HeightInputs inputs = basis;
        inputs.constants = changedconstants(basis.constants, basis.rates, changeof(parameters));
        inputs.z0level = inputs.constants.Z0;
        return inputs;
    }

    Residuals residuals(std::span<const Reading> readings, const Parameters& parameters) const {
        const HeightInputs inputs = changed(parameters);
        Residuals result;
        result.reserve(readings.size());
        for (const Reading& each : readings)
            result.push_back(each.height - heightformula(inputs, each.time).height);
        return result;
    }

    /// How each reading's height on the curve changes with the parameters, by central differences.
    Slopes slopes(std::span<const Reading> readings, const Parameters& parameters) const {
        const Parameters steps(1e-4, 1e-5, 1e-4);
        Slopes result(readings.size());
        for (Eigen::Index column = 0; column < 3; ++column) {
            Parameters less = parameters, more = parameters;
            less[column] -= steps[column];
            more[column] += steps[column];
            const Residuals below = residuals(readings, less), above = residuals(readings, more);
            for (std::size_t i = 0; i < result.size(); ++i)
                result[i][column] = (below[i] - above[i]) / (2 * steps[column]);
        }
        return result;
    }

  private:
    HeightInputs basis;
};

double medianofsizes(Residuals values) {
    for (double& value : values)
        value = std::abs(value);
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// The spread of residuals by the median of their sizes, as a standard deviation.
double scaleof(const Residuals& residuals) {
    return std::max(1.4826 * medianofsizes(residuals), leastscale);
}

double tukeyweight(double residual, double scale) {
    const double u = residual / (tukeyscales * scale);
    return std::abs(u) < 1 ? (1 - u * u) * (1 - u * u) : 0.0;
}

std::vector<double> weightsof(const Residuals& residuals, bool robust) {
    std::vector<double> weights(residuals.size(), 1);
    const double scale = scaleof(residuals);
    for (std::size_t i = 0; robust && i < weights.size(); ++i)
        weights[i] = tukeyweight(residuals[i], scale);
    return weights;
}

/// One Gauss-Newton step; nothing when the readings can't tell the three numbers apart.
std::optional<Parameters> newtonstep(const Slopes& slopes, const Residuals& residuals,
                                     const std::vector<double>& weights, const Parameters& from) {
    Eigen::Matrix3d normal = Eigen::Matrix3d::Zero();
    Parameters right = Parameters::Zero();
    for (std::size_t i = 0; i < slopes.size(); ++i) {
        normal += weights[i] * slopes[i] * slopes[i].transpose();
        right += weights[i] * residuals[i] * slopes[i];
    }
    const Eigen::FullPivLU<Eigen::Matrix3d> solver(normal);
    if (!normal.allFinite() || !solver.isInvertible() || solver.rcond() < 1e-10) return std::nullopt;
    const Parameters step = solver.solve(right);
    Parameters to = from + step;
    to[1] = std::clamp(to[1], from[1] / 2, from[1] * 2);
    to[2] = std::clamp(to[2], from[2] - 1, from[2] + 1);
    return to;
}

/// Rounds of steps until they stand still. `robust` weighs the readings anew before each.
std::optional<Parameters> settle(const Curve& curve, std::span<const Reading> readings, Parameters at, bool robust) {
    for (int round = 0; round < mostrounds; ++round) {
        const Residuals residuals = curve.residuals(readings, at);
        const auto next = newtonstep(curve.slopes(readings, at), residuals, weightsof(residuals, robust), at);
        if (!next) return std::nullopt;
        const double moved = (*next - at).cwiseAbs().maxCoeff();
        at = *next;
        if (moved < 1e-7) break;
    }
    return at;
}

/// The best of the fits begun at shifts over the whole range: a tide out by hours must not settle on the wrong wave.
std::optional<Parameters> robustfit(const Curve& curve, std::span<const Reading> readings) {
    std::optional<Parameters> best;
    double bestscale = 0;
    for (double shift = -widestshift; shift <= widestshift; shift += 1) {
        const auto settled = settle(curve, readings, parametersof({0, 1, shift}), true);
        if (!settled || std::abs((*settled)[2]) > widestshift || (*settled)[1] < 0.05) continue;
        const double scale = medianofsizes(curve.residuals(readings, *settled));
        // Of fits as good as one another the least shift is meant.
        const bool better = !best || scale < bestscale * 0.999 ||
                            (scale < bestscale * 1.001 && std::abs((*settled)[2]) < std::abs((*best)[2]));
        if (!better) continue;
        best = settled;
        bestscale = scale;
    }
    return best;
}

double sumofsquares(const Residuals& residuals) {
    return std::inner_product(residuals.begin(), residuals.end(), residuals.begin(), 0.0);
}

FitMisses missesof(const Curve& curve, std::span<const Reading> readings, const Parameters& parameters) {
    const Residuals residuals = curve.residuals(readings, parameters);
    const auto greatest = std::max_element(residuals.begin(), residuals.end(),
                                           [](double a, double b) { return std::abs(a) < std::abs(b); });
    return {std::sqrt(sumofsquares(residuals) / static_cast<double>(residuals.size())), *greatest,
            readings[static_cast<std::size_t>(greatest - residuals.begin())].time};
}

/// Standard deviation of the readings about their own mean.
double spreadof(std::span<const Reading> readings) {
    double sum = 0, squares = 0;
    for (const Reading& each : readings) {
        sum += each.height;
        squares += each.height * each.height;
    }
    const double mean = sum / static_cast<double>(readings.size());
    return std::sqrt(std::max(squares / static_cast<double>(readings.size()) - mean * mean, 0.0));
}

FitChange uncertaintyof(const Curve& curve, std::span<const Reading> readings, const Parameters& parameters) {
    Eigen::Matrix3d normal = Eigen::Matrix3d::Zero();
    for (const Parameters& slope : curve.slopes(readings, parameters))
        normal += slope * slope.transpose();
    const double freedom = static_cast<double>(readings.size()) - 3;
    const double variance = sumofsquares(curve.residuals(readings, parameters)) / freedom;
    const Eigen::Matrix3d covariance = variance * normal.inverse();
    return changeof(covariance.diagonal().cwiseMax(0).cwiseSqrt());
}

std::string refusalof(const HarmonicConstants& constants, std::span<const Reading> readings) {
    if (readings.size() < leastreadings)
        return "There are " + numbertext(static_cast<int>(readings.size())) + " readings; a fit needs ten or more";
    const auto usable = [](const Reading& each) {
        return std::isfinite(each.height) && each.time >= 0 && each.time <= 24;
    };
    if (!std::all_of(readings.begin(), readings.end(), usable))
        return "The readings hold times outside the day or heights that are no numbers";
    if (constants.M2Hm + constants.S2Hm + constants.K1Hm + constants.O1Hm <= 0)
        return "The constants have no tide that could be fitted";
    const auto [first, last] = std::minmax_element(readings.begin(), readings.end(),
                                                   [](const Reading& a, const Reading& b) { return a.time < b.time; });
    if (last->time - first->time < halftide)
        return "The readings cover " + format(last->time - first->time, "0.0") +
               " hours; a fit needs half a tide, 6.2 hours, or more";
    // Without the most extreme tenth, so that one wild reading doesn't make a tide.
    std::vector<double> heights;
    for (const Reading& each : readings)
        heights.push_back(each.height);
    std::sort(heights.begin(), heights.end());
    const std::size_t tenth = (heights.size() + 9) / 10;
    if (heights[heights.size() - 1 - tenth] - heights[tenth] < leastdifference)
        return "The readings differ by a few centimetres only; a fit needs a tide that rises or falls";
    return {};
}

double wrapped(double degrees) {
    const double turned = std::fmod(degrees, 360);
    return turned < 0 ? turned + 360 : turned;
}

}  // namespace

HarmonicConstants changedconstants(const HarmonicConstants& constants, const SpeedsAndRates& rates,
                                   const FitChange& change) {
    HarmonicConstants changed = constants;
    changed.Z0 += change.level;
    for (double* amplitude : {&changed.M2Hm, &changed.S2Hm, &changed.K1Hm, &changed.O1Hm})
        *amplitude *= change.factor;
    changed.M2g = wrapped(changed.M2g + rates.dam * change.shift);
    changed.S2g = wrapped(changed.S2g + rates.das * change.shift);
    changed.K1g = wrapped(changed.K1g + rates.dak * change.shift);
    changed.O1g = wrapped(changed.O1g + rates.dao * change.shift);
    changed.LF4 /= change.factor;
    changed.LF6 /= change.factor * change.factor;
    return changed;
}

HeightFit fitheights(const HarmonicConstants& constants, int year, int dayofyear, std::span<const Reading> readings) {
    HeightFit fit;
    fit.constants = constants;
    fit.refusal = refusalof(constants, readings);
    const auto day = orbitalconstants(year, dayofyear);
    const auto next = orbitalconstants(year, dayofyear + 1);
    if (fit.refusal.empty() && (!day || !next)) fit.refusal = "The method has no constants for this day";
    if (!fit.refusal.empty()) return fit;
    const Curve curve(constants, *day, *next);
    const std::string nofit = "No change of level, size and time brings the curve near these readings";
    const auto robust = robustfit(curve, readings);
    if (!robust) {
        fit.refusal = nofit;
        return fit;
    }
    const Residuals residuals = curve.residuals(readings, *robust);
    const double wild = std::max(wildscales * scaleof(residuals), leastwild);
    std::vector<Reading> kept;
    for (std::size_t i = 0; i < readings.size(); ++i) {
        if (std::abs(residuals[i]) > wild)
            fit.rejected.push_back(i);
        else
            kept.push_back(readings[i]);
    }
    const auto settled = kept.size() * 3 < readings.size() * 2 ? std::nullopt : settle(curve, kept, *robust, false);
    if (!settled) {
        fit.refusal = nofit;
        return fit;
    }
    fit.after = missesof(curve, kept, *settled);
    if (fit.after.rms > poorfit * spreadof(kept)) {
        fit.refusal = nofit;
        return fit;
    }
    fit.change = changeof(*settled);
    fit.uncertainty = uncertaintyof(curve, kept, *settled);
    fit.before = missesof(curve, kept, parametersof({}));
    fit.constants = changedconstants(constants, curve.rates(), fit.change);
    return fit;
}

}  // namespace tarvane
