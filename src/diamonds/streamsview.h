// What "Streams for a Day" holds: the diamond file, diamond, port and date in hand, and the streams that follow from
// them. Must not know any control or write a file of diamonds.
#pragma once

#include <string>
#include <vector>

#include "diamonds/daystreams.h"
#include "session/session.h"

namespace tarvane {

struct StreamsView {
    std::vector<std::string> files;           ///< names of the diamond files, in the folders of the user's files
    int file = -1;                            ///< which is in hand, from 0; -1 for none
    std::vector<DiamondRecord> records;       ///< its diamonds
    std::vector<std::string> diamonds;        ///< each as it is listed: its letter and position
    int diamond = -1;                         ///< which is in hand
    std::vector<HarmonicRecord> portrecords;  ///< of the session's sea area
    std::vector<std::string> ports;           ///< their names
    int port = -1;                            ///< which is in hand, from 0
    Date date{};
    DayStreams streams;
    std::string about;  ///< what tides these are, and of which diamond
    std::string note;   ///< what the rates go by; or why there are none, and what to do
};

/// The first diamond of the first file, at the session's port and date.
StreamsView openstreams(const MainContext& context);

/// A choice in one of the lists; the streams follow.
void choosestreamfile(const MainContext& context, StreamsView& view, int file);
void choosediamond(const MainContext& context, StreamsView& view, int diamond);
void choosestreamport(const MainContext& context, StreamsView& view, int port);

/// Another date, the nearest that can be typed.
void choosestreamdate(const MainContext& context, StreamsView& view, Date date);

/// The headings and rows of the table, an hour a row: high water, hour, time (with its date where that is another),
/// direction, rate and what it is extrapolated beyond.
std::vector<std::string> streamheadings();
std::vector<std::vector<std::string>> streamtable(const MainContext& context, const StreamsView& view);

/// One hour of the table in words: "HW -3, 09:40: 045 degrees, 1.62 (springs 2.1, neaps 0.9)". `row` is from 0.
std::string streamsentence(const StreamsView& view, int row);

/// The table on the clipboard, tabs between its cells; and as a CSV file where the user chooses.
void copystreams(MainContext& context, const StreamsView& view);
void savestreams(MainContext& context, const StreamsView& view);

}  // namespace tarvane
