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

}  // namespace tarvane
