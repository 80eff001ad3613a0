// The printing of a list: its lines paged on the printer, counted in the pages of a PDF file.

#include "core/core/error_ejecucion.h"
#include "core/reports/comandos_informe.h"
#include "paginas_pdf.h"
#include "soporte/errores.h"
#include "soporte/modelo_sano.h"
#include "soporte/prueba_sesion.h"
#include "windows/core/texto.h"
#include "windows/reports/impresion.h"

#include <QListWidget>
#include <QPageSize>
#include <QPdfWriter>
#include <QPrinter>
#include <QTreeWidget>

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <regex>

namespace vadro {
namespace {

using pruebas::PaginasPdf;

class ImpresionLista : public pruebas::PruebaSesion {
protected:
    // Prints a list of so many short lines on A4 into a PDF file; its pages.
    int Imprimir(int lineas, bool apaisado = false) {
        QListWidget lista;
        for (int i = 1; i <= lineas; ++i) {
            lista.addItem(Q("     Error: línea " + std::to_string(i)));
        }
        return ImprimirEn(lista, apaisado);
    }
    int ImprimirEn(const QAbstractItemView& lista, bool apaisado = false) {
        const std::string ruta = Ruta("lista" + std::to_string(++impresiones) + ".pdf");
        ImprimirLista(lista, *A4(ruta, apaisado));
        return PaginasPdf(ruta);
    }
    int PorPagina(bool apaisado = false) {
        return LineasPorPagina(*A4(Ruta("medida.pdf"), apaisado));
    }
    // A PDF file of A4 pages, written out when it goes.
    static std::unique_ptr<QPdfWriter> A4(const std::string& ruta, bool apaisado) {
        auto pdf = std::make_unique<QPdfWriter>(Q(ruta));
        pdf->setPageSize(QPageSize(QPageSize::A4));
        pdf->setPageOrientation(apaisado ? QPageLayout::Landscape : QPageLayout::Portrait);
        return pdf;
    }
    int impresiones = 0;
};

TEST_F(ImpresionLista, APageOfA4HoldsTheLinesOfItsHeightAndTheLinesFillPageAfterPage) {
    // 297 mm less 38.8 mm of margins, at a 10-point font of about 4.4 mm a line.
    const int n = PorPagina(), ancho = PorPagina(true);
    EXPECT_GE(n, 45);
    EXPECT_LE(n, 65);
    EXPECT_LT(ancho, n) << "a landscape page is lower";
    EXPECT_GE(ancho, 28);
    const std::pair<int, int> casos[] = {{0, 1},     {1, 1},     {n, 1},
                                         {n + 1, 2}, {3 * n, 3}, {3 * n + 1, 4}};
    for (const auto& [lineas, paginas] : casos) {
        EXPECT_EQ(Imprimir(lineas), paginas) << lineas << " lines";
    }
    EXPECT_EQ(Imprimir(n + 1, true), 2 + (n + 1 > 2 * ancho ? 1 : 0));
}

TEST_F(ImpresionLista, ShownColumnHeadingsAndALongLineTakeTheLinesTheyNeed) {
    const int n = PorPagina();
    QTreeWidget arbol;
    arbol.setHeaderLabels({Q("Nodo"), Q("Peso")});
    for (int i = 1; i <= n; ++i) {
        arbol.addTopLevelItem(new QTreeWidgetItem({Q("I" + std::to_string(i)), Q("0.50")}));
    }
    EXPECT_EQ(ImprimirEn(arbol), 2) << "with the headings a full list no longer fits";
    arbol.setHeaderHidden(true);
    EXPECT_EQ(ImprimirEn(arbol), 1);
    std::string larga;
    for (int i = 0; i < 60; ++i) {
        larga += "palabra ";
    }
    arbol.topLevelItem(0)->setText(0, Q(larga));
    EXPECT_EQ(ImprimirEn(arbol), 2) << "the long first line wraps and takes more than one line";
}

TEST_F(ImpresionLista, TheChosenPrinterIsSetUpAsItWasChosen) {
    ImpresoraElegida elegida;
    elegida.archivo = Ruta("carta.pdf");
    elegida.copias = 2;
    elegida.apaisado = true;
    elegida.anchoPapel = 612;
    elegida.altoPapel = 792;
    const auto impresora = CrearImpresora(elegida);
    EXPECT_EQ(impresora->outputFormat(), QPrinter::PdfFormat);
    EXPECT_EQ(ACadena(impresora->outputFileName()), elegida.archivo);
    EXPECT_EQ(impresora->copyCount(), 2);
    EXPECT_EQ(impresora->pageLayout().orientation(), QPageLayout::Landscape);
    EXPECT_EQ(impresora->pageLayout().pageSize().id(), QPageSize::Letter);
}

// The model report on pages: as many as its laid-out text needs within the margins.
class ImpresionInforme : public pruebas::PruebaSesion {
protected:
    int Imprimir(const Informe& informe, const MargenesImpresion& margenes = kMargenesInforme) {
        const std::string ruta = Ruta("informe" + std::to_string(++impresiones) + ".pdf");
        int devueltas = 0;
        {
            QPdfWriter pdf(Q(ruta));
            pdf.setPageSize(QPageSize(QPageSize::A4));
            devueltas = ImprimirRTF(informe, pdf, margenes);
        }
        const int paginas = PaginasPdf(ruta);
        EXPECT_EQ(devueltas, paginas) << "the pages said are the pages printed";
        return paginas;
    }
    // A report of so many short lines of text.
    static Informe Lineas(int cuantas) {
        Informe informe;
        for (int i = 1; i <= cuantas; ++i) {
            informe.AñadirTexto("Línea " + std::to_string(i) + "\n", 1);
        }
        return informe;
    }
    int impresiones = 0;
};

TEST_F(ImpresionInforme, PagesFollowTheTextAndTheMargins) {
    // An empty report and one that fits eject one page. A4 less the report's margins leaves
    // about 10 inches: some 45 lines of 11 points.
    EXPECT_EQ(Imprimir(Informe()), 1);
    EXPECT_EQ(Imprimir(Lineas(1)), 1);
    EXPECT_EQ(Imprimir(Lineas(40)), 1);
    const int dos = Imprimir(Lineas(80));
    EXPECT_EQ(dos, 2);
    EXPECT_EQ(Imprimir(Lineas(230)), 5);
    // Wider top and bottom margins leave room for fewer lines.
    EXPECT_GT(Imprimir(Lineas(80), {2000, 4000, 1000, 4000}), dos);
}

TEST_F(ImpresionInforme, PicturesTakeTheirRoomAndNeverPartAcrossPages) {
    // Each indicator brings a picture an inch and a quarter high: a page holds few of them.
    const Informe informe = GenerarInforme(pruebas::ModeloGenerado(100));
    const int paginas = Imprimir(informe);
    EXPECT_GT(paginas, 100 * kAltoGraficaInforme / (1440 * 10));
    EXPECT_LT(paginas, 100);
}

// A list, a report and a PDF export on a device that cannot start.
TEST_F(ImpresionInforme, ADeviceThatCannotStartIsAPrinterError) {
    ImpresoraElegida elegida;
    elegida.archivo = Ruta("no/existe/informe.pdf");
    const auto impresora = CrearImpresora(elegida);
    QListWidget lista;
    lista.addItem(Q("linea"));
    EXPECT_EQ(pruebas::NumeroDeError([&] { ImprimirLista(lista, *impresora); }), ErrImpresora);
    EXPECT_EQ(pruebas::NumeroDeError([&] { ImprimirRTF(Lineas(3), *impresora); }), ErrImpresora);
    EXPECT_EQ(pruebas::NumeroDeError(
                  [&] { EscribirInformePdf(Lineas(3), Ruta("no/existe/informe.pdf")); }),
              ErrAccesoRuta);
}

} // namespace
} // namespace vadro
