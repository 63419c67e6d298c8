// All platform services together, as a window's code is handed them.
#pragma once

#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/drawings.h"
#include "platform/drives.h"
#include "platform/filedialogs.h"
#include "platform/folders.h"
#include "platform/locale.h"
#include "platform/messages.h"
#include "platform/printer.h"
#include "platform/progress.h"
#include "platform/windows.h"
#include "platform/zones.h"

namespace tarvane {

struct Services {
    Messages& messages;
    FileDialogs& filedialogs;
    Printer& printer;
    Clipboard& clipboard;
    Clock& clock;
    Locale& locale;
    Folders& folders;
    Windows& windows;
    Progress& progress;
    Drives& drives;
    Drawings& drawings;
    const Zones& zones;
};

}  // namespace tarvane
