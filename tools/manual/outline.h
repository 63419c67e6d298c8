// What the toolkit can't write into a PDF: the outline that readers show beside the pages, links inside the document,
// and bytes that are the same for the same contents. Must not lay anything out.
#pragma once

#include <string>
#include <vector>

namespace tarvane::manual {

/// A place in the document: a page from 0, and points from the page's top.
struct Place {
    int page = 0;
    double top = 0;
};

struct Bookmark {
    std::string title;  ///< UTF-8
    int level = 1;      ///< 1 a chapter, 2 a section of the one before
    Place place;
};

/// A rectangle of a page, in points from its top left, that leads elsewhere.
struct Link {
    int page = 0;
    double left = 0, top = 0, width = 0, height = 0;
    Place to;
};

/// The PDF with these in it, and without the moment at which it was made. Throws std::exception for a PDF that can't be
/// read, or a page that it hasn't.
std::string withoutline(const std::string& pdf, const std::vector<Bookmark>& bookmarks, const std::vector<Link>& links);

}  // namespace tarvane::manual
