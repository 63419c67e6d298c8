// What the printouts' tests ask of a printed document: where a text stands, and that nothing overlaps or runs off a
// page.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "dates/dateformats.h"
#include "fakes/scriptedprinter.h"
#include "fakes/temporaryfolder.h"

namespace tarvane::tests {

using Printed = ScriptedPrinter::Printed;

/// A file under tests/data.
inline std::string goldenfile(const std::string& name) {
    const std::string text = filetext(TARVANE_TESTDATA "/" + name);
    EXPECT_NE(text, "") << name;
    return text;
}

inline DateOnShow dateonshow(int year, int month, int day) {
    DateOnShow onshow;
    setdateonshow(onshow, makedate(year, month, day));
    return onshow;
}

inline double textend(const Printed& text) {
    return text.x + static_cast<double>(codepoints(text.text).size()) * (text.bold ? 11 : 10) * text.size;
}

inline std::vector<Printed> pieces(const ScriptedPrinter& printer, ScriptedPrinter::Kind kind) {
    std::vector<Printed> all;
    for (const Printed& entry : printer.printed)
        if (entry.kind == kind) all.push_back(entry);
    return all;
}

inline std::vector<Printed> texts(const ScriptedPrinter& printer) {
    return pieces(printer, ScriptedPrinter::Kind::text);
}

/// The one entry with this text; a second one, or none, fails.
inline Printed only(const ScriptedPrinter& printer, const std::string& text) {
    std::vector<Printed> found;
    for (const Printed& entry : texts(printer))
        if (entry.text == text) found.push_back(entry);
    EXPECT_EQ(found.size(), 1U) << "\"" << text << "\"";
    return found.empty() ? Printed{} : found.front();
}

/// No text touches another or lies outside the page, whose left and top edges have these coordinates.
inline void expectclean(const ScriptedPrinter& printer, double left = 0, double top = 0) {
    const std::vector<Printed> all = texts(printer);
    for (std::size_t i = 0; i < all.size(); ++i) {
        const Printed& a = all[i];
        EXPECT_GE(a.x, left) << a.text;
        EXPECT_GE(a.y, top) << a.text;
        EXPECT_LE(textend(a), left + printer.pagewidth) << a.text;
        EXPECT_LE(a.y + 24 * a.size, top + printer.pageheight) << a.text << " on page " << a.page;
        for (std::size_t j = i + 1; j < all.size(); ++j) {
            const Printed& b = all[j];
            const bool apart = a.page != b.page || textend(a) <= b.x || textend(b) <= a.x ||
                               a.y + 24 * a.size <= b.y + 0.5 || b.y + 24 * b.size <= a.y + 0.5;
            EXPECT_TRUE(apart) << "\"" << a.text << "\" and \"" << b.text << "\" overlap";
        }
    }
}

}  // namespace tarvane::tests
