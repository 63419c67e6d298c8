// What leaves the planner: tables, calendars and pictures as files, the clipboard, paper. Must not know any control.
#pragma once

#include "planner/plantexts.h"
#include "planner/planview.h"

namespace tarvane {

/// Waters or windows, where the user chooses. One that holds nothing isn't written; the answer line says so.
void savewaterstable(MainContext& context, const PlanView& view);
void savewindowstable(MainContext& context, const PlanView& view);
void savewaterscalendar(MainContext& context, const PlanView& view);
void savewindowscalendar(MainContext& context, const PlanView& view);

/// The picture as it is shown, by day, as a PNG or an SVG by the name's ending; or on the clipboard. Units of 1/96
/// inch.
void saveplanpicture(MainContext& context, const PlanView& view, double width, double height);
void copyplanpicture(MainContext& context, const PlanView& view, double width, double height);

/// What is printed: the days in hand on one page, the month or the year that the first of them lies in.
enum class Sheet { days, month, almanac };

/// Shows the pages, from where they are printed; or writes them as a PDF where the user chooses.
void printsheet(MainContext& context, const PlanView& view, Sheet sheet);
void savesheet(MainContext& context, const PlanView& view, Sheet sheet);

/// The paper that is chosen, or the usual one.
Paper paperof(const MainContext& context, const PlanView& view);

/// A table of the view's on the clipboard, as it is sorted: tabs between its cells, above it what it is of.
void copyplantable(MainContext& context, const PlanView& view, const PlanTable& table);

}  // namespace tarvane
