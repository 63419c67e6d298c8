#include "mainview/dateentry.h"

#include <algorithm>

#include "dates/summertime.h"
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

DateEntry opendateentry(const Services& services) {
    DateEntry entry;
    resetpicker(entry, services);
    entry.lists = filledlists(services.locale, today(services.clock));
    return entry;
}

void pickdate(DateEntry& entry, const Locale& locale, DateNumbers numbers) {
    entry.pickeddate = makedate(numbers.year, numbers.month, numbers.day);
    entry.yearstart = makedate(numbers.year, 1, 1);
    entry.txtDayName = bracketedday(locale, entry.pickeddate);
}

void resetpicker(DateEntry& entry, const Services& services) {
    pickdate(entry, services.locale, today(services.clock));
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

void confirmpicker(MainContext& context, const DateEntry& entry) {
    confirm(context, entry, {yearof(entry.pickeddate), monthof(entry.pickeddate), dayof(entry.pickeddate)});
}

void confirmlists(MainContext& context, DateEntry& entry) {
    pickdate(entry, context.services.locale, entry.lists.selected);
    confirm(context, entry, entry.lists.selected);
}

}  // namespace tarvane
