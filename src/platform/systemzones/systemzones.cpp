#include "platform/systemzones/systemzones.h"

#include <date/tz.h>

#include <stdexcept>

namespace tarvane {

std::optional<ZoneOffset> SystemZones::offsetat(const std::string& zone, std::chrono::sys_seconds moment) const {
    try {
        const date::sys_info info = date::locate_zone(zone)->get_info(moment);
        return ZoneOffset{info.offset, info.abbrev, info.begin, info.end};
    } catch (const std::runtime_error&) {
        return std::nullopt;
    }
}

std::string SystemZones::computerszone() const {
    try {
        return date::current_zone()->name();
    } catch (const std::runtime_error&) {
        return {};
    }
}

}  // namespace tarvane
