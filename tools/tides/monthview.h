// The month table of the desktop program, one port and one month, for the terminal. Must not predict by itself.
#pragma once

#include "output/monthtable.h"
#include "tides/views.h"

namespace tarvane {

/// The table for the month of the context's date on show. One summer shift, that of this date, holds for all its days.
MonthTable monthofport(ViewContext& context, const PortInHand& port);

/// High and low waters of a day of the month.
int turningcountof(const MonthTable& table, int day);

/// A row for each high or low water, its texts those of the table.
void monthrows(ViewContext& context, RowWriter& writer);

}  // namespace tarvane
