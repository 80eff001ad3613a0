#include <QApplication>
#include <benchmark/benchmark.h>

#include <cstdlib>

// The entry of the benchmarks over windows: a QApplication on the offscreen platform unless
// another one is asked for.
int main(int argc, char** argv) {
    if (std::getenv("QT_QPA_PLATFORM") == nullptr) {
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
    }
    QApplication aplicacion(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
