#include "diamonds/diamondboxes.h"

#include <cmath>

#include "portdata/coordinates.h"
#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

struct Hour {
    const char *suffix, *caption;
    const char* directionform = "###000";
};

constexpr const char* rateform = "##0.0";

// kept: the direction of HW +3 alone has a comma at thousands
constexpr Hour hours[streamhours] = {
    {"m6", "HW -6"}, {"m5", "HW -5"}, {"m4", "HW -4"}, {"m3", "HW -3"}, {"m2", "HW -2"},
    {"m1", "HW -1"}, {"hw", "HW"},    {"p1", "HW +1"}, {"p2", "HW +2"}, {"p3", "HW +3", "###,000"},
    {"p4", "HW +4"}, {"p5", "HW +5"}, {"p6", "HW +6"},
};

constexpr const char* kinds[boxesanhour] = {"dir", "sprate", "nprate"};
constexpr const char* sourcefirst[firsthourplace] = {"txtid", "txtlat", "txtlong"};
constexpr const char* destinationfirst[firsthourplace] = {"txtDestID", "txtDestLat", "txtDestLong"};

constexpr float Stream::*fields[boxesanhour] = {&Stream::StreamDir, &Stream::SpringRate, &Stream::NeapRate};

}  // namespace

std::string boxname(Side side, std::size_t place) {
    const bool source = side == Side::source;
    if (place < firsthourplace) return source ? sourcefirst[place] : destinationfirst[place];
    const std::size_t at = place - firsthourplace;
    return std::string(source ? "txt" : "txtDest") + kinds[at % boxesanhour] + hours[at / boxesanhour].suffix;
}

std::string hourcaption(std::size_t hour) {
    return hours[hour].caption;
}

DiamondTexts diamondtexts(const DiamondRecord& record) {
    DiamondTexts texts{record.DiamondID, LatitudeEditText(record.DiamondLat), LongitudeEditText(record.DiamondLong)};
    for (std::size_t i = 0; i < streamhours; ++i) {
        const Stream& stream = record.streams[i];
        texts.push_back(format(stream.StreamDir, hours[i].directionform));
        texts.push_back(format(stream.SpringRate, rateform));
        texts.push_back(format(stream.NeapRate, rateform));
    }
    return texts;
}

DiamondRecord diamondof(const DiamondTexts& texts) {
    DiamondRecord record;
    record.DiamondID = leftcharacters(texts[idplace], 1);
    record.DiamondLat = static_cast<float>(ParseLatitude(texts[latitudeplace]));
    record.DiamondLong = static_cast<float>(ParseLongitude(texts[longitudeplace]));
    for (std::size_t at = 0; at < boxesanhour * streamhours; ++at)
        record.streams[at / boxesanhour].*fields[at % boxesanhour] =
            static_cast<float>(val(texts[firsthourplace + at]));
    return record;
}

std::string textsfault(const DiamondTexts& texts) {
    if (charactercount(texts[idplace]) > 1)
        return "A diamond's reference is one letter, and \"" + texts[idplace] + "\" is more";
    if (!fitssinglebyte(texts[idplace])) return "\"" + texts[idplace] + "\" can't be kept as a diamond's reference";
    const DiamondRecord record = diamondof(texts);
    bool fits = std::isfinite(record.DiamondLat) && std::isfinite(record.DiamondLong);
    for (const Stream& stream : record.streams)
        for (const auto field : fields)
            fits = fits && std::isfinite(stream.*field);
    return fits ? "" : "A number is larger than a diamond can hold";
}

std::string listentry(const DiamondRecord& record, ListForm form) {
    const bool opened = form == ListForm::opened;
    const double latitude = record.DiamondLat, longitude = record.DiamondLong;
    return record.DiamondID + "  " + (opened ? LatitudeEditText(latitude) : LatitudeText(latitude)) + "  " +
           (opened ? LongitudeEditText(longitude) : LongitudeText(longitude));
}

}  // namespace tarvane
