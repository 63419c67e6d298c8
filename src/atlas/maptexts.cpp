#include "atlas/maptexts.h"

#include <array>

#include "world/greatcircle.h"

namespace tarvane {
std::string mapporttext(const World& world, std::size_t place, std::optional<std::size_t> inhand) {
    const WorldPort& port = world.ports.at(place);
    const std::string& where =
        port.about && !port.about->country.empty() ? port.about->country : world.areas[port.area].name;
    std::string text = port.name + ", " + where + ", " + trustword(trustof(port.about, port.own));
    if (!inhand || inhand == place) return text;
    const WorldPort& other = world.ports.at(*inhand);
    const std::string distance = distancetext({other.latitude, other.longitude}, {port.latitude, port.longitude});
    return text + ", " + (distance == "here" ? "at " : distance + " of ") + other.name;
}

std::string trusthint(Trust trust) {
    constexpr std::array hints{
        "Nine in ten of its high and low waters come within 20 minutes and 0.2 m of a full prediction",
        "Nine in ten of its high and low waters come within 45 minutes and 0.4 m of a full prediction",
        "Its high and low waters may be farther from a full prediction than 45 minutes or 0.4 m",
        "You entered or changed this port", "Nothing tells how good this port is"};
    return hints.at(static_cast<std::size_t>(trust));
}

}  // namespace tarvane
