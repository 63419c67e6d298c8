#include "paint/labels.h"

#include <algorithm>

namespace tarvane {
namespace {

constexpr double apart = 2;
constexpr double linegap = 0.92;  // of a line's height: figures have no descenders

}  // namespace

Area areaof(const Canvas& canvas, const Label& label) {
    double width = 0;
    for (const std::string& line : label.lines)
        width = std::max(width, canvas.textwidth(line, label.look));
    const double height = canvas.textheight(label.look) * linegap * static_cast<double>(label.lines.size());
    return {label.middle.x - width / 2 - apart, label.middle.y, label.middle.x + width / 2 + apart,
            label.middle.y + height};
}

bool LabelPlaces::isfree(const Area& area) const {
    return area.top >= within_.top && area.bottom <= within_.bottom &&
           std::none_of(taken_.begin(), taken_.end(), [&](const Area& each) { return overlap(area, each); });
}

std::optional<Area> LabelPlaces::takefirst(const std::vector<Area>& choices) {
    const auto place = std::find_if(choices.begin(), choices.end(), [&](const Area& each) {
        return each.left >= within_.left && each.right <= within_.right && isfree(each);
    });
    if (place == choices.end()) return std::nullopt;
    taken_.push_back(*place);
    return *place;
}

std::optional<Label> LabelPlaces::placefirst(const std::vector<Label>& choices) {
    for (const Label& each : choices) {
        const Area area = areaof(*canvas_, each);
        if (area.left < within_.left || area.right > within_.right || !isfree(area)) continue;
        taken_.push_back(area);
        return each;
    }
    return std::nullopt;
}

std::vector<Label> LabelPlaces::place(std::vector<Label> labels) {
    std::stable_sort(labels.begin(), labels.end(),
                     [](const Label& one, const Label& other) { return one.importance > other.importance; });
    std::vector<Label> placed;
    for (Label& label : labels) {
        Area area = areaof(*canvas_, label);
        const double inside = std::max(within_.left - area.left, 0.0) + std::min(within_.right - area.right, 0.0);
        label.middle.x += inside;
        area.left += inside;
        area.right += inside;
        if (!isfree(area)) continue;
        taken_.push_back(area);
        placed.push_back(label);
    }
    return placed;
}

void paintlabel(Canvas& canvas, const Label& label) {
    TextLook look = label.look;
    look.anchor = Anchor::middle;
    Place place = label.middle;
    if (label.behind) canvas.fill(areaof(canvas, label), *label.behind, 0.8);
    for (const std::string& line : label.lines) {
        canvas.text(place, line, look);
        place.y += canvas.textheight(look) * linegap;
    }
}

}  // namespace tarvane
