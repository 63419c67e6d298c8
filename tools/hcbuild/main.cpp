// Turns a table of ports in CSV into an area file: hcbuild INPUT.csv OUTPUT.hc
// A table with a fault is refused whole, with exit status 2, and nothing is written then.
#include <cstddef>
#include <iostream>
#include <string>
#include <vector>

#include "files/wholefiles.h"
#include "portdata/portscsv.h"
#include "portdata/recordfiles.h"

namespace tarvane {
namespace {

constexpr int failed = 1;
constexpr int refused = 2;

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
    std::string text;
    for (const std::byte byte : readwhole(input))
        text += static_cast<char>(byte);
    const PortsTable table = readportscsv(text);
    if (table.fault) {
        showfault(input, *table.fault);
        return refused;
    }
    std::vector<std::byte> bytes;
    for (const HarmonicRecord& port : table.ports) {
        const auto record = encode(port);
        bytes.insert(bytes.end(), record.begin(), record.end());
    }
    if (replacefile(output, bytes)) return 0;
    std::cerr << output << ": can't be written\n";
    return failed;
}

}  // namespace
}  // namespace tarvane

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: hcbuild INPUT.csv OUTPUT.hc\n";
        return tarvane::failed;
    }
    return tarvane::build(argv[1], argv[2]);
}
