// The manual's source: one Markdown file a chapter, and the figures that stand in it. Must not lay anything out.
#pragma once

#include <QRect>
#include <QString>
#include <stdexcept>
#include <vector>

namespace tarvane::manual {

/// What is wrong with the manual's source, in a plain sentence.
struct SourceError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// A picture in a line of its own: `![caption](shot:NAME)`, a picture of a window, with `?crop=LEFT,TOP,WIDTH,HEIGHT`
/// behind the name for a part of it; or `![caption](figure:NAME.svg)`, a drawing.
struct FigureSource {
    QString caption;
    QString kind;  ///< "shot", "figure"
    QString name;
    QRect crop;  ///< in pixels of the window at 96 dpi; null for the whole
};

struct Chapter {
    QString title;
    QString markdown;  ///< below the title; `figuremark` stands where a figure does
    std::vector<FigureSource> figures;
};

/// The paragraph that stands for a chapter's figure, counted from 0.
QString figuremark(std::size_t index);

/// The figure that a paragraph stands for; -1 for any other paragraph.
int figureof(const QString& paragraph);

/// Takes a figure below the paragraph or the list that follows it. False, nothing being changed, when what follows
/// can't stand above it: a heading, a table, another figure, or words that lead on to what comes next.
bool movefigure(Chapter& chapter, std::size_t index);

/// Takes a file's text apart; `name` is the file's, for what is said of it. Throws SourceError.
Chapter readchapter(const QString& text, const QString& name);

/// The folder's files "NN-something.md" in order. Throws SourceError when there is none or one can't be read.
std::vector<Chapter> readchapters(const QString& folder);

}  // namespace tarvane::manual
