#pragma once

#include <fstream>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

namespace bosquel::apoyo {

/// Under the address sanitizer, which takes room of its own, memory cannot be limited.
inline constexpr bool memoriaSinLimite = BOSQUEL_SANEADO;

/// From now on the process may take so many bytes more than it has, and no more. There is no way back: it is
/// for the child of a death test.
inline void limitarMemoria(std::size_t mas) {
    std::ifstream estado("/proc/self/statm");
    rlim_t paginas = 0;
    estado >> paginas;
    const rlim_t bytes = paginas * static_cast<rlim_t>(::sysconf(_SC_PAGESIZE)) + mas;
    const rlimit limite{bytes, bytes};
    ASSERT_EQ(::setrlimit(RLIMIT_AS, &limite), 0);
}

}  // namespace bosquel::apoyo
