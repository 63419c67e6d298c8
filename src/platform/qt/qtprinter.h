// The default printer, or a PDF where the system has none. The page's coordinates are twips at any resolution. Must not
// ask the user anything.
#pragma once

#include <QFont>
#include <QPainter>
#include <QPrinter>
#include <memory>

#include "platform/printer.h"

namespace tarvane {

class QtPrinter : public Printer {
  public:
    QtPrinter() = default;

    /// Always prints to this PDF file, replacing it.
    explicit QtPrinter(const std::string& path) : forcedpath(path) {}

    /// The folder in which "title.pdf" is made where there is no printer; one that stands is never overwritten.
    void setpdffolder(const std::string& folder) { pdffolder = folder; }

    /// Prints to PDF even where the system has printers.
    void setpdfonly(bool on) { pdfonly = on; }

    bool begin(const std::string& title) override;
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
    void newpage() override;
    bool enddocument() override;
    std::string destination() const override { return pdfpath; }

  private:
    bool topdf() const;
    void put(const QString& text);
    double putpiece(const QString& piece, double x);

    std::string forcedpath;
    std::string pdffolder;
    bool pdfonly = false;
    std::string pdfpath;  ///< of the document begun last; empty for a printer
    std::unique_ptr<QPrinter> printer;
    std::unique_ptr<QPainter> painter;
    QFont font;
    double linewidth = 0;
    QSizeF pagesize;
    QPointF origin;
    QPointF current;
};

/// A file "title.pdf", "title 2.pdf" ... in the folder that doesn't stand there yet; characters that no file name may
/// have become "_".
std::string freepdfpath(const std::string& folder, const std::string& title);

}  // namespace tarvane
