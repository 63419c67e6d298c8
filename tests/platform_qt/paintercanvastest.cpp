#include "platform/qt/paintercanvas.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QEvent>
#include <QSvgGenerator>
#include <QVBoxLayout>
#include <array>
#include <cmath>
#include <numbers>

#include "platform/qt/hatching.h"
#include "platform/qt/steadybox.h"

namespace tarvane {
namespace {

constexpr HatchLook look{0x00FF00, 0x000000, 1, 7};
constexpr double foot = 280;

/// Steep tides, many of them beyond the pieces in which they are painted.
std::vector<Place> tides() {
    std::vector<Place> curve;
    for (double x = 5; x <= 395; x += 1)
        curve.push_back({x, 150 + 120 * std::sin(x / 6)});
    return curve;
}

TEST(PainterCanvas, HatchedShapesAreWholeAtEveryScale) {
    const std::vector<Place> curve = tides();
    for (const double scale : {1.0, 1.25, 1.5, 2.0, 3.0}) {
        QImage image(static_cast<int>(400 * scale), static_cast<int>(300 * scale), QImage::Format_RGB32);
        image.fill(Qt::white);
        {
            QPainter painter(&image);
            PainterCanvas canvas(painter, QFont(), scale);
            canvas.fillhatched(curve, foot, look);
        }
        const double near = 2;  // units: its edge is the curve's
        double lines = 0, inside = 0;
        for (int row = 0; row < image.height(); ++row)
            for (int column = 0; column < image.width(); ++column) {
                const double x = (column + 0.5) / scale, y = (row + 0.5) / scale;
                double top = HUGE_VAL, high = HUGE_VAL;
                for (double at = x - near; at <= x + near; at += near / 2) {
                    const double edge = at < 5 || at > 395 ? HUGE_VAL : 150 + 120 * std::sin(at / 6);
                    high = std::min(high, edge);
                    top = at == x - near ? edge : std::max(top, edge);
                }
                const QColor seen = image.pixelColor(column, row);
                if (y > top + near && y < foot - near) {
                    ++inside;
                    lines += 1 - seen.greenF();
                    ASSERT_EQ(seen.red(), 0) << x << ", " << y << " at " << scale;
                } else if (y < high - near || y > foot + near) {
                    ASSERT_EQ(seen, QColor(Qt::white)) << x << ", " << y << " at " << scale;
                }
            }
        int met = 0;
        bool before = false;
        for (int column = static_cast<int>(5 * scale); column < 395 * scale; ++column) {
            const bool line = image.pixelColor(column, static_cast<int>(276 * scale)).greenF() < 0.6;
            met += line && !before;
            before = line;
        }
        EXPECT_NEAR(met, 390 * scale / std::round(7 * scale), 2) << scale;
        // The toolkit's thinnest lines are thinner than asked for.
        EXPECT_GT(lines / inside, 0.9 / 7) << scale;
        EXPECT_LT(lines / inside, 1.1 * std::numbers::sqrt2 / 7) << scale;
    }
}

TEST(PainterCanvas, PlacesOutOfAllMeasureArePaintedSoon) {
    QImage image(100, 100, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    PainterCanvas canvas(painter, QFont());
    for (const auto& [top, level] : {std::pair{-1e30, 90.0}, {50.0, 1e30}, {-1e30, 1e30}})
        canvas.fillhatched(std::array{Place{10, top}, Place{90, top}}, level, look);
    EXPECT_EQ(image.pixelColor(50, 80).red(), 0);
}

TEST(PainterCanvas, LinesThatHatchLieWithinTheShape) {
    const std::vector<Place> curve = tides();
    const QList<QLineF> lines = hatchlines(curve, foot, 7);
    ASSERT_GT(lines.size(), 100);
    for (const QLineF& line : lines) {
        for (const QPointF& each : {line.p1(), line.p2(), line.center()}) {
            EXPECT_NEAR(std::remainder(each.x() + each.y(), 7), 0, 1e-6);
            EXPECT_GE(each.y(), 150 + 120 * std::sin(each.x() / 6) - 3);
            EXPECT_LE(each.y(), foot + 1e-6);
        }
    }
}

TEST(PainterCanvas, DrawingsAreHatchedByLines) {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QSvgGenerator generator;
    generator.setOutputDevice(&bytes);
    {
        QPainter painter(&generator);
        PainterCanvas canvas(painter, QFont());
        canvas.fillhatched(tides(), foot, look);
        canvas.fillhatched({}, foot, look);
    }
    EXPECT_EQ(bytes.data().count("<polyline"), hatchlines(tides(), foot, look.step).size());
    EXPECT_GT(bytes.data().count("fill=\"#00ff00\""), 0);
}

TEST(PainterCanvas, LinesPassThroughAllTheirPlaces) {
    std::vector<Place> bent;
    for (int i = 0; i <= 200; ++i)
        bent.push_back({100 + 80 * std::cos(i / 40.0), 100 + 80 * std::sin(i / 40.0)});
    const std::vector<Place> spike{{20, 100}, {40, 100}, {150, 100}, {60, 100}, {60, 130}};
    for (const double scale : {1.0, 2.0})
        for (const std::vector<Place>& places : {tides(), bent, spike}) {
            QImage image(static_cast<int>(400 * scale), static_cast<int>(300 * scale), QImage::Format_RGB32);
            image.fill(Qt::white);
            {
                QPainter painter(&image);
                PainterCanvas canvas(painter, QFont(), scale);
                canvas.line(places, {0x000000, 2});
            }
            for (const Place& each : std::span(places).subspan(1, places.size() - 2)) {
                const QPoint at(static_cast<int>((each.x - 0.01) * scale), static_cast<int>(each.y * scale));
                EXPECT_LT(image.pixelColor(at).lightnessF(), 0.4) << each.x << ", " << each.y << " at " << scale;
            }
        }
}

TEST(PainterCanvas, LevelLinesLieWhereTheyAre) {
    for (const double scale : {1.0, 1.25, 2.0, 3.0})
        for (const double width : {1.0, 2.0})
            for (double at = 20; at < 22; at += 0.1) {
                QImage image(200, 200, QImage::Format_RGB32);
                image.fill(Qt::white);
                {
                    QPainter painter(&image);
                    PainterCanvas canvas(painter, QFont(), scale);
                    canvas.line(std::array{Place{at, 5}, Place{at, 30.3}}, {0x000000, width});
                }
                double weight = 0, middle = 0;
                for (int column = 0; column < image.width(); ++column)
                    if (image.pixelColor(column, static_cast<int>(20 * scale)) == QColor(Qt::black)) {
                        ++weight;
                        middle += column + 0.5;
                    }
                EXPECT_NEAR(middle / weight / scale, at, 0.51 / scale + 0.01) << at << " at " << scale << ", " << width;
                EXPECT_EQ(image.pixelColor(static_cast<int>(at * scale), static_cast<int>(30.3 * scale + 1.5)),
                          QColor(Qt::white));
            }
}

/// Counts how often a layout is asked for anew.
struct Outside : QWidget {
    int asked = 0;
    bool event(QEvent* event) override {
        if (event->type() == QEvent::LayoutRequest) ++asked;
        return QWidget::event(event);
    }
};

void settle() {
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
}

TEST(SteadyBox, OnlyAnotherHeightIsTold) {
    Outside outside;
    auto *first = new QLabel, *last = new QLabel;
    first->setWordWrap(true);
    last->setWordWrap(true);
    auto* box = new SteadyBox({first, last}, 100);
    auto* rows = new QVBoxLayout(&outside);
    rows->addWidget(box);
    rows->addStretch(1);
    first->setText("one line");
    last->setText("another");
    outside.resize(300, 400);
    outside.show();
    settle();
    const int before = box->height();
    outside.asked = 0;
    last->setText("a third");
    settle();
    EXPECT_EQ(outside.asked, 0);
    first->setText(QString("many words that fill more than a line ").repeated(5));
    settle();
    EXPECT_GT(outside.asked, 0);
    EXPECT_GT(box->height(), before);
    EXPECT_GE(first->height(), first->heightForWidth(first->width()));
    EXPECT_GE(last->geometry().top(), first->geometry().bottom());
    EXPECT_LE(last->geometry().bottom(), box->height());
    outside.hide();
    last->setText(first->text());
    outside.show();
    settle();
    EXPECT_GE(last->height(), last->heightForWidth(last->width())) << "changed while nobody saw it";
}

}  // namespace
}  // namespace tarvane
