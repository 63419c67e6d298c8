#include "ports/usernotes.h"

#include <algorithm>
#include <limits>

#include "files/wholefiles.h"
#include "output/monthtable.h"
#include "portdata/depthmatch.h"
#include "portdata/recordfiles.h"
#include "portdata/userdepths.h"
#include "session/refresh.h"
#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

void tell(MainContext& context, const std::string& text) {
    context.services.messages.show(text, "Tarvane", MessageIcon::exclamation);
}

/// The record that this dialog writes when the configuration has vanished.
ConfigRecord replacedconfig(const Session& session) {
    const ConfigRecord& before = session.settings.configrec;
    ConfigRecord record = defaultconfig(session.folders);
    // kept: port 73 where the start takes 77, and waypoints file and sort order aren't reset
    record.portnumber = 73;
    record.wayfilepath = before.wayfilepath;
    record.sortmode = before.sortmode;
    return record;
}

/// Reads the configuration, made anew when it has vanished, and takes the values that this dialog loads.
void readconfig(MainContext& context) {
    const ProgramFolders& folders = context.session.folders;
    Settings& settings = context.session.settings;
    const bool vanished = !canopen(folders.cfgpath());
    rereadconfig(folders, settings);
    const auto replace = [&](ConfigRecord& record) { record = replacedconfig(context.session); };
    if (vanished && !changeconfig(folders, settings, replace))
        tell(context, "The configuration can't be written: " + folders.cfgpath());
    takechoices(settings, settings.configrec);
    settings.currentsummer = settings.configrec.summertimeflag;
}

/// A note's line ends in any form as LF.
std::string plainlines(std::string_view text) {
    std::string lines;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool pair = text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
        if (!pair) lines += text[i] == '\r' ? '\n' : text[i];
    }
    return lines;
}

/// A note as its record holds it: lines end in CR LF.
std::string storedlines(std::string_view text) {
    std::string stored;
    for (const char character : plainlines(text)) {
        if (character == '\n') stored += '\r';
        stored += character;
    }
    return stored;
}

void shownotes(const Settings& settings, UserNotes& notes, std::int16_t recordnumber) {
    const UserDepthRecord record = readdepth(settings.depfile, recordnumber);
    notes.portlabel = trimmedname(readport(settings.hcfile, recordnumber));
    notes.portnolabel = numbertext(recordnumber);
    notes.depth = numbertext(record.UserDepth);
    notes.usernotes = plainlines(trim(record.Notes));
}

/// How many records were made for another port than the one at their number.
std::string matchlineof(const Settings& settings) {
    const DepthMatch match = matchdepths(settings.hcfile, settings.depfile);
    if (match.elsewhere == 0) return "";
    return numbertext(match.elsewhere) + " of " + numbertext(match.records) + " depths and notes " +
           (match.elsewhere == 1 ? "was" : "were") + " made for another port than the one now at " +
           (match.elsewhere == 1 ? "its" : "their") + " number.";
}

/// The first of a list, each on a line of its own.
std::string listed(const std::string& heading, const std::vector<std::string>& entries) {
    constexpr std::size_t most = 10;
    if (entries.empty()) return "";
    std::string text = "\n\n" + heading;
    for (std::size_t i = 0; i < entries.size() && i < most; ++i)
        text += "\n" + entries[i];
    if (entries.size() > most) text += "\nand " + numbertext(static_cast<int>(entries.size() - most)) + " more";
    return text;
}

std::string matchquestion(const DepthMatch& match, const std::string& depfile) {
    const std::string name = depfile.substr(depfile.find_last_of('/') + 1);
    return "Match the " + numbertext(match.records) + " depths and notes of this area by name?\n\n" +
           "To the port of their name: " + numbertext(match.moved) +
           "\nStaying where they are: " + numbertext(match.stayed) +
           "\nDropped, with no port of their name any more: " + numbertext(match.dropped) +
           listed("Lost would be what you entered for", match.lost) +
           listed("Left where they are, as a name or a place is claimed twice", match.left) +
           "\n\nThe file as it is now is kept as " + name + ".bak.";
}

bool notecharacter(std::string_view utf8) {
    if (utf8 == "\n" || utf8 == "\t") return true;
    const bool control = utf8.size() == 1 && (static_cast<unsigned char>(utf8[0]) < ' ' || utf8[0] == '\x7F');
    return !control && fitssinglebyte(utf8);
}

}  // namespace

std::vector<std::string> portrows(const std::string& hcfile) {
    std::vector<std::string> rows;
    for (const HarmonicRecord& port : readports(hcfile))
        rows.push_back(numbertext(static_cast<int>(rows.size()) + 1) + "  " +
                       port.PortName.substr(0, port.PortName.find('\0')));
    return rows;
}

float typedmetres(std::string_view text) {
    constexpr double most = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(val(text), -most, most));
}

void ensuredepths(MainContext& context) {
    Settings& settings = context.session.settings;
    if (EnsureDepFile(context.session.folders, settings)) return;
    tell(context, "The file of user depths and notes can't be made: " + settings.depfile);
}

UserNotes loadusernotes(MainContext& context) {
    readconfig(context);
    ensuredepths(context);
    const Settings& settings = context.session.settings;
    UserNotes notes;
    shownotes(settings, notes, settings.currentport);
    notes.rows = portrows(settings.hcfile);
    notes.matchline = matchlineof(settings);
    return notes;
}

void pickusernotes(const Settings& settings, UserNotes& notes, int index) {
    shownotes(settings, notes, cint(index + 1));
}

void pickandnameport(Session& session, UserNotes& notes, int index) {
    pickusernotes(session.settings, notes, index);
    // kept: the main window names this port from its next refresh on, while its tides stay those of the current one
    session.port.portname = notes.portlabel;
}

bool enterusernotes(MainContext& context, UserNotes& notes, std::string_view depth, std::string_view usernotes) {
    const Settings& settings = context.session.settings;
    const std::int16_t recordnumber = cint(val(notes.portnolabel));
    if (recordnumber < 1 || recordnumber > portcount(settings.hcfile)) {
        tell(context, "There is no port " + notes.portnolabel + " in " + settings.hcfile);
        return false;
    }
    // A file that has vanished while the window stood open comes back with a record for every port.
    EnsureDepFile(context.session.folders, context.session.settings);
    UserDepthRecord record = readdepth(settings.depfile, recordnumber);
    // kept: the record's name stays, whatever port it was made for
    record.UserDepth = typedmetres(depth);
    record.Notes = storedlines(usernotes);
    if (!writedepth(settings.depfile, recordnumber, record)) {
        tell(context, "The depth and the note can't be written: " + settings.depfile);
        return false;
    }
    shownotes(settings, notes, recordnumber);
    notes.matchline = matchlineof(settings);
    return true;
}

bool matchnotes(MainContext& context, UserNotes& notes) {
    const Settings& settings = context.session.settings;
    const DepthMatch match = matchdepths(settings.hcfile, settings.depfile);
    const bool agreed =
        match.elsewhere > 0 && context.services.messages.ask(matchquestion(match, settings.depfile), "Tarvane");
    const WriteOutcome written = agreed ? writematched(settings.depfile, match) : WriteOutcome{};
    if (!written)
        tell(context, "The depths and notes can't be matched, nothing was changed: " + written.reason() + ": " +
                          settings.depfile);
    shownotes(settings, notes, cint(val(notes.portnolabel)));
    notes.matchline = matchlineof(settings);
    return agreed && written;
}

void closeusernotes(MainContext& context) {
    Session& session = context.session;
    session.view.monthvisible = false;
    session.month.monthtitle.clear();
    clearmonthcells(session.month);
    session.settings.userdepth = readdepth(session.settings.depfile, session.settings.currentport).UserDepth;
    setportbox(session);
    session.daytable.daystide1.clear();
    session.timenow = clockhours(context.services.clock);
    refreshday(context);
}

char32_t depthkey(char32_t key) {
    constexpr char32_t backspace = 8;
    const char32_t metres = metreskey(key);
    const bool digit = metres >= U'0' && metres <= U'9';
    return digit || metres == U'.' || metres == U'-' || metres == backspace ? metres : 0;
}

char32_t metreskey(char32_t key) {
    return key == U',' ? U'.' : key;
}

bool notechanged(const UserNotes& notes, std::string_view depth, std::string_view usernotes) {
    return depth != notes.depth || usernotes != notes.usernotes;
}

std::string enterquestion(const UserNotes& notes) {
    return "The depth or the note of " + notes.portlabel + " was changed. Enter it?";
}

std::string notestate(const UserNotes& notes, std::string_view depth, std::string_view usernotes) {
    std::string state = numbertext(static_cast<int>(notelength(usernotes))) + " of " +
                        numbertext(static_cast<int>(longestnote)) + " characters";
    if (notechanged(notes, depth, usernotes)) state += ", not entered yet";
    return state;
}

std::string admittednote(std::string_view typed, std::size_t taken) {
    std::string admitted;
    std::size_t end = 0;
    for (std::size_t start = 0; start < typed.size(); start = end) {
        end = start + 1;
        while (end < typed.size() && (static_cast<unsigned char>(typed[end]) & 0xC0) == 0x80)
            ++end;
        const std::string_view character = typed.substr(start, end - start);
        if (!notecharacter(character)) continue;
        taken += notelength(character);
        if (taken > longestnote) break;
        admitted += character;
    }
    return admitted;
}

std::size_t notelength(std::string_view utf8) {
    return charactercount(storedlines(utf8));
}

}  // namespace tarvane
