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
    /// Throws SourceError for a figure that can't be had.
    ChapterPages(const Chapter& chapter, const FigureFolders& folders, QPagedPaintDevice& device);

    const QString& title() const { return chaptertitle; }
    int count() const;
    std::vector<Heading> sections() const;

    /// Paints a page's text with the origin at its top left.
    void paint(QPainter& painter, int page) const;

    /// The text as it was laid out.
    const QTextDocument& text() const { return *document; }

  private:
    void layout(const Chapter& chapter, QPagedPaintDevice& device, double height);
    double lastheight() const;

    QString chaptertitle;
    FigureLetter letters;
    std::unique_ptr<QTextDocument> document;
};

}  // namespace tarvane::manual
