// What the files of a trial hold, as the writer foretells it in its log and as the trial finds it. Must not change any
// file but the log.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace tarvane::killtrial {

inline constexpr const char* areaname = "UK.hc";
inline constexpr const char* areabackup = "UK.hc.bak";
inline constexpr const char* scratchname = "scratch.hc";
inline constexpr const char* depthsname = "UK.DEP";
inline constexpr const char* depthsbackup = "UK.DEP.bak";
inline constexpr const char* heightsname = "creek.ht";
inline constexpr const char* configname = "TarvaneTides/TarTidesv9.cfg";
inline constexpr const char* diamondsname = "channel.l20";
inline constexpr const char* diamondsbackup = "channel.l20.bak";
inline constexpr const char* diamondscratch = "~scratch.~20";
inline constexpr const char* exportname = "2016Factors.csv";
inline constexpr const char* logname = "log";

/// A file's size and hash; of a PDF, which tells the moment of its making, only that it is whole.
using State = std::string;
inline constexpr const char* missingstate = "-";
inline constexpr const char* wholepdf = "pdf";
State stateof(const std::string& bytes);
State stateoffile(const std::string& path);

/// One file's part of an edit.
struct Change {
    std::string file;
    State before, after;
};

/// What the log says: the states that the finished edits left, and the edit in hand, its files in the order of their
/// writing.
struct Log {
    std::map<std::string, State> states;  ///< of the files that were written
    std::vector<Change> inhand;           ///< empty between two edits
    int finished = 0;
};

/// Reads a log; a line cut short by the kill is passed over.
Log readlog(const std::string& path);

/// The line of the log that stands ahead of an edit.
std::string beginline(const std::vector<Change>& changes);

inline constexpr const char* endline = "end\n";

}  // namespace tarvane::killtrial
