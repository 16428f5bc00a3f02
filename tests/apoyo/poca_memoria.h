#pragma once

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

namespace bosquel::apoyo {

/// Under the address sanitizer, which takes room of its own, memory cannot be limited.
inline constexpr bool memoriaSinLimite = BOSQUEL_SANEADO;

/// From now on the process may take so many bytes more than it has, and no more. It is for the child of a
/// death test, which ends by `terminar`.
inline void limitarMemoria(std::size_t mas) {
    std::ifstream estado("/proc/self/statm");
    rlim_t paginas = 0;
    estado >> paginas;
    const rlim_t bytes = paginas * static_cast<rlim_t>(::sysconf(_SC_PAGESIZE)) + mas;
    rlimit limite{};
    ASSERT_EQ(::getrlimit(RLIMIT_AS, &limite), 0);
    limite.rlim_cur = bytes;
    ASSERT_EQ(::setrlimit(RLIMIT_AS, &limite), 0);
}

/// The child ends, whether all was well or not, with room again for what a process leaves behind at its end.
[[noreturn]] inline void terminar(bool bien) {
    rlimit limite{};
    ::getrlimit(RLIMIT_AS, &limite);
    limite.rlim_cur = limite.rlim_max;
    ::setrlimit(RLIMIT_AS, &limite);
    std::exit(bien ? 0 : 1);
}

}  // namespace bosquel::apoyo
