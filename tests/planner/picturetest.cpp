// The planner's picture on a canvas that notes everything: labels apart, shapes where their times and heights are,
// nothing outside.
#include "planner/planpicture.h"

#include <gtest/gtest.h>

#include <cmath>

#include "fakes/recordingcanvas.h"
#include "fakes/scriptedlocale.h"
#include "fakes/testport.h"
#include "paint/labels.h"
#include "planner/plantexts.h"
#include "platform/systemzones/systemzones.h"
#include "sunmoon/lunarphases.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

using namespace std::chrono_literals;
using fakes::RecordingCanvas;
using std::chrono::days;

const SystemZones pictureszones;

HarmonicRecord named(const std::string& name) {
    static const std::vector<HarmonicRecord> ports = tests::shippedports();
    for (const HarmonicRecord& port : ports)
        if (trim(port.PortName) == name) return port;
    return tests::roundport();
}

bool overlap(const Area& one, const Area& other, double apart) {
    return one.left < other.right - apart && other.left < one.right - apart && one.top < other.bottom - apart &&
           other.top < one.bottom - apart;
}

Passage boatof(double draught, double bottom) {
    Passage boat;
    boat.draught = draught;
    boat.bottom = bottom;
    return boat;
}

/// A plan's picture painted whole; boats over a sill, under a bridge where there is a ceiling.
struct Painted {
    Painted(const HarmonicRecord& port, Date first, int count, double width, double height,
            Passage boat = boatof(2.4, -2), double size = 12, const std::string& title = "")
        : plan({port, "Europe/London", first, count}, pictureszones),
          passage(boat),
          access(plan.access(boat, {}, false)) {
        picture.area = {0, 0, width, height};
        picture.textsize = size;
        picture.title = title;
        show(plan.begins(), plan.ends());
    }

    void show(Moment from, Moment to) {
        picture.from = from;
        picture.to = to;
        canvas = {};
        scale = scaleof(picture, canvas);
        paintnow(canvas, picture, scale, paintplan(canvas, picture, scale), from + (to - from) / 3);
    }

    /// The labels of the plot: all texts within it.
    std::vector<RecordingCanvas::Text> labels() const {
        std::vector<RecordingCanvas::Text> found;
        for (const auto& each : canvas.texts)
            if (each.area.top >= scale.plot.top && each.area.bottom <= scale.plot.bottom + 1 &&
                each.area.left >= scale.plot.left)
                found.push_back(each);
        return found;
    }

    std::size_t count(const std::string& text) const {
        return static_cast<std::size_t>(std::count_if(canvas.texts.begin(), canvas.texts.end(),
                                                      [&](const auto& each) { return each.text == text; }));
    }

    ScriptedLocale locale;
    Plan plan;
    Passage passage;
    PlannedAccess access;
    PlanPicture picture{plan, locale, coloursof(Lighting::day), {}, {}, {}, passage, &access};
    RecordingCanvas canvas;
    PlanScale scale;
};

void expectneat(const Painted& drawn, const std::string& what) {
    const auto texts = drawn.labels();
    for (std::size_t i = 0; i < texts.size(); ++i)
        for (std::size_t j = i + 1; j < texts.size(); ++j)
            // Lines of one label stand a little into each other.
            EXPECT_FALSE(overlap(texts[i].area, texts[j].area, 0.1 * drawn.picture.textsize))
                << texts[i].text << " on " << texts[j].text << what;
    // The lines of days and of now strike no word out.
    const double aside = 0.2 * drawn.picture.textsize;  // lines of one label stand close
    for (const auto& each : drawn.canvas.lines)
        if (each.colour == drawn.picture.look.now || each.colour == drawn.picture.look.faint)
            for (const auto& text : texts) {
                const Place &top = each.places.front(), &bottom = each.places.back();
                const bool struck = top.x == bottom.x && text.area.left < top.x && top.x < text.area.right &&
                                    top.y < text.area.bottom - aside && text.area.top + aside < bottom.y;
                EXPECT_FALSE(struck) << text.text << what;
            }
    const Area& all = drawn.picture.area;
    for (const auto& shapes : {drawn.canvas.fills, drawn.canvas.lines})
        for (const auto& each : shapes)
            for (const Place& place : each.places)
                ASSERT_TRUE(all.holds(place)) << place.x << ", " << place.y << what;
    for (const auto& each : drawn.canvas.texts)
        ASSERT_TRUE(all.holds({each.area.left, each.area.top}) && all.holds({each.area.right, each.area.bottom}))
            << each.text << " at " << each.area.left << ", " << each.area.top << what;
}

TEST(PlanPicture, NoTextsOverlapAndNothingIsPaintedOutside) {
    for (const char* port : {"Dover", "Southampton", "Lowestoft"})
        for (const int count : {1, 2, 3, 7, 14, 31})
            for (const auto& [width, height] : {std::pair{420.0, 260.0}, {800, 300}, {1366, 400}, {2600, 900}})
                for (const double size : {12.0, width < 800 ? 12.0 : 20.0}) {
                    const Passage boat{1.9, 0.5, -2, count % 2 ? std::optional(20.0) : std::nullopt, 17, 1.5};
                    Painted drawn(named(port), std::chrono::year{2026} / 10 / 20, count, width, height, boat, size,
                                  "Title");
                    const std::string what = std::string(" ") + port + " " + std::to_string(count) + " days, " +
                                             std::to_string(width) + ", " + std::to_string(size);
                    expectneat(drawn, what);
                    EXPECT_TRUE(count > 3 || width < 800 || drawn.labels().size() > 5) << what;
                    drawn.show(drawn.plan.begins() + 2h, drawn.plan.begins() + 8h);
                    expectneat(drawn, what + ", an hour at the edge");
                }
}

TEST(PlanPicture, HowGoodThePortIsStandsBesideTheTitleWhereItHasRoom) {
    const std::string title = "Cherbourg, 18 to 24 July 2026", trust = "entered by you on 3 March 2026";
    for (const auto& [width, told] : {std::pair(1200.0, 1), {500.0, 1}, {300.0, 0}}) {
        Painted painted(named("Cherbourg"), makedate(2026, 7, 18), 7, width, 400, boatof(2.4, -2), 12, title);
        painted.picture.trust = trust;
        painted.show(painted.plan.begins(), painted.plan.ends());
        ASSERT_EQ(painted.count(trust), static_cast<std::size_t>(told)) << width;
        const auto at = [&](const std::string& text) {
            return *std::find_if(painted.canvas.texts.begin(), painted.canvas.texts.end(),
                                 [&](const auto& each) { return each.text == text; });
        };
        if (told == 0) continue;
        EXPECT_FALSE(overlap(at(title).area, at(trust).area, 0)) << width;
        EXPECT_LE(at(trust).area.right, width);
        EXPECT_EQ(at(trust).look.size < 12, width < 1000) << width;
    }
}

TEST(PlanPicture, TheCurvePassesThroughTheWaters) {
    for (const int count : {1, 7, 31}) {
        Painted drawn(named("Dover"), std::chrono::year{2026} / 3 / 28, count, 1366, 400);
        const auto curves = RecordingCanvas::of(drawn.canvas.lines, drawn.picture.look.curve);
        ASSERT_EQ(curves.size(), 1U);
        const auto& curve = curves[0].places;
        EXPECT_EQ(curve.front().x, drawn.scale.plot.left);
        EXPECT_EQ(curve.back().x, drawn.scale.plot.right);
        for (const PlannedWater& water : drawn.plan.waters()) {
            const double x = drawn.scale.x(water.moment);
            const auto behind =
                std::find_if(curve.begin(), curve.end(), [&](Place each) { return each.x >= x - 1e-9; });
            ASSERT_NE(behind, curve.end());
            EXPECT_NEAR(behind->y, drawn.scale.y(water.water.height), 0.1) << count;
            EXPECT_EQ(drawn.scale.moment(x), water.moment);
        }
    }
}

TEST(PlanPicture, WindowsAndLightLieBetweenTheirTimes) {
    // 25 October 2026, a day of 25 hours, among them.
    for (const int count : {1, 3}) {
        Painted drawn(named("Dover"), std::chrono::year{2026} / 10 / 25, count, 1366, 400);
        const Colours& look = drawn.picture.look;
        const double foot = drawn.scale.y(drawn.passage.needed());
        const auto shapes = RecordingCanvas::of(drawn.canvas.fills, look.passable);
        ASSERT_EQ(shapes.size(), drawn.access.windows.size());
        for (std::size_t i = 0; i < shapes.size(); ++i) {
            const auto& window = drawn.access.windows[i];
            const auto [left, right] =
                std::minmax_element(shapes[i].places.begin(), shapes[i].places.end(),
                                    [](const Place& one, const Place& other) { return one.x < other.x; });
            EXPECT_EQ(left->x, drawn.scale.x(window.opens));
            EXPECT_EQ(right->x, drawn.scale.x(window.closes));
            for (const Place& place : shapes[i].places)
                EXPECT_LE(place.y, foot + 1e-9) << "under the level needed";
            const bool cut = window.window.cutatstart || window.window.cutatend;
            const PortClock& clock = drawn.plan.clock();
            const auto [opens, last] = windowclocks(clock, window);
            const std::string first = opens + "-";
            // Both ends tell which clock, where one of them lies on the day of the change.
            const Date changed = makedate(2026, 10, 25);
            const bool named = clock.at(window.opens).date == changed || clock.at(window.closes).date == changed;
            EXPECT_EQ(first.find(" GMT-") != std::string::npos || first.find(" BST-") != std::string::npos, named);
            EXPECT_EQ(last.ends_with(" GMT") || last.ends_with(" BST"), named);
            EXPECT_EQ(drawn.count(first + last) + drawn.count(first), cut ? 0U : 1U) << first;
        }
        const auto level = RecordingCanvas::of(drawn.canvas.lines, look.needed);
        ASSERT_EQ(level.size(), 1U);
        EXPECT_EQ(level[0].places[0].y, foot);
        for (const bool twilight : {true, false}) {
            // What is dark lies between what is light.
            std::vector<double> edges{drawn.scale.plot.left};
            for (const auto& [begins, ends] : drawn.plan.light(twilight))
                edges.insert(edges.end(), {drawn.scale.x(begins), drawn.scale.x(ends)});
            edges.push_back(drawn.scale.plot.right);
            std::vector<std::pair<double, double>> wanted;
            for (std::size_t i = 0; i < edges.size(); i += 2)
                if (edges[i] < edges[i + 1]) wanted.emplace_back(edges[i], edges[i + 1]);
            std::vector<std::pair<double, double>> painted;
            for (const auto& each : RecordingCanvas::of(drawn.canvas.fills, twilight ? look.night : look.twilight))
                if (each.places.size() == 2 && each.places[0].y == drawn.scale.plot.top &&
                    each.places[1].y == drawn.scale.plot.bottom)
                    painted.emplace_back(each.places[0].x, each.places[1].x);
            EXPECT_EQ(painted, wanted);
            EXPECT_EQ(wanted.size(), static_cast<std::size_t>(count) + 1);
        }
    }
}

TEST(PlanPicture, CutWindowsAndFarLevelsAreToldAsSuch) {
    const auto drawn = [](const Passage& boat) {
        return Painted(named("Dover"), std::chrono::year{2026} / 7 / 14, 1, 1366, 400, boat);
    };
    const Painted always = drawn(boatof(1, 5));
    EXPECT_TRUE(always.access.always);
    for (const auto& each : always.labels())
        EXPECT_EQ(each.text.find("00:00"), std::string::npos) << each.text;
    std::size_t cut = 0;
    for (double needed = 1; needed < 6; needed += 0.5)
        for (const PlannedWindow& each : drawn(boatof(needed, 0)).access.windows) {
            const Painted one = drawn(boatof(needed, 0));
            const std::string opens = clocktext(one.plan.clock().at(each.opens)),
                              closes = clocktext(one.plan.clock().at(each.closes));
            if (each.window.cutatstart != each.window.cutatend) {
                ++cut;
                EXPECT_EQ(one.count(each.window.cutatstart ? "until " + closes : "from " + opens), 1U) << needed;
            }
        }
    EXPECT_GT(cut, 3U);
    const Painted far = drawn({30, 5, 0, 50.0, 1, 2});
    EXPECT_EQ(far.count("needed 35.0 m, above the picture"), 1U);
    EXPECT_EQ(far.count("at most 51.0 m, above the picture"), 1U);
}

TEST(PlanPicture, WhatLiesBetweenTwoPlacesOfACurveEndsThere) {
    const CurvePieces curve{{{0, 0}, {10, 100}, {20, 0}}, {{30, 50}, {40, 50}}};
    const auto words = [&](double left, double right) {
        std::string text;
        for (const auto& piece : curvebetween(curve, left, right)) {
            for (const Place& each : piece)
                text += std::to_string(std::lround(each.x)) + " " + std::to_string(std::lround(each.y)) + ", ";
            text += "; ";
        }
        return text;
    };
    EXPECT_EQ(words(2, 4), "2 20, 4 40, ; ") << "narrower than a step";
    EXPECT_EQ(words(5, 35), "5 50, 10 100, 20 0, ; 30 50, 35 50, ; ");
    EXPECT_EQ(words(0, 10), "0 0, 10 100, ; ");
    EXPECT_EQ(words(-5, 99), "0 0, 10 100, 20 0, ; 30 50, 40 50, ; ");
    EXPECT_EQ(words(21, 29) + words(-9, -1) + words(50, 60), "");
}

TEST(PlanPicture, TheCurveEndsAsItsDayDoes) {
    for (int day = 1; day < 15; ++day) {
        const Painted drawn(named("Southampton"), makedate(2026, 1, static_cast<unsigned>(day)), 1, 800, 3000);
        const auto curve = RecordingCanvas::of(drawn.canvas.lines, drawn.picture.look.curve).at(0).places;
        EXPECT_NEAR(curve.back().y, drawn.scale.y(*drawn.plan.height(drawn.plan.ends() - 1s)), 0.01) << day;
    }
}

TEST(PlanPicture, WindowsHaveTheirTimesOverManyDaysAndBeforeStands) {
    for (const auto& [count, least] : {std::pair(9, 10), {14, 10}, {31, 0}}) {
        const Painted drawn(named("Dover"), makedate(2026, 7, 14), count, 1366, 400, boatof(5.5, 0));
        int told = 0;
        for (const auto& each : drawn.canvas.texts)
            told += each.text.size() >= 6 && each.text[5] == '-';
        EXPECT_GE(told, least) << count;
        EXPECT_EQ(told == 0, count == 31) << "where each would cover two more windows";
    }
    // Waters of a stand have no place that a window's times want.
    const Painted week(named("Southampton"), makedate(2026, 11, 23), 7, 1366, 400, boatof(2.9, 0));
    for (const PlannedWindow& each : week.access.windows)
        EXPECT_TRUE(std::any_of(week.canvas.texts.begin(), week.canvas.texts.end(), [&](const auto& text) {
            return text.text.ends_with(plainclock(week.plan.clock(), each.closes)) || each.window.cutatend;
        })) << isomoment(week.plan.clock().at(each.closes));
}

TEST(PlanPicture, TheMonthTakesNoDayFromTheTideOrTheMoon) {
    for (int day = 1; day <= 30; ++day) {
        const Painted drawn(named("Dover"), makedate(2026, 11, static_cast<unsigned>(day)), 31, 1250, 300);
        std::size_t tides = 0, months = 0, moons = 0, weekdays = 0;
        for (const auto& each : drawn.canvas.texts) {
            const Moment under = drawn.scale.moment((each.area.left + each.area.right) / 2);
            weekdays += each.text == drawn.locale.dayabbreviation(weekdayof(drawn.plan.clock().at(under).date));
            tides += each.text == "sp" || each.text == "np" || each.text == "springs" || each.text == "neaps";
            months += each.text == "Nov" || each.text == "Dec";
        }
        for (const auto& each : drawn.canvas.lines)
            moons += each.places.size() == 37;
        EXPECT_EQ(tides, drawn.plan.springsandneaps().size()) << day;
        EXPECT_EQ(moons, phasesbetween(drawn.plan.begins(), drawn.plan.ends()).size()) << day;
        EXPECT_EQ(weekdays, 31U) << day;
        // The last day alone may be one of the moon's.
        EXPECT_GE(months, day == 1 ? 1U : 2U) << day;
    }
}

TEST(PlanPicture, WatersComeBeforeWindowsAndLevelsAreAlwaysNamed) {
    for (const auto& [port, most] : {std::pair{"Dover", 7}, {"Southampton", 3}})
        for (const int count : {1, 3, 7, 14, 31})
            for (const double level : {0.4, 1.6, 3.0, 6.4, 14.0}) {
                const Date first = std::chrono::year{2026} / 7 / 14;
                const Painted drawn(named(port), first, count, 1366, 330, boatof(level, 0), 13);
                const Painted without(named(port), first, count, 1366, 330, boatof(99, 0), 13);
                const std::string what = std::string(port) + std::to_string(count) + " " + std::to_string(level);
                expectneat(drawn, what);
                std::size_t names = 0;
                for (const auto& each : drawn.canvas.texts) {
                    if (!each.text.starts_with("needed ")) continue;
                    ++names;
                    // Where there is room the curve leaves the name free.
                    for (const auto& piece : RecordingCanvas::of(drawn.canvas.lines, drawn.picture.look.curve))
                        for (const Place& place : piece.places)
                            EXPECT_FALSE(count <= 3 && each.area.holds(place)) << place.x << what;
                }
                EXPECT_EQ(names, 1U) << what;
                if (count > most) continue;
                for (const PlannedWater& each : drawn.plan.waters()) {
                    if (each.water.slight) continue;  // gives way to windows
                    const std::string time = plainclock(drawn.plan.clock(), each.moment);
                    EXPECT_TRUE(drawn.count(time) >= 1 || without.count(time) == 0) << time << what;
                }
            }
    // All windows of a week over a low level have room over its line, where the low waters stand below it.
    const Painted low(named("Dover"), std::chrono::year{2026} / 7 / 14, 7, 1366, 330, boatof(1.6, 0), 13);
    std::size_t told = 0;
    for (const PlannedWindow& each : low.access.windows)
        told += low.count(plainclock(low.plan.clock(), each.opens) + "-") +
                (each.window.cutatstart ? low.count("until") : 0);
    EXPECT_EQ(told, low.access.windows.size());
}

TEST(PlanPicture, HeadsCallNoDayWhatItIsNot) {
    Painted drawn(named("Dover"), std::chrono::year{2026} / 7 / 1, 31, 700, 300);
    const auto springs = drawn.plan.springsandneaps();
    for (std::chrono::hours at = 0h; at < 24h; at += 1h) {
        drawn.show(drawn.plan.begins() + at, drawn.plan.ends() - 24h + at);
        for (const auto& each : drawn.canvas.texts) {
            if (each.text != "np" && each.text != "sp") continue;
            const Date date = drawn.plan.clock().at(drawn.scale.moment((each.area.left + each.area.right) / 2)).date;
            EXPECT_TRUE(std::any_of(springs.begin(), springs.end(),
                                    [&](const SpringTide& tide) {
                                        return drawn.plan.clock().at(tide.moment).date == date &&
                                               tide.springs == (each.text == "sp");
                                    }))
                << each.text << " on " << dayof(date);
        }
    }
}

TEST(PlanPicture, OddPortsAndDaysArePainted) {
    HarmonicRecord flat;
    flat.Z0 = 2;
    HarmonicRecord wild = tests::roundport();
    wild.M2Hm = wild.S2Hm = 1e30F;
    wild.MHm2.fill(1e30F);
    HarmonicRecord nowhere = tests::roundport();
    nowhere.PortLat = nowhere.PortLong = NAN;
    HarmonicRecord faroff = tests::roundport();
    faroff.Z0 = 1e30F;
    for (const HarmonicRecord& port : {flat, wild, nowhere, faroff, HarmonicRecord{}})
        for (const int year : {1, 1989, 1990, 2026, 9999}) {
            Painted drawn(port, makedate(year, 1, 2), 3, 800, 300);
            EXPECT_LT(drawn.canvas.texts.size(), 300U) << year;
            const bool told = drawn.count(drawn.plan.whynot()) == 1;
            const bool curve = !RecordingCanvas::of(drawn.canvas.lines, drawn.picture.look.curve).empty();
            EXPECT_NE(told, curve) << year;
            drawn.picture.area = {0, 0, 1, 1};
            drawn.show(drawn.picture.from, drawn.picture.to);
        }
}

TEST(PlanLabels, TheMoreImportantStay) {
    const RecordingCanvas canvas;
    const auto label = [](double x, double importance) {
        return Label{{std::to_string(int(x))}, {}, {x, 10}, importance};
    };
    LabelPlaces places(canvas, {0, 0, 400, 100});
    EXPECT_EQ(places.takefirst({{390, 0, 410, 20}, {100, 0, 150, 20}})->left, 100);
    EXPECT_EQ(places.takefirst({{140, 0, 160, 20}, {150, 0, 190, 20}})->left, 150);
    EXPECT_FALSE(places.takefirst({{140, 0, 160, 20}, {-10, 0, 20, 20}}));
    std::vector<std::string> told;
    for (const Label& each : places.place({label(210, 1), label(220, 3), label(230, 2), label(-5, 1), label(120, 9)}))
        told.push_back(each.lines[0]);
    EXPECT_EQ(told, (std::vector<std::string>{"220", "-5"}));
    const auto edge = places.place({label(405, 1)});
    ASSERT_EQ(edge.size(), 1U);
    EXPECT_LE(areaof(canvas, edge[0]).right, 400) << "moved inside";
}

}  // namespace
}  // namespace tarvane
