// A processor's leftover that slows plain arithmetic down. Must not change any result.
#pragma once

namespace tarvane {

#if defined(__x86_64__) && defined(__GNUC__)

__attribute__((target("avx"))) inline void zerouppervectors() {
    __builtin_ia32_vzeroupper();
}

/// Drawing libraries leave the upper halves of the vector registers in use, and until they are zeroed each change
/// between the mathematical library's instructions and ours stalls: a day's prediction then takes 200 microseconds
/// instead of 25.
inline void settlevectors() {
    if (__builtin_cpu_supports("avx")) zerouppervectors();
}

#else

inline void settlevectors() {}

#endif

}  // namespace tarvane
