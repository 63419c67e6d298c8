// What the pictures are taken of: the program's windows over files of their own and a clock that stands, so that they
// come out the same every time. Must not write to the user's files.
#pragma once

#include <QTemporaryDir>
#include <memory>
#include <string>

#include "mainview/frmtarvane.h"
#include "platform/qt/qtservices.h"

namespace tarvane::shots {

/// A clock that stands at one moment.
class StandingClock : public Clock {
  public:
    explicit StandingClock(const ClockReading& at) : reading(at) {}
    ClockReading now() const override { return reading; }
    std::chrono::sys_seconds moment() const override { return readas(reading); }

  private:
    ClockReading reading;
};

/// The program started in folders of its own.
class Stage {
  public:
    /// With the default settings, on the default area as `area` has it.
    Stage(const std::string& area, const ClockReading& at);

    /// With the user's own settings and depths, copied; on the clock's own time.
    Stage();

    frmtarvane& window() { return *mainwindow; }
    MainContext context();
    Session& sessiononstage() { return session; }

    /// The second tick of the first timer, and everything painted.
    void settle();

    /// Goes to another port, date or display option, as the dialogs do.
    void show(std::int16_t port, Date date, float output = 3);

  private:
    void open();

    QTemporaryDir folder;
    QtServices real;
    std::unique_ptr<Clock> clock;
    Session session;
    std::unique_ptr<frmtarvane> mainwindow;
};

/// An area of ports with odd tides: 1 below datum, 2 flat, 3 one turning point a day, 4 very high.
std::string oddarea(const std::string& path);

}  // namespace tarvane::shots
