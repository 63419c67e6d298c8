#include "platform/qt/datebox.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QMenu>
#include <QTextCharFormat>
#include <QWidgetAction>

#include "platform/qt/qtlocale.h"

namespace tarvane {
namespace {

constexpr int juliandayofepoch = 2440588;

/// The toolkit's own.
constexpr auto previousmonth = "qt_calendar_prevmonth", nextmonth = "qt_calendar_nextmonth";

QDate calendarday(DateBox::Date date) {
    return QDate::fromJulianDay(date.time_since_epoch().count() + juliandayofepoch);
}

}  // namespace

DateBox::DateBox(Date first, Date last) : arrow(new QToolButton) {
    calendar = new QCalendarWidget;
    calendar->setLocale(systemdatelocale());
    calendar->setFirstDayOfWeek(calendar->locale().firstDayOfWeek());
    calendar->setDateRange(calendarday(first), calendarday(last));
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    // Arrows of the palette's colour, where the style has pictures of its own.
    for (const auto& [name, type] : {std::pair(previousmonth, Qt::LeftArrow), {nextmonth, Qt::RightArrow}})
        if (auto* const step = calendar->findChild<QToolButton*>(QLatin1String(name))) step->setArrowType(type);
    auto* const menu = new QMenu(arrow);
    auto* const entry = new QWidgetAction(menu);
    entry->setDefaultWidget(calendar);
    menu->addAction(entry);
    arrow->setArrowType(Qt::DownArrow);
    arrow->setAccessibleName("Calendar");
    arrow->setToolTip("Calendar (Alt+Down)");
    arrow->setFocusPolicy(Qt::NoFocus);
    arrow->setMenu(menu);
    arrow->setPopupMode(QToolButton::InstantPopup);
    // One arrow: the button's own.
    arrow->setStyleSheet("QToolButton::menu-indicator { image: none; }");
    const auto picked = [this, menu](QDate day) {
        menu->close();
        if (onpicked) onpicked(Date(std::chrono::days(day.toJulianDay() - juliandayofepoch)));
    };
    connect(calendar, &QCalendarWidget::clicked, this, picked);
    connect(calendar, &QCalendarWidget::activated, this, picked);
    connect(menu, &QMenu::aboutToShow, this, [this] { calendar->setFocus(); });
}

void DateBox::setcalendar(Date date) {
    calendar->setSelectedDate(calendarday(date));
}

void DateBox::setcalendarlight(const QPalette& palette) {
    calendar->ensurePolished();
    calendar->setPalette(palette);
    for (QWidget* part : calendar->findChildren<QWidget*>())
        part->setPalette(palette);
    // On the bar of the chosen day's colour.
    QPalette onbar = palette;
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText})
        onbar.setBrush(role, palette.highlightedText());
    for (const char* name : {previousmonth, nextmonth})
        if (auto* const step = calendar->findChild<QToolButton*>(QLatin1String(name))) step->setPalette(onbar);
    QTextCharFormat weekend;
    weekend.setForeground(palette.text());
    weekend.setFontWeight(QFont::Bold);
    calendar->setWeekdayTextFormat(Qt::Saturday, weekend);
    calendar->setWeekdayTextFormat(Qt::Sunday, weekend);
}

void DateBox::keyPressEvent(QKeyEvent* event) {
    const bool up = event->key() == Qt::Key_Up, down = event->key() == Qt::Key_Down;
    if (down && event->modifiers() == Qt::AltModifier) return arrow->showMenu();
    if (!up && !down) return QLineEdit::keyPressEvent(event);
    if (onstep) onstep(up ? 1 : -1);
}

}  // namespace tarvane
