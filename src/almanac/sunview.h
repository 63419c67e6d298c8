// The sun and moon view: what its two windows do. Must not know any control.
#pragma once

#include <string>

#include "session/session.h"
#include "sunmoon/sunmonth.h"

namespace tarvane {

/// The texts of the position window.
struct SunInput {
    std::string port, latitude, longitude;
};

/// What the port is called once a key was pressed in a position box.
extern const char* const userentry;

/// Before the position window opens: the lunar phases of the month on show.
void preparesunview(Session& session);

/// The current port's name and position as the position window comes up.
SunInput portsuninput(const Session& session);

/// What a key typed into a position box puts there; 0 when it is dropped.
char32_t latitudekey(char32_t key);
char32_t longitudekey(char32_t key);

/// What became of `ok`.
enum class SunOutcome { calculated, badlongitude, badlatitude };

/// `ok`: empties the sun table and fills it for the month on show and the typed position. With a beep, and the table
/// left empty, when the position isn't taken; the longitude is looked at first.
SunOutcome calculatesun(MainContext& context, const SunInput& input);

/// The scroll bar over the days of the month. One small change is one day.
struct DayScroll {
    int smallchange, largechange, maximum, value;
};

/// The result window comes up with a scroll bar of this height in pixels: shows the step buttons and keeps the day on
/// show inside its month.
DayScroll opensunresults(Session& session, int height);

/// Days of the month on show.
int daysonshow(const Session& session);

/// `Exit` of the result window.
void leavesunresults(Session& session);

}  // namespace tarvane
