#include "platform/qt/steadybox.h"

#include <QEvent>
#include <QStyle>
#include <algorithm>

namespace tarvane {

SteadyBox::SteadyBox(const std::vector<QLabel*>& texts, int least) : labels(texts), leastwidth(least) {
    for (QLabel* label : labels)
        label->setParent(this);
    lay();
}

void SteadyBox::lay() {
    const int wide = std::max(width(), leastwidth);
    const int gap = style()->pixelMetric(QStyle::PM_LayoutVerticalSpacing, nullptr, this);
    int top = 0;
    for (QLabel* label : labels) {
        const int wanted = label->wordWrap() ? label->heightForWidth(wide) : label->sizeHint().height();
        const int tall = std::max(wanted, label->minimumHeight());
        const int room = label == labels.back() ? std::max(tall, height() - top) : tall;
        label->setGeometry(0, top, wide, room);
        top += tall + gap;
    }
    if (top - gap == needed) return;
    needed = top - gap;
    updateGeometry();
}

void SteadyBox::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    lay();
}

bool SteadyBox::event(QEvent* event) {
    // What changes while it is hidden isn't told.
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Show) lay();
    return QWidget::event(event);
}

}  // namespace tarvane
