#include "planner/planlabels.h"

#include <array>
#include <cmath>
#include <numeric>

#include "dates/dateformats.h"
#include "planner/plantexts.h"

namespace tarvane {
namespace {

using pictureparts::floorof;
using pictureparts::inset;
using pictureparts::textlook;
using std::chrono::days;

/// A level that a passage asks for, where it is in the picture.
struct Level {
    double height = 0, y = 0;
    bool above = false, below = false;
    std::string name;

    bool inside() const { return !above && !below; }
};

std::vector<Level> levelsof(const PlanPicture& picture, const PlanScale& scale) {
    std::vector<Level> levels;
    const auto add = [&](double height, const std::string& name) {
        const double y = scale.y(height);
        Level level{.height = height, .y = y, .name = name + levelmetres(height)};
        level.above = y < scale.plot.top;
        level.below = y > scale.plot.bottom;
        if (!level.inside()) level.name += level.above ? ", above the picture" : ", below the picture";
        levels.push_back(level);
    };
    if (!picture.passage) return levels;
    add(picture.passage->needed(), "needed ");
    if (const auto ceiling = picture.passage->ceiling()) add(*ceiling, "at most ");
    return levels;
}

/// Whether a level's line would strike a text out.
bool onlevel(const std::vector<Level>& levels, const Area& text) {
    return std::any_of(levels.begin(), levels.end(),
                       [&](const Level& each) { return each.inside() && text.top < each.y && each.y < text.bottom; });
}

bool fewdays(const PlanScale& scale) {
    return scale.to - scale.from < days(9);
}

bool shown(const PlanScale& scale, const PlannedWater& water) {
    return water.moment >= scale.from && water.moment <= scale.to;
}

std::vector<Label> waterlabels(const Canvas& canvas, const PlanPicture& picture, const PlanScale& scale,
                               const std::vector<Level>& levels, bool slight) {
    const double tall = canvas.textheight(textlook(picture, 0));
    std::vector<Label> labels;
    for (const PlannedWater& each : picture.plan.waters()) {
        // Within the narrow curve of many days nobody could tell them from the tide's own.
        if (!shown(scale, each) || each.water.slight != slight || (slight && !fewdays(scale))) continue;
        const double y = scale.y(each.water.height);
        Label label{{plainclock(picture.plan.clock(), each.moment), metres(each.water.height)},
                    textlook(picture, picture.look.text, Anchor::middle, each.water.high),
                    {scale.x(each.moment), each.water.high ? y - 2 * tall : y + inset},
                    each.water.springshare + (each.water.high ? 10 : 0)};
        if (onlevel(levels, areaof(canvas, label))) label.behind = picture.look.paper;
        labels.push_back(label);
    }
    return labels;
}

/// The curve's upper and lower edge in each column of the plot, one unit wide.
class CurveColumns {
  public:
    CurveColumns(const PlanScale& scale, const CurvePieces& curve)
        : left_(scale.plot.left), edges_(static_cast<std::size_t>(std::max(scale.plot.width(), 0.0)) + 2) {
        for (const std::vector<Place>& piece : curve)
            for (const Place& each : piece) {
                Edges& edges = edges_[columnof(each.x)];
                edges.top = std::min(edges.top, each.y);
                edges.bottom = std::max(edges.bottom, each.y);
            }
    }

    bool crosses(const Area& area) const {
        for (std::size_t column = columnof(area.left); column <= columnof(area.right); ++column)
            if (edges_[column].top < area.bottom && edges_[column].bottom > area.top) return true;
        return false;
    }

  private:
    struct Edges {
        double top = HUGE_VAL, bottom = -HUGE_VAL;
    };

    std::size_t columnof(double x) const {
        return static_cast<std::size_t>(std::clamp(x - left_, 0.0, static_cast<double>(edges_.size() - 1)));
    }

    double left_;
    std::vector<Edges> edges_;
};

/// Places for a level's name, the best first: on its line and under it from the left on, then in the rows farther and
/// farther off.
std::vector<Area> levelplaces(const PlanScale& scale, const Level& level, double width, double tall) {
    const double left = scale.plot.left + inset, last = scale.plot.right - width - inset;
    const double step = std::max(width / 4, 1.0), gap = inset / 2;
    std::vector<double> rows;
    const double start = std::clamp(level.y, scale.plot.top, scale.plot.bottom);
    for (double aside = 0; aside < scale.plot.height(); aside += tall)
        for (const double top : {start - aside - tall - gap, start + aside + gap})
            if (top >= scale.plot.top && top + tall <= scale.plot.bottom) rows.push_back(top);
    if (rows.empty()) rows.push_back(scale.plot.top);
    std::vector<Area> places;
    for (const double top : rows)
        for (double x = left; x <= std::max(last, left); x += step)
            places.push_back({x, top, x + width, top + tall});
    return places;
}

/// Where nothing is free, the first place that no other level's name has: the waters' labels there give way.
Area forced(const std::vector<Area>& choices, const std::vector<PlanLabels::LevelName>& names) {
    const auto place = std::find_if(choices.begin(), choices.end(), [&](const Area& each) {
        return std::none_of(names.begin(), names.end(), [&](const auto& name) { return overlap(each, name.area); });
    });
    return place == choices.end() ? choices.front() : *place;
}

/// Whether it would seem to name another level's line.
bool nearother(const Area& area, const Level& level, const std::vector<Level>& levels) {
    const auto aside = [&](const Level& each) { return std::abs((area.top + area.bottom) / 2 - each.y); };
    return level.inside() && std::any_of(levels.begin(), levels.end(), [&](const Level& each) {
               return each.inside() && aside(each) < aside(level);
           });
}

/// What levels' names are set among.
struct NamedPlot {
    const PlanPicture& picture;
    const PlanScale& scale;
    const std::vector<Level>& levels;
    CurveColumns curve;
};

/// Takes the first free of the places for a level's name, in the order in which they are wanted: beside its line,
/// within some rows of it, anywhere; of each first those that don't lie on the curve.
std::optional<Area> takewanted(const std::vector<Area>& all, const Level& level, double tall, const CurveColumns& curve,
                               LabelPlaces& places) {
    constexpr double rows[] = {1, 4, HUGE_VAL};
    double nearer = -HUGE_VAL;
    for (const double within : rows) {
        std::vector<Area> clear, crossed;
        for (const Area& each : all) {
            const double aside = level.inside() ? std::max(each.top - level.y, level.y - each.bottom) : 0;
            if (aside >= nearer && aside < within * tall) (curve.crosses(each) ? crossed : clear).push_back(each);
        }
        for (const std::vector<Area>* wanted : {&clear, &crossed})
            if (const auto found = places.takefirst(*wanted)) return found;
        nearer = within * tall;
    }
    return std::nullopt;
}

TextLook namelook(const PlanPicture& picture) {
    return textlook(picture, picture.look.needed, Anchor::left, true);
}

/// Where a level's name stands, which is always told: on the curve where nothing else is left.
Area levelplace(const Canvas& canvas, const NamedPlot& plot, const Level& level,
                const std::vector<PlanLabels::LevelName>& names, LabelPlaces& places) {
    const TextLook look = namelook(plot.picture);
    const double width = canvas.textwidth(level.name, look), tall = canvas.textheight(look);
    const std::vector<Area> all = levelplaces(plot.scale, level, width, tall);
    std::vector<Area> own = all;
    std::erase_if(own, [&](const Area& each) { return nearother(each, level, plot.levels); });
    std::optional<Area> found = takewanted(own, level, tall, plot.curve, places);
    if (!found) found = takewanted(all, level, tall, plot.curve, places);
    const Area area = found ? *found : forced(all, names);
    if (!found) places.take(area);
    return area;
}

/// How windows' times are told: in one line or two, under the level's line or over it. A label without lines has no
/// room so.
struct WindowForm {
    bool oneline, under;
};

/// Whether a label would seem to tell of another window as well.
bool coversother(const PlanPicture& picture, const PlanScale& scale, const Area& label, const PlannedWindow& own) {
    return std::any_of(picture.access->windows.begin(), picture.access->windows.end(), [&](const PlannedWindow& each) {
        return &each != &own && scale.x(each.opens) < label.right && label.left < scale.x(each.closes);
    });
}

/// A window's times, with their days where the label stands far from what it tells.
WindowClocks windowtimes(const PlanPicture& picture, const PlanScale& scale, const PlannedWindow& window) {
    constexpr std::chrono::hours farapart(18);
    const PortClock& clock = picture.plan.clock();
    WindowClocks times = windowclocks(clock, window);
    const bool openbefore = window.window.cutatstart, openafter = window.window.cutatend;
    const bool beside = openbefore  ? window.closes <= scale.to
                        : openafter ? window.opens >= scale.from
                                    : window.closes - window.opens < farapart;
    if (beside) return times;
    const bool samemonth = monthof(clock.at(window.opens).date) == monthof(clock.at(window.closes).date);
    const char* const form = samemonth ? "ddd d " : "ddd d mmm ";
    const auto day = [&](Moment at) { return formatdate(picture.locale, clock.at(at).date, form); };
    return {day(window.opens) + times.opens, day(window.closes) + times.closes};
}

std::vector<Label> windowlabels(const Canvas& canvas, const PlanPicture& picture, const PlanScale& scale,
                                const WindowForm& form) {
    std::vector<Label> labels;
    const TextLook look = textlook(picture, picture.look.needed, Anchor::middle, true);
    const double tall = canvas.textheight(look) * (form.oneline ? 1 : 2), foot = floorof(picture, scale);
    const double top = form.under ? foot + inset / 2 : foot - tall - inset;
    for (const PlannedWindow& each : picture.access->windows) {
        const Moment opens = std::max(each.opens, scale.from), closes = std::min(each.closes, scale.to);
        if (opens >= closes) continue;
        // A window that goes on beyond the plan doesn't open or close at its end.
        const bool openbefore = each.window.cutatstart, openafter = each.window.cutatend;
        if (openbefore && openafter) continue;
        const auto [first, last] = windowtimes(picture, scale, each);
        const std::string from = openbefore  ? "until"
                                 : openafter ? "from"
                                             : first + "-",
                          until = openafter ? first : last, between = openbefore || openafter ? " " : "";
        const double middle = (scale.x(opens) + scale.x(closes)) / 2;
        Label label{{from + between + until}, look, {middle, top}, 0, picture.look.paper};
        if (!form.oneline) label.lines = {from, until};
        // The one end that it has is beside its time.
        const double half = areaof(canvas, label).width() / 2;
        if (openbefore) label.middle.x = std::max(middle, scale.x(closes) - half);
        if (openafter) label.middle.x = std::min(middle, scale.x(opens) + half);
        if (!fewdays(scale) && coversother(picture, scale, areaof(canvas, label), each)) label.lines.clear();
        labels.push_back(label);
    }
    return labels;
}

/// Moved sideways where only that keeps it in the plot.
Label inside(const Canvas& canvas, const Area& plot, Label label) {
    const Area area = areaof(canvas, label);
    label.middle.x += std::max(plot.left - area.left, 0.0) + std::min(plot.right - area.right, 0.0);
    return label;
}

/// The numbers below `count`, so that those ahead of any one are spread evenly over all: every 2nd, every 4th, ...
/// last.
std::vector<std::size_t> evenly(std::size_t count) {
    std::vector<std::size_t> order(count);
    std::iota(order.begin(), order.end(), std::size_t{0});
    const auto step = [](std::size_t number) { return number & (~number + 1); };  // 0, which is a multiple of all, 0
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t one, std::size_t other) { return step(one) - 1 > step(other) - 1; });
    return order;
}

/// All in the first form in which all have room, else in the one in which the most have, the others as they can be;
/// over many days those that have room beside their neighbours.
std::vector<Label> placewindowlabels(const Canvas& canvas, const PlanPicture& picture, const PlanScale& scale,
                                     LabelPlaces& places) {
    if (!picture.passage || !picture.access) return {};
    // Between two levels' lines they would hide the windows themselves.
    const auto ceiling = picture.passage->ceiling();
    const bool bridged = ceiling && scale.y(*ceiling) >= scale.plot.top;
    std::vector<std::vector<Label>> forms;
    std::vector<Label> best;
    LabelPlaces taken = places;
    std::vector<bool> told;
    for (const WindowForm& form : {WindowForm{true, true}, {false, true}, {true, false}, {false, false}}) {
        if (!form.under && bridged) continue;
        LabelPlaces trial = places;
        std::vector<Label> placed;
        forms.push_back(windowlabels(canvas, picture, scale, form));
        std::vector<bool> having(forms.back().size(), false);
        for (const std::size_t i : evenly(forms.back().size())) {
            Label& each = forms.back()[i];
            each = inside(canvas, scale.plot, each);
            const auto found = each.lines.empty() ? std::nullopt : trial.placefirst({each});
            having[i] = found.has_value();
            if (found) placed.push_back(*found);
        }
        if (told.empty() || placed.size() > best.size()) {
            best = std::move(placed);
            taken = std::move(trial);
            told = std::move(having);
        }
        if (best.size() == told.size()) break;
    }
    for (const std::size_t i : evenly(told.size())) {
        std::vector<Label> choices;
        for (const std::vector<Label>& form : forms)
            if (!told[i] && !form[i].lines.empty()) choices.push_back(form[i]);
        if (const auto found = taken.placefirst(choices)) best.push_back(*found);
    }
    places = std::move(taken);
    return best;
}

/// Waters that are turns of the tide, then windows, then what is slight.
std::vector<Label> placelabels(const Canvas& canvas, const PlanPicture& picture, const PlanScale& scale,
                               const std::vector<Level>& levels, LabelPlaces& places) {
    // The turns themselves are to be seen too.
    const auto keepturns = [&](bool slight) {
        for (const PlannedWater& each : picture.plan.waters()) {
            if (!shown(scale, each) || each.water.slight != slight) continue;
            const double x = scale.x(each.moment), y = scale.y(each.water.height), aside = inset / 2;
            places.take({x - aside, y - aside, x + aside, y + aside});
        }
    };
    std::vector<Label> labels = places.place(waterlabels(canvas, picture, scale, levels, false));
    keepturns(false);
    const std::vector<Label> windows = placewindowlabels(canvas, picture, scale, places);
    const std::vector<Label> slight = places.place(waterlabels(canvas, picture, scale, levels, true));
    keepturns(true);
    labels.insert(labels.end(), windows.begin(), windows.end());
    labels.insert(labels.end(), slight.begin(), slight.end());
    return labels;
}

}  // namespace

PlanLabels planlabels(const Canvas& canvas, const PlanPicture& picture, const PlanScale& scale,
                      const CurvePieces& curve) {
    const std::vector<Level> levels = levelsof(picture, scale);
    LabelPlaces places(canvas, scale.plot);
    PlanLabels found{placelabels(canvas, picture, scale, levels, places), {}};
    if (levels.empty()) return found;
    const NamedPlot plot{picture, scale, levels, CurveColumns(scale, curve)};
    for (const Level& each : levels) {
        const Area area = levelplace(canvas, plot, each, found.names, places);
        found.names.push_back({area, each.name});
        std::erase_if(found.labels, [&](const Label& label) { return overlap(areaof(canvas, label), area); });
    }
    return found;
}

std::vector<Area> areasof(const Canvas& canvas, const PlanLabels& labels) {
    std::vector<Area> areas;
    for (const Label& each : labels.labels)
        areas.push_back(areaof(canvas, each));
    for (const PlanLabels::LevelName& each : labels.names)
        areas.push_back(each.area);
    return areas;
}

void paintplanlabels(Canvas& canvas, const PlanPicture& picture, const PlanScale& scale, const PlanLabels& labels) {
    for (const Level& each : levelsof(picture, scale)) {
        if (!each.inside()) continue;
        const std::array line{Place{scale.plot.left, each.y}, Place{scale.plot.right, each.y}};
        canvas.line(line, {picture.look.needed, 1.5 * pictureparts::strokeof(picture), LineStyle::dashed});
    }
    for (const auto& [area, name] : labels.names) {
        canvas.fill(area, picture.look.paper, 0.8);
        canvas.text({area.left, area.top}, name, namelook(picture));
    }
    for (const Label& each : labels.labels)
        paintlabel(canvas, each);
}

}  // namespace tarvane
