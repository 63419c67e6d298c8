#include "output/curvepicture.h"

#include <algorithm>
#include <sstream>

#include "text/numbers.h"

namespace tarvane {
namespace {

/// Hours of a row. Not the row's own time: one layer's is not always written.
double hoursof(std::size_t row) {
    return (static_cast<double>(row) - 1) / 6;
}

template <typename Rows, typename Draw>
void eachpair(const Rows& rows, int count, Draw draw) {
    for (std::size_t i = 1; i + 1 <= static_cast<std::size_t>(count); ++i)
        draw(i, rows[i], rows[i + 1]);
}

void drawlayerdots(DrawSurface& picture, const Layer& layer, int count, Colour colour, std::size_t pitch) {
    for (std::size_t i = 1; i <= static_cast<std::size_t>(count); i += pitch)
        picture.point(hoursof(i), layer[i].height, colour);
}

}  // namespace

void startpicture(DrawSurface& picture, const CurveLimits& limits) {
    picture.setpersistent(true);
    picture.clear();
    picture.setscale(0, limits.curvetop, 24, limits.curvebottom);
}

void drawseries(DrawSurface& picture, const std::array<TimedValue, 501>& rows, int count, Colour colour) {
    eachpair(rows, count, [&](std::size_t, const TimedValue& from, const TimedValue& to) {
        picture.line(from.time, from.height, to.time, to.height, colour);
    });
}

void drawdots(DrawSurface& picture, const std::array<TimedValue, 501>& rows, int count, Colour colour) {
    for (std::size_t i = 1; i <= static_cast<std::size_t>(count); ++i)
        picture.point(hoursof(i), rows[i].height, colour);
}

void drawlayers(DrawSurface& picture, const Prediction& prediction, const LayerChoice& ticked,
                const LayerDashes& dashes) {
    // In a narrow picture the dots of every row would run together.
    const std::size_t pitch = dashes == solidlayers ? 1 : 3;
    for (std::size_t place = 0; place < constituents.size(); ++place) {
        if (!ticked[place]) continue;
        picture.setlinestyle(dashes[place]);
        const Constituent& constituent = constituents[place];
        const Layer& layer = prediction.*constituent.layer;
        if (constituent.points)
            drawlayerdots(picture, layer, prediction.samplecount, constituent.colour, pitch);
        else
            eachpair(layer, prediction.samplecount, [&](std::size_t row, const TimedValue& from, const TimedValue& to) {
                picture.line(hoursof(row), from.height, hoursof(row + 1), to.height, constituent.colour);
            });
    }
    picture.setlinestyle(LineStyle::solid);
}

void drawgrid(DrawSurface& picture, const CurveLimits& limits, const std::string& topunit) {
    for (int x = 0; x <= 21; x += 3)
        picture.line(x, limits.curvetop, x, limits.curvebottom, black);
    if (limits.curvetop > mostgridlines) return;
    // kept: the lines begin at -1 whatever the bottom is, so that those at -2 and below are not drawn
    for (double y = -1; y <= limits.curvetop; ++y) {
        picture.line(0, y, 24, y, black);
        picture.text(0, y, numbertext(y) + (y == limits.curvetop ? topunit : std::string{}));
    }
}

void drawsunlines(DrawSurface& picture, const CurveLimits& limits, const SunHours& sun) {
    const double dash = (limits.curvetop - limits.curvebottom) / 50;
    picture.setlinewidth(2);
    for (const double hour : {sun.sunrise, sun.sunset})
        for (int k = 0; k <= 48; k += 2)
            picture.line(hour, limits.curvetop - k * dash, hour, limits.curvetop - (k + 1) * dash, grey);
    picture.setlinewidth(1);
    picture.text(sun.sunrise - 1.5, limits.curvetop, "Sunrise");
    picture.text(sun.sunset - 1.5, limits.curvetop, "Sunset");
}

void drawmarker(DrawSurface& picture, const CurveLimits& limits, double hours, Colour colour) {
    picture.line(hours, limits.curvetop, hours, limits.curvebottom, colour);
}

void drawnote(DrawSurface& picture, const CurveLimits& limits, const std::string& lines) {
    std::istringstream rows(lines);
    const double pitch = (limits.curvetop - limits.curvebottom) / 10;
    double y = limits.curvetop - 3 * pitch;
    const auto count = 1 + std::count(lines.begin(), lines.end(), '\n');
    picture.box(0.5, y + pitch / 2, 23.5, y - static_cast<double>(count) * pitch, white);
    for (std::string row; std::getline(rows, row); y -= pitch)
        picture.text(1, y, row);
}

}  // namespace tarvane
