#include "dxf.h"

#include <fstream>
#include <numbers>
#include <variant>

namespace bosquel::bench {

namespace {

/// One entity after the other, in pairs of a group code and its value. Heights grow upwards.
class Escritor {
  public:
    explicit Escritor(const std::filesystem::path& ruta) : archivo_(ruta) {
        grupo(0, "SECTION");
        grupo(2, "HEADER");
        grupo(9, "$ACADVER");
        grupo(1, "AC1015");
        grupo(0, "ENDSEC");
        grupo(0, "SECTION");
        grupo(2, "ENTITIES");
    }

    void anadir(const Calco::Recta& recta) { linea(recta.x1, recta.y1, recta.x2, recta.y2); }
    void anadir(const Calco::Caja& caja) {
        linea(caja.x1, caja.y1, caja.x2, caja.y1);
        linea(caja.x2, caja.y1, caja.x2, caja.y2);
        linea(caja.x2, caja.y2, caja.x1, caja.y2);
        linea(caja.x1, caja.y2, caja.x1, caja.y1);
    }
    void anadir(const Curva& curva) {
        if (curva.aspecto != 1) return elipse(curva);
        entidad(curva.arco ? "ARC" : "CIRCLE");
        grupo(10, curva.x);
        grupo(20, -curva.y);
        grupo(40, curva.radio);
        if (!curva.arco) return;
        grupo(50, curva.arco->inicio * 180 / std::numbers::pi);
        grupo(51, curva.arco->fin * 180 / std::numbers::pi);
    }

    void cerrar() {
        grupo(0, "ENDSEC");
        grupo(0, "EOF");
    }

  private:
    template <class Valor>
    void grupo(int codigo, const Valor& valor) {
        archivo_ << codigo << '\n' << valor << '\n';
    }
    void entidad(const char* nombre) {
        grupo(0, nombre);
        grupo(8, "0");
    }
    void linea(double x1, double y1, double x2, double y2) {
        entidad("LINE");
        grupo(10, x1);
        grupo(20, -y1);
        grupo(11, x2);
        grupo(21, -y2);
    }
    /// By its longer half-axis, and what the other is of it.
    void elipse(const Curva& curva) {
        const bool ancha = curva.aspecto < 1;
        const double giro = ancha ? 0 : std::numbers::pi / 2;
        const Arco arco = curva.arco.value_or(Arco{0, 2 * std::numbers::pi});
        entidad("ELLIPSE");
        grupo(10, curva.x);
        grupo(20, -curva.y);
        grupo(11, ancha ? curva.radio : 0);
        grupo(21, ancha ? 0 : curva.radio);
        grupo(40, ancha ? curva.aspecto : 1 / curva.aspecto);
        grupo(41, arco.inicio - giro);
        grupo(42, arco.fin - giro);
    }

    std::ofstream archivo_;
};

}  // namespace

void escribirDxf(const Calco& calco, const std::filesystem::path& ruta) {
    Escritor escritor(ruta);
    for (const Calco::Trazo& trazo : calco.trazos)
        std::visit([&](const auto& forma) { escritor.anadir(forma); }, trazo.forma);
    escritor.cerrar();
}

}  // namespace bosquel::bench
