// Calendar dates to Julian dates and back, in the form that the exported files carry. Must not ask for a clock or a
// zone.
#pragma once

namespace tarvane {

/// A moment of the calendar as a Julian date gives it.
struct JulianMoment {
    int hour = 0, minute = 0;
    double second = 0;  ///< 0 to 60, with its fraction
    int day = 0, month = 0, year = 0;
};

/// Julian date of a moment: 2451544.5 for 1 January 2000, 00:00. Right from March 1900 to February 2100; 1900 is added
/// to a year below 1000.
double juliandate(int day, int month, int year, int hour, int minute, double second);

/// The moment of a Julian date: Gregorian from 15 October 1582, Julian before.
JulianMoment juliantodate(double julian);

}  // namespace tarvane
