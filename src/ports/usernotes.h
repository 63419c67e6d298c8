// The user's depth and note of each port, as far as the Port Notes dialog isn't controls: loading, picking, entering
// and leaving. The caller shows the dialog and, when it is closed, refreshes the menus and the curve.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "session/session.h"

namespace tarvane {

/// Bytes of a note in its record; a line end takes two.
inline constexpr std::size_t longestnote = 256;

/// What the dialog shows. Lines of the note end in LF.
struct UserNotes {
    std::vector<std::string> rows;  ///< every port, as `portrows` gives them
    std::string portlabel;          ///< name of the port in hand
    std::string portnolabel;        ///< its record number
    std::string depth;              ///< metres, as plain number
    std::string usernotes;          ///< without the blanks at its ends
    std::string matchline;          ///< how many records were made for another port; empty when none was
};

/// Every port of an area file as a list shows it: record number, two blanks, the name with the blanks that fill it
/// and up to the first NUL.
std::vector<std::string> portrows(const std::string& hcfile);

/// Metres typed into a box: the leading number of the text, within what a record holds; 0 if there is none.
float typedmetres(std::string_view text);

/// Builds `settings.depfile` and makes the file when it is missing; tells the user if that failed.
void ensuredepths(MainContext& context);

/// What the dialog opens with: settings from the configuration, which is written anew if it has vanished, every port,
/// and the current one's depth and note.
UserNotes loadusernotes(MainContext& context);

/// The port at `index` of the rows, from 0, comes in hand.
void pickusernotes(const Settings& settings, UserNotes& notes, int index);

/// The same for a double click, which also renames the port on show.
void pickandnameport(Session& session, UserNotes& notes, int index);

/// `cdok`: stores depth and note of the port in hand and shows them as stored. Texts as typed; a depth without a number
/// is 0. False if nothing was stored, which is told.
bool enterusernotes(MainContext& context, UserNotes& notes, std::string_view depth, std::string_view usernotes);

/// `matchnames`: each depth and note goes to the port of its name, once the user has agreed to what that does; the port
/// in hand is shown anew. False if nothing was written.
bool matchnotes(MainContext& context, UserNotes& notes);

/// `cdclose`: the month's list goes, and the main view is refreshed with the current port's depth.
void closeusernotes(MainContext& context);

/// What becomes of a key typed into the depth, 0 when it is dropped: digits, ".", "-" and backspace stay, and a "," is
/// taken for the point.
char32_t depthkey(char32_t key);

/// The same for a box that drops nothing.
char32_t metreskey(char32_t key);

/// True if the texts on show differ from what was loaded or entered last.
bool notechanged(const UserNotes& notes, std::string_view depth, std::string_view usernotes);

/// What is asked before changed texts are left.
std::string enterquestion(const UserNotes& notes);

/// The line under the note: how much of its room is taken, and whether anything waits to be entered.
std::string notestate(const UserNotes& notes, std::string_view depth, std::string_view usernotes);

/// What of a typed text a note takes of which `taken` bytes are full: line ends, tabs and the printing characters of
/// Windows-1252, from its start until the note is full.
std::string admittednote(std::string_view typed, std::size_t taken);

/// Bytes that a note takes in its record.
std::size_t notelength(std::string_view utf8);

}  // namespace tarvane
