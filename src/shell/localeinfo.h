// What this system tells of its language and dates, row by row as the diagnostic form shows it. Must not decide
// anything.
#pragma once

#include <array>
#include <string>

#include "platform/locale.h"

namespace tarvane {

struct LocaleInfoRow {
    const char* caption;
    std::string text;  ///< empty where the system doesn't know
};

std::array<LocaleInfoRow, 13> localeinforows(const Locale& locale);

}  // namespace tarvane
