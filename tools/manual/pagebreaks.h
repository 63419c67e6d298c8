// Where a laid out text must go over to the next page earlier than it would: headings stay with what they head, figures
// with their captions, no line of a paragraph stands alone. Must not change what the text says.
#pragma once

class QTextDocument;

namespace tarvane::manual {

/// Sets breaks, and makes figures a little smaller where that saves half a page of nothing, until every page is well.
void settlepages(QTextDocument& document);

}  // namespace tarvane::manual
