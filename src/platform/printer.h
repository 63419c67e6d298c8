// The default printer, or the PDF that stands in for it: pages of text and lines in the printer's own coordinates.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tarvane {

/// What became of a step of printing.
struct PrintOutcome {
    std::string whynot;  ///< empty when it was done; "/home/anna/TextOutput: Permission denied"

    operator bool() const { return whynot.empty(); }
};

/// Pages of a document, from 1, the last one included.
struct PageRange {
    int first = 1;
    int last = 1;
};

/// A picture, row by row from its top left, 0xAARRGGBB a pixel. Holds no pixels of its own.
struct PagePicture {
    int width = 0;
    int height = 0;
    const std::uint32_t* pixels = nullptr;
};

class Printer {
  public:
    virtual ~Printer() = default;

    /// Whether there is a printer, and not a PDF in its place.
    virtual bool available() const = 0;

    /// Lets the user choose the printer of all that is printed from now on, and the pages of a document that has more
    /// than 0 of them. Nothing when he cancels.
    virtual std::optional<PageRange> choose(int pages) = 0;

    /// Opens a document. Coordinates start as twips (1440 to the inch) from the top left of the printable page; font
    /// size 9, not bold, lines 8 twips thick, the current position at the origin.
    virtual PrintOutcome begin(const std::string& title) = 0;

    virtual double width() const = 0;       ///< printable width of the page, twips
    virtual double height() const = 0;      ///< printable height, twips
    virtual double scalewidth() const = 0;  ///< width in the scale in force
    virtual double scaleheight() const = 0;

    /// Moves the origin: the page's left and top edges get these coordinates, the unit staying.
    virtual void setorigin(double left, double top) = 0;

    virtual void setfontsize(double points) = 0;
    virtual void setbold(bool on) = 0;

    virtual double currentx() const = 0;
    virtual double currenty() const = 0;
    virtual void setcurrentx(double x) = 0;
    virtual void setcurrenty(double y) = 0;

    virtual double textwidth(const std::string& text) const = 0;
    virtual double textheight() const = 0;  ///< height of one line in the font in force

    /// Prints at the current position and goes to the start (the page's left edge, x = the scale's left) of the next
    /// line. A tab goes to the next tab stop; CR, LF and CR LF inside start a new line at the x at which the text
    /// began.
    virtual void print(const std::string& text) = 0;

    /// Prints at the current position and stays behind the text.
    virtual void printon(const std::string& text) = 0;

    /// Thickness of the lines to come, twips.
    virtual void setlinewidth(double twips) = 0;
    virtual void line(double x1, double y1, double x2, double y2) = 0;
    virtual void point(double x, double y) = 0;

    /// Prints a picture into a rectangle.
    virtual void image(double x, double y, double width, double height, const PagePicture& picture) = 0;

    virtual void newpage() = 0;

    /// Hands the document over. When that fails nothing of it is left behind.
    virtual PrintOutcome enddocument() = 0;

    /// Where the document handed over last went: empty for a printer, a path for a PDF.
    virtual std::string destination() const = 0;
};

}  // namespace tarvane
