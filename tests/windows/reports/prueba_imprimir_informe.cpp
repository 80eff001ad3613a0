// The report from the main window: rebuilt when a design window is accepted, printed on the
// chosen printer, previewed, exported to PDF; the summary and the overview follow the
// accepted design windows too.

#include "core/core/error_ejecucion.h"
#include "core/reports/comandos_informe.h"
#include "core/reports/modelos_informe.h"
#include "paginas_pdf.h"
#include "soporte/componentes_etapas.h"
#include "soporte/guion_dialogos.h"
#include "windows/core/texto.h"
#include "windows/reports/documento_informe.h"
#include "windows/reports/frmInforme.h"
#include "windows/reports/frmResumen.h"
#include "windows/reports/impresion.h"
#include "windows/shell/ventana_principal.h"
#include "windows/trees/ventana_diseno.h"
#include "windows/weighting/frmPonderacion.h"

#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QPageSize>
#include <QPdfWriter>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTextDocument>
#include <QTextEdit>
#include <QTreeView>

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

namespace vadro {
namespace {

using pruebas::PaginasPdf;

int Filas(const QAbstractItemView& vista) {
    int filas = 0;
    std::function<void(const QModelIndex&)> contar = [&](const QModelIndex& padre) {
        for (int f = 0; f < vista.model()->rowCount(padre); ++f) {
            ++filas;
            contar(vista.model()->index(f, 0, padre));
        }
    };
    contar({});
    return filas;
}

class InformePrincipal : public pruebas::VentanaPrincipal {
protected:
    InformePrincipal() { sesion().modelo = pruebas::ModeloCompleto(); }
    frmInforme& Informe() { return dynamic_cast<frmInforme&>(principal.Cargar(Hija::Informe)); }
    std::string Texto() { return TextoDocumento(*Informe().rtfInforme->document()); }
    std::string TextoDelModelo() { return TextoPlano(GenerarInforme(sesion().modelo)); }
};

// Each case: a design window, a change of the part it writes, a name the change takes away.
TEST_F(InformePrincipal, AcceptingADesignWindowRebuildsTheReportTheSummaryAndTheOverview) {
    const struct {
        vadro::Hija diseno;
        std::function<void(Modelo&)> cambiar;
        const char* nombre;
    } casos[] = {
        {Hija::Requerimientos,
         [](Modelo& m) {
             m.NumRequerimientos = 1;
             m.Requerimientos.RedimensionarConservando(1);
         },
         "Social"},
        {Hija::Componentes, [](Modelo& m) { pruebas::PonerComponentes(m, {}); }, "Estructura"},
        {Hija::Etapas, [](Modelo& m) { pruebas::PonerEtapas(m, {}); }, "Construcción"},
    };
    // The rebuilds leave the user's clipboard alone.
    QImage imagen(16, 16, QImage::Format_RGB32);
    imagen.fill(QColor(12, 34, 56));
    auto* datos = new QMimeData;
    datos->setText(Q("texto del usuario"));
    datos->setImageData(imagen);
    QApplication::clipboard()->setMimeData(datos);
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.nombre);
        sesion().modelo = pruebas::ModeloCompleto();
        // The design window holds its copy of the model; the model then changes under it, and
        // the report, the summary and the overview show the change.
        auto& diseno = dynamic_cast<VentanaDiseno&>(principal.Cargar(caso.diseno));
        caso.cambiar(sesion().modelo);
        for (const vadro::Hija hija : {Hija::Informe, Hija::Resumen, Hija::Ponderacion}) {
            principal.Descargar(hija);
        }
        frmInforme& informe = Informe();
        auto& resumen = dynamic_cast<frmResumen&>(principal.Cargar(Hija::Resumen));
        auto& ponderacion = dynamic_cast<frmPonderacion&>(principal.Cargar(Hija::Ponderacion));
        const auto filas = [&resumen] {
            return Filas(*resumen.tvwRequerimientos) + Filas(*resumen.tvwComponentes) +
                   resumen.lstEtapas->count();
        };
        ASSERT_EQ(Texto().find(caso.nombre), std::string::npos);
        const int filasAntes = filas();

        QTest::mouseClick(diseno.cmdAceptar, Qt::LeftButton);

        EXPECT_EQ(principal.Abierta(caso.diseno), nullptr);
        EXPECT_EQ(principal.Abierta(Hija::Informe), &informe) << "the same window, rebuilt";
        EXPECT_NE(Texto().find(caso.nombre), std::string::npos);
        EXPECT_EQ(Texto(), TextoDelModelo());
        EXPECT_GT(filas(), filasAntes) << "the summary shows the accepted part";
        // Coste, Plazo, Durabilidad, Acabado, Atención, Puestos: a row per indicator, five
        // before the requirements were accepted.
        EXPECT_EQ(ponderacion.grdRequerimientos->model()->rowCount(), 6);
        EXPECT_EQ(sesion().FilasPonderacion.size(), 6u);
    }
    const QMimeData* despues = QApplication::clipboard()->mimeData();
    ASSERT_TRUE(despues != nullptr && despues->hasImage());
    EXPECT_EQ(despues->text(), Q("texto del usuario"));
    EXPECT_EQ(qvariant_cast<QImage>(despues->imageData()).convertToFormat(QImage::Format_RGB32),
              imagen);
}

TEST_F(InformePrincipal, PrintingGoesToTheChosenPrinterWithAWindowLoadedForTheMoment) {
    const std::string ruta = Ruta("impreso.pdf");
    pruebas::GuionImpresoras impresoras;
    impresoras.Cancelar(); // says nothing
    principal.mnuImprimir->trigger();
    impresoras.ElegirArchivo(Ruta("no/existe/impreso.pdf"));
    mensajes.Esperar("VADRO PROGRAMADOR: imprimir modelo", "Error 482 al realizar la impresión.");
    principal.Imprimir();
    impresoras.ElegirArchivo(ruta);
    principal.mnuImprimir->trigger();
    ASSERT_EQ(impresoras.Peticiones().size(), 3u);
    EXPECT_EQ(impresoras.Peticiones()[2].flags, PeticionImprimirModelo().flags);
    EXPECT_EQ(principal.Abierta(Hija::Informe), nullptr) << "loaded for the moment only";
    // The same report on the same printer, page for page; the pictures are drawn, not pasted
    // as bitmaps: the only images are the icons.
    ImpresoraElegida igual;
    igual.archivo = Ruta("igual.pdf");
    const int paginas = ImprimirRTF(GenerarInforme(sesion().modelo), *CrearImpresora(igual));
    EXPECT_EQ(PaginasPdf(ruta), paginas);
    EXPECT_GE(paginas, 2);
    EXPECT_LE(pruebas::ImagenesPdf(ruta), 2 * 7);

    // An open report stays open after printing.
    frmInforme& informe = Informe();
    impresoras.ElegirArchivo(Ruta("otro.pdf"));
    principal.Imprimir();
    EXPECT_EQ(principal.Abierta(Hija::Informe), &informe);
    EXPECT_EQ(PaginasPdf(Ruta("otro.pdf")), paginas);
}

TEST_F(InformePrincipal, ThePreviewShowsTheReportsPages) {
    int paginas = 0;
    modales.Esperar(Q("frmVistaPreliminar"), [&](QDialog& vista) {
        EXPECT_EQ(ACadena(vista.windowTitle()), kTituloVistaPreliminar);
        auto* hoja = pruebas::Hijo<QPrintPreviewWidget>(vista, "");
        hoja->updatePreview();
        paginas = hoja->pageCount();
        vista.reject();
    });
    principal.mnuVista->trigger();
    EXPECT_EQ(modales.Vistas().size(), 1u);
    EXPECT_GE(paginas, 2);
}

// The entry follows printing in the file menu and writes a PDF beside the model.
TEST_F(InformePrincipal, TheExportWritesAPdfBesideTheModel) {
    const QList<QAction*> entradas = principal.mnuArchivo->actions();
    EXPECT_EQ(entradas.value(entradas.indexOf(principal.mnuImprimir) + 1),
              principal.mnuExportarPDF);
    EXPECT_EQ(principal.mnuExportarPDF->text(), Q("&Exportar a PDF..."));
    sesion().modelo.Archivo = Ruta("puente.vdm");
    pruebas::GuionDialogos dialogos;
    dialogos.Elegir("Exportar informe a PDF", Ruta("puente"));
    principal.mnuExportarPDF->trigger();
    // Where the dialog starts is the core's; a name typed without its extension gets the
    // filter's; A4 with the report's margins.
    const std::string ruta = Ruta("puente.pdf");
    ASSERT_TRUE(std::filesystem::exists(ruta));
    QPdfWriter igual(Q(Ruta("igual.pdf")));
    igual.setPageSize(QPageSize(QPageSize::A4));
    EXPECT_EQ(PaginasPdf(ruta), ImprimirRTF(GenerarInforme(sesion().modelo), igual));
    EXPECT_LE(pruebas::ImagenesPdf(ruta), 2 * 7);
}

} // namespace
} // namespace vadro
