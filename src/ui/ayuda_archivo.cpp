#include "ui/ayuda_archivo.h"

#include "model/windows1252.h"

#include <QDataStream>
#include <QFile>
#include <QStringDecoder>
#include <array>
#include <cerrno>
#include <chm_lib.h>
#include <csignal>
#include <cstdlib>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

// The library believes what a file says of itself: a damaged one makes it divide by zero, go round for ever
// or read where there is nothing. So a process of its own reads, and what comes of it is taken if it ends
// well.

namespace bosquel {

namespace {

constexpr LONGUINT64 tamanoMaximo = 64U << 20U;  // bytes, of all that the file holds
constexpr rlim_t segundosMaximos = 5;            // of computing, where a good file takes a tenth of one

struct Lectura {
    ArchivoAyuda objetos;
    LONGUINT64 tamano = 0;
};

int leerObjeto(chmFile* archivo, chmUnitInfo* objeto, void* lectura_) {
    auto& lectura = *static_cast<Lectura*>(lectura_);
    if (objeto->length > tamanoMaximo - lectura.tamano) return CHM_ENUMERATOR_FAILURE;
    lectura.tamano += objeto->length;
    QByteArray bytes(static_cast<qsizetype>(objeto->length), '\0');
    auto* destino = static_cast<unsigned char*>(static_cast<void*>(bytes.data()));
    const LONGINT64 leidos = chm_retrieve_object(archivo, objeto, destino, 0, bytes.size());
    if (leidos != bytes.size()) return CHM_ENUMERATOR_FAILURE;
    lectura.objetos.insert(QString::fromUtf8(objeto->path).mid(1), bytes);
    return CHM_ENUMERATOR_CONTINUE;
}

bool leerTodo(const char* ruta, int salida) {
    chmFile* archivo = chm_open(ruta);
    if (!archivo) return false;
    Lectura lectura;
    if (chm_enumerate(archivo, CHM_ENUMERATE_NORMAL | CHM_ENUMERATE_FILES, leerObjeto, &lectura) == 0)
        return false;
    QFile tuberia;
    if (!tuberia.open(salida, QIODevice::WriteOnly)) return false;
    QDataStream corriente(&tuberia);
    corriente << lectura.objetos;
    return corriente.status() == QDataStream::Ok && tuberia.flush();
}

/// Whatever befalls this process, nobody hears of it.
[[noreturn]] void leerAparte(const char* ruta, int salida) {
    for (const int senal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT})
        std::signal(senal, SIG_DFL);
    const rlimit sinVolcado{0, 0};
    const rlimit calculo{segundosMaximos, segundosMaximos};
    setrlimit(RLIMIT_CORE, &sinVolcado);
    setrlimit(RLIMIT_CPU, &calculo);
    close(STDERR_FILENO);
    _exit(leerTodo(ruta, salida) ? EXIT_SUCCESS : EXIT_FAILURE);
}

bool terminoBien(pid_t proceso) {
    int resultado = 0;
    while (waitpid(proceso, &resultado, 0) < 0)
        if (errno != EINTR) return false;
    return WIFEXITED(resultado) && WEXITSTATUS(resultado) == EXIT_SUCCESS;
}

}  // namespace

ArchivoAyuda leerArchivoAyuda(const std::filesystem::path& ruta) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(ruta, error)) return {};
    std::array<int, 2> extremos{};
    if (pipe(extremos.data()) != 0) return {};
    const pid_t proceso = fork();
    if (proceso == 0) leerAparte(ruta.c_str(), extremos[1]);
    close(extremos[1]);
    QFile tuberia;
    const bool abierta = tuberia.open(extremos[0], QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
    const QByteArray leido = abierta ? tuberia.readAll() : QByteArray();
    if (proceso < 0 || !terminoBien(proceso)) return {};
    QDataStream corriente(leido);
    ArchivoAyuda objetos;
    corriente >> objetos;
    return corriente.status() == QDataStream::Ok ? objetos : ArchivoAyuda();
}

QString textoAyuda(const QByteArray& bytes) {
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString texto = utf8(bytes);
    return utf8.hasError() ? QString::fromStdString(aUtf8(bytes.toStdString())) : texto;
}

}  // namespace bosquel
