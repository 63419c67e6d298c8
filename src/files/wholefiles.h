// Whole files on disk: each call opens, uses and closes its file. Writers make the new file beside the old one and
// rename it over, so that a crash or a full disk leaves either the old file or the new one whole. Must not know any
// record.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <system_error>
#include <vector>

namespace tarvane {

/// True if the file can be opened for reading (a folder can't).
bool canopen(const std::string& path);

/// True if files can be made in the folder, which is there.
bool canwritein(const std::string& folder);

/// The whole file's bytes; none for a file that isn't there; nothing when it is there and can't be read.
std::optional<std::vector<std::byte>> wholefile(const std::string& path);

/// The whole file's bytes; none if it can't be read.
std::vector<std::byte> readwhole(const std::string& path);

/// The whole file as a text; none if it can't be read.
std::string wholetext(const std::string& path);

/// Fills `bytes` from `offset` on; how many there were, 0 for a file that can't be read.
std::size_t readpart(const std::string& path, std::uint64_t offset, std::span<std::byte> bytes);

/// What became of a writing.
struct WriteOutcome {
    std::error_code error;  ///< none when it was written

    operator bool() const { return !error; }
    std::string reason() const;  ///< "No space left on device"
};

/// Puts `bytes` in place of what stands at `path`: written beside it, flushed to the disk, renamed over it. When that
/// fails at any byte the old file stands untouched. A link is followed; the old file's permissions stay.
WriteOutcome replacefile(const std::string& path, std::span<const std::byte> bytes);
WriteOutcome replacefile(const std::string& path, const std::string& bytes);

}  // namespace tarvane
