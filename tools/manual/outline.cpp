#include "manual/outline.h"

#include <memory>
#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFWriter.hh>

namespace tarvane::manual {
namespace {

using Object = QPDFObjectHandle;

double heightof(Object page) {
    return page.getKey("/MediaBox").getArrayItem(3).getNumericValue();
}

Object destination(const std::vector<Object>& pages, const Place& place) {
    Object page = pages.at(static_cast<std::size_t>(place.page));
    const double height = heightof(page);
    return Object::newArray({page, Object::newName("/XYZ"), Object::newInteger(0),
                             Object::newReal(height - place.top, 2), Object::newNull()});
}

/// Hangs an entry behind the last one below `parent`.
void append(Object parent, Object entry) {
    entry.replaceKey("/Parent", parent);
    if (parent.hasKey("/Last")) {
        Object before = parent.getKey("/Last");
        before.replaceKey("/Next", entry);
        entry.replaceKey("/Prev", before);
    } else {
        parent.replaceKey("/First", entry);
    }
    parent.replaceKey("/Last", entry);
}

/// How many entries below this one a reader shows at first: a chapter's sections wait until it is opened.
void count(Object parent, int sign) {
    int entries = 0;
    for (Object entry = parent.getKey("/First"); entry.isDictionary(); entry = entry.getKey("/Next"))
        ++entries;
    if (entries) parent.replaceKey("/Count", Object::newInteger(sign * entries));
}

void addoutline(QPDF& document, const std::vector<Object>& pages, const std::vector<Bookmark>& bookmarks) {
    Object outline = document.makeIndirectObject(Object::parse("<< /Type /Outlines >>"));
    std::vector<Object> chapters;
    for (const Bookmark& bookmark : bookmarks) {
        Object entry = document.makeIndirectObject(Object::newDictionary());
        entry.replaceKey("/Title", Object::newUnicodeString(bookmark.title));
        entry.replaceKey("/Dest", destination(pages, bookmark.place));
        const bool chapter = bookmark.level <= 1 || chapters.empty();
        append(chapter ? outline : chapters.back(), entry);
        if (chapter) chapters.push_back(entry);
    }
    for (const Object& chapter : chapters)
        count(chapter, -1);
    count(outline, 1);
    document.getRoot().replaceKey("/Outlines", outline);
    document.getRoot().replaceKey("/PageMode", Object::newName("/UseOutlines"));
}

void addlink(QPDF& document, const std::vector<Object>& pages, const Link& link) {
    Object page = pages.at(static_cast<std::size_t>(link.page));
    const double bottom = heightof(page) - link.top - link.height;
    Object annotation = Object::parse("<< /Type /Annot /Subtype /Link /Border [0 0 0] >>");
    annotation.replaceKey("/Rect",
                          Object::newFromRectangle({link.left, bottom, link.left + link.width, bottom + link.height}));
    annotation.replaceKey("/Dest", destination(pages, link.to));
    if (!page.hasKey("/Annots")) page.replaceKey("/Annots", Object::newArray());
    page.getKey("/Annots").appendItem(document.makeIndirectObject(annotation));
}

}  // namespace

std::string withoutline(const std::string& pdf, const std::vector<Bookmark>& bookmarks,
                        const std::vector<Link>& links) {
    QPDF document;
    document.processMemoryFile("the manual", pdf.data(), pdf.size());
    const std::vector<Object> pages = document.getAllPages();
    addoutline(document, pages, bookmarks);
    for (const Link& link : links)
        addlink(document, pages, link);
    document.getRoot().replaceKey("/Lang", Object::newString("en-GB"));
    document.getRoot().removeKey("/Metadata");
    document.getTrailer().getKey("/Info").removeKey("/CreationDate");
    QPDFWriter writer(document);
    writer.setOutputMemory();
    writer.setDeterministicID(true);
    writer.setObjectStreamMode(qpdf_o_generate);
    writer.write();
    const std::shared_ptr<Buffer> bytes = writer.getBufferSharedPointer();
    return {reinterpret_cast<const char*>(bytes->getBuffer()), bytes->getSize()};
}

}  // namespace tarvane::manual
