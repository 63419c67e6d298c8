#include "platform/qt/windowplaces.h"

#include <QApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QScreen>
#include <QWidget>

#include "files/wholefiles.h"

namespace tarvane {
namespace {

constexpr int settling = 1000;  // ms
constexpr const char* restored = "placerestored";
constexpr int leastseen = 60;  // so much of a window's head lies on a screen

/// The program's own windows have names; the toolkit's dialogs have none that are theirs.
bool isours(const QWidget& window) {
    const Qt::WindowType type = window.windowType();
    return window.isWindow() && (type == Qt::Window || type == Qt::Dialog) &&
           window.objectName().startsWith(QLatin1String("frm"), Qt::CaseInsensitive);
}

bool seen(const QRect& window) {
    const QRect head(window.topLeft(), QSize(window.width(), leastseen));
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QRect part = screen->availableGeometry() & head;
        if (part.width() >= leastseen && part.height() >= leastseen / 2) return true;
    }
    return false;
}

QString sizetext(QSize size) {
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

}  // namespace

WindowPlaces::WindowPlaces(const std::string& path)
    : path_(path), places_(QJsonDocument::fromJson(QByteArray::fromStdString(wholetext(path))).object()) {
    settled_.setSingleShot(true);
    settled_.setInterval(settling);
    connect(&settled_, &QTimer::timeout, this, [this] { keepall(); });
}

void WindowPlaces::restore(QWidget& window) const {
    const QJsonObject place = places_[window.objectName()].toObject();
    const auto number = [&](const char* name) { return place[QLatin1String(name)].toInt(); };
    QRect wanted(number("left"), number("top"), number("width"), number("height"));
    const QScreen* screen = QGuiApplication::screenAt(wanted.center());
    if (place.isEmpty() || !seen(wanted) || !screen) return;
    const QSize room = screen->availableGeometry().size();
    // A size is of the screen, and its scaling, that it was chosen on.
    if (place.contains("screen") && place["screen"].toString() != sizetext(screen->size())) return;
    wanted.setSize(wanted.size().boundedTo(room).expandedTo(window.minimumSize()).boundedTo(window.maximumSize()));
    window.setGeometry(wanted);
    if (place["maximized"].toBool()) window.setWindowState(window.windowState() | Qt::WindowMaximized);
}

void WindowPlaces::keep(const QWidget& window) {
    if (window.isMinimized()) return;
    const QRect stands = window.isMaximized() ? window.normalGeometry() : window.geometry();
    const QJsonObject place{{"screen", sizetext(window.screen()->size())},
                            {"left", stands.left()},
                            {"top", stands.top()},
                            {"width", stands.width()},
                            {"height", stands.height()},
                            {"maximized", window.isMaximized()}};
    if (places_[window.objectName()] == place) return;
    places_[window.objectName()] = place;
    // A place that can't be kept is nothing that the user has entered.
    replacefile(path_, QJsonDocument(places_).toJson().toStdString());
}

void WindowPlaces::keepall() {
    for (const QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && isours(*window)) keep(*window);
}

bool WindowPlaces::eventFilter(QObject* watched, QEvent* event) {
    auto* window = qobject_cast<QWidget*>(watched);
    const bool shown = event->type() == QEvent::Show, hidden = event->type() == QEvent::Hide;
    const bool moved = event->type() == QEvent::Move || event->type() == QEvent::Resize;
    if (moved && window && window->isVisible() && isours(*window)) settled_.start();
    if (window && (shown || hidden) && !event->spontaneous() && isours(*window)) {
        if (hidden) keep(*window);
        if (shown && !window->property(restored).toBool()) {
            window->setProperty(restored, true);
            restore(*window);
        }
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace tarvane
