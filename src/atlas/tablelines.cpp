#include "atlas/tablelines.h"

#include <algorithm>
#include <array>
#include <span>

#include "atlas/pastesigns.h"
#include "dates/englishlocale.h"
#include "dates/isomoments.h"
#include "dates/typeddate.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

constexpr int earliestyear = 1900, latestyear = 2200;
constexpr std::size_t longestraw = 200;    // characters
constexpr std::size_t longestline = 4000;  // bytes
constexpr std::size_t mostfields = 40;     // of a line that is one of a table

constexpr char nextday = '?';  // behind a date that seems to be over

using Fields = std::span<const std::string>;

bool isfigure(char c) {
    return c >= '0' && c <= '9';
}

bool hasdigit(const std::string& text) {
    return std::any_of(text.begin(), text.end(), isfigure);
}

void replaceall(std::string& text, std::string_view from, std::string_view to) {
    for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
        text.replace(at, from.size(), to);
}

std::string joined(Fields fields) {
    std::string text;
    for (const std::string& field : fields)
        text += (text.empty() ? "" : " ") + field;
    return text;
}

/// "04.56", which may be a height too.
bool dottedtime(const std::string& field) {
    const std::size_t point = field.find('.');
    return point != std::string::npos && onlydigits(field.substr(0, point), 1, 2) &&
           onlydigits(field.substr(point + 1), 2, 2) && readtime(field);
}

/// A time that is no year, height or date.
bool surelytime(const std::string& field) {
    const bool marked =
        std::any_of(field.begin(), field.end(), [](char c) { return c == ':' || !(isfigure(c) || c == '.'); });
    return marked && readtime(field);
}

/// A nought before other figures stands in times alone.
bool looksheight(const std::string& field) {
    const bool time = field.size() > 1 && field[0] == '0' && isfigure(field[1]);
    return !time && hasdigit(field) && readamount(field);
}

/// 0 for Sunday; the name in full, its abbreviation, or its beginning from two letters on.
std::optional<unsigned> weekdayof(const std::string& field, const Locale& locale) {
    std::string word = lowercase(field);
    if (word.ends_with('.')) word.pop_back();
    if (charactercount(word) < 2) return std::nullopt;
    for (int day = 0; day < 7; ++day)
        if (lowercase(locale.dayname(day)).starts_with(word) || lowercase(locale.dayabbreviation(day)) == word)
            return static_cast<unsigned>(day);
    return std::nullopt;
}

std::optional<unsigned> weekdayof(const std::string& field, const DateReading& dates) {
    const auto own = weekdayof(field, dates.locale);
    if (const auto english = own ? own : weekdayof(field, EnglishLocale())) return english;
    constexpr std::array german{"so", "mo", "di", "mi", "do", "fr", "sa"};
    const std::string word = lowercase(field.substr(0, field.find('.')));
    const auto* const day = std::find(german.begin(), german.end(), word);
    return day == german.end() ? std::nullopt : std::optional(static_cast<unsigned>(day - german.begin()));
}

std::optional<Date> dateoftext(const std::string& text, const DateReading& dates) {
    std::optional<Date> date = readdate(text, dates.conventions, dates.locale, dates.today).date;
    if (!date) date = readdate(text, dates.conventions, EnglishLocale(), dates.today).date;
    return date;
}

/// True of what can be a date at all: its three parts in one field or in three.
bool dateshaped(Fields fields) {
    if (fields.size() == 1) {
        const std::string& field = fields[0];
        const auto marks = std::count_if(field.begin(), field.end(), [](char c) { return !isfigure(c); });
        return onlydigits(field, 8, 8) || (hasdigit(field) && marks >= 2);
    }
    if (fields.size() != 3) return false;
    const auto words =
        std::count_if(fields.begin(), fields.end(), [](const std::string& field) { return !hasdigit(field); });
    return words == 1 || (words == 0 && (onlydigits(fields[0], 4, 4) || onlydigits(fields[2], 4, 4)));
}

struct TidiedDate {
    std::optional<Date> date;
    std::string weekday;  ///< as it is written
};

TidiedDate tidieddate(Fields fields, const DateReading& dates) {
    const auto read = [&](Fields parts) {
        auto date = dateshaped(parts) ? dateoftext(joined(parts), dates) : std::nullopt;
        if (date && (yearof(*date) < earliestyear || yearof(*date) > latestyear)) date.reset();
        return date;
    };
    if (const auto date = read(fields)) return {date, ""};
    if (fields.size() < 2) return {};
    if (weekdayof(fields.front(), dates)) return {read(fields.subspan(1)), fields.front()};
    if (weekdayof(fields.back(), dates)) return {read(fields.first(fields.size() - 1)), fields.back()};
    return {};
}

bool ison(Date date, const std::string& weekday, const DateReading& dates) {
    return weekday.empty() || weekdayof(weekday, dates) == std::chrono::weekday(date).c_encoding();
}

std::string datetext(const TidiedDate& tidied, const DateReading& dates) {
    const bool right = ison(*tidied.date, tidied.weekday, dates);
    return (right ? "" : tidied.weekday + " ") + isodate(*tidied.date);
}

/// "1,9" and "1,9m" are a number; "06:12,5.4" and "2026,06:12" are two.
bool decimalcomma(const std::string& field) {
    const std::size_t comma = field.find(',');
    return field.find_first_of(",.:/", comma + 1) == std::string::npos &&
           field.find_first_of(".:/") == std::string::npos && comma > 0 && comma <= 3 && comma + 1 < field.size() &&
           isfigure(field[comma - 1]) && isfigure(field[comma + 1]) &&
           (comma + 4 > field.size() || !onlydigits(field.substr(comma + 1), 3, 9));
}

void addfield(std::string field, std::vector<std::string>& fields) {
    while (!field.empty() && std::string_view(",:*").find(field.back()) != std::string_view::npos)
        field.pop_back();
    // "4th"
    for (const char* ordinal : {"st", "nd", "rd", "th"})
        if (field.ends_with(ordinal) && onlydigits(field.substr(0, field.size() - 2), 1, 2))
            field.resize(field.size() - 2);
    if (const std::size_t comma = field.find(','); comma != std::string::npos && !decimalcomma(field)) {
        addfield(field.substr(0, comma), fields);
        return addfield(field.substr(comma + 1), fields);
    }
    // "2026-04-04T04:33"
    constexpr std::size_t day = 10;
    if (field.size() > day && field[day] == 'T' && readisodate(field.substr(0, day))) {
        fields.push_back(field.substr(0, day));
        field.erase(0, day + 1);
    }
    if (!field.empty()) fields.push_back(field);
}

std::vector<std::string> fieldsof(std::string line) {
    for (const char* blank : {"\t", ";", "\r", "|", "(", ")", "\"", "\u00A0", "\u202F", "\u2009"})
        replaceall(line, blank, " ");
    std::vector<std::string> fields;
    std::size_t at = 0;
    while ((at = line.find_first_not_of(' ', at)) != std::string::npos) {
        const std::size_t end = std::min(line.find(' ', at), line.size());
        addfield(line.substr(at, end - at), fields);
        at = end;
    }
    return fields;
}

/// A line read in one way.
struct LineRead {
    std::string date;  ///< "2026-07-14", or what stands where a date would; empty without one
    std::vector<TableWater> waters;
    bool operator==(const LineRead&) const = default;
};

/// Where the kinds of a line's waters stand.
enum class KindPlace { before, between, behind };

/// Reads waters field by field: a time and a height each, and their kinds all in the same place.
class WatersReader {
  public:
    WatersReader(Fields line, KindPlace place, PmMeaning meaning) : fields(line), kinds(place), pm(meaning) {}

    /// False when anything else stands there. A single time may be without its height.
    bool read(bool whole, std::vector<TableWater>& waters) {
        while (at < fields.size()) {
            TableWater water;
            if (kinds == KindPlace::before) takekind(water);
            if (!taketime(water)) return false;
            const bool alone = at == fields.size() && waters.empty() && !whole && !dotted;
            if (kinds == KindPlace::between) takekind(water);
            if (!alone && !takeheight(water)) return false;
            if (kinds == KindPlace::behind) takekind(water);
            waters.push_back(water);
        }
        return !waters.empty() && !(dotted && swappable);
    }

  private:
    void takekind(TableWater& water) {
        if (pm == PmMeaning::kind && at < fields.size() && (ispm(fields[at]) || isbm(fields[at]))) {
            water.kind = ispm(fields[at++]) ? "high" : "low";
            return;
        }
        for (const std::size_t words : {2U, 1U}) {
            if (at + words > fields.size()) continue;
            const auto kind = readkind(joined(fields.subspan(at, words)));
            if (!kind || *kind == WaterKind::either) continue;
            water.kind = *kind == WaterKind::high ? "high" : "low";
            at += words;
            return;
        }
    }

    bool taketime(TableWater& water) {
        if (at == fields.size()) return false;
        const std::string& field = fields[at];
        const bool halves = pm == PmMeaning::halfday;
        if (!halves && lowercase(field).find_first_of("ap") != std::string::npos) return false;
        const bool half = halves && at + 1 < fields.size() && readhalfday(fields[at + 1]);
        const std::string text = half ? field + " " + fields[at + 1] : field;
        const bool dot = dottedtime(field) && !half;
        if (!dot && !surelytime(text) && !(onlydigits(field, 3, 4) && readtime(text))) return false;
        // Two columns of such numbers can be either way round.
        if (dot) swappable = swappable && looksheight(field);
        dotted = dotted || dot;
        water.time = tidytime(text);
        at += half ? 2 : 1;
        return true;
    }

    bool takeheight(TableWater& water) {
        if (at == fields.size() || !looksheight(fields[at])) return false;
        const std::string& field = fields[at++];
        const auto unit = at < fields.size() ? readamount("0 " + fields[at]) : std::nullopt;
        const bool apart = unit && unit->unit && !hasdigit(fields[at]);
        const std::string text = apart ? field + " " + fields[at++] : field;
        if (readamount(field)->unit && apart) return false;
        water.height = text;
        swappable = swappable && dottedtime(text);
        return true;
    }

    Fields fields;
    KindPlace kinds;
    PmMeaning pm;
    std::size_t at = 0;
    bool dotted = false, swappable = true;
};

/// Every way to read fields as waters.
std::vector<LineRead> watersin(Fields fields, bool whole, const std::string& date, PmMeaning pm) {
    std::vector<LineRead> ways;
    for (const KindPlace kinds : {KindPlace::before, KindPlace::between, KindPlace::behind}) {
        LineRead line{date, {}};
        const bool read = WatersReader(fields, kinds, pm).read(whole, line.waters);
        if (read && std::find(ways.begin(), ways.end(), line) == ways.end()) ways.push_back(line);
    }
    return ways;
}

/// Every way to read a line, with its date before its waters, behind them, alone, or without one.
std::vector<LineRead> waysof(Fields fields, const DateReading& dates, PmMeaning pm) {
    constexpr std::size_t longest = 4;
    std::vector<LineRead> ways = watersin(fields, false, "", pm);
    const auto add = [&](Fields day, Fields rest) {
        const TidiedDate tidied = tidieddate(day, dates);
        if (!tidied.date) return;
        const std::string date = datetext(tidied, dates);
        for (const LineRead& way : rest.empty() ? std::vector{LineRead{date, {}}} : watersin(rest, false, date, pm))
            if (std::find(ways.begin(), ways.end(), way) == ways.end()) ways.push_back(way);
    };
    for (std::size_t length = 1; length <= std::min(longest, fields.size()); ++length) {
        add(fields.first(length), fields.subspan(length));
        if (length < fields.size()) add(fields.last(length), fields.first(fields.size() - length));
    }
    return ways;
}

/// What can be read of a line: all of it, or its waters behind a date that can't be, or nothing.
LineRead lineof(Fields fields, const DateReading& dates, PmMeaning pm) {
    const std::vector<LineRead> ways = waysof(fields.first(std::min(fields.size(), mostfields + 1)), dates, pm);
    if (fields.size() > mostfields)
        return {leftcharacters(joined(fields.first(mostfields)), longestraw), {TableWater{}}};
    if (ways.size() == 1) return ways[0];
    for (std::size_t behind = 1; ways.empty() && behind < fields.size(); ++behind) {
        const auto rest = watersin(fields.subspan(behind), true, joined(fields.first(behind)), pm);
        if (rest.size() == 1) return rest[0];
    }
    return {leftcharacters(joined(fields), longestraw), {TableWater{}}};
}

struct PastedLine {
    std::string whole;
    LineFields fields;  ///< none without figures
};

/// At most so many with figures, and one more.
std::vector<PastedLine> linesof(const std::string& text, std::size_t most) {
    std::vector<PastedLine> lines;
    std::size_t figures = 0;
    for (std::size_t at = 0; at < text.size() && figures <= most;) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        PastedLine line{text.substr(at, std::min(end - at, longestline)), {}};
        if (hasdigit(line.whole)) line.fields = fieldsof(line.whole);
        // Too many fields are never read.
        if (end - at > longestline && !line.fields.empty())
            line.fields.resize(std::max(line.fields.size(), mostfields + 1), "...");
        figures += !line.fields.empty();
        lines.push_back(line);
        at = end + 1;
    }
    return lines;
}

bool dateholds(const LineRead& line) {
    return line.date.empty() || readisodate(line.date);
}

/// Day and month the other way round. Year and month first is everybody's.
std::string otherorder(std::string form) {
    if (form.starts_with("YYYY") && form.find('M') < form.find('D')) return form;
    for (char& letter : form)
        letter = letter == 'D' ? 'M' : letter == 'M' ? 'D' : letter;
    return form;
}

/// Lines in the one order of day and month under which all their dates are days and on their weekdays; in the system's
/// where both or none are so.
std::vector<LineRead> readlines(const std::vector<PastedLine>& lines, const DateReading& dates, PmMeaning pm) {
    constexpr const char* usual = "DD/MM/YYYY";
    const std::string& own = dates.conventions.dateformat;
    const DateConventions turned{otherorder(own.empty() ? usual : own), dates.conventions.dateseparator};
    std::vector<LineRead> reads, others;
    bool holds = true, otherholds = true;
    for (const PastedLine& line : lines) {
        reads.push_back(line.fields.empty() ? LineRead{} : lineof(line.fields, dates, pm));
        others.push_back(line.fields.empty() ? LineRead{}
                                             : lineof(line.fields, {turned, dates.locale, dates.today}, pm));
        const bool held = dateholds(reads.back()), otherheld = dateholds(others.back());
        holds = holds && (held || !otherheld);
        otherholds = otherholds && (otherheld || !held);
    }
    return otherholds && !holds ? others : reads;
}

bool hastime(const LineRead& line) {
    return !line.waters.empty() && !line.waters[0].time.empty();
}

/// A height as its table has it, metres without their unit.
std::string heightwith(const PasteUnit& unit, const std::string& height) {
    const auto amount = readamount(height);
    if (amount && !amount->unit) return height + (unit.known ? unit.name : doubtfulheight);
    const bool metres = height.ends_with('m') && !height.ends_with("cm");
    return metres ? trim(height.substr(0, height.size() - 1)) : height;
}

/// The unit of the heights that have none of their own.
PasteUnit unitof(const std::vector<PastedLine>& lines, const std::vector<LineRead>& reads) {
    std::vector<std::string> headings, unread;
    for (std::size_t i = 0; i < lines.size(); ++i)
        if (lines[i].fields.empty())
            headings.push_back(lines[i].whole);
        else if (!hastime(reads[i]))
            unread.push_back(lines[i].whole);
    PasteUnit unit = pasteunit(headings, unread);
    for (const LineRead& line : reads)
        for (const TableWater& water : line.waters) {
            const auto amount = readamount(water.height);
            unit.known = unit.known && (!amount || amount->unit || readheight(water.height + unit.name));
        }
    return unit;
}

}  // namespace

std::string tidydate(const std::string& typed, const DateReading& dates) {
    if (trim(typed).empty()) return "";
    if (const auto whole = dateoftext(typed, dates)) return isodate(*whole);
    const TidiedDate tidied = tidieddate(fieldsof(typed), dates);
    return tidied.date ? datetext(tidied, dates) : typed;
}

std::string datefault(const std::string& tidied) {
    if (readisodate(tidied)) return "";
    if (tidied.ends_with(nextday)) return "Earlier than the line before: is this the next day? Type its date";
    const std::string text = trim(tidied);
    const std::size_t blank = text.rfind(' ');
    const auto other = blank == std::string::npos ? std::nullopt : readisodate(text.substr(blank + 1));
    if (!other) return "No date: type one such as 2026-07-14";
    const auto weekday = std::chrono::weekday(*other).c_encoding();
    return isodate(*other) + " is a " + EnglishLocale().dayname(static_cast<int>(weekday));
}

std::string linefault(const std::string& left) {
    const LineFields fields = fieldsof(left);
    return std::any_of(fields.begin(), fields.end(), ispm)
               ? "PM may be the afternoon or high water: type date, time and height"
               : "This line isn't understood: type its date, time and height";
}

std::vector<TableWater> pastedwaters(const std::string& text, const DateReading& dates, const TableWater& before,
                                     std::size_t room) {
    const std::size_t most = 2 * (room + 1);  // a date alone and a water each
    const std::vector<PastedLine> lines = linesof(text.substr(0, longestpaste), most);
    std::vector<LineFields> figures;
    for (const PastedLine& line : lines)
        if (!line.fields.empty()) figures.push_back(line.fields);
    const std::vector<LineRead> reads = readlines(lines, dates, pmmeaning(figures));
    std::vector<TableWater> waters;
    const PasteUnit unit = unitof(lines, reads);
    std::string date = before.date;
    int latest = readtime(before.time).value_or(0);
    for (const LineRead& line : reads) {
        const auto known = readisodate(date);
        const bool sameday = known && weekdayof(line.date, dates) && ison(*known, line.date, dates);
        if (!line.date.empty() && !sameday) date = line.date;
        if (!line.date.empty()) latest = 0;
        if (hastime(line) && line.date.empty() && readtime(line.waters[0].time).value_or(0) < latest) {
            // Each mark more is a day of its own to be typed.
            date += nextday;
            latest = 0;
        }
        for (TableWater water : line.waters) {
            latest = std::max(latest, readtime(water.time).value_or(0));
            water.date = date;
            water.height = heightwith(unit, water.height);
            waters.push_back(water);
        }
    }
    if (figures.size() > most || text.size() > longestpaste) waters.resize(std::max(waters.size(), room + 1));
    return waters;
}

}  // namespace tarvane
