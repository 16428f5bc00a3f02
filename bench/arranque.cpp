// From nothing to the first window, splash excluded, against an empty window with sixty buttons; and how much
// memory the largest drawing takes. Each time is that of a process of its own, which does one of these and
// ends.

#include "dibujos.h"
#include "puesto.h"
#include "ui/aplicacion.h"

#include <QApplication>
#include <QGridLayout>
#include <QPushButton>
#include <algorithm>
#include <array>
#include <cstdio>
#include <spawn.h>
#include <stdexcept>
#include <string>
#include <string_view>
#include <sys/resource.h>
#include <sys/wait.h>
#include <vector>

namespace bosquel::bench {

namespace {

constexpr int botones = 60, porFila = 10;
constexpr int veces = 21;
constexpr int elementos = 20000;

void abrirBotones() {
    QWidget ventana;
    auto* rejilla = new QGridLayout(&ventana);
    for (int i = 0; i < botones; ++i)
        rejilla->addWidget(new QPushButton(QString("Botón %1").arg(i)), i / porFila, i % porFila);
    ventana.show();
    pintar(ventana);
}

/// With a drawing, if there is a file.
void abrirPrograma(const char* archivo) {
    prepararAplicacion();
    const QTemporaryDir carpeta;
    PlataformaDeMedida plataforma;
    Bosquel bosquel(plataforma, carpeta.path().toStdString());
    VentanaBosquel ventana(bosquel);
    plataforma.ponerVentana(&ventana);
    bosquel.cargar();
    ventana.show();
    pintar(ventana);
    if (!archivo) return;
    plataforma.archivo = archivo;
    bosquel.pulsarPrincipal(Principal::Abrir);
    pintar(ventana);
    if (bosquel.sesion().dibujo.Pared.contador < elementos / 24) throw std::runtime_error(archivo);
}

/// Leaves a drawing in a file.
void guardarDibujo(const char* archivo) {
    Puesto puesto(elementos);
    puesto.plataforma().archivo = archivo;
    puesto.bosquel().pulsarPrincipal(Principal::Guardar);
}

struct Gasto {
    double milisegundos = 0;  ///< of the processor
    double mebibytes = 0;     ///< at the most
};

double enMilisegundos(const timeval& tiempo) {
    return 1e3 * static_cast<double>(tiempo.tv_sec) + 1e-3 * static_cast<double>(tiempo.tv_usec);
}

/// What it takes to do one thing in a process of its own.
Gasto gastoDe(std::vector<std::string> orden) {
    std::string propio = "/proc/self/exe";
    std::vector<char*> palabras{propio.data()};
    for (std::string& palabra : orden)
        palabras.push_back(palabra.data());
    palabras.push_back(nullptr);
    pid_t hijo = 0;
    int estado = -1;
    rusage uso{};
    if (posix_spawn(&hijo, propio.c_str(), nullptr, nullptr, palabras.data(), environ) == 0)
        wait4(hijo, &estado, 0, &uso);
    if (estado != 0) throw std::runtime_error(orden.front());
    return {enMilisegundos(uso.ru_utime) + enMilisegundos(uso.ru_stime),
            static_cast<double>(uso.ru_maxrss) / 1024};
}

/// The median of many times.
double tiempoDe(const std::string& cosa) {
    std::array<double, veces> tiempos{};
    for (double& tiempo : tiempos)
        tiempo = gastoDe({cosa}).milisegundos;
    std::sort(tiempos.begin(), tiempos.end());
    return tiempos[veces / 2];
}

void medir() {
    const double suelo = tiempoDe("botones");
    const double arranque = tiempoDe("programa");
    std::printf("%-16s %9s %14.1f %14.1f %8.2f %8s\n", "arranque", "-", arranque * 1e3, suelo * 1e3,
                arranque / suelo, "1.6");
    const QTemporaryDir carpeta;
    const std::string archivo = carpeta.filePath("medida.bqr").toStdString();
    gastoDe({"guardar", archivo});
    const double vacia = gastoDe({"programa"}).mebibytes;
    const double llena = gastoDe({"programa", archivo}).mebibytes;
    std::printf("memory: %.0f MiB with %d elements open, %.0f with none: %.0f more (target 90)\n", llena,
                elementos, vacia, llena - vacia);
}

}  // namespace

}  // namespace bosquel::bench

int main(int argc, char* argv[]) {
    using namespace bosquel::bench;
    const std::string_view cosa = argc > 1 ? argv[1] : "";
    if (cosa.empty()) {
        medir();
        return 0;
    }
    const QApplication aplicacion(argc, argv);
    const char* archivo = argc > 2 ? argv[2] : nullptr;
    if (cosa == "botones") abrirBotones();
    if (cosa == "programa") abrirPrograma(archivo);
    if (cosa == "guardar") guardarDibujo(archivo);
}
