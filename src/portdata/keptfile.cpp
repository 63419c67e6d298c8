#include "portdata/keptfile.h"

namespace tarvane {
namespace {

/// Adds the copy's name to `copies`.
WriteOutcome keepbroken(const std::string& path, std::string& copies) {
    const auto bytes = wholefile(path);
    if (!bytes) return {std::make_error_code(std::errc::io_error)};
    std::string beside = path + ".broken";
    for (int i = 2; canopen(beside) && readwhole(beside) != *bytes; ++i)
        beside = path + ".broken" + std::to_string(i);
    const WriteOutcome kept = replacefile(beside, *bytes);
    const std::string name = beside.substr(beside.find_last_of('/') + 1);
    if (kept) copies += (copies.empty() ? "" : " and ") + name;
    return kept;
}

}  // namespace

std::string readkept(const std::string& path, KeptState& state) {
    const auto bytes = wholefile(path);
    state.readable = bytes.has_value();
    if (!bytes) return "";
    return {reinterpret_cast<const char*>(bytes->data()), bytes->size()};
}

WriteOutcome writekept(const std::string& path, const KeptState& found, const KeptText& text) {
    if (!found.readable) return {std::make_error_code(std::errc::permission_denied)};
    std::string untold = found.untold;
    if (!found.whole)
        if (const WriteOutcome kept = keepbroken(path, untold); !kept) return kept;
    return replacefile(path, text(untold));
}

std::string keptfault(const std::string& path, const KeptState& found, const std::string& missing) {
    if (!found.readable) return path + " can't be read: " + missing;
    return found.whole ? "" : path + " isn't understood whole: what could be read of it is used";
}

std::string tellkept(const std::string& path, const KeptState& found, const std::string& missing,
                     const KeptText& text) {
    if (!found.readable) return keptfault(path, found, missing) + ".";
    if (found.whole && found.untold.empty()) return "";
    std::string copies = found.untold;
    WriteOutcome kept;
    if (!found.whole) kept = keepbroken(path, copies);
    if (!kept)
        return path + " isn't understood whole, and a copy of it can't be kept: " + kept.reason() +
               ". It stays as it is, and nothing new is kept in it.";
    const WriteOutcome written = replacefile(path, text(""));
    const std::size_t folder = path.find_last_of('/') + 1;
    return path.substr(folder) +
           " wasn't understood whole. What could be read of it is used, and as it was it lies in " +
           path.substr(0, folder) + copies + "." +
           (written ? "" : " It can't be written anew: " + written.reason() + ".");
}

}  // namespace tarvane
