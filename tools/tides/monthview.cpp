#include "tides/monthview.h"

#include "text/numbers.h"
#include "tides/englishlocale.h"

namespace tarvane {

MonthTable monthofport(ViewContext& context, const PortInHand& port) {
    context.settings.currentport = port.number;
    DateOnShow onshow;
    setdateonshow(onshow, context.dateonshow);
    MonthTable table;
    buildmonthtable(table, context.settings,
                    {port.name, port.record.PortLat, port.record.PortLong, zonehoursof(port.record)}, onshow,
                    EnglishLocale());
    return table;
}

int turningcountof(const MonthTable& table, int day) {
    return static_cast<int>(val(table.monthcells[static_cast<std::size_t>(day)][3][1]));
}

void monthrows(ViewContext& context, RowWriter& writer) {
    for (const PortInHand& port : context.ports) {
        const MonthTable table = monthofport(context, port);
        eachday(context, [&](Date date) {
            const auto& cells = table.monthcells[static_cast<std::size_t>(dayof(date))];
            for (int i = 1; i <= turningcountof(table, dayof(date)); ++i) {
                const auto point = static_cast<std::size_t>(i);
                // a height that is no finite number has an empty cell
                writer.row({numbertext(port.number), port.name, numbertext(yearof(date)), numbertext(monthof(date)),
                            numbertext(dayof(date)), EnglishLocale().dayabbreviation(weekdayof(date)), cells[1][point],
                            cells[2][point].empty() ? "nan" : cells[2][point]});
            }
        });
    }
}

}  // namespace tarvane
