// One chapter laid out on pages: its text in the manual's style, no heading alone at a page's foot, every figure on one
// page with its caption. Must not know the other chapters.
#pragma once

#include <QTextDocument>
#include <memory>
#include <vector>

#include "manual/chapters.h"
#include "manual/figures.h"

class QPagedPaintDevice;
class QPainter;

namespace tarvane::manual {

/// A section's heading and where it came to stand.
struct Heading {
    QString title;
    int page = 0;    ///< of the chapter, from 0
    double top = 0;  ///< dots from the top of the page's text
};

class ChapterPages {
  public:
    /// The first page is free from `start` on, millimetres from the top of its text; 0 for a page of its own. Throws
    /// SourceError for a figure that can't be had.
    ChapterPages(const Chapter& chapter, const FigureFolders& folders, QPagedPaintDevice& device, double start = 0);

    const QString& title() const { return chaptertitle; }
    int count() const;

    /// Where the chapter begins, millimetres from the top of its first page's text: `start`, or 0 where what stays with
    /// its title has no room below that.
    double start() const { return startsat; }

    /// Millimetres of the last page that are taken.
    double end() const;

    std::vector<Heading> sections() const;

    /// Paints a page's text with the origin at its top left.
    void paint(QPainter& painter, int page) const;

    /// The text as it was laid out.
    const QTextDocument& text() const { return *document; }

  private:
    void settle(Chapter chapter, QPagedPaintDevice& device, double height);
    void layout(const Chapter& chapter, QPagedPaintDevice& device, double height);

    QString chaptertitle;
    double startsat;
    FigureLetter letters;
    std::unique_ptr<QTextDocument> document;
};

}  // namespace tarvane::manual
