#include "sunmoon/suntable.h"

namespace tarvane {

void clearsuntable(SunTable& table) {
    table = {};
}

int daysofsuntable(const SunTable& table) {
    std::size_t days = 0;
    while (days + 1 < table.suntext.size() && !table.suntext[days + 1][suncolumn::date].empty())
        ++days;
    return static_cast<int>(days);
}

}  // namespace tarvane
