#include "portdata/recordfiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <system_error>

#include "text/numbers.h"
#include "text/singlebyte.h"

namespace tarvane {
namespace {

/// A pipe has no records, and must not make the program wait for a writer.
constexpr int forreading = O_RDONLY | O_NONBLOCK;

/// A file descriptor that closes itself.
class File {
  public:
    explicit File(const std::string& path, int flags, mode_t mode = 0)
        : descriptor_(::open(path.c_str(), flags | O_CLOEXEC, mode)) {}
    ~File() { close(); }
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    bool isopen() const { return descriptor_ >= 0; }
    int number() const { return descriptor_; }
    bool close() {
        const int descriptor = descriptor_;
        descriptor_ = -1;
        return descriptor < 0 || ::close(descriptor) == 0;
    }

  private:
    int descriptor_;
};

/// Reads until the bytes are full or the file ends; how many were read, nothing on an error.
std::optional<std::size_t> readat(const File& file, std::span<std::byte> bytes, off_t offset) {
    std::size_t done = 0;
    while (done < bytes.size()) {
        const auto got =
            ::pread(file.number(), bytes.data() + done, bytes.size() - done, offset + static_cast<off_t>(done));
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) return std::nullopt;
        if (got == 0) break;
        done += static_cast<std::size_t>(got);
    }
    return done;
}

bool writeall(const File& file, std::span<const std::byte> bytes) {
    while (!bytes.empty()) {
        const auto put = ::write(file.number(), bytes.data(), bytes.size());
        if (put < 0 && errno == EINTR) continue;
        if (put <= 0) return false;
        bytes = bytes.subspan(static_cast<std::size_t>(put));
    }
    return true;
}

/// The file's bytes; none for a file that isn't there; nothing when it can't be read.
std::optional<std::vector<std::byte>> wholefile(const std::string& path) {
    const File file(path, forreading);
    if (!file.isopen()) {
        if (errno == ENOENT) return std::vector<std::byte>{};
        return std::nullopt;
    }
    struct stat status {};
    if (::fstat(file.number(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
    std::vector<std::byte> bytes(static_cast<std::size_t>(status.st_size));
    const auto got = readat(file, bytes, 0);
    if (!got) return std::nullopt;
    bytes.resize(*got);
    return bytes;
}

template <std::size_t size>
std::size_t readrecord(const std::string& path, std::int16_t recordnumber, std::array<std::byte, size>& bytes) {
    if (recordnumber < 1) return 0;
    const File file(path, forreading);
    if (!file.isopen()) return 0;
    return readat(file, bytes, (recordnumber - 1) * static_cast<off_t>(size)).value_or(0);
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

/// Where a chain of links ends; the target needn't exist. Nothing if the links run in a ring.
std::optional<std::filesystem::path> targetof(std::filesystem::path path) {
    constexpr int mostlinks = 40;
    std::error_code error;
    for (int i = 0; i < mostlinks; ++i) {
        if (!std::filesystem::is_symlink(path, error)) return path;
        const std::filesystem::path next = std::filesystem::read_symlink(path, error);
        if (error) return std::nullopt;
        path = path.parent_path() / next;
    }
    return std::nullopt;
}

/// What may be replaced: nothing yet, or a plain file that may be written. Gives the permissions to keep.
bool replaceable(const std::string& target, std::optional<mode_t>& mode) {
    struct stat status {};
    if (::stat(target.c_str(), &status) != 0) return errno == ENOENT;
    if (!S_ISREG(status.st_mode) || ::access(target.c_str(), W_OK) != 0) return false;
    mode = status.st_mode & 07777;
    return true;
}

/// Makes the file that will be renamed; an existing one, left by a run that ended midway, is written over.
bool writescratch(const std::string& scratch, std::span<const std::byte> bytes, std::optional<mode_t> mode) {
    File file(scratch, O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW, 0666);
    if (!file.isopen()) return false;
    if (mode && ::fchmod(file.number(), *mode) != 0) return false;
    return writeall(file, bytes) && ::fsync(file.number()) == 0 && file.close();
}

}  // namespace

bool canopen(const std::string& path) {
    const File file(path, forreading);
    struct stat status {};
    return file.isopen() && ::fstat(file.number(), &status) == 0 && !S_ISDIR(status.st_mode);
}

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

std::vector<std::byte> readwhole(const std::string& path) {
    return wholefile(path).value_or(std::vector<std::byte>{});
}

bool replacefile(const std::string& path, std::span<const std::byte> bytes) {
    const auto target = targetof(path);
    std::optional<mode_t> mode;
    if (!target || !replaceable(target->string(), mode)) return false;
    const std::filesystem::path folder = target->has_parent_path() ? target->parent_path() : ".";
    const std::string scratch = (folder / (".tarvane-" + std::to_string(::getpid()) + ".new")).string();
    if (!writescratch(scratch, bytes, mode) || std::rename(scratch.c_str(), target->c_str()) != 0) {
        ::unlink(scratch.c_str());
        return false;
    }
    // The new file is in place by now: a folder that can't be flushed is no failure of the replacement.
    const File flushed(folder.string(), O_RDONLY | O_DIRECTORY);
    if (flushed.isopen()) ::fsync(flushed.number());
    return true;
}

bool replacefile(const std::string& path, const std::string& bytes) {
    return replacefile(path, std::as_bytes(std::span(bytes)));
}

std::string trimmedname(const HarmonicRecord& record) {
    return trim(record.PortName);
}

}  // namespace tarvane
