#include "shots/booklets.h"

#include <cstdio>
#include <filesystem>

#include "files/wholefiles.h"
#include "planner/planpages.h"
#include "platform/qt/qtdrawings.h"
#include "platform/qt/qtlocale.h"
#include "platform/systemzones/systemzones.h"
#include "portdata/recordfiles.h"

namespace tarvane::shots {
namespace {

struct BookletPress {
    const std::string folder, area;
    const AreaKnown known;
    const SystemZones zones = {};
    const QtLocale locale = QtLocale();
    QtDrawings drawings = {};
    bool failed = false;

    PageOf page(std::int16_t number) const {
        PageOf of;
        of.port = readport(area, number);
        of.number = number;
        of.area = "UK";
        of.known = whatisknown(known, of.port, number);
        of.iana = of.known.iana();
        return of;
    }

    void print(const Booklet& booklet, const std::string& name) {
        const std::pair<Paper, const char*> papers[] = {{Paper::a4, "-a4.pdf"}, {Paper::letter, "-letter.pdf"}};
        for (const auto& [paper, ending] : papers) {
            const std::string path = folder + "/" + name + ending;
            const WriteOutcome written = replacefile(path, drawings.pdf(booklet, paper));
            if (written) continue;
            std::fprintf(stderr, "shots: %s: %s\n", path.c_str(), written.reason().c_str());
            failed = true;
        }
    }
};

/// A bar that dries 2 m, and a boat of 1.5 m that wants half a metre under her keel.
PageOf withpassage(PageOf of) {
    Passage passage;
    passage.draught = 1.5;
    passage.clearance = 0.5;
    passage.bottom = -2;
    of.passage = passage;
    return of;
}

}  // namespace

bool takebooklets(const std::string& folder, const std::string& area) {
    ProgramFolders beside;
    beside.programfolder = std::filesystem::path(area).parent_path().string();
    BookletPress press{folder, area, knownarea(beside, area)};
    const auto month = [&press](const PageOf& of, int year, int number, const char* name) {
        press.print(monthpage(of, year, number, press.zones, press.locale), name);
    };
    month(withpassage(press.page(77)), 2026, 7, "month-passage");
    month(press.page(77), 2026, 3, "month-clock-forward");
    month(press.page(15), 2027, 10, "month-clock-back");
    month(press.page(8), 2026, 8, "month-doubled-waters");  // six weeks
    month(press.page(9), 1990, 1, "month-undefined-day");
    const auto span = [&press](const PageOf& of, Date first, int days, const char* name) {
        press.print(spanpage(of, first, days, press.zones, press.locale), name);
    };
    span(press.page(77), makedate(2026, 7, 14), 7, "span");
    span(withpassage(press.page(77)), makedate(2026, 7, 14), 7, "span-passage");
    span(withpassage(press.page(15)), makedate(2027, 10, 24), 14, "span-clock-back");
    span(withpassage(press.page(9)), makedate(2026, 8, 1), 31, "span-month-doubled-waters");
    span(press.page(9), makedate(1989, 12, 31), 3, "span-undefined-day");
    press.print(almanac(press.page(77), 2026, press.zones, press.locale), "almanac");
    press.print(almanac(press.page(9), 2027, press.zones, press.locale), "almanac-doubled-waters");
    return !press.failed;
}

}  // namespace tarvane::shots
