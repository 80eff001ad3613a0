#include "core/core/sesion.h"
#include "soporte/modelo_sano.h"
#include "windows/weighting/frmPesos.h"
#include "windows/weighting/frmPonderacion.h"

#include <QApplication>
#include <QLineEdit>
#include <QTableView>

#include <benchmark/benchmark.h>

namespace vadro {
namespace {

// The overview of a generated model, from its load to its first paint.
void BM_AbrirPonderacion(benchmark::State& estado) {
    SesionActual().modelo = pruebas::ModeloGenerado(static_cast<int>(estado.range(0)));
    for (auto _ : estado) {
        frmPonderacion ventana;
        ventana.resize(1200, 800);
        ventana.show();
        QApplication::processEvents();
        benchmark::DoNotOptimize(ventana.grdRequerimientos->model());
    }
}
BENCHMARK(BM_AbrirPonderacion)->Arg(2000)->Arg(16000)->Unit(benchmark::kMillisecond);

// The weights window on the first criterion's set of n indicators.
void BM_AbrirPesos(benchmark::State& estado) {
    const int n = static_cast<int>(estado.range(0));
    SesionActual().modelo = pruebas::ModeloGenerado(200, n);
    for (auto _ : estado) {
        frmPesos pesos(DireccionConjunto{1, 1, {}});
        pesos.show();
        QApplication::processEvents();
        benchmark::DoNotOptimize(pesos.grdSaaty->model());
    }
}
BENCHMARK(BM_AbrirPesos)->Arg(64)->Unit(benchmark::kMillisecond);

// One typed value committed in a matrix of 16: store, mirror, weights, ratio, colours and the
// repaint.
void BM_ConfirmarMatriz16(benchmark::State& estado) {
    SesionActual().modelo = pruebas::ModeloGenerado(200, 16);
    frmPesos pesos(DireccionConjunto{1, 1, {}});
    pesos.show();
    QApplication::processEvents();
    int k = 0;
    for (auto _ : estado) {
        const int columna = 2 + k % 15;
        pesos.grdSaaty->setCurrentIndex(pesos.grdSaaty->model()->index(1, columna));
        pesos.Editar(*pesos.grdSaaty, '1' + k % 9);
        pesos.Confirmar();
        QApplication::processEvents();
        ++k;
    }
}
BENCHMARK(BM_ConfirmarMatriz16)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace vadro
