#include "killtrial/states.h"

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace tarvane::killtrial {

State stateof(const std::string& bytes) {
    std::uint64_t hash = 14695981039346656037U;
    for (const char byte : bytes) {
        hash ^= static_cast<unsigned char>(byte);
        hash *= 1099511628211U;
    }
    return std::to_string(bytes.size()) + ":" + std::to_string(hash);
}

State stateoffile(const std::string& path) {
    if (!std::filesystem::exists(path)) return missingstate;
    std::ifstream file(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    const bool whole = bytes.starts_with("%PDF-") && bytes.ends_with("%%EOF\n");
    return path.ends_with(".pdf") && whole ? wholepdf : stateof(bytes);
}

std::string beginline(const std::vector<Change>& changes) {
    std::string line = "begin";
    for (const Change& change : changes)
        line += " " + change.file + " " + change.before + " " + change.after;
    return line + "\n";
}

Log readlog(const std::string& path) {
    Log log;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line) && !file.eof();) {
        if (line + "\n" == endline) {
            for (const Change& change : log.inhand)
                log.states[change.file] = change.after;
            log.inhand.clear();
            ++log.finished;
            continue;
        }
        std::istringstream words(line.substr(line.find(' ') + 1));
        for (Change change; words >> change.file >> change.before >> change.after;)
            log.inhand.push_back(change);
    }
    return log;
}

}  // namespace tarvane::killtrial
