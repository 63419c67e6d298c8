// A box for a date: typed, stepped a day by the arrow keys, or clicked in a calendar that drops down from the arrow
// beside it. What a typed text means its owner decides.
#pragma once

#include <QLineEdit>
#include <QToolButton>
#include <chrono>
#include <functional>

class QCalendarWidget;

namespace tarvane {

class DateBox : public QLineEdit {
  public:
    using Date = std::chrono::sys_days;

    DateBox(Date first, Date last);

    std::function<void(int days)> onstep;     ///< Up: 1, Down: -1
    std::function<void(Date date)> onpicked;  ///< clicked in the calendar

    /// The date that the calendar drops down on; one outside the first and the last is the nearest of them.
    void setcalendar(Date date);

    /// The calendar's colours; its weekends are of the text's colour like other days.
    void setcalendarlight(const QPalette& palette);

    QToolButton* arrow = nullptr;  ///< to be placed beside the box; Alt+Down presses it too

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QCalendarWidget* calendar = nullptr;
};

}  // namespace tarvane
