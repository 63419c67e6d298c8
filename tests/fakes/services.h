// All scripted services together, as a test hands them to the code that it drives. Must not hold a real one.
#pragma once

#include "fakes/scriptedclipboard.h"
#include "fakes/scriptedclock.h"
#include "fakes/scriptedfiledialogs.h"
#include "fakes/scriptedfolders.h"
#include "fakes/scriptedlocale.h"
#include "fakes/scriptedmessages.h"
#include "fakes/scriptedprinter.h"
#include "fakes/scriptedwindows.h"
#include "platform/services.h"

namespace tarvane {

struct ScriptedServices {
    ScriptedMessages messages;
    ScriptedFileDialogs filedialogs;
    ScriptedPrinter printer;
    ScriptedClipboard clipboard;
    ScriptedClock clock;
    ScriptedLocale locale;
    ScriptedFolders folders;
    ScriptedWindows windows;

    Services services() { return {messages, filedialogs, printer, clipboard, clock, locale, folders, windows}; }
};

}  // namespace tarvane
