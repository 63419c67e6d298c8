#include "platform/qt/foldingbox.h"

#include <QEvent>
#include <algorithm>

namespace tarvane {

FoldingBox::FoldingBox(QWidget* first, QWidget* second, int firststretch, int secondstretch) {
    halves = new QBoxLayout(QBoxLayout::LeftToRight, this);
    halves->setContentsMargins(0, 0, 0, 0);
    halves->addWidget(first, firststretch);
    halves->addWidget(second, secondstretch);
}

QSize FoldingBox::minimumSizeHint() const {
    return {std::max(leastwidth(0), leastwidth(1)), halves->totalMinimumSize().height()};
}

int FoldingBox::leastwidth(int half) const {
    return halves->itemAt(half)->minimumSize().width();
}

void FoldingBox::fold() {
    const int both = leastwidth(0) + halves->spacing() + leastwidth(1);
    const auto wanted = width() < both ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight;
    if (halves->direction() == wanted) return;
    halves->setDirection(wanted);
    updateGeometry();
}

void FoldingBox::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    fold();
}

bool FoldingBox::event(QEvent* event) {
    // A half may have come to need more or less.
    if (event->type() == QEvent::LayoutRequest) fold();
    return QWidget::event(event);
}

}  // namespace tarvane
