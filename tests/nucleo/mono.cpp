#include "apoyo/mono.h"

#include "apoyo/idioma.h"
#include "apoyo/semillas.h"

#include <exception>
#include <gtest/gtest.h>
#include <string>

namespace bosquel::apoyo {

namespace {

class MonoSuelto : public testing::TestWithParam<unsigned> {};

}  // namespace

TEST_P(MonoSuelto, NadaSeRompe) {
    const unsigned semilla = GetParam();
    const Idioma idioma(semilla % 2 == 0 ? Idioma::espanol : Idioma::ingles);
    Mono mono(semilla);
    std::string ultimos;
    const int cuantos = pasosDelMono(300);
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

INSTANTIATE_TEST_SUITE_P(Semillas, MonoSuelto, testing::ValuesIn(semillas(12)));

}  // namespace bosquel::apoyo
