#include "atlas/namedplaces.h"

#include <algorithm>
#include <array>

#include "portdata/portsearch.h"

namespace tarvane {
namespace {

constexpr std::array<NamedPlace, 33> places{{
    {"Cork", {51.85, -8.28}},       {"Cobh", {51.85, -8.29}},      {"Kinsale", {51.70, -8.50}},
    {"Crosshaven", {51.80, -8.30}}, {"Waterford", {52.26, -7.11}}, {"Limerick", {52.66, -8.63}},
    {"Cowes", {50.76, -1.30}},      {"Lymington", {50.75, -1.53}}, {"Poole", {50.71, -1.99}},
    {"Falmouth", {50.15, -5.05}},   {"Dartmouth", {50.35, -3.57}}, {"Oban", {56.41, -5.48}},
    {"Glasgow", {55.86, -4.28}},    {"Edinburgh", {55.98, -3.19}}, {"Cardiff", {51.45, -3.17}},
    {"Swansea", {51.61, -3.93}},    {"Lisbon", {38.70, -9.15}},    {"Bilbao", {43.35, -3.03}},
    {"Ostend", {51.23, 2.92}},      {"Zeebrugge", {51.33, 3.20}},  {"Rotterdam", {51.90, 4.48}},
    {"Amsterdam", {52.38, 4.90}},   {"Hamburg", {53.54, 9.97}},    {"Havana", {23.14, -82.35}},
    {"Kolkata", {22.55, 88.33}},    {"Yangon", {16.77, 96.17}},    {"Ho Chi Minh City", {10.77, 106.71}},
    {"London", {51.50, -0.05}},     {"Antwerp", {51.23, 4.40}},    {"Bremen", {53.12, 8.73}},
    {"Jakarta", {-6.10, 106.88}},   {"Shanghai", {31.24, 121.50}}, {"Busan", {35.10, 129.04}},
}};

}  // namespace

std::span<const NamedPlace> namedplaces() {
    return places;
}

const NamedPlace* namedplace(std::string_view text) {
    const std::u32string wanted = foldname(text);
    const auto found = std::find_if(places.begin(), places.end(),
                                    [&](const NamedPlace& each) { return foldname(each.name) == wanted; });
    return found == places.end() ? nullptr : &*found;
}

}  // namespace tarvane
