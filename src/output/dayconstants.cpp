#include "output/dayconstants.h"

#include <optional>

#include "dates/calendar.h"
#include "output/juliandate.h"
#include "text/numbers.h"

namespace tarvane {
namespace {

// kept: the two headers spell the speeds and rates each in its own way, and a blank follows dfk in both
const char* const headerwithid = "id,Julian,Day,Year,ma,mf,sa,sf,ka,kf,oa,of,dam,dfm,das,dfs,dak,dfk ,dao,dfo\r\n";
const char* const headerplain = "Julian,Day,Year,ma,mf,sa,sf,ka,kf,oa,of,dAm,dFm,dAs,dfs,dAk,dfk ,dAo,dfo\r\n";

void addrow(std::vector<DayConstantsRow>& rows, DayConstantsRow row, const std::optional<AnglesAndFactors>& day,
            const std::optional<AnglesAndFactors>& next) {
    if (!day || !next) return;
    row.constants = *day;
    row.rates = speedsandrates(*day, *next);
    rows.push_back(row);
}

std::string constantstext(const DayConstantsRow& row) {
    const AnglesAndFactors& c = row.constants;
    const SpeedsAndRates& r = row.rates;
    std::string text;
    for (const double value :
         {row.julian, double(row.day), double(row.year), double(c.ma), c.mf, double(c.sa), c.sf, double(c.ka), c.kf,
          double(c.oa), c.of, r.dam, r.dfm, r.das, r.dfs, r.dak, r.dfk, r.dao, r.dfo})
        text += (text.empty() ? "" : ",") + numbertext(value);
    return text + "\r\n";
}

}  // namespace

std::vector<DayConstantsRow> dayconstants(int year) {
    std::vector<DayConstantsRow> rows;
    const double julian = juliandate(1, 1, year, 0, 0, 0);
    // kept: the row labelled day 1 holds the constants of the day before it
    addrow(rows, {julian, 1, year, {}, {}}, orbitalconstants(year - 1, daysinyear(year - 1)),
           orbitalconstants(year, 1));
    int day = 1, ofyear = year;
    for (int i = 2; i <= daysinyear(year) + daysinyear(year + 1); ++i) {
        if (++day > daysinyear(ofyear)) {
            ++ofyear;
            day = 1;
        }
        addrow(rows, {julian + i - 1, day, ofyear, {}, {}}, orbitalconstants(ofyear, day),
               orbitalconstants(ofyear, day + 1));
    }
    return rows;
}

std::string dayconstantsfile(const std::vector<DayConstantsRow>& rows, bool withid) {
    std::string text = withid ? headerwithid : headerplain;
    // kept: the last row is not written
    for (std::size_t i = 0; i + 1 < rows.size(); ++i)
        text += (withid ? numbertext(static_cast<int>(i)) + "," : "") + constantstext(rows[i]);
    return text;
}

}  // namespace tarvane
