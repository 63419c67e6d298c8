#include "mainview/dateentry.h"

#include <algorithm>

#include "dates/summertime.h"
#include "dates/typeddate.h"
#include "session/refresh.h"
#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

constexpr int yearsahead = 50;

DateNumbers today(const Clock& clock) {
    const Date date = clock.now().today;
    return {yearof(date), monthof(date), dayof(date)};
}

std::string bracketedday(const Locale& locale, Date date) {
    return "(" + formatdate(locale, date, "dddd") + ")";
}

/// The date comes in hand.
void takedate(DateEntry& entry, const Locale& locale, Date date) {
    entry.pickeddate = date;
    entry.yearstart = makedate(yearof(date), 1, 1);
    entry.txtDayName = bracketedday(locale, date);
    entry.refusal.clear();
}

int firstyearof(const std::string& todaytext) {
    const std::size_t length = charactercount(todaytext);
    const std::string lead = leftcharacters(todaytext, length > 4 ? length - 4 : 0);
    // kept: on a year-first system the last four characters are no year, and the list starts from what they read as
    return cint(val(todaytext.substr(lead.size())));
}

void refilldays(DateLists& lists) {
    const int days = DaysInMonth(lists.selected.year, lists.selected.month);
    lists.daylist.clear();
    for (int day = 1; day <= days; ++day)
        lists.daylist.push_back(numbertext(day));
    lists.selected.day = std::min(lists.selected.day, days);
}

DateLists filledlists(const Locale& locale, DateNumbers selected) {
    DateLists lists;
    lists.selected = selected;
    lists.firstyear = firstyearof(locale.shortdate(makedate(selected.year, selected.month, selected.day)));
    for (int year = lists.firstyear; year <= lists.firstyear + yearsahead; ++year)
        lists.yearlist.push_back(numbertext(year));
    for (int month = 1; month <= 12; ++month)
        lists.monthlist.push_back(formatdate(locale, makedate(selected.year, month, 1), "mmmm"));
    refilldays(lists);
    return lists;
}

void confirm(MainContext& context, const DateEntry& entry, DateNumbers chosen) {
    Session& session = context.session;
    clearmonthcells(session.month);
    session.onshow = {entry.pickeddate, static_cast<double>(chosen.year), static_cast<double>(chosen.month),
                      static_cast<double>(chosen.day),
                      static_cast<double>((entry.pickeddate - entry.yearstart).count() + 1)};
    session.daytable.daystide1.clear();
    refreshday(context);
    clearmonthlist(session);
    session.view.tidedatebox =
        "Date   : " + formatdate(context.services.locale, entry.pickeddate, "dd mmmm yyyy (dddd)");
    const std::int16_t adjusted = session.settings.currentsummer == -1 ? -1 : 0;
    session.view.disclaimer = accuracyfirst(correctionline(adjusted, entry.pickeddate));
}

}  // namespace

DateEntry opendateentry(const MainContext& context) {
    DateEntry entry;
    resetpicker(context, entry);
    entry.lists = filledlists(context.services.locale, today(context.services.clock));
    return entry;
}

void pickdate(const MainContext& context, DateEntry& entry, Date date) {
    const Locale& locale = context.services.locale;
    takedate(entry, locale, date);
    entry.typed = typeddate(date, context.session.conventions, locale);
}

void typedate(const MainContext& context, DateEntry& entry, const std::string& typed) {
    const Locale& locale = context.services.locale;
    const ReadDate read = readdate(typed, context.session.conventions, locale, context.services.clock.now().today);
    if (read.date) takedate(entry, locale, *read.date);
    entry.typed = typed;
    entry.refusal = read.refusal;
    if (!read.date) entry.txtDayName.clear();
}

bool stepdate(const MainContext& context, DateEntry& entry, int days) {
    if (!entry.refusal.empty()) return false;
    const Date stepped = entry.pickeddate + std::chrono::days(days);
    pickdate(context, entry, std::clamp(stepped, makedate(firsttypedyear, 1, 1), makedate(lasttypedyear, 12, 31)));
    return true;
}

void resetpicker(const MainContext& context, DateEntry& entry) {
    pickdate(context, entry, context.services.clock.now().today);
}

void chooseyear(DateLists& lists, int row) {
    lists.selected.year = lists.firstyear + row;
    refilldays(lists);
}

void choosemonth(DateLists& lists, int row) {
    lists.selected.month = row + 1;
    refilldays(lists);
}

void chooseday(DateLists& lists, int row) {
    lists.selected.day = row + 1;
}

std::string predictedday(const DateLists& lists, const Locale& locale) {
    return bracketedday(locale, makedate(lists.selected.year, lists.selected.month, lists.selected.day));
}

bool confirmpicker(MainContext& context, const DateEntry& entry) {
    if (!entry.refusal.empty()) {
        context.services.messages.beep();
        return false;
    }
    confirm(context, entry, {yearof(entry.pickeddate), monthof(entry.pickeddate), dayof(entry.pickeddate)});
    return true;
}

void confirmlists(MainContext& context, DateEntry& entry) {
    const DateNumbers& selected = entry.lists.selected;
    pickdate(context, entry, makedate(selected.year, selected.month, selected.day));
    confirm(context, entry, selected);
}

}  // namespace tarvane
