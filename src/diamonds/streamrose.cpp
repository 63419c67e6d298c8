#include "diamonds/streamrose.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "text/numbers.h"

namespace tarvane {
namespace {

constexpr double gap = 3, headlength = 9, nearby = 6;
constexpr Colour faint = 0xC0C0C0;

/// The place at a bearing in degrees, clockwise from the top.
RosePoint atbearing(RosePoint from, double bearing, double distance) {
    const double angle = bearing * std::numbers::pi / 180;
    return {from.x + distance * std::sin(angle), from.y - distance * std::cos(angle)};
}

RoseLabel labelat(const std::string& text, RosePoint middle, const RosePicture& picture) {
    const double halfwidth = static_cast<double>(text.size()) * picture.textwidth / 2 + 1;
    const double halfheight = picture.textheight / 2;
    return {text, middle.x - halfwidth, middle.y - halfheight, middle.x + halfwidth, middle.y + halfheight};
}

bool overlap(const RoseLabel& one, const RoseLabel& other) {
    return one.left < other.right && other.left < one.right && one.top < other.bottom && other.top < one.bottom;
}

double distanceto(RosePoint place, RosePoint from, RosePoint to) {
    const double dx = to.x - from.x, dy = to.y - from.y, length = dx * dx + dy * dy;
    const double along =
        length > 0 ? std::clamp(((place.x - from.x) * dx + (place.y - from.y) * dy) / length, 0.0, 1.0) : 0;
    return std::hypot(place.x - from.x - along * dx, place.y - from.y - along * dy);
}

/// The least round rate that none goes beyond.
double ringrateof(const TideStreams& tide) {
    double greatest = 0;
    for (const StreamRow& row : tide.rows)
        if (std::isfinite(row.rate)) greatest = std::max(greatest, row.rate);
    if (greatest == 0) return 1;
    const double unit = std::pow(10, std::floor(std::log10(greatest)));
    for (const double step : {1.0, 1.5, 2.0, 3.0, 4.0, 5.0, 6.0, 8.0})
        if (step * unit >= greatest * (1 - 1e-9)) return step * unit;
    return 10 * unit;
}

/// The bearing that keeps farthest from every arrow and from the letters.
double freebearing(const TideStreams& tide) {
    double best = 0, widest = -1;
    for (double bearing = 15; bearing < 360; bearing += 5) {
        double room = 180;
        const auto keepoff = [&](double taken) {
            room = std::min(room, std::abs(std::remainder(bearing - taken, 360)));
        };
        for (double letter = 0; letter < 360; letter += 90)
            keepoff(letter);
        for (const StreamRow& row : tide.rows)
            if (std::isfinite(row.direction)) keepoff(row.direction);
        if (room > widest) best = bearing;
        widest = std::max(room, widest);
    }
    return best;
}

void addletters(Rose& rose, const TideStreams& tide) {
    constexpr const char* names[] = {"N", "E", "S", "W"};
    const double outside = rose.radius + gap + rose.picture.textheight / 2;
    for (int i = 0; i < 4; ++i)
        rose.letters.push_back(labelat(names[i], atbearing(rose.centre, 90 * i, outside), rose.picture));
    const double bearing = freebearing(tide);
    for (const double part : {0.5, 1.0})
        rose.letters.push_back(labelat(numbertext(rose.ringrate * part),
                                       atbearing(rose.centre, bearing, rose.radius * part), rose.picture));
}

int arrowsunder(const Rose& rose, const RoseLabel& label) {
    const double reach = rose.picture.textheight / 2;
    return static_cast<int>(std::count_if(rose.arrows.begin(), rose.arrows.end(), [&](const RoseArrow& arrow) {
        return distanceto(label.middle(), rose.centre, arrow.tip) < reach;
    }));
}

bool isfree(const Rose& rose, const RoseLabel& label, std::size_t placed) {
    const RosePicture& picture = rose.picture;
    if (label.left < 0 || label.top < 0 || label.right > picture.width || label.bottom > picture.height) return false;
    for (const RoseLabel& letter : rose.letters)
        if (overlap(letter, label)) return false;
    return std::none_of(rose.arrows.begin(), rose.arrows.begin() + static_cast<std::ptrdiff_t>(placed),
                        [&](const RoseArrow& arrow) { return overlap(arrow.label, label); });
}

/// Puts the label of an arrow off its tip, as near as no label and few arrows are in its way.
void placelabel(Rose& rose, std::size_t index, double bearing) {
    RoseArrow& arrow = rose.arrows[index];
    const std::string text = hourtext(arrow.hour);
    const double pitch = rose.picture.textheight / 2;
    const double length = std::hypot(arrow.tip.x - rose.centre.x, arrow.tip.y - rose.centre.y);
    const RoseLabel whole = labelat(text, {}, rose.picture);
    double least = 1e9;
    for (int out = 0; out <= 40; ++out)
        for (const int aside : {0, 1, -1, 2, -2, 3, -3, 4, -4, 6, -6, 9, -9, 12, -12}) {
            // Half of the label lies towards the tip.
            const double turned = (bearing + 7.5 * aside) * std::numbers::pi / 180;
            const double half = std::abs(std::sin(turned)) * whole.right + std::abs(std::cos(turned)) * whole.bottom;
            const RosePoint middle = atbearing(rose.centre, bearing + 7.5 * aside, length + gap + half + pitch * out);
            const RoseLabel label = labelat(text, middle, rose.picture);
            if (!isfree(rose, label, index)) continue;
            const double away = std::hypot(middle.x - arrow.tip.x, middle.y - arrow.tip.y) / pitch;
            const double cost = away + 6 * arrowsunder(rose, label);
            if (cost < least) arrow.label = label;
            least = std::min(least, cost);
        }
}

void drawring(DrawSurface& surface, const Rose& rose, double part, Colour colour) {
    constexpr double step = 4;
    for (double bearing = 0; bearing < 360; bearing += step) {
        const RosePoint from = atbearing(rose.centre, bearing, rose.radius * part);
        const RosePoint to = atbearing(rose.centre, bearing + step, rose.radius * part);
        surface.line(from.x, from.y, to.x, to.y, colour);
    }
}

void drawarrow(DrawSurface& surface, const Rose& rose, const RoseArrow& arrow, Colour colour) {
    const RosePoint from = rose.centre, tip = arrow.tip;
    surface.line(from.x, from.y, tip.x, tip.y, colour);
    const double length = std::hypot(tip.x - from.x, tip.y - from.y);
    if (length < 1) return surface.point(from.x, from.y, colour);
    const double bearing = std::atan2(tip.x - from.x, from.y - tip.y) * 180 / std::numbers::pi;
    for (const double side : {155.0, -155.0}) {
        const RosePoint barb = atbearing(tip, bearing + side, std::min(headlength, length / 2));
        surface.line(tip.x, tip.y, barb.x, barb.y, colour);
    }
}

void drawlabel(DrawSurface& surface, const RoseLabel& label) {
    surface.text(label.left + 1, label.top, label.text);
}

/// A thread from a tip to its label where this had to go some way off.
void drawthread(DrawSurface& surface, const Rose& rose, const RoseArrow& arrow, Colour colour) {
    const RosePoint middle = arrow.label.middle();
    const double away = std::hypot(middle.x - arrow.tip.x, middle.y - arrow.tip.y);
    if (away < 1.5 * rose.picture.textheight || arrow.label.text.empty()) return;
    const double upto = (away - rose.picture.textheight * 0.7) / away;
    surface.line(arrow.tip.x, arrow.tip.y, arrow.tip.x + (middle.x - arrow.tip.x) * upto,
                 arrow.tip.y + (middle.y - arrow.tip.y) * upto, colour);
}

}  // namespace

Rose layrose(const TideStreams& tide, const RosePicture& picture) {
    Rose rose{picture, {picture.width / 2, picture.height / 2}, 0, ringrateof(tide), {}, {}};
    const double margin = 2.4 * picture.textheight + 2 * gap;
    rose.radius = std::max(std::min(picture.width, picture.height) / 2 - margin, picture.textheight);
    std::vector<double> bearings;
    for (const StreamRow& row : tide.rows) {
        if (!std::isfinite(row.rate) || !std::isfinite(row.direction)) continue;
        const double length = row.rate / rose.ringrate * rose.radius;
        rose.arrows.push_back({row.hour, atbearing(rose.centre, row.direction, length), {}});
        bearings.push_back(row.direction);
    }
    addletters(rose, tide);
    for (std::size_t i = 0; i < rose.arrows.size(); ++i)
        placelabel(rose, i, bearings[i]);
    return rose;
}

void drawrose(DrawSurface& surface, const Rose& rose) {
    surface.setpersistent(true);
    surface.setbackcolour(white);
    surface.clear();
    surface.setscale(0, 0, rose.picture.width, rose.picture.height);
    surface.setlinewidth(1);
    for (double bearing = 0; bearing < 360; bearing += 30) {
        const RosePoint from = atbearing(rose.centre, bearing, std::fmod(bearing, 90) == 0 ? 0 : rose.radius * 0.96);
        const RosePoint to = atbearing(rose.centre, bearing, rose.radius);
        surface.line(from.x, from.y, to.x, to.y, faint);
    }
    for (const double part : {0.5, 1.0})
        drawring(surface, rose, part, faint);
    for (const RoseLabel& letter : rose.letters) {
        surface.box(letter.left, letter.top, letter.right, letter.bottom, white);
        drawlabel(surface, letter);
    }
    for (const RoseArrow& arrow : rose.arrows) {
        drawthread(surface, rose, arrow, faint);
        drawarrow(surface, rose, arrow, black);
    }
    for (const RoseArrow& arrow : rose.arrows)
        drawlabel(surface, arrow.label);
    surface.setpersistent(false);
}

void drawstrong(DrawSurface& surface, const Rose& rose, std::optional<int> hour) {
    surface.setpersistent(false);
    surface.clear();
    for (const RoseArrow& arrow : rose.arrows) {
        if (arrow.hour != hour) continue;
        const RoseLabel& label = arrow.label;
        surface.line(label.left - 2, label.bottom, label.right + 2, label.bottom, red);
        drawthread(surface, rose, arrow, red);
        surface.setlinewidth(3);
        drawarrow(surface, rose, arrow, red);
        surface.setlinewidth(1);
    }
}

std::optional<int> hourat(const Rose& rose, RosePoint place) {
    std::optional<int> found;
    double nearest = nearby;
    for (const RoseArrow& arrow : rose.arrows) {
        const RoseLabel& label = arrow.label;
        const bool onlabel =
            place.x >= label.left && place.x <= label.right && place.y >= label.top && place.y <= label.bottom;
        if (onlabel) return arrow.hour;
        const double distance = distanceto(place, rose.centre, arrow.tip);
        if (distance < nearest) found = arrow.hour;
        nearest = std::min(nearest, distance);
    }
    return found;
}

}  // namespace tarvane
