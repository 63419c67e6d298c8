#include "platform/qt/appearance.h"

#include <QFontDatabase>
#include <QIcon>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QStyleFactory>
#include <clocale>
#include <cmath>
#include <numbers>

namespace tarvane {
namespace {

/// The pictures are black on white and grey, so that the windows round them are light on every desktop.
QPalette lightpalette() {
    QPalette palette(QColor(0xF2, 0xF2, 0xF0));
    palette.setColor(QPalette::Window, QColor(0xF2, 0xF2, 0xF0));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xF6, 0xF8, 0xFA));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(role, Qt::black);
    palette.setColor(QPalette::ToolTipBase, QColor(0xFF, 0xFF, 0xE1));
    palette.setColor(QPalette::Highlight, QColor(0x1F, 0x5F, 0x9E));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x80, 0x80, 0x80));
    return palette;
}

QFont programfont() {
    const QStringList installed = QFontDatabase::families();
    for (const char* family : {"MS Sans Serif", "Liberation Sans", "Arial", "Helvetica", "DejaVu Sans"})
        if (installed.contains(QLatin1String(family))) return QFont(QLatin1String(family), 9);
    return QFont(QApplication::font().family(), 9);
}

QPixmap iconpicture(int size) {
    QPixmap picture(size, size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / 64.0, size / 64.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xE8, 0xF2, 0xFA));
    painter.drawRoundedRect(QRectF(2, 2, 60, 60), 12, 12);
    painter.setBrush(QColor(0xF2, 0xB1, 0x34));
    painter.drawEllipse(QPointF(45, 19), 8, 8);
    QPainterPath water;
    water.moveTo(2, 38);
    for (double x = 2; x <= 62; ++x)
        water.lineTo(x, 38 - 11 * std::sin((x - 2) / 60 * 2 * std::numbers::pi));
    water.lineTo(62, 50);
    water.quadTo(62, 62, 50, 62);
    water.lineTo(14, 62);
    water.quadTo(2, 62, 2, 50);
    water.closeSubpath();
    painter.setBrush(QColor(0x1F, 0x5F, 0x9E));
    painter.drawPath(water);
    return picture;
}

}  // namespace

void setappearance(QApplication& application) {
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setApplicationName("Tarvane Tides");
    QApplication::setApplicationDisplayName(QString());
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setPalette(lightpalette());
    QApplication::setFont(programfont());
    application.setWindowIcon(programicon());
}

QIcon programicon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256})
        icon.addPixmap(iconpicture(size));
    return icon;
}

}  // namespace tarvane
