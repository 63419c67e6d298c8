// An official table's waters beside the prediction: each with the predicted water that it means, the differences and
// what they come to. Differences are the prediction's less the table's: positive is late and high. Must not read files.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "atlas/tablelines.h"
#include "dates/portclock.h"

namespace tarvane {

/// A line of the table, compared.
struct CheckedWater {
    std::string fault;            ///< why it is left out, a sentence; empty when it was compared
    Moment given{}, predicted{};  ///< the predicted water, to the minute
    double height = 0;            ///< metres above chart datum, of that
    bool high = false;
    int minutes = 0;    ///< by which the prediction is late
    double metres = 0;  ///< and by which it is high
};

struct CheckResult {
    std::vector<CheckedWater> waters;  ///< a line each; lines without any text have a fault too
    int compared = 0;
    double meanminutes = 0, meanmetres = 0;    ///< signed
    double worstminutes = 0, worstmetres = 0;  ///< without their signs
    std::string years;                         ///< "2026", "2025 to 2026"
    std::string hint;                          ///< what a difference common to all waters looks like; or empty
};

/// Why a line is left out that holds no text at all.
inline constexpr const char* emptyline = "Nothing is typed here";

/// The clock that a port's table is in.
PortClock clockof(TableClock choice, const HarmonicRecord& port, const std::string& iana, const Zones& zones);

/// Dates are read as year, month and day; a line without one has that of the line before, and none where that isn't
/// understood. A water whose kind isn't told is the nearest. Lines further than three hours from any water of their
/// kind are left out.
CheckResult checkwaters(const HarmonicRecord& port, const std::string& iana, const TableCheck& check,
                        const Zones& zones);

/// "12 lines added; lines 3 and 4 left out: see Note", by their numbers.
std::string addedwords(std::size_t added, const std::vector<int>& leftout);

/// "4 min early and 0.03 m too low", "on time and as high as the table": the prediction against the table.
std::string differencewords(double minutes, double metres);

/// "Checked by you against 8 waters of 2026: on the mean the prediction is 4 min early and 0.03 m too low; at worst it
/// is off by 11 min and 0.12 m"; empty when none was compared.
std::string checkwords(const CheckResult& result);

}  // namespace tarvane
