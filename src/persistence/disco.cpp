#include "persistence/disco.h"

#include <cerrno>
#include <fcntl.h>
#include <fstream>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace bosquel {

namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t mayorLegible = std::uintmax_t{1} << 30U;  // bytes; no drawing comes near it
constexpr int enlacesSeguidos = 40;
constexpr int nombresProbados = 100;
constexpr mode_t permisosDeUnoNuevo = 0666;  // less the process's mask
constexpr mode_t permisos = 07777;

// An open file, closed at the end.
class Descriptor {
  public:
    explicit Descriptor(int numero) : numero_(numero) {}
    ~Descriptor() { cerrar(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    bool abierto() const { return numero_ >= 0; }
    int numero() const { return numero_; }
    bool cerrar() { return abierto() && ::close(std::exchange(numero_, -1)) == 0; }

  private:
    int numero_;
};

// A name that is removed at the end, unless what it names was moved away.
class Provisional {
  public:
    explicit Provisional(fs::path ruta) : ruta_(std::move(ruta)) {}
    ~Provisional() {
        if (!ruta_.empty()) ::unlink(ruta_.c_str());
    }
    Provisional(const Provisional&) = delete;
    Provisional& operator=(const Provisional&) = delete;

    bool pasarA(const fs::path& destino) {
        if (::rename(ruta_.c_str(), destino.c_str()) != 0) return false;
        ruta_.clear();
        return true;
    }

  private:
    fs::path ruta_;
};

fs::path seguirEnlaces(fs::path ruta) {
    std::error_code error;
    for (int i = 0; i < enlacesSeguidos && fs::is_symlink(ruta, error); ++i)
        ruta = ruta.parent_path() / fs::read_symlink(ruta, error);
    return ruta;
}

// What is known of the file that is to be replaced.
struct Destino {
    bool escribible = false;
    std::optional<mode_t> modo;  // none if there is no file yet
};

Destino examinar(const fs::path& ruta) {
    const Descriptor archivo(::open(ruta.c_str(), O_WRONLY | O_CLOEXEC | O_NONBLOCK));
    if (!archivo.abierto()) return {errno == ENOENT, std::nullopt};
    struct stat estado {};
    if (::fstat(archivo.numero(), &estado) != 0 || !S_ISREG(estado.st_mode)) return {};
    return {true, estado.st_mode & permisos};
}

// Makes a file under a name that nothing has yet. The name is short, however long that of its neighbour is.
int crearProvisional(const fs::path& carpeta, fs::path& ruta) {
    int numero = -1;
    for (int i = 0; i < nombresProbados && numero < 0; ++i) {
        ruta = carpeta / (".bqr-" + std::to_string(::getpid()) + "-" + std::to_string(i) + ".tmp");
        numero = ::open(ruta.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, permisosDeUnoNuevo);
        if (numero < 0 && errno != EEXIST) break;
    }
    return numero;
}

bool escribir(int archivo, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t escritos = ::write(archivo, bytes.data(), bytes.size());
        if (escritos < 0 && errno == EINTR) continue;
        if (escritos <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(escritos));
    }
    return true;
}

}  // namespace

std::optional<std::string> leerArchivo(const fs::path& ruta) {
    std::error_code error;
    const fs::file_status estado = fs::status(ruta, error);
    if (estado.type() == fs::file_type::not_found) return std::string();
    if (estado.type() != fs::file_type::regular) return std::nullopt;
    const std::uintmax_t largo = fs::file_size(ruta, error);
    std::ifstream archivo(ruta, std::ios::binary);
    if (error || !archivo || largo > mayorLegible) return std::nullopt;
    std::string bytes(largo, '\0');
    archivo.read(bytes.data(), static_cast<std::streamsize>(largo));
    if (archivo.bad()) return std::nullopt;
    bytes.resize(static_cast<std::size_t>(archivo.gcount()));
    return bytes;
}

bool sustituirArchivo(const fs::path& ruta, std::string_view bytes) {
    const fs::path definitiva = seguirEnlaces(ruta);
    const Destino destino = examinar(definitiva);
    if (!destino.escribible) return false;
    fs::path provisional;
    Descriptor archivo(crearProvisional(definitiva.parent_path(), provisional));
    if (!archivo.abierto()) return false;
    Provisional nombre(std::move(provisional));
    if (destino.modo) ::fchmod(archivo.numero(), *destino.modo);  // not every file system has permissions
    const bool escrito = escribir(archivo.numero(), bytes) && ::fsync(archivo.numero()) == 0;
    return archivo.cerrar() && escrito && nombre.pasarA(definitiva);
}

}  // namespace bosquel
