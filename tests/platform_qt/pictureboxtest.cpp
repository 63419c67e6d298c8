#include "platform/qt/picturebox.h"

#include <gtest/gtest.h>

#include <QBackingStore>
#include <QCoreApplication>
#include <QPaintEvent>
#include <limits>
#include <tuple>

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

/// A picture to draw on the persistent layer, 24 units wide and 4 to -1 high.
struct Picture : ImageSurface {
    explicit Picture(QSize size = {240, 100}, double ratio = 1) : ImageSurface(size, ratio) {
        setscale(0, 4, 24, -1);
        setpersistent(true);
    }
};

void drawgrid(DrawSurface& surface) {
    for (const double x : {0.0, 3.0, 6.1, 9.33, 12.0, 24.0})
        surface.line(x, 4, x, -1, black);
    for (const double y : {4.0, 3.0, 1.77, 0.0, -1.0})
        surface.line(0, y, 24, y, black);
}

/// How wide the lines are that a walk across the image meets.
QList<int> widthsmet(const QImage& image, QPoint at, QPoint step) {
    QList<int> widths;
    for (bool before = false; image.valid(at); at += step) {
        const bool dark = image.pixel(at) == blackpixel;
        if (dark && !before) widths << 0;
        if (dark) ++widths.back();
        before = dark;
    }
    return widths;
}

/// The walks keep off the lines of the other way.
void expectevengrid(const QImage& image, int width) {
    EXPECT_EQ(widthsmet(image, {0, image.height() / 8}, {1, 0}), QList<int>(6, width));
    EXPECT_EQ(widthsmet(image, {image.width() / 16, 0}, {0, 1}), QList<int>(5, width));
    EXPECT_EQ(count(image, blackpixel), width * (6 * image.height() + 5 * image.width() - 30 * width));
}

TEST(LayeredSurface, PassingLayerLiesOverThePersistentOne) {
    Picture surface;
    surface.line(0, 2, 24, 2, black);
    const QImage before = surface.image();
    EXPECT_EQ(count(before, blackpixel), 240);

    surface.setpersistent(false);
    surface.line(5, 4, 5, -1, red);
    EXPECT_EQ(count(surface.image(), redpixel), 100);
    surface.clear();
    EXPECT_EQ(surface.image(), before);

    surface.line(5, 4, 5, -1, red);
    surface.setpersistent(true);
    surface.line(0, 3, 24, 3, black);
    surface.setbackcolour(0x112233);
    surface.clear();
    EXPECT_EQ(count(surface.image(), 0xFF332211), 24000) << "a colour is blue, green, red";
}

TEST(LayeredSurface, LinesBoxesAndPointsAreEvenAtEveryDensity) {
    using Row = std::tuple<double, int, int>;
    for (const auto& [ratio, one, two] : {Row{1, 1, 2}, Row{1.25, 1, 2}, Row{1.5, 1, 3}, Row{2, 2, 4}}) {
        SCOPED_TRACE(ratio);
        Picture surface({241, 101}, ratio);
        const auto expectonly = [&](int pixels) {
            EXPECT_EQ(count(surface.image(), blackpixel), pixels);
            surface.clear();
        };
        const QSize device = surface.image().size();
        drawgrid(surface);
        expectevengrid(surface.image(), one);
        surface.clear();
        surface.setlinewidth(2);
        surface.line(24, -1, 24, 4, black);
        expectonly(two * device.height());
        surface.setlinewidth(1);
        for (const double x : {0.0, 5.0, 11.7, 24.0})
            surface.point(x, 4 - x / 5, black);
        expectonly(4 * two * two);
        surface.box(0, -1, 24, 4, black);
        expectonly(device.width() * device.height());
        for (int i = 0; i < 146; ++i)
            surface.line(i / 6.0, 1.13, (i + 1) / 6.0, 1.13, black);
        expectonly(one * device.width());
        surface.setlinestyle(LineStyle::dotted);
        surface.line(0, 0, 24, 0, black);
        expectonly((device.width() + 2 * one) / (3 * one) * one * one);
        surface.setlinestyle(LineStyle::dashed);
        surface.line(0, 4, 0, -1, black);
        const QList<int> dashes = widthsmet(surface.image(), {0, 0}, {0, 1});
        EXPECT_EQ(dashes.first(), 4 * one);
        EXPECT_EQ(dashes.size(), (device.height() + 7 * one - 1) / (7 * one));
        surface.clear();
        surface.text(12, 4, "4M");
        EXPECT_EQ(marked(surface.image().copy(0, 0, device.width() / 2, device.height())), 0);
        EXPECT_GT(marked(surface.image()), 20 * ratio * ratio) << "text scales with the density";
    }
}

TEST(LayeredSurface, PiecesOfACurveMakeOneStroke) {
    for (const LineStyle style : {LineStyle::solid, LineStyle::dashed}) {
        Picture whole, pieces;
        whole.setlinestyle(style);
        pieces.setlinestyle(style);
        whole.line(0, 4, 24, 2, black);
        for (int i = 0; i < 144; ++i)
            pieces.line(i / 6.0, 4 - i / 72.0, (i + 1) / 6.0, 4 - (i + 1) / 72.0, black);
        const QImage one = whole.image(), many = pieces.image();
        EXPECT_GT(marked(one), style == LineStyle::solid ? 240 : 120);
        for (int x = 0; x < one.width(); ++x)
            for (int y = 0; y < one.height(); ++y)
                ASSERT_NEAR(qGray(one.pixel(x, y)), qGray(many.pixel(x, y)), 6) << x << " " << y;
    }
    // Other colours and gaps end a stroke.
    Picture surface;
    surface.line(0, 4, 1, 3, black);
    surface.line(1, 3, 2, 4, red);
    surface.line(3, 4, 4, 3, red);
    EXPECT_EQ(surface.image().pixel(25, 5), whitepixel);
    EXPECT_EQ(qRed(surface.image().pixel(15, 10)), 255);
}

TEST(LayeredSurface, OutsideAndSenselessCoordinatesDoNoHarm) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinite = std::numeric_limits<double>::infinity();
    Picture surface({100, 100});
    surface.setscale(0, 0, 100, 100);
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

TEST(PictureBox, APassingLineRepaintsOnlyItsStrips) {
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

TEST(PictureBox, AResizedPictureIsEmptyAndAsksForItsDrawing) {
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

// On a window, at a place that is broken in device pixels where the density is: see this folder's CMakeLists.txt.
TEST(PictureBox, StandsOnWholeDevicePixels) {
    QWidget window;
    PictureBox box(&window);
    window.resize(300, 150);
    window.show();
    box.setscale(0, 4, 24, -1);
    for (const QPoint corner : {QPoint(0, 0), QPoint(7, 9), QPoint(10, 3)}) {
        box.setGeometry({corner, QSize(corner.x() == 7 ? 238 : 241, 101)});
        QCoreApplication::processEvents();
        box.setpersistent(corner.x() == 10);
        drawgrid(box);
        QCoreApplication::processEvents();
        const double ratio = box.devicePixelRatioF();
        const QRect inside(QPoint(qRound(corner.x() * ratio), qRound(corner.y() * ratio)),
                           QSize(int(box.width() * ratio), int(box.height() * ratio)));
        const auto* const screen = dynamic_cast<QImage*>(window.backingStore()->paintDevice());
        ASSERT_TRUE(screen);
        for (const QImage& seen : {*screen, window.grab().toImage()})
            expectevengrid(seen.copy(inside).convertToFormat(QImage::Format_RGB32), std::max(1, int(ratio)));
    }
}

}  // namespace
}  // namespace tarvane
