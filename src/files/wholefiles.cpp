#include "files/wholefiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <optional>

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

/// Where a chain of links ends; the target needn't exist. Nothing if the links run in a ring.
std::optional<std::filesystem::path> targetof(std::filesystem::path path) {
    constexpr int mostlinks = 40;
    std::error_code error;
    for (int i = 0; i < mostlinks; ++i) {
        if (!std::filesystem::is_symlink(path, error)) return path;
        const std::filesystem::path next = std::filesystem::read_symlink(path, error);
        if (error) break;
        path = path.parent_path() / next;
    }
    errno = ELOOP;
    return std::nullopt;
}

/// What may be replaced: nothing yet, or a plain file that may be written. Gives the permissions to keep.
bool replaceable(const std::string& target, std::optional<mode_t>& mode) {
    struct stat status {};
    if (::stat(target.c_str(), &status) != 0) return errno == ENOENT;
    if (!S_ISREG(status.st_mode)) errno = S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
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

bool canwritein(const std::string& folder) {
    return ::access(folder.c_str(), W_OK | X_OK) == 0;
}

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

std::vector<std::byte> readwhole(const std::string& path) {
    return wholefile(path).value_or(std::vector<std::byte>{});
}

std::string wholetext(const std::string& path) {
    const std::vector<std::byte> bytes = readwhole(path);
    return std::string(reinterpret_cast<const char*>(bytes.data()), bytes.size());
}

std::size_t readpart(const std::string& path, std::uint64_t offset, std::span<std::byte> bytes) {
    const File file(path, forreading);
    if (!file.isopen()) return 0;
    return readat(file, bytes, static_cast<off_t>(offset)).value_or(0);
}

std::string WriteOutcome::reason() const {
    return error.message();
}

WriteOutcome replacefile(const std::string& path, std::span<const std::byte> bytes) {
    const auto failure = [] { return WriteOutcome{std::error_code(errno, std::generic_category())}; };
    const auto target = targetof(path);
    std::optional<mode_t> mode;
    if (!target || !replaceable(target->string(), mode)) return failure();
    const std::filesystem::path folder = target->has_parent_path() ? target->parent_path() : ".";
    const std::string scratch = (folder / (".tarvane-" + std::to_string(::getpid()) + ".new")).string();
    if (!writescratch(scratch, bytes, mode) || std::rename(scratch.c_str(), target->c_str()) != 0) {
        const WriteOutcome outcome = failure();
        ::unlink(scratch.c_str());
        return outcome;
    }
    // The new file is in place by now: a folder that can't be flushed is no failure of the replacement.
    const File flushed(folder.string(), O_RDONLY | O_DIRECTORY);
    if (flushed.isopen()) ::fsync(flushed.number());
    return {};
}

WriteOutcome replacefile(const std::string& path, const std::string& bytes) {
    return replacefile(path, std::as_bytes(std::span(bytes)));
}

}  // namespace tarvane
