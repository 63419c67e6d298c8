// What "Date Entry" holds: a date in a picker, another in three lists, each with its own way of becoming the date on
// show. Must not know any control.
#pragma once

#include <string>
#include <vector>

#include "session/session.h"

namespace tarvane {

/// Year, month 1 to 12 and day 1 to 31 as a picker or the lists give them.
struct DateNumbers {
    int year = 0;
    int month = 1;
    int day = 1;
};

/// The three lists and what is chosen in them. The year chosen need not be among those offered.
struct DateLists {
    int firstyear = 0;  ///< year of the first row of `yearlist`
    std::vector<std::string> yearlist;
    std::vector<std::string> monthlist;
    std::vector<std::string> daylist;
    DateNumbers selected;
};

struct DateEntry {
    Date pickeddate{};       ///< the date in hand
    Date yearstart{};        ///< 1 January of its year
    std::string typed;       ///< the picker's text
    std::string refusal;     ///< why that text is no date; empty while it is the date in hand
    std::string txtDayName;  ///< weekday of the date in hand, "(Monday)"; empty beside a refusal
    DateLists lists;
};

/// The dialog as it opens: today in the picker and in the lists.
DateEntry opendateentry(const MainContext& context);

/// The picker's date has changed to this one; its text follows.
void pickdate(const MainContext& context, DateEntry& entry, Date date);

/// The picker's text was changed. The date in hand follows, unless the text is refused.
void typedate(const MainContext& context, DateEntry& entry, const std::string& typed);

/// The picker goes on by some days, not past the years that can be typed; false beside a text that is no date.
bool stepdate(const MainContext& context, DateEntry& entry, int days);

/// Today in the picker again; the lists stay.
void resetpicker(const MainContext& context, DateEntry& entry);

/// A click on a row, from 0, of a list. Year and month refill `daylist`, a day past the month's end becoming its last.
void chooseyear(DateLists& lists, int row);
void choosemonth(DateLists& lists, int row);
void chooseday(DateLists& lists, int row);

/// The weekday of the date chosen in the lists, "(Monday)".
std::string predictedday(const DateLists& lists, const Locale& locale);

/// `cmdOK`: the picker's date becomes the date on show and the day is computed and drawn anew. False, with a beep and
/// nothing changed, beside a text that is no date.
bool confirmpicker(MainContext& context, const DateEntry& entry);

/// `date1ok`: the same with the date chosen in the lists, which becomes the date in hand.
void confirmlists(MainContext& context, DateEntry& entry);

}  // namespace tarvane
