#include "apoyo/mono.h"

#include "apoyo/idioma.h"

#include <cstdlib>
#include <exception>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace bosquel::apoyo {

namespace {

constexpr unsigned semillas = 12;
constexpr int pasos = 300;

/// A number out of the environment.
unsigned long delEntorno(const char* variable, unsigned long sinElla) {
    const char* valor = std::getenv(variable);
    return valor ? std::strtoul(valor, nullptr, 10) : sinElla;
}

std::vector<unsigned> lasSemillas() {
    if (const auto una = static_cast<unsigned>(delEntorno("BOSQUEL_MONO_SEMILLA", 0)); una != 0) return {una};
    std::vector<unsigned> todas;
    for (unsigned semilla = 1; semilla <= semillas; ++semilla)
        todas.push_back(semilla);
    return todas;
}

class MonoSuelto : public testing::TestWithParam<unsigned> {};

}  // namespace

TEST_P(MonoSuelto, NadaSeRompe) {
    const unsigned semilla = GetParam();
    const Idioma idioma(semilla % 2 == 0 ? Idioma::espanol : Idioma::ingles);
    Mono mono(semilla);
    std::string ultimos;
    const int cuantos = static_cast<int>(delEntorno("BOSQUEL_MONO_PASOS", pasos));
    for (int i = 1; i <= cuantos && !HasFailure(); ++i) {
        SCOPED_TRACE("BOSQUEL_MONO_SEMILLA=" + std::to_string(semilla) +
                     " BOSQUEL_MONO_PASOS=" + std::to_string(i) + ", after" + ultimos);
        try {
            const std::string paso = mono.paso();
            const testing::ScopedTrace traza(__FILE__, __LINE__, paso);
            ultimos.erase(0, ultimos.size() > 300 ? ultimos.size() - 300 : 0);
            ultimos.append(" | ").append(paso);
            mono.comprueba();
        } catch (const std::exception& error) {
            ADD_FAILURE() << error.what();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Semillas, MonoSuelto, testing::ValuesIn(lasSemillas()));

}  // namespace bosquel::apoyo
