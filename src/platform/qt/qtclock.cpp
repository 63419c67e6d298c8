#include "platform/qt/qtclock.h"

#include <QDateTime>

namespace tarvane {

ClockReading QtClock::now() const {
    const QDateTime now = QDateTime::currentDateTime();
    const QDate date = now.date();
    const std::chrono::year_month_day today = std::chrono::year{date.year()} / date.month() / date.day();
    return {today, now.time().hour(), now.time().minute(), now.time().second()};
}

}  // namespace tarvane
