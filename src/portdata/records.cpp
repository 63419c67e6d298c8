#include "portdata/records.h"

#include <algorithm>
#include <bit>
#include <concepts>
#include <cstring>
#include <iterator>
#include <string_view>
#include <type_traits>

#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

constexpr std::size_t portnowidth = 5;
constexpr std::size_t portnamewidth = 35;
constexpr std::size_t noteswidth = 256;
constexpr std::size_t configtextwidth = 255;
constexpr std::size_t numberwidth = 4;
constexpr std::size_t flagwidth = 2;

static_assert(harmonicrecordsize == portnowidth + portnamewidth + 1 + 39 * numberwidth);
static_assert(userdepthrecordsize == portnamewidth + flagwidth + 3 * numberwidth + noteswidth);
static_assert(configrecordsize == 5 * configtextwidth + 7 * numberwidth + 2 * flagwidth);

/// The unsigned integer as wide as a number field.
template <class T>
using Bits = std::conditional_t<sizeof(T) == 2, std::uint16_t, std::uint32_t>;

/// A path in Windows-1252 if that reads back as the same path, else in its own UTF-8 bytes, cut between characters.
std::string pathbytes(const std::string& path) {
    std::string bytes = tosinglebyte(path).substr(0, configtextwidth);
    if (fitssinglebyte(path) && (bytes.size() == path.size() || !validutf8(bytes))) return bytes;
    std::size_t end = std::min(path.size(), configtextwidth);
    while (end > 0 && end < path.size() && (static_cast<unsigned char>(path[end]) & 0xC0) == 0x80)
        --end;
    return path.substr(0, end);
}

std::string pathof(const std::string& bytes) {
    return trim(validutf8(bytes) ? bytes : fromsinglebyte(bytes));
}

/// Puts fields one after another into bytes that are as many as the record has.
class Writer {
  public:
    explicit Writer(std::span<std::byte> bytes) : left_(bytes) {}

    void text(const std::string& utf8, std::size_t width) { bytes(tosinglebyte(utf8), width); }
    void path(const std::string& utf8) { bytes(pathbytes(utf8), configtextwidth); }

    template <class T>
    void number(T value) {
        const auto bits = std::bit_cast<Bits<T>>(value);
        for (std::size_t i = 0; i < sizeof(T); ++i)
            left_[i] = static_cast<std::byte>((bits >> (8 * i)) & 0xFF);
        left_ = left_.subspan(sizeof(T));
    }

  private:
    void bytes(const std::string& text, std::size_t width) {
        std::fill_n(left_.begin(), width, std::byte{' '});
        std::memcpy(left_.data(), text.data(), std::min(text.size(), width));
        left_ = left_.subspan(width);
    }

    std::span<std::byte> left_;
};

/// Takes fields one after another; what lies past the end of the bytes reads as zeros.
class Reader {
  public:
    explicit Reader(std::span<const std::byte> bytes) : left_(bytes) {}

    void text(std::string& utf8, std::size_t width) { utf8 = fromsinglebyte(bytes(width)); }
    void path(std::string& utf8) { utf8 = pathof(bytes(configtextwidth)); }

    template <class T>
    void number(T& value) {
        Bits<T> bits = 0;
        for (std::size_t i = 0; i < std::min(sizeof(T), left_.size()); ++i) {
            bits = static_cast<Bits<T>>(bits | std::to_integer<Bits<T>>(left_[i]) << (8 * i));
        }
        value = std::bit_cast<T>(bits);
        skip(sizeof(T));
    }

  private:
    std::string bytes(std::size_t width) {
        const auto field = left_.first(std::min(width, left_.size()));
        const auto end = std::find(field.begin(), field.end(), std::byte{0});
        std::string text(static_cast<std::size_t>(end - field.begin()), ' ');
        if (!text.empty()) std::memcpy(text.data(), field.data(), text.size());
        skip(width);
        return text;
    }

    void skip(std::size_t width) { left_ = left_.subspan(std::min(width, left_.size())); }

    std::span<const std::byte> left_;
};

template <class Record, class Plain>
concept Holding = std::same_as<std::remove_const_t<Record>, Plain>;

// One walk over the fields in the order of the file serves both directions.

template <class Fields, Holding<HarmonicRecord> Record>
void walk(Fields& fields, Record& record) {
    fields.text(record.PortNo, portnowidth);
    fields.text(record.PortName, portnamewidth);
    fields.number(record.PortLat);
    fields.number(record.PortLong);
    fields.text(record.TimeZoneLetter, 1);
    for (auto* value : {&record.Z0, &record.M2g, &record.M2Hm, &record.S2g, &record.S2Hm, &record.K1g, &record.K1Hm,
                        &record.O1g, &record.O1Hm, &record.SF4, &record.LF4, &record.SF6, &record.LF6}) {
        fields.number(*value);
    }
    for (auto& level : record.DeltaZ0)
        fields.number(level);
    for (auto& amplitude : record.MHm2)
        fields.number(amplitude);
}

template <class Fields, Holding<UserDepthRecord> Record>
void walk(Fields& fields, Record& record) {
    fields.text(record.DepthPortName, portnamewidth);
    fields.number(record.DepthPortNo);
    fields.number(record.UserDepth);
    fields.number(record.DepthSpare1);
    fields.number(record.DepthSpare2);
    fields.text(record.Notes, noteswidth);
}

template <class Fields, Holding<ConfigRecord> Record>
void walk(Fields& fields, Record& record) {
    fields.path(record.hcfilepath);
    fields.text(record.ownermark, configtextwidth);
    fields.text(record.spare1, configtextwidth);
    fields.text(record.spare2, configtextwidth);
    fields.path(record.wayfilepath);
    fields.number(record.portnumber);
    fields.number(record.outputoption);
    fields.number(record.draught);
    fields.number(record.ukc);
    fields.number(record.spareoption);
    fields.number(record.summertimeflag);
    fields.number(record.sortmode);
    fields.number(record.reserved1);
    fields.number(record.reserved2);
}

template <std::size_t size, class Record>
std::array<std::byte, size> encoded(const Record& record) {
    std::array<std::byte, size> bytes{};
    Writer writer(bytes);
    walk(writer, record);
    return bytes;
}

template <class Record>
Record decoded(std::span<const std::byte> bytes) {
    Record record;
    Reader reader(bytes);
    walk(reader, record);
    return record;
}

struct ShownZone {
    char letter;
    const char* shown;
};

// kept: "T" stands before "S" and again behind it, "S" shows "-8", "U" and "V" are an hour further, "W" falls to "0".
constexpr ShownZone shownzones[] = {{'L', "0"},  {'M', "-1"}, {'N', "-2"}, {'O', "-3"}, {'P', "-4"},  {'Q', "-5"},
                                    {'R', "-6"}, {'T', "-7"}, {'S', "-8"}, {'T', "-9"}, {'U', "-10"}, {'V', "-11"},
                                    {'K', "1"},  {'J', "2"},  {'I', "3"},  {'H', "4"},  {'G', "5"},   {'F', "6"},
                                    {'E', "7"},  {'D', "8"},  {'C', "9"},  {'B', "10"}, {'A', "11"}};

/// The letters of 11 to -11 hours.
constexpr std::string_view savedzones = "ABCDEFGHIJKLMNOPQRSTUVW";

}  // namespace

std::array<std::byte, harmonicrecordsize> encode(const HarmonicRecord& record) {
    return encoded<harmonicrecordsize>(record);
}
std::array<std::byte, userdepthrecordsize> encode(const UserDepthRecord& record) {
    return encoded<userdepthrecordsize>(record);
}
std::array<std::byte, configrecordsize> encode(const ConfigRecord& record) {
    return encoded<configrecordsize>(record);
}

HarmonicRecord decodeharmonic(std::span<const std::byte> bytes) {
    return decoded<HarmonicRecord>(bytes);
}
UserDepthRecord decodeuserdepth(std::span<const std::byte> bytes) {
    return decoded<UserDepthRecord>(bytes);
}
ConfigRecord decodeconfig(std::span<const std::byte> bytes) {
    return decoded<ConfigRecord>(bytes);
}

std::int16_t zonehoursof(const HarmonicRecord& record) {
    const std::string letter = tosinglebyte(record.TimeZoneLetter);
    if (letter.empty()) return 0;
    return static_cast<std::int16_t>('L' - static_cast<unsigned char>(letter[0]));
}

std::string zoneletter(double hours) {
    for (std::size_t i = 0; i < savedzones.size(); ++i) {
        if (hours == 11 - static_cast<double>(i)) return std::string(1, savedzones[i]);
    }
    return "L";
}

std::string zonetextof(const std::string& letter) {
    const std::string capital = uppercase(letter);
    const auto found = std::find_if(std::begin(shownzones), std::end(shownzones), [&capital](const ShownZone& zone) {
        return capital == std::string_view(&zone.letter, 1);
    });
    return found == std::end(shownzones) ? "0" : found->shown;
}

std::string constituenttext(double phase, double amplitude) {
    return " (g " + format(phase, "000") + " : Hm " + format(amplitude, "0.00") + ")";
}

std::string f4text(double phase, double magnitude) {
    return " (f4 " + format(phase, "000") + " : F4 " + format(magnitude, "0.00") + ")";
}

std::string f6text(double phase, double magnitude) {
    return " (f6 " + format(phase, "000") + " : F6 " + format(magnitude, "0.00") + ")";
}

std::string z0text(double level) {
    return " (Z0 " + format(level, "0.00") + ")";
}

}  // namespace tarvane
