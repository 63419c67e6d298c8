#include "shots/about.h"

#include <cmath>
#include <cstdio>

#include "atlas/frmaboutport.h"
#include "atlas/frmcheckport.h"
#include "dates/isomoments.h"
#include "engine/waters.h"
#include "portdata/recordfiles.h"

namespace tarvane::shots {
namespace {

constexpr std::int16_t shippedport = 77, ownport = 15;

/// Six waters on end, some minutes and centimetres aside, and one line that can't be meant.
TableCheck typedtable(const HarmonicRecord& port) {
    constexpr int late[] = {-5, 3, -9, 2, -6, -1};
    constexpr double high[] = {0.06, 0.11, -0.02, 0.08, 0.12, 0.04};
    const Date first = makedate(2026, 7, 14);
    const std::vector<Water> waters = watersof(port, first, 3);
    TableCheck check;
    for (std::size_t i = 0; i < std::size(late); ++i) {
        const long minutes = std::lround(waters[i].hours * 60) - late[i];
        char time[16], height[16];
        std::snprintf(time, sizeof time, "%02ld:%02ld", minutes / 60 % 24, minutes % 60);
        std::snprintf(height, sizeof height, "%.1f", waters[i].height + high[i]);
        check.waters.push_back({isodate(first + std::chrono::days(minutes / 1440)), time, height, ""});
    }
    check.waters.push_back({isodate(first + std::chrono::days(1)), "25:10", "1.2", "low"});
    return check;
}

}  // namespace

void takeabout(Stage& stage, const std::function<void(QWidget&, const QString&)>& take) {
    MainContext context = stage.context();
    const Session& session = stage.sessiononstage();
    const std::string area = session.settings.hcfile;
    const auto about = [&](std::int16_t number, const char* name) {
        frmaboutport window(context, area, number, &stage.window());
        take(window, name);
    };
    about(shippedport, "frmaboutport");
    const HarmonicRecord port = readport(area, shippedport);
    keepcheck(session.folders, area, port, shippedport, typedtable(port));
    frmcheckport check(context, area, shippedport, &stage.window());
    take(check, "frmcheckport");
    about(shippedport, "frmaboutport-checked");
    keepcheck(session.folders, area, port, shippedport, {});

    const HarmonicRecord before = readport(area, ownport);
    HarmonicRecord fitted = before;
    fitted.Z0 += 0.05F;
    writeport(area, ownport, fitted);
    noteport(session.folders, area, ownport, before, fitted,
             {OwnHow::fitted, "2026-03-03", "", FitFigures{24, 1, 0.21, 0.04, -0.09, 12.3, "2026-03-01"}, ""});
    about(ownport, "frmaboutport-own");
    writeport(area, ownport, before);
}

}  // namespace tarvane::shots
