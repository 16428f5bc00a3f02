#include "apoyo/perfil.h"
#include "apoyo/perfil_ingenuo.h"
#include "model/windows1252.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <optional>
#include <random>
#include <vector>

using namespace bosquel;
using apoyo::PerfilIngenuo;

namespace {

using Textos = std::vector<std::string>;

const std::string nulo(1, '\0');

/// In bytes of Windows-1252: names and values such as any program has, and such as no program should.
const Textos secciones{"a",
                       "A",
                       " a\t",
                       "Ba\xF1"
                       "era(3)",
                       "BA\xD1"
                       "ERA(3)",
                       "",
                       "b]c",
                       "c\nd",
                       "d" + nulo + "e",
                       "[x]",
                       "\x9F",
                       "\xFF",
                       "g=h"};
const Textos claves{"k",   "K",  " k ",  "Num\x8A", "num\x9A",        "",
                    "k=1", "[k", "k\nj", "k\rj",    "k" + nulo + "j", ";k",
                    "#k",  "]",  "\nk",  "j",       "\xD7",           "\xF7"};
const Textos valores{"",
                     "1",
                     "-2147483640",
                     " v ",
                     "\"q\"",
                     "' q'",
                     "\"",
                     "\"\"",
                     "v]",
                     "x\ny=2",
                     "x\r[a]",
                     "\r",
                     "\n",
                     "\r\n\r\n",
                     "v" + nulo + "w",
                     "=",
                     "[a]",
                     "\x1A",
                     std::string(300, 'z')};
const Textos trozos{"[",
                    "]",
                    "[a]",
                    "[A]\r\n",
                    "\r\n",
                    "\n",
                    "\r",
                    "=",
                    "k",
                    "K=",
                    "k=v",
                    " ",
                    "\t",
                    "\x1A",
                    nulo,
                    "\"",
                    "'",
                    ";",
                    "\xF1",
                    "\xD1",
                    "\xEF\xBB\xBF",
                    "\xEF",
                    "\r\n\r\n",
                    "[Ba\xF1"
                    "era(3)]",
                    "j=1"};

class PerfilAlAzar : public apoyo::Perfil {
  protected:
    const std::string& uno(const Textos& textos) { return textos[azar_() % textos.size()]; }

    std::string contenido(std::size_t maximo) {
        std::string bytes;
        for (std::size_t i = azar_() % (maximo + 1); i > 0; --i)
            bytes += uno(trozos);
        return bytes;
    }

    void compararLecturas(const ArchivoPerfil& archivo, const PerfilIngenuo& modelo) const {
        for (const std::string& seccion : secciones)
            for (const std::string& clave : claves)
                ASSERT_EQ(aWindows1252(archivo.leer(aUtf8(seccion), aUtf8(clave), "-")),
                          modelo.leer(seccion, clave, "-"));
    }

    void compararTandas(const ArchivoPerfil& archivo, const PerfilIngenuo& modelo,
                        const std::vector<std::string_view>& juntas) const {
        std::vector<std::optional<std::string_view>> leidos(juntas.size());
        for (const std::string& seccion : secciones) {
            archivo.buscar(aUtf8(seccion), juntas, leidos);
            for (std::size_t i = 0; i < juntas.size(); ++i)
                ASSERT_EQ(aWindows1252(leidos[i].value_or("-")),
                          modelo.leer(seccion, std::string(juntas[i]), "-"))
                    << seccion << ' ' << juntas[i];
        }
    }

    std::mt19937 azar_{1995};
};

}  // namespace

TEST_F(PerfilAlAzar, LaTandaYElModeloDicenLoMismo) {
    for (int caso = 0; caso < 60; ++caso) {
        poner(contenido(30));
        PerfilIngenuo modelo(bytes());
        ArchivoPerfil tanda(ruta_);
        ASSERT_NO_FATAL_FAILURE(compararLecturas(tanda, modelo)) << testing::PrintToString(modelo.bytes());
        for (int paso = 0; paso < 12; ++paso) {
            const std::string &seccion = uno(secciones), &clave = uno(claves), &valor = uno(valores);
            tanda.guardar(aUtf8(seccion), aUtf8(clave), aUtf8(valor));
            modelo.guardar(seccion, clave, valor);
            const std::string &otra = uno(secciones), &suya = uno(claves);
            ASSERT_EQ(aWindows1252(tanda.leer(aUtf8(otra), aUtf8(suya), "-")), modelo.leer(otra, suya, "-"))
                << testing::PrintToString(modelo.bytes());
        }
        ASSERT_NO_FATAL_FAILURE(compararLecturas(tanda, modelo)) << testing::PrintToString(modelo.bytes());
        tanda.volcar();
        ASSERT_EQ(bytes(), modelo.bytes());
        ASSERT_NO_FATAL_FAILURE(compararLecturas(ArchivoPerfil(ruta_), modelo));
    }
}

TEST_F(PerfilAlAzar, LlamadaALlamadaYElModeloDicenLoMismo) {
    for (int caso = 0; caso < 60; ++caso) {
        poner(contenido(20));
        PerfilIngenuo modelo(bytes());
        for (int paso = 0; paso < 12; ++paso) {
            const std::string &seccion = uno(secciones), &clave = uno(claves), &valor = uno(valores);
            const std::string antes = bytes();
            guardar(aUtf8(seccion), aUtf8(clave), aUtf8(valor));
            modelo.guardar(seccion, clave, valor);
            ASSERT_EQ(bytes(), modelo.bytes()) << testing::PrintToString(antes);
            ASSERT_EQ(aWindows1252(leer(aUtf8(seccion), aUtf8(clave))), modelo.leer(seccion, clave, "-"));
        }
    }
}

TEST_F(PerfilAlAzar, VariasClavesALaVezDicenLoMismoQueUnaAUna) {
    const std::vector<std::string_view> llanas{"k", "Num", "j", ";k", "]", "#k"};
    const std::string llano = "-1,5";
    for (int caso = 0; caso < 200; ++caso) {
        poner(contenido(20));
        PerfilIngenuo modelo(bytes());
        ArchivoPerfil tanda(ruta_);
        for (int paso = 0; paso < 8; ++paso) {
            const std::string& seccion = uno(secciones);
            std::vector<std::string_view> juntas = llanas;
            std::shuffle(juntas.begin(), juntas.end(), azar_);
            juntas.resize(azar_() % (juntas.size() + 1));
            std::vector<ValorPerfil> nuevos;
            for (const std::string_view clave : juntas) {
                const std::string& valor = azar_() % 4 == 0 ? uno(valores) : llano;
                nuevos.push_back({clave, aUtf8(valor)});
                modelo.guardar(seccion, std::string(clave), valor);
            }
            tanda.guardar(aUtf8(seccion), nuevos);
            if (paso % 3 == 0) tanda.leer(aUtf8(uno(secciones)), "k");
            ASSERT_NO_FATAL_FAILURE(compararTandas(tanda, modelo, llanas))
                << testing::PrintToString(modelo.bytes());
        }
        tanda.volcar();
        ASSERT_EQ(bytes(), modelo.bytes());
    }
}

TEST_F(PerfilAlAzar, CualquierArchivoSeLeeYSeEscribeSinRomperNada) {
    for (int caso = 0; caso < 300; ++caso) {
        std::string contenido(azar_() % 400, '\0');
        for (char& c : contenido)
            c = static_cast<char>(azar_() % 256);
        poner(contenido);
        PerfilIngenuo modelo(contenido);
        ArchivoPerfil archivo(ruta_);
        ASSERT_NO_FATAL_FAILURE(compararLecturas(archivo, modelo));
        archivo.guardar("a", "k", "1");
        modelo.guardar("a", "k", "1");
        archivo.volcar();
        ASSERT_EQ(bytes(), modelo.bytes());
    }
}
