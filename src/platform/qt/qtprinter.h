// Pages of text and lines, drawn for the default printer or, where the system has none, for a PDF. The page's
// coordinates are twips at any resolution. Must not ask the user anything but which
// printer he wants, and that only when told to.
#pragma once

#include <QFont>
#include <QPainter>
#include <memory>

#include "platform/printer.h"
#include "platform/qt/pagetarget.h"

namespace tarvane {

class QtPrinter : public Printer {
  public:
    /// The folder in which "title.pdf" is made where there is no printer.
    void setpdffolder(const std::string& folder) { pdffolder = folder; }

    /// Prints to PDF even where the system has printers.
    void setpdfonly(bool on) { pdfonly = on; }

    bool available() const override { return !pdfonly && anyprinter(); }
    std::optional<PageRange> choose(int pages) override;
    PrintOutcome begin(const std::string& title) override;
    double width() const override { return pagesize.width(); }
    double height() const override { return pagesize.height(); }
    double scalewidth() const override { return pagesize.width(); }
    double scaleheight() const override { return pagesize.height(); }
    void setorigin(double left, double top) override;
    void setfontsize(double points) override;
    void setbold(bool on) override;
    double currentx() const override { return current.x(); }
    double currenty() const override { return current.y(); }
    void setcurrentx(double x) override { current.setX(x); }
    void setcurrenty(double y) override { current.setY(y); }
    double textwidth(const std::string& text) const override;
    double textheight() const override;

    /// Tab stops stand every 720 twips from the page's left edge.
    void print(const std::string& text) override;
    void printon(const std::string& text) override;
    void setlinewidth(double twips) override { linewidth = twips; }
    void line(double x1, double y1, double x2, double y2) override;
    void point(double x, double y) override;
    void image(double x, double y, double width, double height, const PagePicture& picture) override;
    void newpage() override;
    PrintOutcome enddocument() override;
    std::string destination() const override { return place; }

  private:
    void put(const QString& text);
    double putpiece(const QString& piece, double x);

    std::string pdffolder;
    bool pdfonly = false;
    std::string chosen;  ///< the printer's name; empty for the system's own choice
    std::string place;
    std::unique_ptr<PageTarget> target;  ///< before the painter, which must go first
    std::unique_ptr<QPainter> painter;
    QFont font;
    double linewidth = 0;
    QSizeF pagesize;
    QPointF origin;
    QPointF current;
};

}  // namespace tarvane
