// The model report as the window shows it and as a PDF: the document built from the report's
// lines and laid out, the whole window with its five panes, and the PDF written. Runs on the
// offscreen platform unless another is asked for.
#include "core/core/sesion.h"
#include "core/reports/informe_modelo.h"
#include "soporte/modelo_sano.h"
#include "windows/reports/documento_informe.h"
#include "windows/reports/frmInforme.h"
#include "windows/reports/impresion.h"

#include <QAbstractTextDocumentLayout>
#include <QTextDocument>
#include <QTextEdit>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <filesystem>

namespace vadro {
namespace {

// The complete report built into a document and laid out at the width of a page.
void BM_DocumentoInforme(benchmark::State& state) {
    const Informe informe =
        GenerarInforme(pruebas::ModeloGenerado(static_cast<int>(state.range(0))));
    for (auto _ : state) {
        QTextDocument documento;
        LlenarDocumento(documento, informe);
        documento.setTextWidth(800);
        benchmark::DoNotOptimize(documento.documentLayout()->documentSize());
    }
}
BENCHMARK(BM_DocumentoInforme)->Arg(500)->Arg(16000)->Unit(benchmark::kMillisecond);

// What a user waits for when the report window opens: the core's report, the five panes, and
// the layout of the complete report in its pane.
void BM_VentanaInforme(benchmark::State& state) {
    SesionActual().modelo = pruebas::ModeloGenerado(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        frmInforme ventana;
        ventana.resize(900, 700);
        QTextDocument& documento = *ventana.rtfInforme->document();
        documento.setTextWidth(800);
        benchmark::DoNotOptimize(documento.documentLayout()->documentSize());
    }
}
BENCHMARK(BM_VentanaInforme)->Arg(500)->Arg(16000)->Unit(benchmark::kMillisecond);

void BM_PdfInforme(benchmark::State& state) {
    const Informe informe =
        GenerarInforme(pruebas::ModeloGenerado(static_cast<int>(state.range(0))));
    const std::string ruta =
        (std::filesystem::temp_directory_path() / "vadro_bench_informe.pdf").string();
    for (auto _ : state) {
        EscribirInformePdf(informe, ruta);
    }
    state.counters["bytes"] = static_cast<double>(std::filesystem::file_size(ruta));
    std::filesystem::remove(ruta);
}
BENCHMARK(BM_PdfInforme)->Arg(500)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vadro
