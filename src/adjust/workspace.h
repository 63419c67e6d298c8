// The workshop in which constants for a place are derived: two ports, an intermediate location between them, and a
// day's curve of each. What its window does, as far as it isn't controls. Must not write a file to try a constant.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "adjust/constantrows.h"
#include "engine/heightfit.h"
#include "portdata/heightfiles.h"
#include "portdata/ownports.h"
#include "session/session.h"

namespace tarvane {

/// The three curves by their pictures: Picture1 is Port 1, Picture2 the intermediate location, Picture3 Port 2.
enum CurvePlace : std::size_t { port1curve, intermediatecurve, port2curve, curveplaces };

/// What one picture's readout column shows: the parts of the height by their places in `constituents`, and their total.
struct AdjustColumn {
    std::array<std::string, constituents.size()> parts;
    std::string total;
};

/// What the user has told of the place itself, for the record to be saved.
struct GivenPlace {
    std::string name;
    double latitude = 0, longitude = 0;  ///< degrees, north and east positive
    std::string zoneletter;              ///< empty when not given
};

/// What a fit said of itself, and the boxes that it filled.
struct FittedBoxes {
    FitFigures figures;
    ConstantTexts boxes;
};

struct AdjustWorkspace {
    HarmonicRecord first, second;                  ///< the ports as read, for their positions
    std::string name1, name2;                      ///< of Port 1 and Port 2; empty when there is none
    ConstantTexts port1, port2;                    ///< what the labels of the two ports show
    ConstantTexts boxes;                           ///< the intermediate location's text boxes
    std::array<int, constantrows.size()> steps{};  ///< where their step controls stand
    std::array<Prediction, curveplaces> curves;
    std::array<AdjustColumn, curveplaces> columns;
    std::string tidedatebox;
    std::string timeval;
    std::string heightfile;              ///< of the readings drawn; empty for none
    std::vector<HeightRecord> readings;  ///< those of the file when the curves were last reckoned
    bool toofewreadings = false;         ///< the file holds some, but not enough to draw
    int freezecount = 0;                 ///< 0 while the readouts follow the mouse
    std::optional<GivenPlace> place;     ///< where the intermediate location lies, when it was told
    std::optional<ConstantTexts> undo;   ///< the boxes before they were last filled by a fit or by distance
    std::string madefrom;                ///< the ports that the boxes were filled from: "Alder Quay and Birch Sound"
    std::optional<FittedBoxes> fitted;   ///< by the last fit
    ConstantTexts saved;                 ///< the boxes as they were opened with or saved last
    std::string answer;                  ///< what the last command did, or why not
};

/// The workspace as its window opens: Port 1 is the current port, Port 2 the record behind it, the boxes their means.
AdjustWorkspace openworkspace(MainContext& context);

/// `updatecalc`: the date of the program again, and all three curves from the texts as they stand.
void updatecalc(AdjustWorkspace& workspace, MainContext& context);

/// `cmdCalc`: the same, the configuration having been read again.
void cmdcalc(AdjustWorkspace& workspace, MainContext& context);

/// `Nextday` and `Previousday` by +1 and -1 day; the readings, which belong to one day, go.
void stepworkspace(AdjustWorkspace& workspace, MainContext& context, int days);

/// A step control has changed to `value`: its box is written, nothing else.
void stepconstant(AdjustWorkspace& workspace, std::size_t row, int value);

/// The pointer at x hours over any of the pictures, and a button pressed on one.
void workspacemove(AdjustWorkspace& workspace, double x);
void workspacepress(AdjustWorkspace& workspace);

/// `AdjustReadout`: the columns at the time in `timeval`.
void AdjustReadout(AdjustWorkspace& workspace);

/// `DrawAdjustCurve1`, `DrawAdjustCurve2` and `DrawAdjustCurve3`: one curve on its picture, the readings over the
/// intermediate one.
void DrawAdjustCurve(const AdjustWorkspace& workspace, CurvePlace place, DrawSurface& picture);

/// `TurningText`: high and low waters of a curve as `TurningPoints1`, `TurningPoints2` and `TurningPoints3` pick them,
/// "03:12 1.2" each with blanks between.
std::string TurningText(const Prediction& curve);

/// Fills the boxes and puts their step controls there; what stood in them can be taken back.
void fillboxes(AdjustWorkspace& workspace, const ConstantTexts& texts);
void undoboxes(AdjustWorkspace& workspace);

/// Loads a port of an area as Port 1, as Port 2 or as the intermediate location. Nothing is reckoned anew.
void loadport1(AdjustWorkspace& workspace, const HarmonicRecord& record);
void loadport2(AdjustWorkspace& workspace, const HarmonicRecord& record);
void loadintermediate(AdjustWorkspace& workspace, const HarmonicRecord& record);

/// Chooses the file of readings, empty for none. Its fault is told in `answer`, and nothing is drawn then.
void chooseheights(AdjustWorkspace& workspace, const std::string& path);

/// Fits the boxes' constants to the readings and fills the boxes with what was found.
HeightFit fitworkspace(AdjustWorkspace& workspace, MainContext& context);

/// A fit as the window tells it: before and after, the three numbers with their standard errors, readings left out.
std::string fittext(const HeightFit& fit, const std::vector<HeightRecord>& readings);

}  // namespace tarvane
