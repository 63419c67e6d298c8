// All that lives as long as the process: settings, the port and date on show, the last prediction, and what the main
// window shows of them. `main` makes one and hands it on; windows copy the view to their controls.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "dates/calendar.h"
#include "dates/dateformats.h"
#include "engine/curvelimits.h"
#include "engine/prediction.h"
#include "output/curvepicture.h"
#include "output/daytable.h"
#include "output/monthtable.h"
#include "platform/drawsurface.h"
#include "platform/services.h"
#include "portdata/areaedits.h"
#include "portdata/configuration.h"
#include "portdata/currentport.h"
#include "portdata/datafolder.h"
#include "sunmoon/lunarphases.h"
#include "sunmoon/suntable.h"
#include "sunmoon/suntimes.h"

namespace tarvane {

/// The texts and switches of the main window's controls; line ends as CR LF or CR.
struct MainView {
    std::string caption;
    std::string portbox, tidedatebox;
    std::string timeval, hiteval, lblrate, lblmousestatus;
    std::string lblSprings, lblNeap;
    std::string disclaimer;
    std::string statusline;           ///< what tides these are, told by the prediction alone
    std::vector<std::string> notes;   ///< where something on show differs from it
    std::string answer;               ///< what the last command did
    bool topmenusenabled = true;      ///< mnutides, mnuCalc, mnuconfig
    bool specialvisible = false;      ///< mnuSpecial
    bool maintenancevisible = false;  ///< mnumaintenance and mnumaintainfile
    bool adjustvisible = false;       ///< mnuAdjustLoad
    bool copyportsvisible = false;    ///< mnucopyconstants
    bool diamondsvisible = false;     ///< mnuCopyDiamonds and mnuImportCharts
    bool stepbuttonsvisible = true;   ///< Nextday and Previousday
    bool monthvisible = false;        ///< the list of the month's tides
};

/// The values beside the constituents at the mouse, by their places in `constituents`: metres under "0.00", the mean
/// level as plain text.
struct LayerReadout {
    std::array<std::string, constituents.size()> parts;
    std::string sum;
};

/// The day, the place and the clock that sun times are for; the day's numbers may be no date.
struct SunOf {
    int day = 0, month = 0, year = 0;
    float latitude = 0, longitude = 0;
    std::int16_t zonehours = 0, summer = 0;
    bool operator==(const SunOf&) const = default;
};

/// What is known of a predicted port beside its record.
struct PlaceOf {
    std::string datum;        ///< its letters, "MLLW"
    std::string otherclocks;  ///< where the clocks there read otherwise than the prediction's times
};

/// The prediction that a place was looked up for.
struct PlaceFor {
    std::string area;
    std::int16_t port = 0;
    TideDay day;
    std::string name;
    bool operator==(const PlaceFor&) const = default;
};

struct Session {
    ProgramFolders folders;
    Settings settings;
    AreaBackups backups;  ///< which area and diamond files this run has kept a copy of
    DateConventions conventions;
    CurrentPort port;
    DateOnShow onshow;
    Prediction prediction;
    DayTable daytable;
    MonthTable month;
    SunTable suntable;
    LunarTexts lunar;
    CurveOnShow curve;
    SunHours sun;    ///< `sunrisehour` and `sunsethour` are its sunrise and sunset
    SunOf sunof;     ///< what `sun` is for
    SunOf sundrawn;  ///< what the dashed lines in the picture are for
    MainView view;

    double timenow = 0;    ///< clock time as hours + minutes/60; where the red marker stands
    double clocktime = 0;  ///< its copy at start, for the adjust workspace
    double cursortime = 0, cursorheight = 0;
    double markertime = 0;  ///< where the red line was last drawn, hours
    int mousefrozen = 0;    ///< 0 the readout follows the mouse, 1 it stands still
    int layersmode = 0;     ///< 0 tide curve, 1 constituents view
    bool showconstants = false;
    /// Of the last prediction with `showconstants` on, by their places in `constituents`.
    std::array<std::string, constituents.size()> layerconstants;
    LayerChoice layers{};
    LayerReadout layervalues;
    TideDay layersday;  ///< what `layervalues` were read off
    std::int16_t layersport = 0;
    std::string layersarea;
    FileOrigin areaorigin;  ///< of the area that the prediction is of
    PlaceOf place;          ///< of the prediction's port
    PlaceFor placefor;      ///< and what it was looked up for
};

/// The surfaces that the main window is drawn on. The window's own surface is scaled in twips; the picture's place on
/// it is given so.
struct MainSurfaces {
    DrawSurface& picture;  ///< Picture1
    DrawSurface& bar;      ///< pctSpringsStatus
    DrawSurface& window;   ///< the window itself
    struct Place {
        double left = 0, top = 0, width = 0, height = 0;
    } pictureplace;
};

/// What the commands of the main window work with.
struct MainContext {
    Session& session;
    Services services;
    MainSurfaces surfaces;
};

}  // namespace tarvane
