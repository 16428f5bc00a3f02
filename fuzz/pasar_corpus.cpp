#include <cstddef>
#include <cstdint>
#include <fstream>
#include <iostream>
#include <iterator>
#include <span>
#include <vector>

// Stands in for the fuzzer where there is none: what it would try, once, from the files that are named.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t cuantos);

int main(int cuantos, char** argumentos) {
    for (const char* nombre : std::span(argumentos, static_cast<std::size_t>(cuantos)).subspan(1)) {
        std::ifstream archivo(nombre, std::ios::binary);
        if (!archivo) {
            std::cerr << nombre << ": cannot be read\n";
            return 1;
        }
        std::cout << nombre << std::endl;
        const std::vector<std::uint8_t> bytes(std::istreambuf_iterator<char>(archivo), {});
        LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    }
    return cuantos > 1 ? 0 : 2;
}
