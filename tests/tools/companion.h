// A user's machine in a temporary folder, `tides` run on it, and what came out.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "dates/portclock.h"
#include "fakes/temporaryfolder.h"
#include "fakes/testport.h"
#include "platform/systemzones/systemzones.h"
#include "portdata/configuration.h"
#include "portdata/recordfiles.h"
#include "tides/runtides.h"

namespace tarvane::tests {

struct Outcome {
    int status = 0;
    std::string out;
    std::string err;
};

/// Lines of a text, the last one without its end.
inline std::vector<std::string> linesof(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

/// Fields of a CSV line in which nothing is quoted.
inline std::vector<std::string> fieldsof(const std::string& line) {
    std::istringstream stream(line);
    std::vector<std::string> fields;
    for (std::string field; std::getline(stream, field, ',');)
        fields.push_back(field);
    return fields;
}

inline bool has(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

struct Companion : testing::Test {
    Companion() {
        environment.programfolder = folder / "bin";
        environment.home = folder / "home";
        environment.today = makedate(2024, 4, 9);
        environment.now = Moment(environment.today) + std::chrono::hours(10);
        environment.zones = &zones;
        std::filesystem::create_directories(environment.programfolder);
        std::filesystem::create_directories(environment.home);
    }

    std::string areapath(const std::string& name = "UK.hc") const { return environment.programfolder + "/" + name; }

    void store(const std::vector<HarmonicRecord>& ports, const std::string& name = "UK.hc") {
        std::int16_t number = 0;
        for (const HarmonicRecord& port : ports)
            writeport(areapath(name), ++number, port);
    }

    /// A stored configuration with the worked port's area, heights to chart datum.
    void configure(std::int16_t port, float output = 1, std::int16_t summer = 0) {
        const ProgramFolders folders = foldersof(environment);
        std::filesystem::create_directories(folders.configfolder());
        ConfigRecord record = defaultconfig(folders);
        record.portnumber = port;
        record.outputoption = output;
        record.summertimeflag = summer;
        SaveConfig(folders, record);
    }

    /// The user's depth for the first port of an area.
    void storedepth(float depth, const std::string& name = "UK.DEP") const {
        const std::string depths = foldersof(environment).depthsfolder();
        std::filesystem::create_directories(depths);
        UserDepthRecord record;
        record.UserDepth = depth;
        writedepth(depths + "/" + name, 1, record);
    }

    /// Runs `tides` with the words of a line, one blank between them.
    Outcome run(const std::string& line) const {
        std::istringstream words(line);
        return runwith({std::istream_iterator<std::string>(words), {}});
    }
    Outcome runwith(const std::vector<std::string>& arguments) const {
        std::ostringstream out, err;
        const int status = runtides(arguments, environment, out, err);
        return {status, out.str(), err.str()};
    }
    std::string csv(const std::string& line) const { return run(line + " --format csv").out; }

    /// A written-down session at a terminal, each command line behind "$ tides", with what it answers now.
    std::string answersto(const std::string& path) const {
        std::string answered;
        for (const std::string& line : linesof(filetext(path))) {
            if (!line.starts_with("$ tides")) continue;
            const auto [status, out, err] = run(line.substr(7));
            answered += line + "\n" + out + err + (status ? "(status " + std::to_string(status) + ")\n" : "");
        }
        return answered;
    }

    /// Every file and folder under the temporary one with its size.
    std::map<std::string, std::uintmax_t> everything() const {
        std::map<std::string, std::uintmax_t> found;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.path()))
            found[entry.path().string()] = entry.is_regular_file() ? entry.file_size() : 0;
        return found;
    }

    fakes::TemporaryFolder folder;
    SystemZones zones;
    TidesEnvironment environment;
};

/// The port with round constants where the worked sun figures are, under any name.
inline HarmonicRecord portnamed(const std::string& name) {
    HarmonicRecord port = roundport();
    port.PortName = name;
    port.PortLat = 50.9F;
    port.PortLong = -1.4F;
    return port;
}

}  // namespace tarvane::tests
