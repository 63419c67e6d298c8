#include "portdata/recordfiles.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>

#include "files/wholefiles.h"
#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

template <std::size_t size>
std::size_t readrecord(const std::string& path, std::int16_t recordnumber, std::array<std::byte, size>& bytes) {
    if (recordnumber < 1) return 0;
    return readpart(path, static_cast<std::uint64_t>(recordnumber - 1) * size, bytes);
}

bool writerecord(const std::string& path, std::int16_t recordnumber, std::span<const std::byte> record) {
    if (recordnumber < 1) return false;
    auto bytes = wholefile(path);
    if (!bytes) return false;
    const std::size_t offset = static_cast<std::size_t>(recordnumber - 1) * record.size();
    if (bytes->size() < offset + record.size()) bytes->resize(offset + record.size());
    std::copy(record.begin(), record.end(), bytes->begin() + static_cast<std::ptrdiff_t>(offset));
    return replacefile(path, *bytes);
}

/// Ports in so many bytes: a trailing piece of half a record or more counts as one.
std::int16_t countof(std::uintmax_t bytes) {
    return cint(static_cast<double>(bytes) / static_cast<double>(harmonicrecordsize));
}

}  // namespace

std::int16_t portcount(const std::string& path) {
    std::error_code error;
    const std::uintmax_t bytes = std::filesystem::file_size(path, error);
    return error || !canopen(path) ? std::int16_t{0} : countof(bytes);
}

HarmonicRecord readport(const std::string& path, std::int16_t recordnumber) {
    std::array<std::byte, harmonicrecordsize> bytes;
    return decodeharmonic(std::span(bytes).first(readrecord(path, recordnumber, bytes)));
}

std::vector<HarmonicRecord> readports(const std::string& path) {
    const std::vector<std::byte> bytes = readwhole(path);
    std::span<const std::byte> left(bytes);
    std::vector<HarmonicRecord> ports(static_cast<std::size_t>(countof(bytes.size())));
    for (HarmonicRecord& port : ports) {
        port = decodeharmonic(left);
        left = left.subspan(std::min(harmonicrecordsize, left.size()));
    }
    return ports;
}

bool writeport(const std::string& path, std::int16_t recordnumber, const HarmonicRecord& record) {
    return writerecord(path, recordnumber, encode(record));
}

UserDepthRecord readdepth(const std::string& path, std::int16_t recordnumber) {
    std::array<std::byte, userdepthrecordsize> bytes;
    return decodeuserdepth(std::span(bytes).first(readrecord(path, recordnumber, bytes)));
}

bool writedepth(const std::string& path, std::int16_t recordnumber, const UserDepthRecord& record) {
    return writerecord(path, recordnumber, encode(record));
}

std::string trimmedname(const HarmonicRecord& record) {
    return trim(record.PortName);
}

}  // namespace tarvane
