#include "dates/typeddate.h"

#include <algorithm>
#include <vector>

#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

constexpr std::string_view usualform = "DD/MM/YYYY";
constexpr std::size_t shortestname = 3;
constexpr int yearsbehind = 49;

/// A run of digits or of letters.
struct Part {
    bool number = false;
    std::string text;
};

bool isdigit(char c) {
    return c >= '0' && c <= '9';
}

bool separates(char c) {
    return std::string_view(" /-.,\t\r\n").find(c) != std::string_view::npos;
}

std::vector<Part> partsof(std::string_view typed) {
    std::vector<Part> parts;
    bool newpart = true;
    for (const char c : typed) {
        if (separates(c)) {
            newpart = true;
            continue;
        }
        if (newpart || parts.back().number != isdigit(c)) parts.push_back({isdigit(c), {}});
        parts.back().text += c;
        newpart = false;
    }
    return parts;
}

std::string formof(const DateConventions& conventions) {
    return conventions.dateformat.empty() ? std::string(usualform) : conventions.dateformat;
}

/// Reads the parts of one typed date.
class Reader {
  public:
    Reader(const DateConventions& conventions, const Locale& names, Date now)
        : form(formof(conventions)),
          locale(names),
          today(now),
          yearfirst(form[0] == 'Y'),
          dayfirst(form.find('D') < form.find('M')) {}

    ReadDate read(std::string_view typed) const {
        const std::vector<Part> parts = partsof(typed);
        const auto words = std::count_if(parts.begin(), parts.end(), [](const Part& part) { return !part.number; });
        if (parts.size() == 1 && words == 0) return fromrun(parts[0].text);
        if (parts.size() != 3 || words > 1) return unreadable();
        return words == 1 ? fromname(parts) : fromnumbers(parts[0].text, parts[1].text, parts[2].text);
    }

  private:
    static ReadDate refused(std::string reason) { return {std::nullopt, std::move(reason)}; }

    /// "as day/month/year"
    std::string asordered() const {
        std::string order = "as ";
        for (const char letter : form) {
            const char* const word = letter == 'D' ? "day" : letter == 'M' ? "month" : letter == 'Y' ? "year" : "";
            if (!*word) order += letter;
            if (!order.ends_with(word)) order += word;
        }
        return order;
    }

    ReadDate unreadable() const {
        return refused("The date is typed " + asordered() + ", such as " + formatdate(locale, today, form) + ".");
    }

    ReadDate fromnumbers(const std::string& first, const std::string& second, const std::string& third) const {
        if (first.size() == 4) {
            // Year first is everybody's year, month, day but for a system that itself writes the day before the month.
            const bool daysecond = yearfirst && dayfirst;
            return daysecond ? from(first, third, second) : from(first, second, third);
        }
        if (yearfirst) return refused("The date is typed " + asordered() + ", the year with four digits.");
        return dayfirst ? from(third, second, first) : from(third, first, second);
    }

    ReadDate fromrun(const std::string& digits) const {
        const auto cut = [&](std::size_t at, std::size_t length) { return digits.substr(at, length); };
        if (digits.size() == 6 && !yearfirst) return fromnumbers(cut(0, 2), cut(2, 2), cut(4, 2));
        if (digits.size() != 8) return unreadable();
        const ReadDate bigendian = fromnumbers(cut(0, 4), cut(4, 2), cut(6, 2));
        if (yearfirst) return bigendian;
        const ReadDate own = fromnumbers(cut(0, 2), cut(2, 2), cut(4, 4));
        if (own.date && bigendian.date && own.date != bigendian.date)
            return refused("That can be meant for two days. Part its numbers.");
        return bigendian.date ? bigendian : own;
    }

    ReadDate fromname(const std::vector<Part>& parts) const {
        std::vector<std::string> numbers;
        std::string name;
        for (const Part& part : parts) {
            if (part.number)
                numbers.push_back(part.text);
            else
                name = part.text;
        }
        const std::vector<int> months = monthsnamed(name);
        if (months.empty()) return refused("There is no month \"" + name + "\".");
        if (months.size() > 1) return refused("\"" + name + "\" can be meant for two months.");
        const bool leadingyear = numbers[0].size() == 4;
        if (yearfirst && !leadingyear && numbers[1].size() != 4) return refused("The year is typed with four digits.");
        return from(numbers[leadingyear ? 0 : 1], numbertext(months[0]), numbers[leadingyear ? 1 : 0]);
    }

    /// The months that a name can be meant for: those that it is, else those that it begins.
    std::vector<int> monthsnamed(const std::string& typed) const {
        const std::string name = lowercase(typed);
        std::vector<int> whole, begun;
        for (int month = 1; month <= 12; ++month) {
            const std::string full = lowercase(locale.monthname(month));
            std::string brief = lowercase(locale.monthabbreviation(month));
            if (brief.ends_with('.')) brief.pop_back();
            if (name == full || name == brief) whole.push_back(month);
            if (charactercount(name) >= shortestname && full.starts_with(name)) begun.push_back(month);
        }
        return whole.empty() ? begun : whole;
    }

    ReadDate from(const std::string& year, const std::string& month, const std::string& day) const {
        if (day.size() > 2 || month.size() > 2) return unreadable();
        if (year.size() != 4 && year.size() != 2) return refused("The year is typed with four digits.");
        const int y = year.size() == 4 ? std::stoi(year) : nearyear(std::stoi(year));
        const int m = std::stoi(month);
        const int d = std::stoi(day);
        if (y < firsttypedyear) return refused("There is no year before " + numbertext(firsttypedyear) + ".");
        if (m < 1 || m > 12)
            return refused("There is no month " + numbertext(m) + ": the date is typed " + asordered() + ".");
        if (d < 1 || d > DaysInMonth(y, m)) {
            const std::string monthname = formatdate(locale, makedate(y, m, 1), "mmmm yyyy");
            return refused(monthname + " has no day " + numbertext(d) + ".");
        }
        return {makedate(y, m, d), {}};
    }

    int nearyear(int twodigits) const {
        const int first = yearof(today) - yearsbehind;
        return first + ((twodigits - first) % 100 + 100) % 100;
    }

    std::string form;
    const Locale& locale;
    Date today;
    bool yearfirst, dayfirst;
};

}  // namespace

ReadDate readdate(std::string_view typed, const DateConventions& conventions, const Locale& locale, Date today) {
    return Reader(conventions, locale, today).read(typed);
}

std::string typeddate(Date date, const DateConventions& conventions, const Locale& locale) {
    return formatdate(locale, date, formof(conventions));
}

}  // namespace tarvane
