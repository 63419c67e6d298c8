#include "diamonds/diamondfile.h"

#include <algorithm>
#include <bit>
#include <cerrno>
#include <cstdint>
#include <filesystem>
#include <system_error>

#include "text/singlebyte.h"

namespace tarvane {
namespace {

static_assert(diamondrecordsize == 4 + 4 + 1 + streamhours * 3 * 4);

constexpr std::size_t latitudeoffset = 0, longitudeoffset = 4, letteroffset = 8, streamsoffset = 9, streamwidth = 12;
constexpr std::size_t numberwidth = 4;

using Bytes = std::vector<std::byte>;

void putnumber(DiamondBytes& bytes, std::size_t place, float value) {
    const auto bits = std::bit_cast<std::uint32_t>(value);
    for (std::size_t i = 0; i < numberwidth; ++i)
        bytes[place + i] = static_cast<std::byte>((bits >> (8 * i)) & 0xFF);
}

float numberat(const DiamondBytes& bytes, std::size_t place) {
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < numberwidth; ++i)
        bits |= std::to_integer<std::uint32_t>(bytes[place + i]) << (8 * i);
    return std::bit_cast<float>(bits);
}

WriteOutcome refusal(int code) {
    return {std::error_code(code, std::generic_category())};
}

/// The file's bytes. What wouldn't be moved along must not be cut off: a file with too many records isn't taken.
Bytes bytesof(const std::string& path, WriteOutcome& read) {
    errno = 0;
    std::error_code error;
    const auto size = std::filesystem::file_size(path, error);
    if (!error && size / diamondrecordsize > mostdiamonds) {
        read = refusal(EFBIG);
        return {};
    }
    errno = 0;
    auto bytes = wholefile(path);
    if (!bytes) read = whynotread(path, errno);
    return bytes.value_or(Bytes{});
}

std::size_t wholerecords(const Bytes& bytes) {
    return bytes.size() / diamondrecordsize;
}

WriteOutcome replacediamonds(AreaBackups& backups, const std::string& path, const Bytes& bytes) {
    const WriteOutcome kept = keepbackup(backups, path);
    return kept ? replacefile(path, bytes) : kept;
}

}  // namespace

DiamondBytes encode(const DiamondRecord& record) {
    DiamondBytes bytes{};
    putnumber(bytes, latitudeoffset, record.DiamondLat);
    putnumber(bytes, longitudeoffset, record.DiamondLong);
    const std::string letter = tosinglebyte(record.DiamondID);
    bytes[letteroffset] = static_cast<std::byte>(letter.empty() ? ' ' : letter[0]);
    for (std::size_t i = 0; i < streamhours; ++i) {
        const std::size_t place = streamsoffset + i * streamwidth;
        putnumber(bytes, place, record.streams[i].StreamDir);
        putnumber(bytes, place + numberwidth, record.streams[i].SpringRate);
        putnumber(bytes, place + 2 * numberwidth, record.streams[i].NeapRate);
    }
    return bytes;
}

DiamondRecord decodediamond(std::span<const std::byte> bytes) {
    DiamondBytes whole{};
    std::copy_n(bytes.begin(), std::min(bytes.size(), whole.size()), whole.begin());
    DiamondRecord record;
    record.DiamondLat = numberat(whole, latitudeoffset);
    record.DiamondLong = numberat(whole, longitudeoffset);
    if (const auto letter = std::to_integer<char>(whole[letteroffset]))
        record.DiamondID = fromsinglebyte(std::string(1, letter));
    for (std::size_t i = 0; i < streamhours; ++i) {
        const std::size_t place = streamsoffset + i * streamwidth;
        record.streams[i] = {numberat(whole, place), numberat(whole, place + numberwidth),
                             numberat(whole, place + 2 * numberwidth)};
    }
    return record;
}

WriteOutcome whynotread(const std::string& path, int number) {
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored)) return refusal(EISDIR);
    return refusal(number ? number : EIO);
}

DiamondFile readdiamonds(const std::string& path) {
    DiamondFile file;
    const Bytes bytes = bytesof(path, file.read);
    if (file.read && !canopen(path)) file.read = refusal(ENOENT);
    if (!file.read) return file;
    for (std::size_t i = 0; i < wholerecords(bytes); ++i)
        file.diamonds.push_back(decodediamond(std::span(bytes).subspan(i * diamondrecordsize, diamondrecordsize)));
    file.leftover = bytes.size() % diamondrecordsize;
    return file;
}

DiamondEdit adddiamond(AreaBackups& backups, const std::string& path, const DiamondRecord& record) {
    DiamondEdit edit;
    Bytes bytes = bytesof(path, edit.written);
    if (edit.written && wholerecords(bytes) == mostdiamonds) edit.written = refusal(EFBIG);
    if (!edit.written) return edit;
    const std::size_t leftover = bytes.size() % diamondrecordsize;
    bytes.resize(bytes.size() - leftover);
    const DiamondBytes added = encode(record);
    bytes.insert(bytes.end(), added.begin(), added.end());
    edit.written = replacediamonds(backups, path, bytes);
    if (edit.written) edit.lost = leftover;
    return edit;
}

DiamondEdit amenddiamond(AreaBackups& backups, const std::string& path, std::size_t index,
                         const DiamondRecord& record) {
    DiamondEdit edit;
    Bytes bytes = bytesof(path, edit.written);
    if (edit.written && index >= wholerecords(bytes)) edit.written = refusal(ERANGE);
    if (!edit.written) return edit;
    std::ranges::copy(encode(record), bytes.begin() + static_cast<std::ptrdiff_t>(index * diamondrecordsize));
    edit.written = replacediamonds(backups, path, bytes);
    return edit;
}

DiamondEdit deletediamond(AreaBackups& backups, const std::string& path, const std::string& scratch,
                          std::size_t index) {
    DiamondEdit edit;
    Bytes bytes = bytesof(path, edit.written);
    if (edit.written && index >= wholerecords(bytes)) edit.written = refusal(ERANGE);
    if (!edit.written) return edit;
    const std::size_t leftover = bytes.size() % diamondrecordsize;
    bytes.resize(bytes.size() - leftover);
    const auto from = bytes.begin() + static_cast<std::ptrdiff_t>(index * diamondrecordsize);
    bytes.erase(from, from + static_cast<std::ptrdiff_t>(diamondrecordsize));
    std::error_code ignored;
    std::filesystem::remove(scratch, ignored);
    edit.written = replacefile(scratch, bytes);
    if (edit.written) edit.written = replacediamonds(backups, path, bytes);
    std::filesystem::remove(scratch, ignored);
    if (edit.written) edit.lost = leftover;
    return edit;
}

}  // namespace tarvane
