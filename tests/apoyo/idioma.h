#pragma once

#include <clocale>
#include <gtest/gtest.h>
#include <string>

namespace bosquel::apoyo {

/// Sets the locale of the process for as long as it lives. A locale that is not installed fails the test.
class Idioma {
  public:
    static constexpr const char* espanol = "es_ES.UTF-8";
    static constexpr const char* ingles = "C";

    explicit Idioma(const char* nombre) : anterior_(std::setlocale(LC_ALL, nullptr)) {
        EXPECT_NE(std::setlocale(LC_ALL, nombre), nullptr) << "locale not installed: " << nombre;
    }
    ~Idioma() { std::setlocale(LC_ALL, anterior_.c_str()); }
    Idioma(const Idioma&) = delete;
    Idioma& operator=(const Idioma&) = delete;

  private:
    std::string anterior_;
};

}  // namespace bosquel::apoyo
