#include "platform/qt/picturebox.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPaintEvent>
#include <limits>

#include "platform/qt/imagesurface.h"

namespace tarvane {
namespace {

constexpr QRgb blackpixel = 0xFF000000;
constexpr QRgb whitepixel = 0xFFFFFFFF;
constexpr QRgb redpixel = 0xFFFF0000;

int count(const QImage& image, QRgb colour) {
    int found = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            found += image.pixel(x, y) == colour;
    return found;
}

int marked(const QImage& image) {
    return image.width() * image.height() - count(image, whitepixel);
}

/// A picture to draw on the persistent layer, with its scale.
struct Picture : ImageSurface {
    Picture(QSize size, double left, double top, double right, double bottom, int ratio = 1)
        : ImageSurface(size, ratio) {
        setscale(left, top, right, bottom);
        setpersistent(true);
    }
};

TEST(layers, passinglayerliesoverthepersistentone) {
    Picture surface({100, 50}, 0, 5, 10, 0);
    surface.line(0, 2.5, 10, 2.5, black);
    const QImage before = surface.image();
    EXPECT_EQ(count(before, blackpixel), 100);

    surface.setpersistent(false);
    surface.line(5, 5, 5, 0, red);
    EXPECT_EQ(count(surface.image(), redpixel), 50);
    surface.clear();
    EXPECT_EQ(surface.image(), before);

    surface.line(5, 5, 5, 0, red);
    surface.setpersistent(true);
    surface.setbackcolour(0x112233);
    surface.clear();
    EXPECT_EQ(count(surface.image(), 0xFF332211), 5000) << "a colour is blue, green, red";
}

TEST(layers, linesboxesandpointsstandwheretoldatbothdensities) {
    for (const int ratio : {1, 2}) {
        Picture surface({240, 100}, 0, 4, 24, -1, ratio);
        const auto expectonly = [&](int pixels) {
            EXPECT_EQ(count(surface.image(), blackpixel), pixels * ratio * ratio);
            surface.clear();
        };
        surface.line(3, 4, 3, -1, black);
        EXPECT_EQ(surface.image().pixel(30 * ratio, 0), blackpixel);
        expectonly(100);
        surface.line(0, -1, 24, -1, black);
        EXPECT_EQ(surface.image().pixel(0, 100 * ratio - 1), blackpixel) << "a line on the far edge is seen";
        surface.clear();
        surface.box(0, -1, 12, 4, black);
        expectonly(120 * 100);
        surface.point(12, 2, black);
        expectonly(4);
        surface.text(12, 4, "4M");
        EXPECT_EQ(count(surface.image().copy(0, 0, 118 * ratio, 100 * ratio), whitepixel), 118 * 100 * ratio * ratio);
        EXPECT_GT(marked(surface.image()), 20 * ratio * ratio) << "text scales with the density";
        surface.clear();
        surface.setlinewidth(2);
        surface.line(3, 4, 3, -1, black);
        expectonly(200);
    }
}

TEST(layers, outsideandsenselesscoordinatesdonoharm) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinite = std::numeric_limits<double>::infinity();
    Picture surface({100, 100}, 0, 0, 100, 100);
    for (const double bad : {nan, infinite, -infinite}) {
        surface.line(bad, 0, 50, 50, black);
        surface.line(10, bad, 10, 50, black);
        surface.box(0, 0, bad, 100, black);
        surface.point(bad, 5, black);
        surface.text(5, bad, "text");
    }
    surface.line(-1, 0, -1, 100, black);
    surface.line(150, 0, 300, 100, black);
    surface.point(101, 50, black);
    surface.text(5, 500, "text");
    surface.line(-1e300, -1e300, 1e300, 1e299, black);  // too far out to be placed
    surface.setscale(0, 0, 0, 0);
    surface.line(0, 0, 50, 50, black);
    surface.box(0, 0, 1, 1, black);
    EXPECT_EQ(marked(surface.image()), 0);

    surface.setscale(0, 0, 100, 100);
    surface.line(-1e9, -1e9, 1e9, 1e9, black);
    EXPECT_NE(surface.image().pixel(50, 50), whitepixel);
    surface.clear();
    surface.line(50, -1e18, 50, 1e18, black);
    EXPECT_EQ(count(surface.image(), blackpixel), 100);
    surface.clear();
    surface.box(-1e18, -1e18, 1e18, 1e18, black);
    EXPECT_EQ(count(surface.image(), blackpixel), 10000);
}

/// Adds up what is repainted.
struct PaintWatch : QObject {
    int pixels = 0;
    int events = 0;

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::Paint) return false;
        ++events;
        for (const QRect& part : static_cast<QPaintEvent*>(event)->region())
            pixels += part.width() * part.height();
        return false;
    }
};

TEST(picturebox, apassinglinerepaintsonlyitsstrips) {
    PictureBox box;
    box.resize(800, 400);
    box.show();
    box.setscale(0, 5, 24, -1);
    box.setpersistent(true);
    box.line(0, 0, 24, 4, black);
    box.setpersistent(false);
    box.line(3, 5, 3, -1, red);
    QCoreApplication::processEvents();
    const QImage before = box.grab().toImage();

    PaintWatch watch;
    box.installEventFilter(&watch);
    for (int i = 0; i < 200; ++i) {
        const double x = i % 2 == 0 ? 20 : 3;
        box.clear();
        box.line(x, 5, x, -1, red);
        QCoreApplication::processEvents();
    }
    EXPECT_GE(watch.events, 200);
    EXPECT_LE(watch.pixels / watch.events, 2 * 5 * 400);
    EXPECT_EQ(box.grab().toImage(), before);
}

TEST(picturebox, aresizedpictureisemptyandasksforitsdrawing) {
    PictureBox box;
    int asked = 0;
    box.onresized = [&] { ++asked; };
    box.setscale(0, 0, 1, 1);
    box.resize(100, 100);
    box.show();
    QCoreApplication::processEvents();
    box.setpersistent(true);
    box.box(0, 0, 1, 1, black);
    box.resize(120, 60);
    QCoreApplication::processEvents();
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(marked(box.grab().toImage()), 0);
    box.box(0, 0, 1, 1, black);
    const QImage drawn = box.grab().toImage();
    EXPECT_EQ(marked(drawn), drawn.width() * drawn.height()) << "the scale outlives the resizing";
}

TEST(picturebox, themousespeaksthescale) {
    PictureBox box;
    box.resize(240, 100);
    box.show();
    box.setscale(0, 4, 24, -1);
    QPointF moved, pressed;
    box.onmousemove = [&](double x, double y) { moved = {x, y}; };
    box.onmousedown = [&](double x, double y) { pressed = {x, y}; };
    const QPointF place(60, 20);
    QMouseEvent move(QEvent::MouseMove, place, place, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QMouseEvent press(QEvent::MouseButtonPress, place, place, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&box, &move);
    QCoreApplication::sendEvent(&box, &press);
    EXPECT_TRUE(box.hasMouseTracking());
    EXPECT_EQ(moved, QPointF(6, 3));
    EXPECT_EQ(pressed, moved);
}

}  // namespace
}  // namespace tarvane
