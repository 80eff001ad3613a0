#include "core/core/sesion.h"
#include "core/functions/editor_funcion.h"
#include "soporte/modelo_sano.h"

#include <benchmark/benchmark.h>

#ifdef VADRO_BENCH_VENTANAS
#include "windows/functions/pintar_grafica.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <cstdlib>
#endif

namespace vadro {
namespace {

// The editor on a sound continuous function, as the window holds it after loading.
EditorFuncion EditorCargado(FuncionValor& registro) {
    SesionActual().MostrarAvisoFuncionValor = false;
    registro = pruebas::Continua();
    EditorFuncion editor;
    editor.Cargar(registro);
    return editor;
}

// The list alone: 199 evaluations and the lines of the frame.
void BM_GraficarLista(benchmark::State& estado) {
    FuncionValor registro;
    EditorFuncion editor = EditorCargado(registro);
    for (auto _ : estado) {
        editor.Graficar();
        benchmark::DoNotOptimize(editor.grafica.Primitivas().data());
    }
}
BENCHMARK(BM_GraficarLista)->Unit(benchmark::kMicrosecond);

#ifdef VADRO_BENCH_VENTANAS

QGuiApplication& Aplicacion() {
    static int argc = 1;
    static char nombre[] = "bench_functions";
    static char* argv[] = {nombre, nullptr};
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    static QGuiApplication aplicacion(argc, argv);
    return aplicacion;
}

// A redraw of the main picture: the list computed and painted at 800 x 600.
void BM_RedibujarGrafica(benchmark::State& estado) {
    Aplicacion();
    FuncionValor registro;
    EditorFuncion editor = EditorCargado(registro);
    QImage imagen(800, 600, QImage::Format_ARGB32_Premultiplied);
    for (auto _ : estado) {
        editor.Graficar();
        QPainter pintor(&imagen);
        PintarGrafica(pintor, editor.grafica, QRectF(0, 0, 800, 600));
    }
}
BENCHMARK(BM_RedibujarGrafica)->Unit(benchmark::kMillisecond);

// A step of the up-down control of C: the change handler with its clamping, the flag, the
// drawing, and the picture painted again.
void BM_CambioParametro(benchmark::State& estado) {
    Aplicacion();
    FuncionValor registro;
    EditorFuncion editor = EditorCargado(registro);
    QImage imagen(800, 600, QImage::Format_ARGB32_Premultiplied);
    bool sube = true;
    for (auto _ : estado) {
        sube ? editor.Subir(Campo::C) : editor.Bajar(Campo::C);
        sube = !sube;
        QPainter pintor(&imagen);
        PintarGrafica(pintor, editor.grafica, QRectF(0, 0, 800, 600));
    }
}
BENCHMARK(BM_CambioParametro)->Unit(benchmark::kMillisecond);

#endif

} // namespace
} // namespace vadro
