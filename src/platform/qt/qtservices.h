// All real services together, made once by the program's entry.
#pragma once

#include "platform/qt/qtclipboard.h"
#include "platform/qt/qtclock.h"
#include "platform/qt/qtdrawings.h"
#include "platform/qt/qtdrives.h"
#include "platform/qt/qtfiledialogs.h"
#include "platform/qt/qtfolders.h"
#include "platform/qt/qtlocale.h"
#include "platform/qt/qtmessages.h"
#include "platform/qt/qtprinter.h"
#include "platform/qt/qtprogress.h"
#include "platform/qt/qtwindows.h"
#include "platform/services.h"
#include "platform/systemzones/systemzones.h"

namespace tarvane {

struct QtServices {
    QtMessages messages;
    QtFileDialogs filedialogs;
    QtPrinter printer;
    QtClipboard clipboard;
    QtClock clock;
    QtLocale locale;
    QtFolders folders;
    QtWindows windows;
    QtProgress progress;
    QtDrives drives;
    QtDrawings drawings;
    SystemZones zones;

    Services services() {
        return {messages, filedialogs, printer,  clipboard, clock,    locale,
                folders,  windows,     progress, drives,    drawings, zones};
    }
};

}  // namespace tarvane
