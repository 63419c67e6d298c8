#include "reader/frmpageview.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

namespace tarvane {
namespace {

constexpr int margin = 12, gap = 12;  // logical pixels round and between the pages
constexpr double smallest = 0.25, largest = 4;
constexpr double mostpixels = 24e6;  // of a page's picture
constexpr std::size_t mostpictures = 8;
constexpr double pointsperinch = 72;

}  // namespace

PageView::PageView(QWidget* parent) : QAbstractScrollArea(parent) {
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);  // else fitting the width would change the width
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setBackgroundRole(QPalette::Mid);
    viewport()->setAutoFillBackground(true);
    verticalScrollBar()->setSingleStep(40);
    horizontalScrollBar()->setSingleStep(40);
}

void PageView::showdocument(QPdfDocument* shown) {
    document = shown;
    found.clear();
    chosenplace = -1;
    arrange();
    gotopage(0);
}

double PageView::pixelsperpoint() const {
    return logicalDpiX() / pointsperinch * zoomed;
}

/// Finds every page its place and the scroll bars their ranges.
void PageView::arrange() {
    places.clear();
    pictures.clear();
    const int count = document ? document->pageCount() : 0;
    QSizeF widest(1, 1);
    for (int page = 0; page < count; ++page)
        widest = widest.expandedTo(document->pagePointSize(page));
    const QSize room = viewport()->size() - QSize(2 * margin, 2 * margin);
    const double across = room.width() / widest.width(), down = room.height() / widest.height();
    const double density = logicalDpiX() / pointsperinch;
    if (fitting == Fit::width) zoomed = across / density;
    if (fitting == Fit::page) zoomed = std::min(across, down) / density;
    zoomed = std::clamp(zoomed, smallest, largest);
    const int whole = std::max(static_cast<int>(widest.width() * pixelsperpoint()) + 2 * margin, viewport()->width());
    int top = margin;
    for (int page = 0; page < count; ++page) {
        const QSize size = (document->pagePointSize(page) * pixelsperpoint()).toSize();
        places.emplace_back(QPoint((whole - size.width()) / 2, top), size);
        top += size.height() + gap;
    }
    // The last page can be brought to the top, so that every page can be the one that is read.
    const int height = viewport()->height();
    const int end = places.empty() ? 0 : std::max(top - gap + margin - height, places.back().top() - margin);
    verticalScrollBar()->setRange(0, std::max(end, 0));
    verticalScrollBar()->setPageStep(height * 9 / 10);
    horizontalScrollBar()->setRange(0, whole - viewport()->width());
    horizontalScrollBar()->setPageStep(viewport()->width());
    viewport()->update();
}

/// Arranges the pages anew with the same line at the top.
void PageView::arrangekeeping() {
    const int page = currentpage();
    const double before = pixelsperpoint();
    const double top = page < 0 ? 0 : (verticalScrollBar()->value() + margin - places[size_t(page)].top()) / before;
    arrange();
    if (page >= 0) gotopage(page, top);
    told();
}

int PageView::currentpage() const {
    if (places.empty()) return -1;
    const int top = verticalScrollBar()->value();
    for (int page = 0; page < pagecount(); ++page) {
        const QRect& place = places[static_cast<std::size_t>(page)];
        if (place.bottom() + gap >= top + std::min(viewport()->height() / 3, place.height() / 2)) return page;
    }
    return pagecount() - 1;
}

void PageView::gotopage(int page, double top) {
    if (places.empty()) return told();
    page = std::clamp(page, 0, pagecount() - 1);
    const int within = static_cast<int>(std::lround(top * pixelsperpoint()));
    verticalScrollBar()->setValue(places[static_cast<std::size_t>(page)].top() - margin + within);
    told();
}

void PageView::setfit(Fit wanted) {
    fitting = wanted;
    arrangekeeping();
}

void PageView::zoomby(double factor) {
    fitting = Fit::none;
    const int page = currentpage();
    const double top =
        page < 0 ? 0 : (verticalScrollBar()->value() + margin - places[size_t(page)].top()) / pixelsperpoint();
    zoomed = std::clamp(zoomed * factor, smallest, largest);
    arrange();
    gotopage(page, top);
    horizontalScrollBar()->setValue(horizontalScrollBar()->maximum() / 2);
}

void PageView::showfound(std::vector<FoundPlace> wanted, int chosen) {
    found = std::move(wanted);
    chosenplace = chosen;
    viewport()->update();
    if (chosen < 0 || chosen >= static_cast<int>(found.size())) return;
    const FoundPlace& place = found[static_cast<std::size_t>(chosen)];
    if (place.rectangles.isEmpty()) return;
    const QRectF first = place.rectangles.first();
    const double above = viewport()->height() / 3.0 / pixelsperpoint();
    gotopage(place.page, first.top() - above);
    const int left = static_cast<int>(placeof(place.page).left() + first.left() * pixelsperpoint());
    if (left < 0 || left > viewport()->width() - margin)
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() + left - viewport()->width() / 3);
}

/// A page's place on the viewport as it is scrolled.
QRect PageView::placeof(int page) const {
    return places[static_cast<std::size_t>(page)].translated(-horizontalScrollBar()->value(),
                                                             -verticalScrollBar()->value());
}

const QImage& PageView::picture(int page) {
    const auto kept = pictures.find(page);
    if (kept != pictures.end()) return kept->second;
    if (pictures.size() >= mostpictures) pictures.clear();
    QSizeF size = QSizeF(places[static_cast<std::size_t>(page)].size()) * devicePixelRatioF();
    const double many = size.width() * size.height() / mostpixels;
    if (many > 1) size /= std::sqrt(many);
    return pictures[page] = document->render(page, size.toSize());
}

void PageView::drawpage(QPainter& painter, int page) {
    const QRect place = placeof(page);
    painter.fillRect(place, Qt::white);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, picture(page));
    painter.setPen(QColor(0x90, 0x90, 0x90));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(place.adjusted(-1, -1, 0, 0));
    painter.setPen(Qt::NoPen);
    // Letters stay black under a colour that only darkens.
    painter.setCompositionMode(QPainter::CompositionMode_Multiply);
    for (std::size_t i = 0; i < found.size(); ++i) {
        if (found[i].page != page) continue;
        const bool chosen = static_cast<int>(i) == chosenplace;
        painter.setBrush(chosen ? QColor(0xFF, 0xB0, 0x40) : QColor(0xFF, 0xF0, 0x90));
        for (const QRectF& rectangle : found[i].rectangles) {
            const QPointF corner = QPointF(place.topLeft()) + rectangle.topLeft() * pixelsperpoint();
            painter.drawRect(QRectF(corner, rectangle.size() * pixelsperpoint()).adjusted(-1, -1, 1, 1));
        }
    }
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

void PageView::paintEvent(QPaintEvent*) {
    QPainter painter(viewport());
    for (int page = 0; page < pagecount(); ++page)
        if (placeof(page).intersects(viewport()->rect())) drawpage(painter, page);
}

void PageView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    arrangekeeping();
}

void PageView::scrollContentsBy(int, int) {
    viewport()->update();
    told();
}

void PageView::wheelEvent(QWheelEvent* event) {
    if (!(event->modifiers() & Qt::ControlModifier)) return QAbstractScrollArea::wheelEvent(event);
    if (event->angleDelta().y() != 0) zoomby(std::pow(1.25, event->angleDelta().y() / 120.0));
    event->accept();
}

void PageView::keyPressEvent(QKeyEvent* event) {
    const bool back = event->modifiers() & Qt::ShiftModifier;
    if (event->key() == Qt::Key_Space)
        verticalScrollBar()->triggerAction(back ? QScrollBar::SliderPageStepSub : QScrollBar::SliderPageStepAdd);
    else
        QAbstractScrollArea::keyPressEvent(event);
}

void PageView::told() {
    if (onchanged) onchanged();
}

}  // namespace tarvane
