// When a boat can pass: the windows in which the tide stands between what she needs and what a bridge leaves her, cut
// to the minute on the safe side. Heights are metres above chart datum. Must not know clocks or how a window is told.
#pragma once

#include <optional>
#include <vector>

#include "engine/tidespan.h"
#include "planner/stretches.h"

namespace tarvane {

/// A boat over a bottom, and under a bridge.
struct Passage {
    double draught = 0;
    double clearance = 0;          ///< to be kept under the keel
    double bottom = 0;             ///< depth below chart datum; negative for one that dries
    std::optional<double> bridge;  ///< her mast's room: the bridge's height above the level it is stated for
    double airdraught = 0;         ///< of the mast, above the water
    double bridgelevel = 0;        ///< that level above chart datum

    double needed() const { return draught + clearance - bottom; }
    std::optional<double> ceiling() const;  ///< the tide above which the mast touches
};

enum class Daylight { none, part, whole };

/// A set of days of the week: bit 0 is Sunday.
using Weekdays = unsigned;
inline constexpr Weekdays everyweekday = 0x7F;

/// What windows are wanted beyond the tide.
struct WindowWishes {
    Daylight daylight = Daylight::none;  ///< none asks for none
    int leastminutes = 0;
    Weekdays weekdays = everyweekday;  ///< on one of which some of it lies; applied by a plan, which knows the clock
};

struct Window {
    long opens = 0, closes = 0;  ///< minutes from the span's start; opening rounded up, closing rounded down
    double greatestheight = 0;   ///< of the tide within
    double leastmargin = 0;      ///< over the height needed, and under the ceiling, whichever is less
    double daylight = 0;         ///< of it, in hours
    long daylightminutes = 0;
    bool cutatstart = false, cutatend = false;  ///< the time looked at or its prediction ends there, not the water

    /// What it has beyond the time looked at, within a day of it: minutes, and how many of them in daylight.
    struct Beyond {
        long minutes = 0, daylight = 0;
    };
    Beyond before{}, after{};

    long minutes() const { return closes - opens; }
};

/// Whether a window is long enough and light enough with what it has beyond the time looked at, and of one minute at
/// least within that.
bool wished(const Window& window, const WindowWishes& wishes);

struct Access {
    std::vector<Window> windows;                        ///< of one minute at least
    bool always = false;                                ///< all the time looked at
    bool never = false;                                 ///< at no minute of it, whatever the wishes
    std::optional<double> greatestheight, leastheight;  ///< of the tide in all that time; nothing without a prediction
};

/// The windows of a span between two of its moments. `daylight` are its stretches of light; a window lies wholly in it
/// when all its minutes do.
Access accessof(const TideSpan& span, Stretch between, const Passage& passage, const Stretches& daylight,
                const WindowWishes& wishes);

}  // namespace tarvane
