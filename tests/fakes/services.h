// All scripted services together, as a test hands them to the code that it drives. Must not hold a real one.
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include "fakes/scriptedfolders.h"
#include "fakes/scriptedlocale.h"
#include "fakes/scriptedprinter.h"
#include "fakes/scriptedquestions.h"
#include "platform/services.h"
#include "platform/systemzones/systemzones.h"

namespace tarvane {

/// A clipboard in memory.
struct ScriptedClipboard : Clipboard {
    std::string contents;
    int clears = 0;

    void clear() override {
        contents.clear();
        ++clears;
    }
    void settext(const std::string& text) override { contents = text; }
    std::string text() const override { return contents; }
};

/// A clock that stands where a test puts it: noon of 22 November 2026 until told otherwise.
struct ScriptedClock : Clock {
    ClockReading reading{std::chrono::year{2026} / 11 / 22, 12, 0, 0};

    void set(int year, unsigned month, unsigned day, int hour = 12, int minute = 0, int second = 0) {
        reading = {std::chrono::year{year} / static_cast<int>(month) / static_cast<int>(day), hour, minute, second};
    }

    ClockReading now() const override { return reading; }

    /// The same reading, taken for universal time.
    std::chrono::sys_seconds moment() const override { return readas(reading); }
};

/// A progress that nobody sees; the user cancels when `cancelafter` steps were done.
struct ScriptedProgress : Progress {
    int cancelafter = -1;  ///< negative for never
    std::vector<std::string> texts;

    bool run(const std::string& text, int steps, const std::function<bool(int)>& step) override {
        texts.push_back(text);
        for (int i = 0; i < steps; ++i)
            if (i == cancelafter || !step(i)) return false;
        return true;
    }
};

/// Drives that a test puts in and takes out.
struct ScriptedDrives : Drives {
    std::vector<Drive> mounted;

    std::vector<Drive> drives() const override { return mounted; }
};

/// Pictures and pages that are asked for, none of them painted; files hold the kind and the title.
struct ScriptedDrawings : Drawings {
    std::vector<Drawing> copied;
    std::vector<Booklet> previewed;

    Paper usualpaper() const override { return Paper::a4; }
    std::string png(const Drawing& drawing, double) override { return "PNG of " + drawing.title; }
    std::string svg(const Drawing& drawing) override { return "SVG of " + drawing.title; }
    std::string pdf(const Booklet& booklet, Paper) override { return "PDF of " + booklet.title; }
    void copy(const Drawing& drawing) override { copied.push_back(drawing); }
    PrintOutcome preview(const Booklet& booklet, Paper) override {
        previewed.push_back(booklet);
        return {};
    }
};

struct ScriptedServices {
    ScriptedMessages messages;
    ScriptedFileDialogs filedialogs;
    ScriptedPrinter printer;
    ScriptedClipboard clipboard;
    ScriptedClock clock;
    ScriptedLocale locale;
    ScriptedFolders folders;
    ScriptedWindows windows;
    ScriptedProgress progress;
    ScriptedDrives drives;
    ScriptedDrawings drawings;
    SystemZones zones;

    Services services() {
        return {messages, filedialogs, printer,  clipboard, clock,    locale,
                folders,  windows,     progress, drives,    drawings, zones};
    }
};

}  // namespace tarvane
