// Which moment and height lie where in the planner's picture.
#include <algorithm>
#include <array>
#include <cmath>

#include "dates/dateformats.h"
#include "planner/planpicture.h"

namespace tarvane {
namespace {

constexpr double scalegap = 4;
constexpr double leasthop = 1e-9;

struct HeightRange {
    double least = 0, greatest = 1;
};

/// Of the whole plan, so that the scale stands while the picture is moved.
HeightRange heightsof(const Plan& plan) {
    double least = HUGE_VAL, greatest = -HUGE_VAL;
    const auto take = [&](std::optional<double> height) {
        if (!height) return;
        least = std::min(least, *height);
        greatest = std::max(greatest, *height);
    };
    for (const PlannedWater& each : plan.waters())
        take(each.water.height);
    for (Moment at = plan.begins(); at < plan.ends(); at += std::chrono::days(1))
        take(plan.height(at));
    take(plan.height(plan.ends()));
    if (least > greatest) return {};
    // Where heights are out of all measure a range is still to be told from none.
    return {least, std::max(greatest, least + std::max(0.1, std::abs(least) * 1e-9))};
}

/// With what the passage asks for, where that is not out of all reach.
HeightRange withpassage(HeightRange heights, const std::optional<Passage>& passage) {
    if (!passage) return heights;
    // Farther off it would press the tide itself flat.
    const double reach = (heights.greatest - heights.least) / 2;
    const HeightRange tides = heights;
    const auto take = [&](double height) {
        if (height < tides.least - reach || height > tides.greatest + reach) return;
        heights.least = std::min(heights.least, height);
        heights.greatest = std::max(heights.greatest, height);
    };
    take(passage->needed());
    if (const auto ceiling = passage->ceiling()) take(*ceiling);
    if (passage->bottom < 0) take(-passage->bottom);
    return heights;
}

const char* dayform(const Canvas& canvas, const PlanPicture& picture, const PlanScale& scale) {
    constexpr std::array forms{"dddd d mmmm yyyy", "dddd d mmmm", "ddd d mmm", "ddd d"};
    const TextLook look{.size = picture.textsize, .bold = true};
    const double room = scale.dayroom();
    const Date first = picture.plan.clock().at(scale.from).date;
    const auto fits = [&](const char* form) {
        for (Date date = first; date < first + std::chrono::days(7); date += std::chrono::days(1))
            if (canvas.textwidth(formatdate(picture.locale, date, form), look) > room) return false;
        return true;
    };
    const auto form = std::find_if(forms.begin(), forms.end(), fits);
    return form == forms.end() ? "d" : *form;
}

}  // namespace

double PlanScale::dayroom() const {
    return x(from + std::chrono::hours(23)) - plot.left - scalegap;
}

double PlanScale::x(Moment moment) const {
    return plot.left + plot.width() * static_cast<double>((moment - from).count()) /
                           static_cast<double>(std::max<std::int64_t>((to - from).count(), 1));
}

double PlanScale::y(double height) const {
    return plot.bottom - plot.height() * (height - least) / (greatest - least);
}

Moment PlanScale::moment(double x) const {
    const double part = plot.width() > 0 ? (x - plot.left) / plot.width() : 0;
    return from + std::chrono::seconds(std::llround(part * static_cast<double>((to - from).count())));
}

PlanScale scaleof(const PlanPicture& picture, const Canvas& canvas) {
    const TextLook look{.size = picture.textsize};
    const double line = canvas.textheight(look);
    PlanScale scale;
    scale.from = picture.from;
    scale.to = picture.to;
    const double title =
        picture.title.empty() ? 0 : canvas.textheight({.size = picture.textsize * 1.25}) + 2 * scalegap;
    scale.plot = {picture.area.left + canvas.textwidth("-10.5", look) + 2 * scalegap, picture.area.top + title,
                  picture.area.right - 2 * scalegap, picture.area.bottom - line - 2 * scalegap};
    scale.dayform = dayform(canvas, picture, scale);
    scale.plot.top += scale.headrows() * line + 2 * scalegap;
    const HeightRange heights = withpassage(heightsof(picture.plan), picture.passage);
    // Labels of two lines find room over the highest water and under the lowest.
    const double room = 2 * line + 2 * scalegap, inner = scale.plot.height() - 2 * room;
    const double metres = (heights.greatest - heights.least) / std::max(inner, line);
    scale.least = heights.least - room * metres;
    scale.greatest = heights.greatest + room * metres;
    return scale;
}

CurvePieces curvepieces(const PlanPicture& picture, const PlanScale& scale) {
    std::vector<std::vector<Place>> pieces;
    bool apart = true;
    const Moment from = scale.from, to = scale.to;
    const auto take = [&](Moment at) {
        // At the end the day behind may go on with a step.
        const auto height = picture.plan.height(std::min(at, to - std::chrono::seconds(1)));
        if (height && apart) pieces.emplace_back();
        if (height) pieces.back().push_back({scale.x(at), scale.y(*height)});
        apart = !height;
    };
    const auto& waters = picture.plan.waters();
    auto water = std::lower_bound(waters.begin(), waters.end(), from,
                                  [](const PlannedWater& each, Moment moment) { return each.moment < moment; });
    for (double x = scale.plot.left; x < scale.plot.right - leasthop; x += 1) {
        const Moment at = scale.moment(x);
        // Tops and feet as high and as low as they are, also where a unit is half an hour.
        for (; water != waters.end() && water->moment < at; ++water)
            take(water->moment);
        take(at);
    }
    for (; water != waters.end() && water->moment < to; ++water)
        take(water->moment);
    if (from < to) take(to);
    return pieces;
}

CurvePieces curvebetween(const CurvePieces& curve, double left, double right) {
    const auto before = [](const Place& each, double x) { return each.x < x; };
    CurvePieces within;
    for (const std::vector<Place>& piece : curve) {
        const auto cut = [&](std::vector<Place>::const_iterator behind, double x) {
            const Place &from = *(behind - 1), &to = *behind;
            return Place{x, from.y + (to.y - from.y) * (x - from.x) / (to.x - from.x)};
        };
        const auto first = std::lower_bound(piece.begin(), piece.end(), left, before);
        const auto last = std::lower_bound(first, piece.end(), right, before);
        std::vector<Place> part;
        if (first != piece.begin() && first != piece.end()) part.push_back(cut(first, left));
        part.insert(part.end(), first, last);
        if (last != piece.begin() && last != piece.end()) part.push_back(cut(last, right));
        if (part.size() > 1) within.push_back(std::move(part));
    }
    return within;
}

}  // namespace tarvane
