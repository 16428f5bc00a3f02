#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <span>
#include <vector>

// Stands in for the fuzzer where there is none: what it would try, once, from the folders that are named.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t cuantos);

int main(int cuantos, char** argumentos) {
    int probados = 0;
    for (const char* carpeta : std::span(argumentos, static_cast<std::size_t>(cuantos)).subspan(1))
        for (const auto& entrada : std::filesystem::directory_iterator(carpeta)) {
            std::cout << entrada.path().string() << std::endl;
            std::ifstream archivo(entrada.path(), std::ios::binary);
            const std::vector<std::uint8_t> bytes(std::istreambuf_iterator<char>(archivo), {});
            LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
            ++probados;
        }
    return probados > 0 ? 0 : 1;
}
