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
    std::string txtDayName;  ///< its weekday, "(Monday)"
    DateLists lists;
};

/// The dialog as it opens: today in the picker and in the lists.
DateEntry opendateentry(const Services& services);

/// The picker's date has changed to these numbers.
void pickdate(DateEntry& entry, const Locale& locale, DateNumbers numbers);

/// Today in the picker again; the lists stay.
void resetpicker(DateEntry& entry, const Services& services);

/// A click on a row, from 0, of a list. Year and month refill `daylist`, a day past the month's end becoming its last.
void chooseyear(DateLists& lists, int row);
void choosemonth(DateLists& lists, int row);
void chooseday(DateLists& lists, int row);

/// The weekday of the date chosen in the lists, "(Monday)".
std::string predictedday(const DateLists& lists, const Locale& locale);

/// `cmdOK`: the picker's date becomes the date on show and the day is computed and drawn anew.
void confirmpicker(MainContext& context, const DateEntry& entry);

/// `date1ok`: the same with the date chosen in the lists, which becomes the date in hand.
void confirmlists(MainContext& context, DateEntry& entry);

}  // namespace tarvane
