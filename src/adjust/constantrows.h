// The thirteen constants that the workshop steps, once: their controls, their place in a record and the limits of their
// steps. Must not know any control.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "portdata/records.h"

namespace tarvane {

struct ConstantRow {
    const char* textbox;        ///< "txtM2g"
    const char* updown;         ///< "UpDnM2g"
    const char *port1, *port2;  ///< labels of the two ports' values, "P1M2g" and "P2M2g"
    float HarmonicRecord::*field;
    int lowest, highest;  ///< of the steps; a typed value knows no limit
    bool hundredths;      ///< a step is 0.01, not 1
    bool phase;           ///< degrees on the circle
};

inline constexpr std::array<ConstantRow, 13> constantrows{{
    {"txtZ0", "UpDnZ0", "P1Z0", "P2Z0", &HarmonicRecord::Z0, -2000, 2000, true, false},
    {"txtM2g", "UpDnM2g", "P1M2g", "P2M2g", &HarmonicRecord::M2g, 0, 359, false, true},
    {"txtM2Hm", "UpDnM2Hm", "P1M2Hm", "P2M2Hm", &HarmonicRecord::M2Hm, 0, 600, true, false},
    {"txtS2g", "UpDnS2g", "P1S2g", "P2S2g", &HarmonicRecord::S2g, 0, 359, false, true},
    {"txtS2Hm", "UpDnS2Hm", "P1S2Hm", "P2S2Hm", &HarmonicRecord::S2Hm, 0, 600, true, false},
    {"txtK1g", "UpDnK1g", "P1K1g", "P2K1g", &HarmonicRecord::K1g, 0, 359, false, true},
    {"txtK1Hm", "UpDnK1Hm", "P1K1Hm", "P2K1Hm", &HarmonicRecord::K1Hm, 0, 500, true, false},
    {"txtO1g", "UpDnO1g", "P1O1g", "P2O1g", &HarmonicRecord::O1g, 0, 359, false, true},
    {"txtO1Hm", "UpDnO1Hm", "P1O1hm", "P2O1hm", &HarmonicRecord::O1Hm, 0, 600, true, false},
    {"txtsf4", "UpDnsf4", "P1sf4", "P2sf4", &HarmonicRecord::SF4, 0, 359, false, true},
    {"txtLF4", "UpDnLF4", "P1LF4", "P2LF4", &HarmonicRecord::LF4, 0, 1000, true, false},
    {"txtsf6", "UpDnsf6", "P1sf6", "P2sf6", &HarmonicRecord::SF6, 0, 359, false, true},
    {"txtLF6", "UpDnLF6", "P1LF6", "P2LF6", &HarmonicRecord::LF6, 0, 1000, true, false},
}};

/// The thirteen texts of a column of boxes or labels.
using ConstantTexts = std::array<std::string, constantrows.size()>;

/// A record's thirteen constants as plain numbers.
ConstantTexts textsof(const HarmonicRecord& record);

/// A record of the thirteen constants that the texts begin with, 0 where there is no number; all else in it is zero,
/// but that each month's M2 amplitude is the annual one.
HarmonicRecord recordof(const ConstantTexts& texts);

/// What a step control writes into its box: its whole number, or hundredths of it.
std::string steptext(const ConstantRow& row, int value);

/// The whole number at which a box's value puts its step control, within its limits.
int stepof(const ConstantRow& row, double value);

/// The plain mean of two ports' constants, also of phases: 350 and 10 give 180.
ConstantTexts plainmeans(const HarmonicRecord& first, const HarmonicRecord& second);

/// True for a phase whose two values lie across north, where the plain mean points the other way.
bool acrossnorth(const ConstantRow& row, const HarmonicRecord& first, const HarmonicRecord& second);

/// The mean of two phases on the circle, degrees from 0 to below 360, the first counting `weight` (0 to 1).
double circlemean(double first, double second, double weight = 0.5);

/// The angle between a place and a port seen from the middle of the globe, degrees.
double globeangle(double latitude, double longitude, const HarmonicRecord& port);

/// How much the first of two ports counts by the inverse of its distance, 0 to 1; a half when both are at the place.
double distanceweight(double tofirst, double tosecond);

/// Constants at a place between two ports, by the inverse of its distances from them on the globe: amplitudes and level
/// as weighted means, phases on the circle. Positions in degrees, north and east positive. At a port it is that port.
ConstantTexts distancemeans(const HarmonicRecord& first, const HarmonicRecord& second, double latitude,
                            double longitude);

}  // namespace tarvane
