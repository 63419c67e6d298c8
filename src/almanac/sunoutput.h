// What leaves the program of the month's sun and moon: the printout, the saved text and the CSV. Must not know any
// control.
#pragma once

#include <cstdint>
#include <string>

#include "session/session.h"

namespace tarvane {

/// `mnusunprint_Click`: the month's sun times and lunar phases, which must have been calculated.
void printsun(MainContext& context);

/// `mnusavesun_Click`: the sun table, which must have been calculated.
void savesun(MainContext& context);

/// -1 when the file can be opened for reading, else 0.
std::int16_t FileExists(const std::string& path);

/// `Command1`, saving to CSV: asks for a file and writes the month. Column 1 of the table is left in the file's form.
void savesuncsv(MainContext& context);

/// The path chosen for the CSV with its extension put right: the file's name is cut at its first "." and ".csv" added.
std::string csvpath(const std::string& chosen);

}  // namespace tarvane
