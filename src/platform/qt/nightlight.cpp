#include "platform/qt/nightlight.h"

#include <QApplication>
#include <QBackingStore>
#include <QEvent>
#include <QImage>
#include <QPaintEvent>
#include <QPainter>
#include <QWidget>
#include <algorithm>

namespace tarvane {
namespace {

constexpr const char* nightproperty = "tarvanenight";

/// Black on white becomes red on black; greys lie between.
QRgb redlight(QRgb colour) {
    const int light = 255 - qGray(colour);
    return qRgb(light, light / 5, light / 6);
}

/// Lies over all that stands in a window, lets the mouse through, and turns red what was painted under it: a window
/// paints what lies below first, whatever part of it is painted anew.
class RedLight : public QWidget {
  public:
    explicit RedLight(QWidget& window) : QWidget(&window) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFocusPolicy(Qt::NoFocus);
        setGeometry(window.rect());
        raise();
        show();
    }

  protected:
    void paintEvent(QPaintEvent* event) override {
        QPaintDevice* device = backingStore() ? backingStore()->paintDevice() : nullptr;
        auto* image = device && device->devType() == QInternal::Image ? static_cast<QImage*>(device) : nullptr;
        if (!image || image->depth() != 32) {
            QPainter(this).fillRect(event->rect(), QColor(40, 0, 0, 190));
            return;
        }
        const double ratio = image->devicePixelRatio();
        for (const QRect& part : event->region()) {
            const QRect place(mapTo(window(), part.topLeft()), part.size());
            const QRect pixels = QRectF(QPointF(place.topLeft()) * ratio, QSizeF(place.size()) * ratio).toAlignedRect();
            const QRect inside = pixels & image->rect();
            for (int y = inside.top(); y <= inside.bottom(); ++y) {
                QRgb* line = reinterpret_cast<QRgb*>(image->scanLine(y)) + inside.left();
                std::transform(line, line + inside.width(), line, redlight);
            }
        }
    }
};

RedLight* redlightof(const QWidget& window) {
    for (QObject* child : window.children())
        if (auto* found = dynamic_cast<RedLight*>(child)) return found;
    return nullptr;
}

/// The window sees to its own colours, or pops up from one that does. A dialog never takes those of its owner.
bool seestoitself(const QWidget* window) {
    if (window->property(ownlight).toBool()) return true;
    if (window->windowType() != Qt::Popup) return false;
    for (; window; window = window->parentWidget())
        if (window->property(ownlight).toBool()) return true;
    return false;
}

void light(QWidget& window, bool on) {
    RedLight* known = redlightof(window);
    if (!on) delete known;
    if (on && !known && window.windowType() != Qt::ToolTip && !seestoitself(&window)) new RedLight(window);
}

}  // namespace

bool nightison() {
    return qApp->property(nightproperty).toBool();
}

void NightLight::set(bool on) {
    if (on == on_) return;
    on_ = on;
    qApp->setProperty(nightproperty, on);
    for (QWidget* window : QApplication::topLevelWidgets())
        if (!on || window->isVisible()) light(*window, on);
    if (on)
        qApp->installEventFilter(this);
    else
        qApp->removeEventFilter(this);
}

bool NightLight::eventFilter(QObject* watched, QEvent* event) {
    auto* window = qobject_cast<QWidget*>(watched);
    if (!window || !window->isWindow()) return false;
    if (event->type() == QEvent::Show) light(*window, on_);
    RedLight* over =
        event->type() == QEvent::Resize || event->type() == QEvent::ChildPolished ? redlightof(*window) : nullptr;
    if (over) {
        over->setGeometry(window->rect());
        over->raise();
    }
    return false;
}

}  // namespace tarvane
