#include "text/timetext.h"

#include <cmath>

#include "text/numbers.h"

namespace tarvane {

std::string timetext(double hours) {
    if (!std::isfinite(hours)) return "--:--";
    double whole = std::floor(hours);
    double minutes = roundeven((hours - whole) * 60);
    if (minutes >= 60) {
        minutes = 0;
        whole += 1;
    }
    if (whole == 24) whole = 0;
    return format(whole, "00") + ":" + format(minutes, "00");
}

std::string clocktext(double hours) {
    if (!std::isfinite(hours)) return "--:--:--";
    constexpr double secondsofday = 86400;
    const double whole = std::floor(hours);
    double seconds = std::fmod(whole * 3600 + cint((hours - whole) * 3600), secondsofday);
    if (seconds < 0) seconds += secondsofday;
    const double minutes = std::floor(seconds / 60);
    return format(std::floor(minutes / 60), "00") + ":" + format(std::fmod(minutes, 60), "00") + ":" +
           format(std::fmod(seconds, 60), "00");
}

}  // namespace tarvane
