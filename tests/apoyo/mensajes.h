#pragma once

#include "platform/plataforma.h"

#include <gtest/gtest.h>
#include <vector>

namespace bosquel::apoyo {

/// The one message that has been shown, word for word.
inline void esperarMensaje(const std::vector<Mensaje>& mensajes, const Mensaje& esperado) {
    ASSERT_EQ(mensajes.size(), 1U);
    EXPECT_EQ(mensajes[0].titulo, esperado.titulo);
    EXPECT_EQ(mensajes[0].texto, esperado.texto);
    EXPECT_EQ(mensajes[0].icono, esperado.icono);
    EXPECT_EQ(mensajes[0].botones, esperado.botones);
}

}  // namespace bosquel::apoyo
