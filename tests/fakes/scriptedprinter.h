// A printer that notes what is printed where. Text metrics are plain arithmetic, so positions are the same on every
// machine: a character is 10 twips a point wide (11 in bold), a line 24 twips a point high, tab stops stand 720 twips
// apart.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/printer.h"
#include "text/singlebyte.h"

namespace tarvane {

class ScriptedPrinter : public Printer {
  public:
    enum class Kind { text, line, point, image };

    /// One piece of text (without line ends), a line from (x, y) to (x2, y2), or a point. Page numbers count from 1.
    struct Printed {
        Kind kind = Kind::text;
        int page = 1;
        double x = 0, y = 0;
        double x2 = 0, y2 = 0;
        double size = 9;  ///< of a text, points; of a line its thickness in twips
        bool bold = false;
        std::string text;
    };

    double pagewidth = 11186;
    double pageheight = 15120;
    bool standsthere = true;          ///< whether there is a printer
    std::optional<PageRange> choice;  ///< what the user chooses; nothing: he cancels
    std::vector<int> choices;         ///< the pages that each choice was among
    std::string refuse;               ///< why `begin` fails; empty: it doesn't
    std::string fail;                 ///< why `enddocument` fails
    std::string place;                ///< what `destination` tells

    std::vector<Printed> printed;
    std::string title;
    int documents = 0;  ///< handed over
    int pages = 0;      ///< of the document begun last
    bool open = false;

    /// Every entry a line: "1 text 0 240 9 bold Port", "1 line 0 0 9900 0 8". Coordinates are rounded to whole twips.
    std::string log() const;

    /// The texts alone, in the order printed.
    std::vector<std::string> texts() const;

    bool available() const override { return standsthere; }
    std::optional<PageRange> choose(int among) override {
        choices.push_back(among);
        return choice;
    }

    PrintOutcome begin(const std::string& name) override;

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
    void setlinewidth(double twips) override { linewidth = twips; }
    double currentx() const override { return x; }
    double currenty() const override { return y; }
    void setcurrentx(double newx) override { x = newx; }
    void setcurrenty(double newy) override { y = newy; }

    double textwidth(const std::string& text) const override;
    double textheight() const override { return 24 * size; }

    void print(const std::string& text) override {
        put(text);
        x = left;
        y += textheight();
    }
    void printon(const std::string& text) override { put(text); }

    void line(double x1, double y1, double x2, double y2) override {
        printed.push_back({Kind::line, pages, x1, y1, x2, y2, linewidth, false, {}});
    }
    void point(double px, double py) override { printed.push_back({Kind::point, pages, px, py, 0, 0, size, bold, {}}); }

    void image(double px, double py, double wide, double high, const PagePicture& picture) override {
        EXPECT_NE(picture.pixels, nullptr);
        printed.push_back({Kind::image, pages, px, py, px + wide, py + high, double(picture.width), false, {}});
    }

    void newpage() override {
        ++pages;
        x = left;
        y = top;
    }

    PrintOutcome enddocument() override;
    std::string destination() const override { return place; }

  private:
    double left = 0, top = 0;
    double x = 0, y = 0;
    double size = 9;
    bool bold = false;
    double linewidth = 8;

    /// Where the position stands behind a text that begins at `from`.
    double behind(const std::string& text, double from) const;

    void put(const std::string& text);
};

}  // namespace tarvane
