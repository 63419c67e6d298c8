#include "shell/conditions.h"

#include <array>

namespace tarvane {

namespace {

constexpr std::size_t indent = 16;

constexpr std::array<const char*, 25> conditions{
    "Tarvane Tides is a passage planning and secondary navigation aid. Whoever uses it",
    "as a primary navigation tool does so entirely at their own risk.",
    "",
    "The authors accept no responsibility or liability for any loss, damage or injury,",
    "however caused, that may follow from the use of this program or of its data.",
    "",
    "All results are worked out from published constants and predicted orbital elements.",
    "They allow neither for the weather nor for changes of the sea bed, and are to be",
    "regarded as approximate.",
    "",
    "Data source: the UKHO simplified harmonic constants, whose form and method are",
    "followed throughout. No claim is made as to the accuracy of any tide time or height.",
    "The constants supplied are modified from: Hart-Davis, Dettmering, Seitz (2025), TICON-4,",
    "SEANOE, https://doi.org/10.17882/109129, CC BY 4.0; US National Oceanic and Atmospheric",
    "Administration, public domain; Kartverket, CC BY 4.0; all by way of the Neaps tide",
    "database (openwatersio/tide-database). Not for navigation.",
    "",
    "Copying: the program and its manual are their authors'. They may be passed on only whole,",
    "unaltered and with these conditions. The data supplied keep the terms of their sources.",
    "",
    "Tidal data in this program may be reproduced from the work of hydrographic offices and of",
    "other bodies that publish tidal constants. They have not verified the reproduced data and",
    "accept no liability for its accuracy, for any change made to it, or for its use. Mariners",
    "should consult the official publications of the hydrographic office concerned, and local",
    "notices, before relying on any prediction.",
};

}  // namespace

std::vector<std::string> conditionslines() {
    std::vector<std::string> lines(1);
    for (const std::string line : conditions)
        lines.push_back(line.empty() ? line : std::string(indent, ' ') + line);
    return lines;
}

}  // namespace tarvane
