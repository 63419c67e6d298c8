#include "text/csvrows.h"

#include <algorithm>

namespace tarvane {

CsvRows::CsvRows(std::string_view text) : text_(text) {
    if (text_.starts_with("\xEF\xBB\xBF")) next_ = 3;
}

std::optional<CsvRow> CsvRows::take() {
    while (next_ < text_.size() && takelineend()) {
    }
    if (next_ >= text_.size()) return std::nullopt;
    CsvRow row{line_, {}, false};
    for (;;) {
        row.fields.push_back(takefield(row.broken));
        if (next_ >= text_.size() || takelineend()) return row;
        if (text_[next_] == ',') {
            ++next_;
            continue;
        }
        row.broken = true;
        next_ = std::min(text_.find('\n', next_), text_.size());
        return row;
    }
}

bool CsvRows::takelineend() {
    if (text_.substr(next_).starts_with("\r\n")) ++next_;
    if (text_[next_] != '\n') return false;
    ++next_;
    ++line_;
    return true;
}

std::string CsvRows::takefield(bool& broken) {
    if (next_ < text_.size() && text_[next_] == '"') return takequoted(broken);
    const std::size_t end = std::min(text_.find_first_of(",\r\n", next_), text_.size());
    std::string field(text_.substr(next_, end - next_));
    next_ = end;
    return field;
}

std::string CsvRows::takequoted(bool& broken) {
    std::string field;
    for (++next_; next_ < text_.size(); ++next_) {
        if (text_[next_] == '"') {
            ++next_;
            if (next_ >= text_.size() || text_[next_] != '"') return field;
        }
        if (text_[next_] == '\n') ++line_;
        field += text_[next_];
    }
    broken = true;
    return field;
}

void appendcsvcell(std::string& line, std::string_view text) {
    const auto quoting = [](char c) { return c == ',' || c == '"' || c == '\r' || c == '\n'; };
    if (std::none_of(text.begin(), text.end(), quoting)) {
        line += text;
        return;
    }
    line += '"';
    for (const char character : text) {
        if (character == '"') line += '"';
        line += character;
    }
    line += '"';
}

std::string csvcell(const std::string& text) {
    std::string cell;
    appendcsvcell(cell, text);
    return cell;
}

std::string csvline(const std::vector<std::string>& fields) {
    std::string line;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (i) line += ',';
        appendcsvcell(line, fields[i]);
    }
    return line + "\n";
}

}  // namespace tarvane
