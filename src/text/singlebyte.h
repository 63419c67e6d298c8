// Texts: Windows-1252 as it stands in records and text files, UTF-8 everywhere else in memory, and the plain trims
// and case folds that both need. Must not know any record.
#pragma once

#include <string>
#include <string_view>

namespace tarvane {

/// UTF-8 to Windows-1252; a character outside it becomes "?".
std::string tosinglebyte(std::string_view utf8);

/// Windows-1252 to UTF-8; the five unassigned codes become U+FFFD.
std::string fromsinglebyte(std::string_view bytes);

/// True if every character of the text exists in Windows-1252.
bool fitssinglebyte(std::string_view utf8);

/// True if the text is well-formed UTF-8.
bool validutf8(std::string_view text);

/// Blanks (code 32) off the left, the right, both ends.
std::string ltrim(std::string_view text);
std::string rtrim(std::string_view text);
std::string trim(std::string_view text);

/// The first n characters (not bytes) of a UTF-8 text; the whole text when it has fewer.
std::string leftcharacters(std::string_view utf8, std::size_t n);

/// Number of characters of a UTF-8 text.
std::size_t charactercount(std::string_view utf8);

/// Case folds of the Windows-1252 letters, accented ones included, on UTF-8 text; anything else stays.
std::string uppercase(std::string_view utf8);
std::string lowercase(std::string_view utf8);

/// The text's code points, for comparison by ordinal character code.
std::u32string codepoints(std::string_view utf8);

}  // namespace tarvane
