// The sun and moon view: what its two windows do. Must not know any control.
#pragma once

#include <string>

#include "mainview/session.h"
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
char latitudekey(char key);
char longitudekey(char key);

/// What became of `ok`.
enum class SunOutcome { calculated, badlongitude, badlatitude };

/// `ok`: empties the sun table and fills it for the month on show and the typed position. With a beep, and the table
/// left empty, when the position isn't taken; the longitude is looked at first.
SunOutcome calculatesun(MainContext& context, const SunInput& input);

/// The result window comes up: shows the step buttons and keeps the day on show inside its month. Returns that day.
int opensunresults(Session& session);

/// Days of the month on show.
int daysonshow(const Session& session);

/// `Exit` of the result window.
void leavesunresults(Session& session);

/// -1 when the file can be opened for reading, else 0.
std::int16_t FileExists(const std::string& path);

/// `Command1`, saving to CSV: asks for a file and writes the month. Column 1 of the table is left in the file's form.
void savesuncsv(MainContext& context);

/// The path chosen for the CSV with its extension put right: the file's name is cut at its first "." and ".csv" added.
std::string csvpath(const std::string& chosen);

/// The month as CSV, CR LF behind each line; `suntable` column 1 turns into day/month/year.
std::string suncsvtext(Session& session);

}  // namespace tarvane
