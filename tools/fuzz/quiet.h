// Services that answer every question with yes and show nothing, so that a command runs to its end over any file. Must
// not touch the screen or a file.
#pragma once

#include <string>

#include "dates/englishlocale.h"
#include "platform/canvas.h"
#include "platform/services.h"

namespace tarvane::fuzz {

struct QuietMessages : Messages {
    void show(const std::string&, const std::string&, MessageIcon) override {}
    bool ask(const std::string&, const std::string&, MessageIcon) override { return true; }
    Answer askorcancel(const std::string&, const std::string&, MessageIcon) override { return Answer::yes; }
    void beep() override {}
};

struct QuietDialogs : FileDialogs {
    std::optional<std::string> open(const FileRequest&) override { return std::nullopt; }
    std::optional<std::string> save(const FileRequest&) override { return std::nullopt; }
};

/// Pages that nobody sees, with plain text metrics.
struct QuietPrinter : Printer {
    double x = 0, y = 0;

    bool available() const override { return true; }
    std::optional<PageRange> choose(int) override { return std::nullopt; }
    void image(double, double, double, double, const PagePicture&) override {}
    PrintOutcome begin(const std::string&) override { return {}; }
    double width() const override { return 11186; }
    double height() const override { return 15120; }
    double scalewidth() const override { return width(); }
    double scaleheight() const override { return height(); }
    void setorigin(double, double) override {}
    void setfontsize(double) override {}
    void setbold(bool) override {}
    double currentx() const override { return x; }
    double currenty() const override { return y; }
    void setcurrentx(double to) override { x = to; }
    void setcurrenty(double to) override { y = to; }
    double textwidth(const std::string& text) const override { return 90.0 * static_cast<double>(text.size()); }
    double textheight() const override { return 216; }
    void print(const std::string&) override { y += textheight(); }
    void printon(const std::string& text) override { x += textwidth(text); }
    void setlinewidth(double) override {}
    void line(double, double, double, double) override {}
    void point(double, double) override {}
    void newpage() override { x = y = 0; }
    PrintOutcome enddocument() override { return {}; }
    std::string destination() const override { return {}; }
};

/// A canvas that takes every shape.
struct QuietCanvas : Canvas {
    double textwidth(const std::string& text, const TextLook& look) const override {
        return look.size / 2 * static_cast<double>(text.size());
    }
    double textheight(const TextLook& look) const override { return look.size; }
    void fill(const Area&, Rgb, double) override {}
    void fill(std::span<const Place>, Rgb, double) override {}
    void fillhatched(std::span<const Place>, double, const HatchLook&) override {}
    void line(std::span<const Place>, const LineLook&) override {}
    void text(Place, const std::string&, const TextLook&) override {}
};

struct QuietClipboard : Clipboard {
    void clear() override {}
    void settext(const std::string&) override {}
    std::string text() const override { return {}; }
};

/// Noon of 22 November 2026, for ever.
struct QuietClock : Clock {
    ClockReading now() const override { return {std::chrono::year{2026} / 11 / 22, 12, 0, 0}; }
    std::chrono::sys_seconds moment() const override { return readas(now()); }
};

struct QuietFolders : Folders {
    std::string root;

    std::string program() const override { return root; }
    std::optional<std::string> documents() const override { return root; }
    std::string localappdata() const override { return root; }
    bool keepschanges() const override { return true; }
    bool make(const std::string&) override { return true; }
    bool remove(const std::string&) override { return true; }
};

struct QuietWindows : Windows {
    void showmodal(ModalWindow&) override {}
    void showmanual(const std::string&) override {}
};

struct QuietProgress : Progress {
    bool run(const std::string&, int, const std::function<bool(int)>&) override { return false; }
};

struct QuietDrives : Drives {
    std::vector<Drive> drives() const override { return {}; }
};

struct QuietDrawings : Drawings {
    Paper usualpaper() const override { return Paper::a4; }
    std::string png(const Drawing&, double) override { return {}; }
    std::string svg(const Drawing&) override { return {}; }
    std::string pdf(const Booklet&, Paper) override { return {}; }
    void copy(const Drawing&) override {}
    PrintOutcome preview(const Booklet&, Paper) override { return {}; }
};

struct QuietZones : Zones {
    std::optional<ZoneOffset> offsetat(const std::string&, std::chrono::sys_seconds) const override { return {}; }
    std::string computerszone() const override { return {}; }
};

struct QuietSurface : DrawSurface {
    void setscale(double, double, double, double) override {}
    void setpersistent(bool) override {}
    void clear() override {}
    void setbackcolour(Colour) override {}
    void setlinewidth(int) override {}
    void setlinestyle(LineStyle) override {}
    void line(double, double, double, double, Colour) override {}
    void box(double, double, double, double, Colour) override {}
    void point(double, double, Colour) override {}
    void text(double, double, const std::string&) override {}
};

struct QuietServices {
    QuietMessages messages;
    QuietDialogs filedialogs;
    QuietPrinter printer;
    QuietClipboard clipboard;
    QuietClock clock;
    EnglishLocale locale;
    QuietFolders folders;
    QuietWindows windows;
    QuietProgress progress;
    QuietDrives drives;
    QuietDrawings drawings;
    QuietZones zones;

    Services services() {
        return {messages, filedialogs, printer,  clipboard, clock,    locale,
                folders,  windows,     progress, drives,    drawings, zones};
    }
};

}  // namespace tarvane::fuzz
