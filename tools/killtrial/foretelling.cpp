#include "killtrial/foretelling.h"

#include <fcntl.h>
#include <unistd.h>

namespace tarvane::killtrial {

std::string textof(std::span<const std::byte> bytes) {
    return std::string(reinterpret_cast<const char*>(bytes.data()), bytes.size());
}

Foretelling::Foretelling(const std::string& folder, unsigned seed)
    : folder_(folder),
      generator_(seed),
      log_(::open((folder + "/" + logname).c_str(), O_WRONLY | O_APPEND | O_CREAT, 0666)) {}

Foretelling::~Foretelling() {
    ::close(log_);
}

std::size_t Foretelling::below(std::size_t end) {
    return std::uniform_int_distribution<std::size_t>(0, end - 1)(generator_);
}

Change Foretelling::changed(const std::string& name, const std::string& after) const {
    return {name, stateoffile(path(name)), stateof(after)};
}

bool Foretelling::say(const std::string& line) const {
    return ::write(log_, line.data(), line.size()) == static_cast<ssize_t>(line.size());
}

bool Foretelling::perform(const std::vector<Change>& changes, const std::function<bool()>& act) {
    if (!say(beginline(changes)) || !act()) return false;
    for (const Change& change : changes)
        if (stateoffile(path(change.file)) != change.after) return false;
    return say(endline);
}

}  // namespace tarvane::killtrial
