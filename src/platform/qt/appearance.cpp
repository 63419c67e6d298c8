#include "platform/qt/appearance.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>
#include <QFontDatabase>
#include <QIcon>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <clocale>
#include <optional>

/// The pictures that are linked in. Outside the namespace, as the macro asks.
static void loadicons() {
    Q_INIT_RESOURCE(icons);
}

namespace tarvane {
namespace {

constexpr const char *darkproperty = "desktopdark", *pointsproperty = "desktopfontpoints";

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

/// The toolkit's own frames of boxes to be ticked are darker than the window, which in the dark nobody sees.
class Style : public QProxyStyle {
  public:
    Style() : QProxyStyle(QStyleFactory::create("Fusion")) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        if (element != PE_IndicatorCheckBox || option->palette.color(QPalette::Window).lightness() >= 128) return;
        painter->save();
        const auto group = option->state & State_Enabled ? QPalette::Normal : QPalette::Disabled;
        painter->setPen(option->palette.color(group, QPalette::PlaceholderText));
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
        painter->restore();
    }
};

/// Whether the desktop asks for dark windows, where it answers that at once; the palette alone doesn't tell it
/// everywhere.
std::optional<bool> desktopwish() {
    constexpr int patience = 200;  // ms
    constexpr uint dark = 1, light = 2;
    if (!qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS")) return std::nullopt;
    QDBusMessage question = QDBusMessage::createMethodCall(
        "org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop", "org.freedesktop.portal.Settings", "Read");
    question << "org.freedesktop.appearance"
             << "color-scheme";
    const QDBusReply<QDBusVariant> reply = QDBusConnection::sessionBus().call(question, QDBus::Block, patience);
    if (!reply.isValid()) return std::nullopt;
    QVariant scheme = reply.value().variant();
    // A value within a value.
    if (scheme.canConvert<QDBusVariant>()) scheme = scheme.value<QDBusVariant>().variant();
    if (scheme.toUInt() == dark) return true;
    return scheme.toUInt() == light ? std::optional(false) : std::nullopt;
}

}  // namespace

DesktopLook desktoplook() {
    constexpr double plain = 9;
    const QVariant points = qApp->property(pointsproperty);
    return {desktopwish().value_or(qApp->property(darkproperty).toBool()),
            points.isValid() ? points.toDouble() : plain};
}

void setappearance(QApplication& application) {
    application.setProperty(darkproperty, QApplication::palette().color(QPalette::Window).lightness() < 128);
    application.setProperty(pointsproperty, QApplication::font().pointSizeF());
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setApplicationName("Tarvane Tides");
    QApplication::setApplicationDisplayName(QString());
    QApplication::setStyle(new Style);
    QApplication::setPalette(lightpalette());
    QApplication::setFont(programfont());
    loadicons();
    application.setWindowIcon(programicon());
    // A desktop finds the program's entry, and so its name and icon, by this.
    QApplication::setDesktopFileName("local.tarvane.tides");
}

QIcon programicon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256})
        icon.addFile(QString(":/icons/tarvane-tides-%1.png").arg(size));
    return icon;
}

}  // namespace tarvane
