#include "platform/qt/qtclock.h"

#include <QDateTime>

namespace tarvane {

ClockReading QtClock::now() const {
    const QDateTime now = QDateTime::currentDateTime();
    const QDate date = now.date();
    const std::chrono::year_month_day today = std::chrono::year{date.year()} / date.month() / date.day();
    return {today, now.time().hour(), now.time().minute(), now.time().second()};
}

std::chrono::sys_seconds QtClock::moment() const {
    return std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
}

}  // namespace tarvane
