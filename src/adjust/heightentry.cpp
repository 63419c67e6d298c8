#include "adjust/heightentry.h"

#include <algorithm>
#include <cmath>

#include "portdata/datafolder.h"
#include "text/numbers.h"
#include "text/singlebyte.h"
#include "text/timetext.h"

namespace tarvane {
namespace {

constexpr int lasthour = 23, lastminutes = 11, lastmetre = 20;

std::string twodigits(int number) {
    return format(number, "00");
}

std::string rowof(const HeightRecord& reading) {
    return timetext(reading.obstime) + ", " + numbertext(reading.obsheight);
}

HeightRecord readingof(const std::string& row) {
    const HeightEntry entry = entryof(row);
    const std::size_t colon = entry.time.find(':');
    const double minutes = colon == std::string::npos ? 0 : val(entry.time.substr(colon + 1));
    return {static_cast<float>(val(entry.time.substr(0, colon)) + minutes / 60), static_cast<float>(val(entry.height))};
}

std::string entryfault(const std::string& time, const std::string& height) {
    if (time.empty()) return "No time selected";
    return height.empty() ? "No height entered" : "";
}

/// The file's name without its folder, or why there is none.
std::string filename(const std::string& typed, std::string& message) {
    const std::string name = trim(typed);
    if (name.empty())
        message = "No filename chosen";
    else
        message = filenamefault(name);
    return namebeforepoint(name) + ".ht";
}

std::string counted(std::size_t count, const char* what) {
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

}  // namespace

std::string clickedtime(const HeightClicks& clicks) {
    return twodigits(std::max(clicks.hours, 0)) + ":" + twodigits(5 * std::max(clicks.minutes, 0));
}

std::string clickedheight(const HeightClicks& clicks) {
    return numbertext(std::max(clicks.metres, 0) + std::max(clicks.tenths, 0) / 10.0 +
                      std::max(clicks.hundredths, 0) / 100.0);
}

HeightEntry entryof(const std::string& row) {
    const std::size_t comma = row.find(',');
    HeightEntry entry{trim(row.substr(0, comma)), comma == std::string::npos ? "" : trim(row.substr(comma + 1)), {}};
    const std::size_t colon = entry.time.find(':');
    const double minutes = colon == std::string::npos ? 0 : val(entry.time.substr(colon + 1));
    entry.clicks.hours = std::clamp(cint(val(entry.time.substr(0, colon))), std::int16_t{0}, std::int16_t{lasthour});
    entry.clicks.minutes = std::clamp<int>(cint(minutes / 5), 0, lastminutes);
    const double height = val(entry.height);
    if (!(height >= 0 && height < lastmetre + 1)) return entry;
    const int hundredths = cint(height * 100);
    entry.clicks.metres = hundredths / 100;
    entry.clicks.tenths = hundredths / 10 % 10;
    entry.clicks.hundredths = hundredths % 10;
    return entry;
}

std::string addentry(HeightEntries& entries, const std::string& time, const std::string& height) {
    const std::string fault = entryfault(time, height);
    if (fault.empty()) entries.rows.push_back(time + ", " + height);
    return fault;
}

std::string changeentry(HeightEntries& entries, int index, const std::string& time, const std::string& height) {
    if (index < 0 || static_cast<std::size_t>(index) >= entries.rows.size()) return "Select the entry to change";
    const std::string fault = entryfault(time, height);
    if (fault.empty()) entries.rows[static_cast<std::size_t>(index)] = time + ", " + height;
    return fault;
}

HeightsFiled openentries(const ProgramFolders& folders, const std::string& name, HeightEntries& entries) {
    HeightsFiled filed;
    const std::string file = filename(name, filed.message);
    if (!filed.message.empty()) return filed;
    filed.path = datafile(folders, file);
    const ObservedHeights heights = readheights(filed.path);
    filed.message = heights.fault;
    if (!canopen(filed.path)) filed.message = "There is no file of heights " + file;
    if (!filed.message.empty()) return filed;
    const bool joined = !entries.rows.empty();
    // kept: the list isn't emptied first, so that a second file joins the first
    for (const HeightRecord& reading : heights.readings)
        entries.rows.push_back(rowof(reading));
    if (!joined) entries.saved = entries.rows;
    filed.answer = file + ": " + counted(heights.readings.size(), "reading") +
                   (joined ? ", joined to those that stood in the list" : "");
    return filed;
}

HeightsFiled saveentries(const ProgramFolders& folders, const std::string& name, HeightEntries& entries) {
    HeightsFiled filed;
    const std::string file = filename(name, filed.message);
    if (!filed.message.empty()) return filed;
    std::vector<HeightRecord> readings;
    for (const std::string& row : entries.rows)
        readings.push_back(readingof(row));
    const WritableFile target = datafiletowrite(folders, file);
    filed.path = target.path;
    const HeightsSaved saved = target.prepared ? writeheights(target.path, readings) : HeightsSaved{target.prepared, 0};
    if (!saved.written) {
        filed.message = "The heights can't be saved: " + target.path + "\n" + saved.written.reason();
        return filed;
    }
    entries.saved = entries.rows;
    filed.answer = file + ": " + counted(readings.size(), "reading") + " saved";
    if (saved.remaining)
        filed.answer += "; " + counted(saved.remaining, "old reading") + " of the file " +
                        (saved.remaining == 1 ? "remains" : "remain") + " behind the list and will be drawn too";
    return filed;
}

}  // namespace tarvane
