// Looking into records byte by byte, apart from the code under test. Must not use the record codec.
#pragma once

#include <cstddef>
#include <cstring>
#include <span>
#include <string>

#include "fakes/temporaryfolder.h"

namespace tarvane {

template <class T>
T numberat(std::span<const std::byte> bytes, std::size_t offset) {
    T value;
    std::memcpy(&value, bytes.subspan(offset, sizeof value).data(), sizeof value);
    return value;
}

inline std::string textat(std::span<const std::byte> bytes, std::size_t offset, std::size_t width) {
    return std::string(reinterpret_cast<const char*>(bytes.subspan(offset, width).data()), width);
}

inline std::string filled(const std::string& text, std::size_t width) {
    return text + std::string(width - text.size(), ' ');
}

}  // namespace tarvane
