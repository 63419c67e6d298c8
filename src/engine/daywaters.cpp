#include "engine/daywaters.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <span>

#include "engine/vectorstate.h"

namespace tarvane {
namespace {

constexpr double rowstep = 1.0 / 6;
constexpr std::size_t rows = 146;  // the last water can stand on row 145, and is told by the row behind it
using Rows = std::array<double, rows + 1>;

/// The times of the samples in hours from 00:00 of the day before, summed up as the prediction sums them.
Rows timesfrom(std::size_t first) {
    double t = 0;
    for (std::size_t j = 1; j < first; ++j)
        t += rowstep;
    Rows times{};
    for (std::size_t row = 1; row <= rows; ++row, t += rowstep)
        times[row] = t;
    return times;
}

const Rows& timesof(bool summer) {
    static const Rows standardtimes = timesfrom(145), summertimes = timesfrom(139);
    return summer ? summertimes : standardtimes;
}

/// True for constants whose heights are numbers, and no great ones: no others keep to the bounds below.
bool ordinary(const HeightInputs& inputs) {
    const HarmonicConstants& c = inputs.constants;
    const std::array phases{c.M2g, c.S2g, c.K1g, c.O1g, c.SF4, c.SF6};
    const std::array sizes{c.M2Hm, c.S2Hm, c.K1Hm, c.O1Hm, c.LF4, c.LF6, inputs.z0level, inputs.userdepth};
    const auto within = [](double most) { return [most](double value) { return std::abs(value) <= most; }; };
    return std::all_of(phases.begin(), phases.end(), within(720)) &&
           std::all_of(sizes.begin(), sizes.end(), within(100));
}

/// One constituent's vector as it turns from sample to sample: a product instead of a sine and a cosine. Where the form
/// wraps its angle, it is set anew, for the form's degrees make no whole turn.
class Turning {
  public:
    Turning(double lag, double rate, double amplitude, double factor, double factorrate)
        : lag_(lag),
          rate_(rate),
          amplitude_(amplitude),
          factor_(factor),
          factorrate_(factorrate),
          stepsine_(std::sin(-rate * rowstep * formradians)),
          stepcosine_(std::cos(-rate * rowstep * formradians)) {}

    void turnto(double t) {
        const double raw = lag_ - t * rate_;
        const int wrap = raw >= 360 ? -1 : raw < 0 ? 1 : 0;
        if (wrap != wrap_) {
            wrap_ = wrap;
            const double phase = (raw + 360 * wrap) * formradians;
            unitsine_ = std::sin(phase);
            unitcosine_ = std::cos(phase);
        } else {
            const double turned = unitsine_ * stepcosine_ + unitcosine_ * stepsine_;
            unitcosine_ = unitcosine_ * stepcosine_ - unitsine_ * stepsine_;
            unitsine_ = turned;
        }
        size_ = amplitude_ * (t * factorrate_ + factor_);
    }
    double sine() const { return unitsine_ * size_; }
    double cosine() const { return unitcosine_ * size_; }
    double size() const { return size_; }

  private:
    double lag_, rate_, amplitude_, factor_, factorrate_, stepsine_, stepcosine_;
    int wrap_ = 2;  // none yet
    double unitsine_ = 0, unitcosine_ = 0, size_ = 0;
};

/// The heights less their level, near enough to tell most of the rises and falls: the shallow-water terms are taken of
/// the vector itself, not of its angle in the form's degrees. Returned: how far the difference of two may be out.
double nearheights(const HeightInputs& inputs, const Rows& times, Rows& heights) {
    const HarmonicConstants& c = inputs.constants;
    const AnglesAndFactors& day = inputs.day;
    const SpeedsAndRates& rates = inputs.rates;
    Turning m2(c.M2g + day.ma, rates.dam, c.M2Hm, day.mf, rates.dfm);
    Turning s2(c.S2g + day.sa, rates.das, c.S2Hm, day.sf, rates.dfs);
    Turning k1(c.K1g + day.ka, rates.dak, c.K1Hm, day.kf, rates.dfk);
    Turning o1(c.O1g + day.oa, rates.dao, c.O1Hm, day.of, rates.dfo);
    const double sine4 = std::sin(c.SF4 * formradians) * c.LF4, cosine4 = std::cos(c.SF4 * formradians) * c.LF4;
    const double sine6 = std::sin(c.SF6 * formradians) * c.LF6, cosine6 = std::cos(c.SF6 * formradians) * c.LF6;
    double greatest = 0;
    for (std::size_t row = 1; row <= rows; ++row) {
        for (Turning* each : {&m2, &s2, &k1, &o1})
            each->turnto(times[row]);
        const double x = m2.sine() + s2.sine(), y = m2.cosine() + s2.cosine();
        const double xx = x * x, yy = y * y;
        // r^2 and r^3 times the cosines of the angle doubled and tripled
        const double f4 = cosine4 * (yy - xx) - sine4 * (2 * x * y);
        const double f6 = cosine6 * (y * (yy - 3 * xx)) - sine6 * (x * (3 * yy - xx));
        heights[row] = k1.cosine() + o1.cosine() + y + f4 + f6;
        greatest = std::max(greatest, xx + yy);
    }
    // the form's radians in a degree times its degrees in a radian are 1.0000363 instead of 1
    constexpr double off = 3.64e-5 * 2 * 3.1416;
    const double shallow =
        2 * off * std::abs(c.LF4) * greatest + 3 * off * std::abs(c.LF6) * greatest * std::sqrt(greatest);
    return 2 * shallow + 1e-8;
}

DayWaters asprediction(const PredictedPort& port, const TideDay& day) {
    const auto prediction = std::make_unique<Prediction>();
    predictday(port, day, *prediction);
    findturningpoints(*prediction);
    DayWaters result;
    result.defined = prediction->defined;
    result.whynot = prediction->whynot;
    result.count = prediction->turningcount;
    for (int i = 1; i <= result.count; ++i) {
        const TimedValue& point = prediction->turningpoints[static_cast<std::size_t>(i)];
        const int row = static_cast<int>(std::lround(point.time * 6)) + 1;
        result.waters[static_cast<std::size_t>(i - 1)] = {row, point.height, ishighwater(*prediction, i)};
    }
    return result;
}

/// Whether the tide rises from a row to the next, 1, falls, -1, or neither.
int risefrom(const HeightInputs& inputs, const Rows& times, const Rows& heights, double doubt, std::size_t row) {
    double rise = heights[row + 1] - heights[row];
    if (!(std::abs(rise) > doubt))
        rise = heightformula(inputs, times[row + 1]).height - heightformula(inputs, times[row]).height;
    return rise > 0 ? 1 : rise < 0 ? -1 : 0;
}

}  // namespace

std::optional<OrbitalSpan> spanofday(const TideDay& day) {
    return orbitalspan(day.tideyear, day.dayofyear - 1);
}

DayWaters daywaters(const PredictedPort& port, const TideDay& day, const std::optional<OrbitalSpan>& span) {
    DayWaters result;
    if (!span) {
        result.defined = false;
        result.whynot = noconstants;
        return result;
    }
    const HeightInputs inputs = heightinputs(port.record, day.tidemonth, *span, port.userdepth, port.currentoutput);
    if (!ordinary(inputs)) return asprediction(port, day);
    settlevectors();
    const Rows& times = timesof(day.summer == -1);
    Rows heights;
    const double doubt = nearheights(inputs, times, heights);
    int before = risefrom(inputs, times, heights, doubt, 1);
    const auto most = static_cast<int>(result.waters.size());
    for (std::size_t row = 2; row < rows && result.count < most; ++row) {
        const int behind = risefrom(inputs, times, heights, doubt, row);
        if (before * behind == -1)
            result.waters[static_cast<std::size_t>(result.count++)] = {
                static_cast<int>(row), heightformula(inputs, times[row]).height, before == 1};
        before = behind;
    }
    return result;
}

}  // namespace tarvane
