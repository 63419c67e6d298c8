// An official table's waters beside the prediction: each with the predicted water that it means, the differences and
// what they come to. Differences are the prediction's less the table's: positive is late and high. Must not read files.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "dates/dateformats.h"
#include "dates/portclock.h"
#include "portdata/ownports.h"

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

/// Dates are read as year, month and day; a line without one has that of the line before. A water whose kind isn't told
/// is the nearest. Lines further than three hours from any water of their kind are left out.
CheckResult checkwaters(const HarmonicRecord& port, const std::string& iana, const TableCheck& check,
                        const Zones& zones);

/// "4 min early, 0.03 m low": the prediction against the table.
std::string differencewords(double minutes, double metres);

/// "Checked by you against 8 waters of 2026: the prediction is on the mean 4 min early, 0.03 m low; at worst it differs
/// by 11 min, 0.12 m"; empty when none was compared.
std::string checkwords(const CheckResult& result);

/// A date in the system's order as "2026-07-14"; what can't be read as it is.
std::string tidydate(const std::string& typed, const DateConventions& conventions, const Locale& locale, Date today);

/// Lines copied from elsewhere, "14/07/2026 06:12 5.4 HW" or parts of it, between blanks, tabs, semicolons or commas.
/// Lines without a figure, as headings, are passed over.
std::vector<TableWater> pastedwaters(const std::string& text);

}  // namespace tarvane
