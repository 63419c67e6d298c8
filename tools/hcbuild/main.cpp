// Turns a table of ports in CSV into an area file: hcbuild INPUT.csv OUTPUT.hc
// and an area file into such a table, on standard output: hcbuild --dump AREA.hc
// A file with a fault is refused whole, with exit status 2, and nothing is written then.
#include <cstddef>
#include <iostream>
#include <string>

#include "files/wholefiles.h"
#include "portdata/portscsv.h"
#include "portdata/records.h"

namespace tarvane {
namespace {

constexpr int failed = 1;
constexpr int refused = 2;
constexpr std::size_t mostports = 32767;  // as record numbers count

void showfault(const std::string& path, const CsvFault& fault) {
    std::cerr << path << ":" << fault.line << ": ";
    if (fault.column > 0) {
        std::cerr << "column " << fault.column;
        if (!fault.columnname.empty()) std::cerr << " (" << fault.columnname << ")";
        std::cerr << ": ";
    }
    std::cerr << fault.reason << "\n";
}

int build(const std::string& input, const std::string& output) {
    if (!canopen(input)) {
        std::cerr << input << ": can't be read\n";
        return failed;
    }
    const PortsTable table = readportscsv(wholetext(input));
    if (table.fault) {
        showfault(input, *table.fault);
        return refused;
    }
    if (replacefile(output, table.area)) return 0;
    std::cerr << output << ": can't be written\n";
    return failed;
}

/// Why the bytes are no area file that a table could tell; empty when they are one.
std::string areafault(std::size_t size) {
    const std::size_t ports = size / harmonicrecordsize, behind = size % harmonicrecordsize;
    if (behind != 0) return "ends within a record, of which only " + std::to_string(behind) + " bytes are there";
    if (ports == 0) return "holds no ports";
    return ports > mostports ? "holds more than " + std::to_string(mostports) + " ports" : "";
}

int dump(const std::string& area) {
    const auto bytes = wholefile(area);
    if (!canopen(area) || !bytes) {
        std::cerr << area << ": can't be read\n";
        return failed;
    }
    const std::string fault = areafault(bytes->size());
    if (!fault.empty()) {
        std::cerr << area << ": " << fault << "\n";
        return refused;
    }
    std::cout << portscsvof(*bytes) << std::flush;
    if (std::cout) return 0;
    std::cerr << "the table can't be written\n";
    return failed;
}

}  // namespace
}  // namespace tarvane

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: hcbuild INPUT.csv OUTPUT.hc\n       hcbuild --dump AREA.hc\n";
        return tarvane::failed;
    }
    return argv[1] == std::string("--dump") ? tarvane::dump(argv[2]) : tarvane::build(argv[1], argv[2]);
}
