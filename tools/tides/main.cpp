// The terminal companion: hands the machine's environment and the clock to `runtides`.
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <iostream>

#include "platform/systemzones/systemzones.h"
#include "tides/runtides.h"

namespace {

std::string variable(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

std::string executablefolder(const char* calledas) {
    std::error_code fault;
    std::filesystem::path executable = std::filesystem::read_symlink("/proc/self/exe", fault);
    if (fault) executable = std::filesystem::absolute(calledas, fault);
    return executable.parent_path().string();
}

tarvane::Date localtoday() {
    const std::time_t now = std::time(nullptr);
    const std::tm local = *std::localtime(&now);
    return tarvane::makedate(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday);
}

}  // namespace

int main(int argc, char** argv) {
    tarvane::TidesEnvironment environment;
    environment.programfolder = executablefolder(argc > 0 ? argv[0] : "");
    environment.home = variable("HOME");
    environment.datahome = variable("XDG_DATA_HOME");
    environment.confighome = variable("XDG_CONFIG_HOME");
    environment.today = localtoday();
    environment.now = std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
    const tarvane::SystemZones zones;
    environment.zones = &zones;
    std::ios::sync_with_stdio(false);
    std::signal(SIGPIPE, SIG_IGN);  // a reader that goes away is told like a full disk
    return tarvane::runtides(std::vector<std::string>(argv + (argc > 0 ? 1 : 0), argv + argc), environment, std::cout,
                             std::cerr);
}
