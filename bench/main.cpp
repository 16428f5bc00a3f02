#include <QApplication>
#include <benchmark/benchmark.h>

int main(int argc, char* argv[]) {
    benchmark::Initialize(&argc, argv);
    const QApplication aplicacion(argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
}
