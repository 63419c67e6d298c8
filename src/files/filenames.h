// Names of files that are made of what the user or a record calls things. Must not look at the disk.
#pragma once

#include <string>
#include <string_view>

namespace tarvane {

/// A text (UTF-8) as the name of a file on any system, without its folder: signs that a file system or a shell's user
/// stumbles over (slashes, ":*?\"<>|", control characters, what stands for an unknown character) become "_", as does a
/// point in front, which would hide the file; blanks at the ends go. Never empty: "Tarvane" stands in.
std::string safefilename(std::string_view text);

}  // namespace tarvane
