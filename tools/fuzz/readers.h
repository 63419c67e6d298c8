// The kinds of file that the program reads, a sound one of each, and all that it does with what it read. Must not judge
// the outcome: a sanitizer, a crash or a hang does.
#pragma once

#include <span>
#include <string>

#include "fuzz/mutate.h"

namespace tarvane::fuzz {

struct Kind {
    const char* name;                                ///< "area"
    const char* filename;                            ///< what the input is called on the disk
    std::string (*sample)(const std::string& area);  ///< a sound one; `area` is that of the whole program
    std::string (*mutate)(std::string, Random&);
    void (*read)(const std::string& folder, Random& random);  ///< after the input was put into the folder
};

std::span<const Kind> kinds();

/// Puts a sound file of every kind into the folder, for the one that is broken to be read among.
void furnish(const std::string& folder, const std::string& area);

}  // namespace tarvane::fuzz
