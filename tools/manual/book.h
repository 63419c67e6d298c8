// The manual as a whole: title page, contents, chapters with running heads and page numbers, as the bytes of a PDF.
// Must not read or write any file but the figures.
#pragma once

#include <string>
#include <vector>

#include "manual/chapters.h"
#include "manual/figures.h"

namespace tarvane::manual {

/// Throws std::exception, with a sentence, when a figure can't be had or the pages can't be made.
std::string makebook(const std::vector<Chapter>& chapters, const FigureFolders& folders);

}  // namespace tarvane::manual
