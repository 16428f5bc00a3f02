#pragma once

#include <cstdlib>
#include <iostream>

namespace bosquel::fuzz {

/// Ends the program if what has to hold does not: the fuzzer takes that for a find, and so does ctest.
inline void exigir(bool vale, const char* que) {
    if (vale) return;
    std::cerr << "does not hold: " << que << '\n';
    std::abort();
}

}  // namespace bosquel::fuzz
