#include "platform/qt/modaldialog.h"

#include <QGuiApplication>
#include <QListWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

namespace tarvane {
namespace {

/// Rows of a list or a text that are worth looking at.
constexpr int fewestrows = 4;

const QScreen* screenof(const QWidget* over) {
    return over ? over->screen() : QGuiApplication::primaryScreen();
}

/// What the frame adds to a window; before a window is up the desktop hasn't told, and the style's own frame stands in.
QSize frameof(const QWidget& window) {
    const QSize told = window.frameGeometry().size() - window.size();
    if (!told.isNull()) return told;
    const int border = window.style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth, nullptr, &window);
    const int title = window.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window);
    return {2 * border, title + 2 * border};
}

bool fits(QSize size, QSize room) {
    return size.width() <= room.width() && size.height() <= room.height();
}

/// Gives up the rows that lists and texts were promised; the layout gives them what is left.
void shrinkrows(const QWidget& window) {
    for (auto* rows : window.findChildren<QAbstractScrollArea*>()) {
        if (rows->window() != &window || qobject_cast<QScrollArea*>(rows)) continue;
        const int few = fewestrows * rows->fontMetrics().lineSpacing() + 2 * rows->frameWidth();
        if (rows->minimumHeight() > few) rows->setMinimumHeight(few);
    }
}

/// Moves the controls closer together.
void tighten(const QWidget& window) {
    constexpr int spacing = 2, margin = 5;
    for (auto* layout : window.findChildren<QLayout*>()) {
        const QMargins around = layout->contentsMargins();
        layout->setSpacing(spacing);
        layout->setContentsMargins(std::min(around.left(), margin), std::min(around.top(), margin),
                                   std::min(around.right(), margin), std::min(around.bottom(), margin));
    }
}

/// A borderless area that scrolls what doesn't fit into it.
QScrollArea* scrolling(QWidget* contents) {
    auto* area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setWidget(contents);
    return area;
}

/// The room that contents take with the scroll bars that they will have.
QSize withscrollbars(const QScrollArea& area, QSize contents, QSize room) {
    const QSize bars(area.verticalScrollBar()->sizeHint().width(), area.horizontalScrollBar()->sizeHint().height());
    if (contents.height() > room.height()) contents.rwidth() += bars.width();
    if (contents.width() > room.width()) contents.rheight() += bars.height();
    return contents;
}

/// Takes the limits off that a layout has set.
void freesize(QWidget& window) {
    window.setMinimumSize(0, 0);
    window.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}

/// The least size of a window's layout whose controls have changed. A layout asks what stands in it only once, so the
/// inner ones are made to forget first.
QSize leastsize(QWidget& window) {
    auto parts = window.findChildren<QWidget*>();
    parts.prepend(&window);
    for (auto part = parts.crbegin(); part != parts.crend(); ++part) {
        QLayout* const layout = (*part)->layout();
        if (!layout) continue;
        layout->invalidate();
        layout->activate();
    }
    return window.layout()->totalMinimumSize();
}

void fitlayout(QWidget& window, QSize room) {
    QLayout& layout = *window.layout();
    if (fits(layout.totalMinimumSize(), room) && fits(window.size(), room)) return;
    QSize wanted = window.size();
    layout.setSizeConstraint(QLayout::SetDefaultConstraint);
    shrinkrows(window);
    freesize(window);
    if (!fits(leastsize(window), room)) tighten(window);
    if (const QSize needed = leastsize(window); !fits(needed, room)) {
        QWidget* const focus = window.focusWidget();
        auto* const contents = new QWidget;
        contents->setLayout(&layout);  // takes the controls along
        QScrollArea* const area = scrolling(contents);
        auto* const whole = new QVBoxLayout(&window);
        whole->setContentsMargins(0, 0, 0, 0);
        whole->addWidget(area);
        wanted = withscrollbars(*area, needed.expandedTo(wanted.boundedTo(room)), room);
        freesize(window);
        if (focus) focus->setFocus();
    }
    window.resize(wanted.boundedTo(room));
}

void fitmainwindow(QMainWindow& window, QSize room) {
    const QSize smallest = window.minimumSize();
    if (!fits(smallest, room)) {
        window.setMinimumSize(smallest.boundedTo(room));
        QWidget* const surface = window.takeCentralWidget();
        surface->setMinimumSize(smallest - QSize(0, window.menuBar()->sizeHint().height()));
        QScrollArea* const area = scrolling(surface);
        window.setCentralWidget(area);
        window.resize(withscrollbars(*area, window.size(), room).boundedTo(room));
    }
    window.resize(window.size().boundedTo(room));
}

}  // namespace

ModalDialog::ModalDialog(const char* name, const char* title, QWidget* parent) : QDialog(parent) {
    setObjectName(QLatin1String(name));
    setWindowTitle(QString::fromUtf8(title));
}

void ModalDialog::settle(QPushButton* enter, QWidget* focus) {
    if (enter) enter->setDefault(true);
    focus->setFocus();
    resize(sizeHint());
    fitscreen(*this);
    centreon(*this, parentWidget() ? parentWidget()->window() : nullptr);
}

void ModalDialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    for (auto* list : findChildren<QListWidget*>())
        if (list->currentItem()) list->scrollToItem(list->currentItem(), QAbstractItemView::PositionAtCenter);
    for (auto* area : findChildren<QScrollArea*>())
        if (area->isAncestorOf(focusWidget())) area->ensureWidgetVisible(focusWidget());
}

void setrowsinview(QAbstractItemView& list, int rows) {
    const int rowheight = std::max(list.sizeHintForRow(0), list.fontMetrics().lineSpacing());
    list.setMinimumHeight(rows * rowheight + 2 * list.frameWidth());
}

void centreon(QWidget& window, const QWidget* over) {
    const QScreen* screen = screenof(over);
    if (!screen) return;
    const QRect room = screen->availableGeometry();
    QRect place(QPoint(), window.size() + frameof(window));
    place.moveCenter(over ? over->frameGeometry().center() : room.center());
    place.moveRight(std::min(place.right(), room.right()));
    place.moveBottom(std::min(place.bottom(), room.bottom()));
    place.moveLeft(std::max(place.left(), room.left()));
    place.moveTop(std::max(place.top(), room.top()));
    window.move(place.topLeft());
}

void fitscreen(QWidget& window) {
    const QScreen* screen = screenof(window.parentWidget());
    if (screen) fitroom(window, screen->availableGeometry().size() - frameof(window));
}

void fitroom(QWidget& window, QSize room) {
    if (auto* const mainwindow = qobject_cast<QMainWindow*>(&window)) return fitmainwindow(*mainwindow, room);
    if (window.layout()) return fitlayout(window, room);
    window.setMinimumSize(window.minimumSize().boundedTo(room));
    window.resize(window.size().boundedTo(room));
}

}  // namespace tarvane
