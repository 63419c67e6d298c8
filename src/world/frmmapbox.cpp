#include "world/frmmapbox.h"

#include <QApplication>
#include <QFontInfo>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>

#include "platform/qt/paintercanvas.h"

namespace tarvane {
namespace {

constexpr double keystep = 60;         // logical pixels
constexpr double closeenough = 20000;  // a scale: neighbouring ports are told apart

}  // namespace

MapBox::MapBox(const std::string& programfolder, QWidget* parent)
    : ZoomBox("map", "Map of the ports", 1.4, parent), coast_(readcoast(programfolder)) {}

void MapBox::setports(World world, const std::string& first) {
    world_ = std::move(world);
    ports_ = mapports(world_, first);
    pointed_.reset();
    inhand_.reset();
    redraw();
}

const MapPort* MapBox::inhandport() const {
    const auto found =
        std::find_if(ports_.begin(), ports_.end(), [&](const MapPort& each) { return inhand_ == each.place; });
    return found == ports_.end() ? nullptr : &*found;
}

std::optional<std::size_t> MapBox::pointed() const {
    if (!pointed_) return std::nullopt;
    return ports_[*pointed_].place;
}

void MapBox::setinhand(std::optional<std::size_t> place) {
    if (place == inhand_) return;
    inhand_ = place;
    if (const MapPort* port = inhandport(); port && fitted_) {
        const Place mark = view_.placeof(port->point);
        if (!Area{0, 0, view_.width, view_.height}.holds(mark)) centreview(view_, port->point);
    }
    redraw();
}

QSize MapBox::sizeHint() const {
    return {fontMetrics().averageCharWidth() * 60, fontMetrics().height() * 30};
}

MapPicture MapBox::picture() const {
    return {.coast = coast_,
            .world = world_,
            .ports = ports_,
            .view = view_,
            .look = *look,
            .textsize = double(QFontInfo(font()).pixelSize()),
            .inhand = inhand_};
}

void MapBox::paintstill(Canvas& canvas) {
    paintmap(canvas, picture());
}

void MapBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    showstill(painter);
    PainterCanvas canvas(painter, font());
    if (pointed_) paintpointed(canvas, picture(), *pointed_);
    if (hasFocus())
        canvas.line(std::array{Place{1, 1}, Place{view_.width - 1, 1}, Place{view_.width - 1, view_.height - 1},
                               Place{1, view_.height - 1}, Place{1, 1}},
                    {look->curve, 2});
}

void MapBox::resizeEvent(QResizeEvent*) {
    resizeview(view_, width(), height());
    // At first, and until the user goes elsewhere.
    if (!fitted_) {
        fitports();
        fitted_ = false;
    }
    redraw();
}

void MapBox::zoomabout(double factor, QPointF about) {
    zoomview(view_, factor, {about.x(), about.y()});
    fitted_ = true;
    point(std::nullopt);
    redraw();
}

void MapBox::zoom(double factor) {
    const std::optional<std::size_t> kept = pointed_;
    const Place about = kept ? view_.placeof(ports_[*kept].point) : Place{width() / 2.0, height() / 2.0};
    zoomabout(factor, {about.x, about.y});
    if (kept && ports_[*kept].depth <= depthof(view_)) point(kept);
}

void MapBox::goinhand() {
    if (const MapPort* port = inhandport()) gopoint(port->point);
}

void MapBox::goport(std::size_t place) {
    pointat(place);
    if (pointed_) gopoint(ports_[*pointed_].point);
}

void MapBox::gopoint(const MapPoint& point) {
    view_.scale = std::max(view_.scale, closeenough);
    centreview(view_, point);
    fitted_ = true;
    redraw();
}

void MapBox::fit(const std::function<bool(const MapPort&)>& wanted) {
    std::vector<MapPoint> points;
    for (const MapPort& each : ports_)
        if (wanted(each)) points.push_back(each.point);
    fitview(view_, points);
    fitted_ = true;
    redraw();
}

void MapBox::fitports() {
    fit([](const MapPort&) { return true; });
}

void MapBox::fitarea(std::size_t area) {
    fit([&](const MapPort& each) { return world_.ports[each.place].area == area; });
}

void MapBox::wholeworld() {
    showworld(view_);
    fitted_ = true;
    redraw();
}

void MapBox::point(std::optional<std::size_t> port) {
    if (port != pointed_) {
        pointed_ = port;
        update();
    }
    QString told;
    if (port)
        for (const std::string& each : porttexts(world_, ports_[*port]))
            told += (told.isEmpty() ? "" : ", ") + QString::fromStdString(each);
    setAccessibleDescription(told);
    if (onpointed) onpointed();
}

void MapBox::pointat(std::optional<std::size_t> place) {
    const auto found =
        std::find_if(ports_.begin(), ports_.end(), [&](const MapPort& each) { return place == each.place; });
    point(found == ports_.end() ? std::nullopt : std::optional(static_cast<std::size_t>(found - ports_.begin())));
}

void MapBox::choose(std::size_t port) {
    if (onport) onport(ports_[port].place);
}

void MapBox::mouseMoveEvent(QMouseEvent* event) {
    const QPointF at = event->position();
    if (draggedfrom_) {
        dragging_ = dragging_ || (at - *pressedat_).manhattanLength() >= QApplication::startDragDistance();
        if (!dragging_) return;
        setCursor(Qt::ClosedHandCursor);
        const QPointF moved = at - *draggedfrom_;
        draggedfrom_ = at;
        moveview(view_, moved.x(), moved.y());
        fitted_ = true;
        return redraw();
    }
    mouseat_ = view_.pointof({at.x(), at.y()});
    const auto hit = hitport(ports_, view_, {at.x(), at.y()}, inhand_);
    setCursor(hit ? Qt::PointingHandCursor : Qt::ArrowCursor);
    point(hit);
}

void MapBox::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    pressedat_ = draggedfrom_ = event->position();
    dragging_ = false;
}

void MapBox::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !draggedfrom_) return;
    draggedfrom_.reset();
    unsetCursor();
    if (std::exchange(dragging_, false)) return;
    const QPointF at = event->position();
    if (const auto hit = hitport(ports_, view_, {at.x(), at.y()}, inhand_)) choose(*hit);
}

void MapBox::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) zoomabout(2, event->position());
}

void MapBox::wheelEvent(QWheelEvent* event) {
    zoomturned(event->angleDelta().y(), event->position());
    event->accept();
}

void MapBox::leaveEvent(QEvent*) {
    if (!mouseat_) return;
    mouseat_.reset();
    point(std::nullopt);
}

void MapBox::keyPressEvent(QKeyEvent* event) {
    const auto pan = [&](double right, double down) {
        moveview(view_, right, down);
        fitted_ = true;
        redraw();
    };
    steppedout_ = event->key() == Qt::Key_Escape && pointed_;
    switch (event->key()) {
        case Qt::Key_Left:
            return pan(keystep, 0);
        case Qt::Key_Right:
            return pan(-keystep, 0);
        case Qt::Key_Up:
            return pan(0, keystep);
        case Qt::Key_Down:
            return pan(0, -keystep);
        case Qt::Key_Plus:
        case Qt::Key_Equal:
            return zoom(zoomstep);
        case Qt::Key_Minus:
            return zoom(1 / zoomstep);
        case Qt::Key_Home:
            return goinhand();
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (pointed_) return choose(*pointed_);
            break;
        case Qt::Key_Escape:
            if (pointed_) return point(std::nullopt);
            break;
        default:
            break;
    }
    QWidget::keyPressEvent(event);
}

/// Tab goes from port to port, those nearest to the middle first; behind the last, or after Escape, to the next
/// control.
bool MapBox::focusNextPrevChild(bool next) {
    if (std::exchange(steppedout_, false) || focusPolicy() == Qt::NoFocus) return QWidget::focusNextPrevChild(next);
    const std::vector<std::size_t> seen = portsfrommiddle(ports_, view_);
    const auto at = pointed_ ? std::find(seen.begin(), seen.end(), *pointed_) : seen.end();
    const bool within =
        next ? !seen.empty() && (at == seen.end() || at + 1 != seen.end()) : at != seen.end() && at != seen.begin();
    if (!within) {
        point(std::nullopt);
        return QWidget::focusNextPrevChild(next);
    }
    point(at == seen.end() ? seen.front() : next ? *(at + 1) : *(at - 1));
    return true;
}

}  // namespace tarvane
