#include "portdata/heightfiles.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <span>

namespace tarvane {
namespace {

constexpr std::size_t notestart = 20;  // of `obsnote`, blanks
constexpr double hoursofday = 24;

float readsingle(std::span<const std::byte> bytes) {
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < sizeof bits; ++i)
        bits |= std::to_integer<std::uint32_t>(bytes[i]) << (8 * i);
    return std::bit_cast<float>(bits);
}

void putsingle(std::span<std::byte> bytes, float value) {
    const auto bits = std::bit_cast<std::uint32_t>(value);
    for (std::size_t i = 0; i < sizeof bits; ++i)
        bytes[i] = static_cast<std::byte>(bits >> (8 * i) & 0xFF);
}

bool usable(const HeightRecord& reading) {
    return std::isfinite(reading.obsheight) && reading.obstime >= 0 && reading.obstime <= hoursofday;
}

}  // namespace

ObservedHeights readheights(const std::string& path) {
    ObservedHeights heights;
    const auto bytes = wholefile(path);
    if (!bytes || !canopen(path)) {
        heights.fault = "The file of heights can't be read";
        return heights;
    }
    for (std::size_t at = 0; at + heightrecordsize <= bytes->size(); at += heightrecordsize) {
        const auto record = std::span(*bytes).subspan(at, heightrecordsize);
        heights.readings.push_back({readsingle(record), readsingle(record.subspan(4))});
    }
    if (bytes->size() % heightrecordsize != 0)
        heights.fault = "The file of heights ends within a reading";
    else if (!std::all_of(heights.readings.begin(), heights.readings.end(), usable))
        heights.fault = "The file of heights holds readings that are no heights of a day";
    return heights;
}

HeightsSaved writeheights(const std::string& path, const std::vector<HeightRecord>& readings) {
    auto bytes = wholefile(path);
    if (!bytes) return {WriteOutcome{std::make_error_code(std::errc::io_error)}, 0};
    const std::size_t old = bytes->size() / heightrecordsize;
    // kept: a shorter list leaves the old readings behind it. Bytes of a broken one go: no file could be read with them
    bytes->resize(std::max(old, readings.size()) * heightrecordsize);
    for (std::size_t i = 0; i < readings.size(); ++i) {
        const auto record = std::span(*bytes).subspan(i * heightrecordsize, heightrecordsize);
        std::fill(record.begin(), record.begin() + notestart, std::byte{0});
        std::fill(record.begin() + notestart, record.end(), std::byte{' '});
        putsingle(record, readings[i].obstime);
        putsingle(record.subspan(4), readings[i].obsheight);
    }
    return {replacefile(path, *bytes), old > readings.size() ? old - readings.size() : 0};
}

}  // namespace tarvane
