#include "fakes/scriptedprinter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <sstream>

namespace tarvane {
namespace {

std::vector<std::string> lines(const std::string& text) {
    std::vector<std::string> all(1);
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
        if (text[i] == '\r' || text[i] == '\n')
            all.emplace_back();
        else
            all.back() += text[i];
    }
    return all;
}

}  // namespace

std::string ScriptedPrinter::log() const {
    constexpr const char* names[] = {"text", "line", "point", "image"};
    std::ostringstream all;
    for (const Printed& entry : printed) {
        const auto whole = [](double twips) { return static_cast<long>(std::nearbyint(twips)); };
        all << entry.page << ' ' << names[static_cast<int>(entry.kind)] << ' ' << whole(entry.x) << ' '
            << whole(entry.y);
        if (entry.kind == Kind::line) all << ' ' << whole(entry.x2) << ' ' << whole(entry.y2) << ' ' << entry.size;
        if (entry.kind == Kind::text) all << ' ' << entry.size << (entry.bold ? " bold " : " plain ") << entry.text;
        all << '\n';
    }
    return all.str();
}

std::vector<std::string> ScriptedPrinter::texts() const {
    std::vector<std::string> all;
    for (const Printed& entry : printed)
        if (entry.kind == Kind::text) all.push_back(entry.text);
    return all;
}

PrintOutcome ScriptedPrinter::begin(const std::string& name) {
    if (!refuse.empty()) return {refuse};
    title = name;
    open = true;
    pages = 1;
    left = top = x = y = 0;
    size = 9;
    bold = false;
    linewidth = 8;
    return {};
}

double ScriptedPrinter::textwidth(const std::string& text) const {
    double widest = 0;
    for (const std::string& piece : lines(text))
        widest = std::max(widest, behind(piece, left) - left);
    return widest;
}

PrintOutcome ScriptedPrinter::enddocument() {
    EXPECT_TRUE(open) << "a document that was not opened is handed over";
    open = false;
    if (fail.empty()) ++documents;
    return {fail};
}

double ScriptedPrinter::behind(const std::string& text, double from) const {
    for (const char32_t c : codepoints(text))
        from = c == U'\t' ? left + 720 * (std::floor((from - left) / 720) + 1) : from + (bold ? 11 : 10) * size;
    return from;
}

void ScriptedPrinter::put(const std::string& text) {
    const double start = x;
    bool first = true;
    for (const std::string& piece : lines(text)) {
        if (!first) y += textheight();
        first = false;
        if (!piece.empty()) printed.push_back({Kind::text, pages, start, y, 0, 0, size, bold, piece});
        x = behind(piece, start);
    }
}

}  // namespace tarvane
