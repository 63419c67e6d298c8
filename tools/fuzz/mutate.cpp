#include "fuzz/mutate.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <limits>

namespace tarvane::fuzz {
namespace {

constexpr std::size_t longest = 1 << 16;

using Change = void (*)(std::string&, Random&);

void flipbit(std::string& input, Random& random) {
    char& byte = input[below(random, input.size())];
    byte = static_cast<char>(static_cast<unsigned char>(byte) ^ (1U << below(random, 8)));
}

void setbyte(std::string& input, Random& random) {
    static constexpr char odd[] = {'\0', '\1', '\xff', '\x7f', '\x80', ' ', '0', '9', '-', '.', ',', '"', '\r', '\n'};
    input[below(random, input.size())] = odd[below(random, std::size(odd))];
}

void setfloat(std::string& input, Random& random) {
    static constexpr float odd[] = {0.0F,
                                    -0.0F,
                                    1e-40F,
                                    1e30F,
                                    -1e30F,
                                    3e38F,
                                    32767.5F,
                                    -32769.0F,
                                    2147483648.0F,
                                    1e19F,
                                    360.0F,
                                    std::numeric_limits<float>::infinity(),
                                    -std::numeric_limits<float>::infinity(),
                                    std::numeric_limits<float>::quiet_NaN()};
    if (input.size() < sizeof(float)) return setbyte(input, random);
    const float value = odd[below(random, std::size(odd))];
    std::memcpy(&input[below(random, input.size() - sizeof value + 1)], &value, sizeof value);
}

void cutend(std::string& input, Random& random) {
    input.resize(below(random, input.size() + 1));
}

void cutpiece(std::string& input, Random& random) {
    const std::size_t from = below(random, input.size());
    input.erase(from, 1 + below(random, input.size() / 4 + 1));
}

void doublepiece(std::string& input, Random& random) {
    const std::size_t from = below(random, input.size());
    const std::string piece = input.substr(from, 1 + below(random, input.size() / 4 + 1));
    if (input.size() + piece.size() <= longest) input.insert(below(random, input.size() + 1), piece);
}

void insertnoise(std::string& input, Random& random) {
    std::string noise;
    for (std::size_t length = 1 + below(random, 40); length > 0; --length)
        noise += static_cast<char>(below(random, 256));
    if (input.size() + noise.size() <= longest) input.insert(below(random, input.size() + 1), noise);
}

/// A piece from `from` on is replaced by a figure or a word that stands for trouble.
void setfigure(std::string& input, Random& random) {
    static constexpr const char* odd[] = {"",
                                          "-",
                                          "1e999",
                                          "-1e999",
                                          "nan",
                                          "inf",
                                          "99999999999999999999",
                                          "0x10",
                                          "1e-400",
                                          "-0",
                                          ".",
                                          "1.2.3",
                                          "1,5",
                                          "\"",
                                          "\"\"\"",
                                          "\xc3",
                                          "\xef\xbb\xbf",
                                          "24:00",
                                          "24:01",
                                          "2026-02-30",
                                          "2147483648",
                                          "360.0001",
                                          "\xf0\x9f\x8c\x8a",
                                          "\t",
                                          "0000000000000000000000000000001",
                                          "A",
                                          "\xff\xfe"};
    const std::size_t place = below(random, input.size());
    std::size_t from = input.find_last_of(",\n", place);
    from = from == std::string::npos ? 0 : from + 1;
    const std::size_t to = input.find_first_of(",\r\n", from);
    input.replace(from, (to == std::string::npos ? input.size() : to) - from, odd[below(random, std::size(odd))]);
}

void swapfields(std::string& input, Random& random) {
    const std::size_t comma = input.find(',', below(random, input.size()));
    if (comma == std::string::npos) return setbyte(input, random);
    static constexpr const char* instead[] = {"", ",,", "\n", ";", "\r\n", "\r"};
    input.replace(comma, 1, instead[below(random, std::size(instead))]);
}

std::string noisefor(Random& random, std::size_t size) {
    std::string noise(below(random, 4) == 0 ? below(random, 5000) : size, '\0');
    for (char& byte : noise)
        byte = static_cast<char>(below(random, 256));
    return noise;
}

template <std::size_t count>
std::string mutated(std::string input, Random& random, const Change (&changes)[count]) {
    if (below(random, 50) == 0) return noisefor(random, input.size());
    for (std::size_t times = 1 + below(random, 8); times > 0 && !input.empty(); --times)
        changes[below(random, count)](input, random);
    return input;
}

}  // namespace

std::size_t below(Random& random, std::size_t end) {
    return end == 0 ? 0 : static_cast<std::size_t>(random() % end);
}

std::string mutatedbytes(std::string input, Random& random) {
    static constexpr Change changes[] = {flipbit, flipbit,  setbyte,     setfloat,   setfloat,
                                         cutend,  cutpiece, doublepiece, insertnoise};
    return mutated(std::move(input), random, changes);
}

std::string mutatedtext(std::string input, Random& random) {
    static constexpr Change changes[] = {flipbit,  setbyte,     setfigure,   setfigure,  setfigure, cutend,
                                         cutpiece, doublepiece, insertnoise, swapfields, swapfields};
    return mutated(std::move(input), random, changes);
}

}  // namespace tarvane::fuzz
