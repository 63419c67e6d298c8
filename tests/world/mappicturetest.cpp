// The map on a canvas that notes everything: names apart, marks where their ports are and no nearer than they may be.
#include "world/mappicture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "fakes/recordingcanvas.h"
#include "world/inland.h"

namespace tarvane {
namespace {

using fakes::RecordingCanvas;

/// Ports in rows over the Channel, each third rough, and two on one place in two areas.
World someworld() {
    World world{{{"a/France.hc", "France", ""}, {"a/UK.hc", "UK", ""}}, {}};
    const auto add = [&](std::size_t area, const std::string& name, double latitude, double longitude, double error) {
        PortAbout about;
        about.timeninety = error;
        world.ports.push_back({area, static_cast<std::int16_t>(world.ports.size() + 1), name,
                               static_cast<float>(latitude), static_cast<float>(longitude), "L", about, false});
    };
    for (int i = 0; i < 200; ++i)
        add(0, "Port number " + std::to_string(i), 48 + 0.17 * (i / 14), -6 + 0.4 * (i % 14), i % 3 == 0 ? 100 : 5);
    add(0, "Cherbourg twice", 49.65, -1.65, 5);
    add(1, "Cherbourg", 49.65, -1.65, 5);
    return world;
}

MapView channel(double scale) {
    MapView view;
    resizeview(view, 1200, 700);
    view.scale = scale;
    centreview(view, mappoint(49.3, -3));
    return view;
}

std::vector<Area> namesof(const RecordingCanvas& canvas) {
    std::vector<Area> areas;
    for (const auto& text : canvas.texts)
        if (text.text.starts_with("Port") || text.text.starts_with("Cherbourg")) areas.push_back(text.area);
    return areas;
}

TEST(MapPicture, NamesLieOnNothingAndMoreOfThemComeAsThereIsRoom) {
    const World world = someworld();
    const Coast none;
    const std::vector<MapPort> ports = mapports(world);
    std::vector<std::size_t> shown;
    for (const double scale : {3000.0, 12000.0, 40000.0}) {
        RecordingCanvas canvas;
        const MapPicture picture{none, world, ports, channel(scale), coloursof(Lighting::day), 12, 200};
        paintmap(canvas, picture);
        const std::vector<Area> names = namesof(canvas);
        shown.push_back(names.size());
        for (std::size_t i = 0; i < names.size(); ++i) {
            EXPECT_TRUE(names[i].left >= 0 && names[i].right <= 1200 && names[i].bottom <= 700);
            for (std::size_t k = 0; k < i; ++k)
                EXPECT_FALSE(names[i].left < names[k].right && names[k].left < names[i].right &&
                             names[i].top < names[k].bottom - 1.5 && names[k].top < names[i].bottom - 1.5);
            for (const auto& mark : canvas.fills)
                EXPECT_FALSE(mark.places.size() > 8 && names[i].holds(mark.places[0]) &&
                             names[i].holds(mark.places[6]));
        }
        EXPECT_NE(std::find_if(canvas.texts.begin(), canvas.texts.end(),
                               [](const auto& text) { return text.text == "Cherbourg twice" && text.look.bold; }),
                  canvas.texts.end())
            << "the port in hand has its name first";
    }
    EXPECT_LT(shown[0], shown[1]);
    EXPECT_LT(shown[1], shown[2]);
}

TEST(MapPicture, MarksThinOutAndTheMoreTrustedStay) {
    const World world = someworld();
    const std::vector<MapPort> ports = mapports(world, "a/UK.hc");
    ASSERT_EQ(ports.size(), world.ports.size());
    for (const double scale : {9000.0, 30000.0, 100000.0}) {
        const MapView view = channel(scale);
        std::vector<Place> marks;
        for (const MapPort& port : ports) {
            if (port.depth > depthof(view)) continue;
            const Place mark = view.placeof(port.point);
            for (const Place& each : marks)
                EXPECT_GE(std::hypot(mark.x - each.x, mark.y - each.y), 15.9) << scale;
            marks.push_back(mark);
        }
        EXPECT_GT(marks.size(), 3U);
    }
    EXPECT_EQ(ports.front().trust, Trust::close);
    const auto depthfor = [&](std::size_t place) {
        return std::find_if(ports.begin(), ports.end(), [&](const auto& port) { return port.place == place; })->depth;
    };
    EXPECT_LT(depthfor(201), depthfor(200)) << "of two on one place that of the area in hand";
    EXPECT_EQ(depthfor(200), deepestmap);
}

TEST(MapPicture, AClickTakesTheNearestOfThoseShown) {
    const World world = someworld();
    const std::vector<MapPort> ports = mapports(world);
    const MapView view = channel(100000);
    const auto at = [&](double right, double down, std::optional<std::size_t> inhand = {}) {
        Place place = view.placeof(mappoint(49.65, -1.65));
        place.x += right;
        place.y += down;
        const auto hit = hitport(ports, view, place, inhand);
        return hit ? world.ports[ports[*hit].place].name : "";
    };
    EXPECT_EQ(at(5, -5), "Cherbourg twice");
    EXPECT_EQ(at(0, 400), "") << "nothing near";
    const std::size_t hidden = 3;
    MapView far = channel(1200);
    const Place there = far.placeof(mappoint(world.ports[hidden].latitude, world.ports[hidden].longitude));
    EXPECT_EQ(ports[*hitport(ports, far, there, hidden)].place, hidden) << "the port in hand is always shown";
    const auto other = hitport(ports, far, there, std::nullopt);
    EXPECT_TRUE(!other || ports[*other].depth <= depthof(far));
    // From the middle outwards, each once.
    const std::vector<std::size_t> seen = portsfrommiddle(ports, view);
    ASSERT_GT(seen.size(), 10U);
    const auto off = [&](std::size_t port) {
        const Place mark = view.placeof(ports[port].point);
        return std::hypot(mark.x - 600, mark.y - 350);
    };
    for (std::size_t i = 1; i < seen.size(); ++i)
        EXPECT_GE(off(seen[i]), off(seen[i - 1]) - 1e-6);
}

TEST(MapPicture, LandIsClippedToThePictureAndSaysWhoseItIs) {
    const Coast coast = readcoast(TARVANE_DATA);
    const World world;
    const std::vector<MapPort> ports;
    MapView view = channel(1e6);
    centreview(view, mappoint(50.1, -5.5));
    RecordingCanvas canvas;
    paintmap(canvas, {coast, world, ports, view, coloursof(Lighting::day)});
    const auto land = RecordingCanvas::of(canvas.fills, coloursof(Lighting::day).land);
    const auto painted = [&](Place at) {
        bool inside = false;
        for (const auto& shape : land)
            for (std::size_t i = 0; i < shape.places.size(); ++i) {
                const Place &from = shape.places[i], &to = shape.places[(i + 1) % shape.places.size()];
                if ((from.y > at.y) != (to.y > at.y))
                    inside ^= at.x < from.x + (at.y - from.y) * (to.x - from.x) / (to.y - from.y);
            }
        return inside;
    };
    int onland = 0, atsea = 0;
    for (double x = 3.3; x < 1200; x += 61.7)
        for (double y = 3.3; y < 700; y += 57.3) {
            const bool wanted = tests::inland(coast.levels.front(), view.pointof({x, y}));
            EXPECT_EQ(painted({x, y}), wanted) << x << " " << y;
            ++(wanted ? onland : atsea);
        }
    EXPECT_GT(std::min(onland, atsea), 40);
    for (const auto& shape : land) {
        EXPECT_LT(shape.places.size(), 2000U) << "no more than what is seen";
        for (const Place& each : shape.places)
            EXPECT_TRUE((Area{-5, -5, 1205, 705}.holds(each))) << each.x << " " << each.y;
    }
    const auto said = [&](const std::string& wanted) {
        return std::any_of(canvas.texts.begin(), canvas.texts.end(),
                           [&](const auto& text) { return text.text == wanted; });
    };
    EXPECT_TRUE(said("Coast: Natural Earth"));
    EXPECT_TRUE(said("5\u00B020'W") && said("50\u00B010'N"));
    EXPECT_TRUE(said("1 nm"));
    EXPECT_EQ(longitudetext(180) + latitudetext(0) + longitudetext(-4.05), "180\u00B00\u00B04\u00B003'W");
    RecordingCanvas bare;
    paintmap(bare, {readcoast("nowhere"), world, ports, view, coloursof(Lighting::day)});
    EXPECT_EQ(bare.texts.back().text, "No coast is shown: its file coast.bin can't be found.");
}

}  // namespace
}  // namespace tarvane
