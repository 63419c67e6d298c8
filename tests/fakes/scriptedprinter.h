// A printer that notes what is printed where. Text metrics are plain arithmetic, so positions are the same on every
// machine: a character is 10 twips a point wide (11 in bold), a line 24 twips a point high, tab stops stand 720 twips
// apart.
#pragma once

#include <algorithm>
#include <cmath>
#include <sstream>
#include <string>
#include <vector>

#include "platform/printer.h"
#include "text/singlebyte.h"

namespace tarvane {

class ScriptedPrinter : public Printer {
  public:
    enum class Kind { text, line, point };

    /// One piece of text (without line ends), a line from (x, y) to (x2, y2), or a point. Page numbers count from 1.
    struct Printed {
        Kind kind = Kind::text;
        int page = 1;
        double x = 0, y = 0;
        double x2 = 0, y2 = 0;
        double size = 9;
        bool bold = false;
        std::string text;
    };

    double pagewidth = 11000;
    double pageheight = 16000;
    bool refuse = false;  ///< `begin` fails
    std::string place;    ///< what `destination` tells

    std::vector<Printed> printed;
    std::string title;
    int documents = 0;  ///< handed over
    int pages = 0;      ///< of the document begun last
    bool open = false;

    /// Every entry a line: "1 text 0 240 9 bold Port". Coordinates are rounded to whole twips.
    std::string log() const {
        constexpr const char* names[] = {"text", "line", "point"};
        std::ostringstream all;
        for (const Printed& entry : printed) {
            const auto whole = [](double twips) { return static_cast<long>(std::nearbyint(twips)); };
            all << entry.page << ' ' << names[static_cast<int>(entry.kind)] << ' ' << whole(entry.x) << ' '
                << whole(entry.y);
            if (entry.kind == Kind::line) all << ' ' << whole(entry.x2) << ' ' << whole(entry.y2);
            if (entry.kind == Kind::text) all << ' ' << entry.size << (entry.bold ? " bold " : " plain ") << entry.text;
            all << '\n';
        }
        return all.str();
    }

    /// The texts alone, in the order printed.
    std::vector<std::string> texts() const {
        std::vector<std::string> all;
        for (const Printed& entry : printed)
            if (entry.kind == Kind::text) all.push_back(entry.text);
        return all;
    }

    bool begin(const std::string& name) override {
        if (refuse) return false;
        title = name;
        open = true;
        pages = 1;
        left = top = x = y = 0;
        size = 9;
        bold = false;
        return true;
    }

    double width() const override { return pagewidth; }
    double height() const override { return pageheight; }
    double scalewidth() const override { return pagewidth; }
    double scaleheight() const override { return pageheight; }

    void setorigin(double newleft, double newtop) override {
        left = newleft;
        top = newtop;
    }

    void setfontsize(double points) override { size = points; }
    void setbold(bool on) override { bold = on; }
    double currentx() const override { return x; }
    double currenty() const override { return y; }
    void setcurrentx(double newx) override { x = newx; }
    void setcurrenty(double newy) override { y = newy; }

    double textwidth(const std::string& text) const override {
        double widest = 0;
        for (const std::string& piece : lines(text))
            widest = std::max(widest, behind(piece, left) - left);
        return widest;
    }
    double textheight() const override { return 24 * size; }

    void print(const std::string& text) override {
        put(text);
        x = left;
        y += textheight();
    }
    void printon(const std::string& text) override { put(text); }

    void line(double x1, double y1, double x2, double y2) override {
        printed.push_back({Kind::line, pages, x1, y1, x2, y2, size, bold, {}});
    }
    void point(double px, double py) override { printed.push_back({Kind::point, pages, px, py, 0, 0, size, bold, {}}); }

    void newpage() override {
        ++pages;
        x = left;
        y = top;
    }

    bool enddocument() override {
        const bool was = open;
        open = false;
        if (was) ++documents;
        return was;
    }
    std::string destination() const override { return place; }

  private:
    double left = 0, top = 0;
    double x = 0, y = 0;
    double size = 9;
    bool bold = false;

    static std::vector<std::string> lines(const std::string& text) {
        std::vector<std::string> all(1);
        for (std::size_t i = 0; i < text.size(); ++i) {
            if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
            if (text[i] == '\r' || text[i] == '\n')
                all.emplace_back();
            else
                all.back() += text[i];
        }
        return all;
    }

    /// Where the position stands behind a text that begins at `from`.
    double behind(const std::string& text, double from) const {
        for (const char32_t c : codepoints(text))
            from = c == U'\t' ? left + 720 * (std::floor((from - left) / 720) + 1) : from + (bold ? 11 : 10) * size;
        return from;
    }

    void put(const std::string& text) {
        const double start = x;
        bool first = true;
        for (const std::string& piece : lines(text)) {
            if (!first) y += textheight();
            first = false;
            if (!piece.empty()) printed.push_back({Kind::text, pages, start, y, 0, 0, size, bold, piece});
            x = behind(piece, start);
        }
    }
};

}  // namespace tarvane
