#include "engine/nearheights.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "engine/vectorstate.h"

namespace tarvane {
namespace {

/// One constituent's vector as it turns from sample to sample: a product instead of a sine and a cosine. Where the form
/// wraps its angle, it is set anew, for the form's degrees make no whole turn.
class Turning {
  public:
    Turning(double lag, double rate, double amplitude, double factor, double factorrate, double step)
        : lag_(lag),
          rate_(rate),
          amplitude_(amplitude),
          factor_(factor),
          factorrate_(factorrate),
          stepsine_(std::sin(-rate * step * formradians)),
          stepcosine_(std::cos(-rate * step * formradians)) {}

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

  private:
    double lag_, rate_, amplitude_, factor_, factorrate_, stepsine_, stepcosine_;
    int wrap_ = 2;  // none yet
    double unitsine_ = 0, unitcosine_ = 0, size_ = 0;
};

}  // namespace

bool keepsnear(const HeightInputs& inputs) {
    const HarmonicConstants& c = inputs.constants;
    const std::array phases{c.M2g, c.S2g, c.K1g, c.O1g, c.SF4, c.SF6};
    const std::array sizes{c.M2Hm, c.S2Hm, c.K1Hm, c.O1Hm, c.LF4, c.LF6, inputs.z0level, inputs.userdepth};
    const auto within = [](double most) { return [most](double value) { return std::abs(value) <= most; }; };
    return std::all_of(phases.begin(), phases.end(), within(720)) &&
           std::all_of(sizes.begin(), sizes.end(), within(100));
}

double nearheights(const HeightInputs& inputs, std::span<const double> times, std::span<double> heights) {
    settlevectors();
    const double step = times.size() > 1 ? times[1] - times[0] : 0;
    const HarmonicConstants& c = inputs.constants;
    const AnglesAndFactors& day = inputs.day;
    const SpeedsAndRates& rates = inputs.rates;
    Turning m2(c.M2g + day.ma, rates.dam, c.M2Hm, day.mf, rates.dfm, step);
    Turning s2(c.S2g + day.sa, rates.das, c.S2Hm, day.sf, rates.dfs, step);
    Turning k1(c.K1g + day.ka, rates.dak, c.K1Hm, day.kf, rates.dfk, step);
    Turning o1(c.O1g + day.oa, rates.dao, c.O1Hm, day.of, rates.dfo, step);
    const double sine4 = std::sin(c.SF4 * formradians) * c.LF4, cosine4 = std::cos(c.SF4 * formradians) * c.LF4;
    const double sine6 = std::sin(c.SF6 * formradians) * c.LF6, cosine6 = std::cos(c.SF6 * formradians) * c.LF6;
    double greatest = 0;
    for (std::size_t i = 0; i < times.size(); ++i) {
        for (Turning* each : {&m2, &s2, &k1, &o1})
            each->turnto(times[i]);
        const double x = m2.sine() + s2.sine(), y = m2.cosine() + s2.cosine();
        const double xx = x * x, yy = y * y;
        // The shallow-water terms are of the vector itself, not of its angle in the form's degrees: r^2 and r^3 times
        // the cosines of the angle doubled and tripled
        const double f4 = cosine4 * (yy - xx) - sine4 * (2 * x * y);
        const double f6 = cosine6 * (y * (yy - 3 * xx)) - sine6 * (x * (3 * yy - xx));
        heights[i] = k1.cosine() + o1.cosine() + y + f4 + f6;
        greatest = std::max(greatest, xx + yy);
    }
    // The form's radians in a degree times its degrees in a radian are 1.0000363 instead of 1
    constexpr double off = 3.64e-5 * 2 * 3.1416;
    const double shallow =
        2 * off * std::abs(c.LF4) * greatest + 3 * off * std::abs(c.LF6) * greatest * std::sqrt(greatest);
    return 2 * shallow + 1e-8;
}

}  // namespace tarvane
