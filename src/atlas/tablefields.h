// The fields of an official table's line as they are typed or copied. Must not know lines.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "dates/dateformats.h"

namespace tarvane {

enum class WaterKind { either, high, low };

/// "HW", "high", "low water"; either for an empty text.
std::optional<WaterKind> readkind(const std::string& typed);

/// 12 for "pm", 0 for "am".
std::optional<int> readhalfday(const std::string& typed);

/// Minutes of the day: "6:12", "06:12", "0612", "06h12", "6.12", "6:12 am"; 1440 for "24:00", the end of the day.
std::optional<int> readtime(const std::string& typed);

/// A time with "am" or "pm" as "16:33"; any other text as it is.
std::string tidytime(const std::string& typed);

struct Amount {
    double metres = 0;
    bool unit = false;  ///< is said
};

/// A number with a unit or, in metres, without one.
std::optional<Amount> readamount(const std::string& typed);

/// Metres: "5.4", "5,4", "5.4 m", "17.7 ft", "540 cm"; up to 30 on either side.
std::optional<double> readheight(const std::string& typed);

/// "2026-07-14", a day that there is.
std::optional<Date> readisodate(const std::string& typed);

/// The metres of one of a unit that is written so; nothing for another word.
std::optional<double> unitmetres(std::string_view word);

/// True of so many figures and nothing else.
bool onlydigits(std::string_view text, std::size_t least, std::size_t most);

}  // namespace tarvane
