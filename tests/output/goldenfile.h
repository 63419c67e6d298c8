// The bytes of a file under tests/data.
#pragma once

#include <fstream>
#include <iterator>
#include <string>

namespace tarvane::tests {

inline std::string goldenfile(const std::string& name) {
    std::ifstream file(std::string(TARVANE_TESTDATA) + "/" + name, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
}

}  // namespace tarvane::tests
