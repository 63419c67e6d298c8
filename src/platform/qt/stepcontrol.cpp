#include "platform/qt/stepcontrol.h"

#include <QKeyEvent>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <algorithm>

namespace tarvane {
namespace {

constexpr int notch = 120;  ///< of a wheel

QToolButton* arrow(Qt::ArrowType type) {
    auto* button = new QToolButton;
    button->setArrowType(type);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setFixedWidth(18);
    button->setMinimumHeight(9);
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    return button;
}

}  // namespace

StepArrows::StepArrows(QWidget* parent) : QWidget(parent) {
    up = arrow(Qt::UpArrow);
    down = arrow(Qt::DownArrow);
    auto* both = new QVBoxLayout(this);
    both->setContentsMargins(0, 0, 0, 0);
    both->setSpacing(0);
    both->addWidget(up);
    both->addWidget(down);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
    connect(up, &QToolButton::clicked, this, [this] { steps(1); });
    connect(down, &QToolButton::clicked, this, [this] { steps(-1); });
}

void StepArrows::steps(int by) {
    if (by != 0 && onstep) onstep(by);
}

void StepArrows::serve(QWidget& box) {
    box.installEventFilter(this);
}

bool StepArrows::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent&>(*event).key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            steps(key == Qt::Key_Up ? 1 : -1);
            return true;
        }
    }
    if (event->type() == QEvent::Wheel && static_cast<QWidget*>(watched)->hasFocus()) {
        wheeled += static_cast<QWheelEvent&>(*event).angleDelta().y();
        steps(wheeled / notch);
        wheeled %= notch;
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

StepControl::StepControl(int least, int most, QWidget* parent) : StepArrows(parent), lowest(least), highest(most) {
    onstep = [this](int by) { step(by); };
}

void StepControl::setvalue(int value) {
    current = std::clamp(value, lowest, highest);
}

void StepControl::step(int by) {
    const int before = current;
    setvalue(current + by);
    if (current != before && onchange) onchange(current);
}

}  // namespace tarvane
