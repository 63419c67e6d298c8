#include "paint/frmlightpalette.h"

#include <QPainter>
#include <QToolButton>

#include "platform/qt/appearance.h"

namespace tarvane {

QPalette paletteof(const Colours& colours) {
    const auto colour = [](Rgb rgb) { return QColor::fromRgb(rgb); };
    QPalette palette(colour(colours.band));
    palette.setColor(QPalette::Window, colour(colours.band));
    palette.setColor(QPalette::Base, colour(colours.field));
    palette.setColor(QPalette::AlternateBase, colour(colours.band));
    palette.setColor(QPalette::Button, colour(colours.band));
    palette.setColor(QPalette::ToolTipBase, colour(colours.band));
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText, QPalette::BrightText})
        palette.setColor(role, colour(colours.text));
    palette.setColor(QPalette::PlaceholderText, colour(colours.faint));
    // Halfway to what they stand on: to be seen as idle, and still to be read.
    const auto half = [](int one, int other) { return (one + other) / 2; };
    const QColor idle(half(palette.text().color().red(), palette.window().color().red()),
                      half(palette.text().color().green(), palette.window().color().green()),
                      half(palette.text().color().blue(), palette.window().color().blue()));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText})
        palette.setColor(QPalette::Disabled, role, idle);
    palette.setColor(QPalette::Highlight, colour(colours.curve));
    palette.setColor(QPalette::HighlightedText, colour(colours.paper));
    palette.setColor(QPalette::Link, colour(colours.curve));
    return palette;
}

void lightclearmark(QLineEdit& box, const Colours& colours) {
    auto* const button = box.findChild<QToolButton*>();
    if (!button) return;
    constexpr int size = 32, inset = 9;
    QPixmap mark(size, size);
    mark.fill(Qt::transparent);
    QPainter painter(&mark);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor::fromRgb(colours.text), 3));
    painter.drawLine(inset, inset, size - inset, size - inset);
    painter.drawLine(inset, size - inset, size - inset, inset);
    painter.end();
    button->setIcon(QIcon(mark));
}

Lighting lightingof(bool night) {
    if (night) return Lighting::night;
    return desktoplook().dark ? Lighting::dark : Lighting::day;
}

}  // namespace tarvane
