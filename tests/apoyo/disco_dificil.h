#pragma once

#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <sched.h>
#include <string>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/wait.h>
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

/// Makes a folder a file system of its own that holds so many bytes, for this process alone: it is for a
/// child process, with which it goes. False if the process may not do that.
inline bool montarDiscoPequeno(const std::filesystem::path& carpeta, int bytes) {
    const std::string tamano = "size=" + std::to_string(bytes);
    return ::unshare(CLONE_NEWNS) == 0 && ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           ::mount("tmpfs", carpeta.c_str(), "tmpfs", 0, tamano.c_str()) == 0;
}

/// What a child process ends with that runs this.
template <class Paso>
int enOtroProceso(Paso paso) {
    const pid_t hijo = ::fork();
    if (hijo == 0) ::_exit(paso());
    int estado = 0;
    EXPECT_EQ(::waitpid(hijo, &estado, 0), hijo);
    return WIFEXITED(estado) ? WEXITSTATUS(estado) : -1;
}

}  // namespace bosquel::apoyo
