#pragma once

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

namespace bosquel::apoyo {

/// Permissions mean nothing to the superuser: while this lives, the process is nobody.
class SinPrivilegios {
  public:
    SinPrivilegios() { EXPECT_TRUE(::geteuid() != 0 || ::seteuid(65534) == 0); }
    ~SinPrivilegios() { EXPECT_EQ(::seteuid(::getuid()), 0); }
    SinPrivilegios(const SinPrivilegios&) = delete;
    SinPrivilegios& operator=(const SinPrivilegios&) = delete;
};

/// While this lives, no file can grow beyond so many bytes, as on a disk that is full.
class DiscoLleno {
  public:
    explicit DiscoLleno(rlim_t bytes) : senal_(std::signal(SIGXFSZ, SIG_IGN)) {
        EXPECT_EQ(::getrlimit(RLIMIT_FSIZE, &anterior_), 0);
        const rlimit limite{bytes, anterior_.rlim_max};
        EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &limite), 0);
    }
    ~DiscoLleno() {
        EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &anterior_), 0);
        std::signal(SIGXFSZ, senal_);
    }
    DiscoLleno(const DiscoLleno&) = delete;
    DiscoLleno& operator=(const DiscoLleno&) = delete;

  private:
    rlimit anterior_{};
    void (*senal_)(int);
};

}  // namespace bosquel::apoyo
