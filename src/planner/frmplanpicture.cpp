#include "planner/frmplanpicture.h"

#include <QFontInfo>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <cmath>

#include "planner/plantexts.h"
#include "platform/qt/paintercanvas.h"

namespace tarvane {
namespace {

/// "Sat 18 Jul 05:40 BST: 4.42 m, rising 0.8 m/h" as lines.
std::vector<std::string> bubblelines(const std::string& text) {
    std::vector<std::string> lines;
    std::string rest = text;
    for (const char* part : {": ", ", ", ", "}) {
        const std::size_t at = rest.find(part);
        if (at == std::string::npos) break;
        lines.push_back(rest.substr(0, at));
        rest.erase(0, at + 2);
    }
    lines.push_back(rest);
    return lines;
}

}  // namespace

PlanPictureBox::PlanPictureBox(PlanView& owner, const Services& all, QWidget* parent)
    : ZoomBox("picture", "Tides of the days, with the windows of passage", 1.25, parent), view(owner), services(all) {}

void PlanPictureBox::redraw() {
    // What the mouse does ahead of the next painting goes by the part shown already.
    scale.from = view.from;
    scale.to = view.to;
    ZoomBox::redraw();
}

QSize PlanPictureBox::sizeHint() const {
    return {fontMetrics().averageCharWidth() * 150, fontMetrics().height() * 14};
}

std::optional<PlanPicture> PlanPictureBox::picture() const {
    if (!view.plan) return std::nullopt;
    return PlanPicture{.plan = *view.plan,
                       .locale = services.locale,
                       .look = *look,
                       .area = {0, 0, double(width()), double(height())},
                       .from = view.from,
                       .to = view.to,
                       .passage = passageof(view),
                       .access = &view.access,
                       .textsize = double(QFontInfo(font()).pixelSize())};
}

void PlanPictureBox::paintstill(Canvas& canvas) {
    if (const auto shown = picture()) {
        scale = scaleof(*shown, canvas);
        worded = paintplan(canvas, *shown, scale);
        return;
    }
    canvas.fill(Area{0, 0, double(width()), double(height())}, look->paper);
    const TextLook words{look->text, double(QFontInfo(font()).pixelSize()), false, Anchor::middle};
    canvas.text({width() / 2.0, height() / 2.0}, view.whynot, words);
}

void PlanPictureBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    showstill(painter);
    const auto shown = picture();
    if (!shown) return;
    PainterCanvas canvas(painter, font());
    paintnow(canvas, *shown, scale, worded, services.clock.moment());
    if (!view.cursor) return;
    paintcursor(canvas, *shown, scale, worded, *view.cursor,
                bubblelines(momenttext(*view.plan, *view.cursor, shown->passage, services.locale)));
}

void PlanPictureBox::putat(std::optional<Moment> at) {
    const Moment before = view.from;
    if (at && view.plan)
        putcursor(view, *at);
    else
        view.cursor.reset();
    if (view.from != before) redraw();
    update();
    if (oncursor) oncursor();
}

void PlanPictureBox::mouseMoveEvent(QMouseEvent* event) {
    if (!view.plan) return;
    const double x = event->position().x();
    if (draggedfrom && scale.plot.width() > 0) {
        const double seconds = (*draggedfrom - x) / scale.plot.width() * double((view.to - view.from).count());
        draggedfrom = x;
        moveplan(view, std::chrono::seconds(std::llround(seconds)));
        return redraw();
    }
    if (scale.plot.width() <= 0) return;
    bymouse = true;
    const bool inside = scale.plot.holds({x, event->position().y()});
    putat(inside ? std::optional(std::chrono::round<std::chrono::minutes>(scale.moment(x))) : std::nullopt);
}

void PlanPictureBox::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) draggedfrom = event->position().x();
}

void PlanPictureBox::mouseReleaseEvent(QMouseEvent*) {
    draggedfrom.reset();
}

void PlanPictureBox::mouseDoubleClickEvent(QMouseEvent* event) {
    if (!view.plan || scale.plot.width() <= 0 || event->button() != Qt::LeftButton) return;
    if (view.from >= view.to) return;
    const Moment at = std::clamp(scale.moment(event->position().x()), view.from, view.to - std::chrono::seconds(1));
    if (onday) onday(view.plan->clock().at(at).date);
}

void PlanPictureBox::zoomabout(double factor, QPointF about) {
    if (!view.plan || scale.plot.width() <= 0) return;
    zoomplan(view, 1 / factor, std::clamp(scale.moment(about.x()), view.from, view.to));
    redraw();
}

void PlanPictureBox::wheelEvent(QWheelEvent* event) {
    const QPoint turned = event->angleDelta();
    // Sideways, or with Shift, the wheel moves.
    const int along = turned.x() != 0 ? turned.x() : event->modifiers() & Qt::ShiftModifier ? turned.y() : 0;
    if (along != 0) {
        moveplan(view,
                 std::chrono::seconds(std::llround(-along / wheelclick / 8 * double((view.to - view.from).count()))));
        redraw();
    } else {
        zoomturned(turned.y(), event->position());
    }
    event->accept();
}

void PlanPictureBox::leaveEvent(QEvent*) {
    if (bymouse) putat(std::nullopt);
    bymouse = false;
}

void PlanPictureBox::walk(std::chrono::minutes by) {
    if (!view.plan) return;
    const Moment now = services.clock.moment();
    const Moment start = now >= view.from && now < view.to ? std::chrono::floor<std::chrono::minutes>(now) : view.from;
    putat(view.cursor ? *view.cursor + by : start);
}

void PlanPictureBox::walkwater(bool forwards) {
    if (!view.plan) return;
    const Moment at = view.cursor.value_or(view.from);
    std::optional<Moment> next;
    for (const PlannedWater& each : view.plan->waters()) {
        if (forwards && each.moment > at && !next) next = each.moment;
        if (!forwards && each.moment < at) next = each.moment;
    }
    if (next) putat(next);
}

void PlanPictureBox::gonow() {
    if (!view.plan) return;
    const Moment now = std::chrono::floor<std::chrono::minutes>(services.clock.moment());
    if (now < view.plan->begins() || now >= view.plan->ends()) {
        if (onnow) onnow();
        if (!view.plan) return;
    }
    putat(now);
}

void PlanPictureBox::keyPressEvent(QKeyEvent* event) {
    using std::chrono::minutes;
    bymouse = false;
    const bool fine = event->modifiers() & Qt::ShiftModifier, waters = event->modifiers() & Qt::ControlModifier;
    const minutes step(fine ? 1 : 10);
    const QPointF about(view.cursor ? scale.x(*view.cursor) : (scale.plot.left + scale.plot.right) / 2, 0);
    switch (event->key()) {
        case Qt::Key_Left:
            return waters ? walkwater(false) : walk(-step);
        case Qt::Key_Right:
            return waters ? walkwater(true) : walk(step);
        case Qt::Key_Home:
            return gonow();
        case Qt::Key_Plus:
            return zoomabout(zoomstep, about);
        case Qt::Key_Minus:
            return zoomabout(1 / zoomstep, about);
        case Qt::Key_Escape:
            if (view.cursor) return putat(std::nullopt);
            break;
        default:
            break;
    }
    QWidget::keyPressEvent(event);
}

}  // namespace tarvane
