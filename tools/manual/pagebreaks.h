// Where a laid out text must go over to the next page earlier than it would: headings stay with what they head, figures
// with their captions, no line of a paragraph stands alone, code and what leads on to it stay together. Must not change
// what the text says.
#pragma once

class QTextDocument;

namespace tarvane::manual {

/// Sets breaks, and makes figures a little smaller where that saves half a page of nothing, until every page is well.
void settlepages(QTextDocument& document);

/// Dots that are left empty at the end of the page before a figure that begins its page, the headings above it taken
/// for its part; 0 for any other.
double spacebefore(const QTextDocument& document, int figure);

}  // namespace tarvane::manual
