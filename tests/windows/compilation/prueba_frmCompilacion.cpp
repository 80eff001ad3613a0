// The compilation window as a user works it: the report it shows on opening, saving and
// printing the report, the double click on a finding.

#include "core/compilation/compilacion.h"
#include "soporte/datos.h"
#include "soporte/guion_dialogos.h"
#include "soporte/guion_modales.h"
#include "soporte/modelo_sano.h"
#include "soporte/prueba_sesion.h"
#include "soporte/volcado_ventana.h"
#include "windows/compilation/frmCompilacion.h"
#include "windows/compilation/frmOpcionesCompilacion.h"
#include "windows/core/texto.h"

#include <QCheckBox>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QStyle>
#include <QTest>

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <memory>
#include <regex>

namespace vadro {
namespace {

using pruebas::Hijo;

const std::string kCorrecta = "VADRO PROGRAMADOR: compilación correcta";
const std::string kPregunta =
    "El modelo no contiene errores.\n"
    "Desea crear el archivo compilado (*.vdc) utilizable por el módulo VADRO USUARIO?";
const std::string kIncorrecta = "VADRO PROGRAMADOR: compilación incorrecta";
const std::string kErrores = "El modelo contiene errores.\nCorríjalos para poder crear el "
                             "archivo utilizable por el módulo VADRO USUARIO.";

// A sound model with two warnings: no stages, and a criterion with one indicator only.
Modelo ConAvisos() {
    Modelo modelo = pruebas::ModeloCorrecto();
    modelo.Nombre = "Depuradora";
    modelo.NumEtapas = "";
    NodoCriterio& empleo = modelo.Requerimientos(2).Criterios(1);
    empleo.NumIndicadores = 1;
    empleo.Indicadores(1).Peso = 100.0;
    return modelo;
}

// Warnings and two errors: a requirement without weight and an indicator without function.
Modelo ConErrores() {
    Modelo modelo = ConAvisos();
    modelo.Requerimientos(2).Peso = "";
    modelo.Requerimientos(2).Criterios(2).Indicadores(2).Funcion = FuncionValor();
    return modelo;
}

class VentanaCompilacion : public pruebas::PruebaSesion {
protected:
    // Opens the window as the main window does: it shows itself and the opening runs.
    frmCompilacion& Abrir() {
        ventana = std::make_unique<frmCompilacion>();
        ventana->resize(640, 480);
        ventana->show();
        return *ventana;
    }
    std::vector<std::string> Lineas() const {
        std::vector<std::string> lineas;
        for (int i = 0; i < ventana->lstErrores->count(); ++i) {
            lineas.push_back(ACadena(ventana->lstErrores->item(i)->text()));
        }
        return lineas;
    }
    int Fila(const std::string& linea) const {
        const auto lineas = Lineas();
        const auto it = std::find(lineas.begin(), lineas.end(), linea);
        return it == lineas.end() ? -1 : static_cast<int>(it - lineas.begin());
    }
    void DobleClic(int fila) {
        QListWidget* lista = ventana->lstErrores;
        QListWidgetItem* item = lista->item(fila);
        lista->scrollToItem(item);
        const QPoint punto = lista->visualItemRect(item).center();
        QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, punto);
        QTest::mouseDClick(lista->viewport(), Qt::LeftButton, {}, punto);
    }

    pruebas::GuionDialogos dialogos;
    pruebas::GuionImpresoras impresoras;
    std::unique_ptr<frmCompilacion> ventana;
};

TEST_F(VentanaCompilacion, ErrorsAndWarningsShowTheReportWithTheirIcons) {
    sesion().modelo = ConErrores();
    mensajes.Esperar(kIncorrecta, kErrores);
    Abrir();
    // The hidden keys beside the lines are in the dump of the window, and the double click
    // reads them.
    ASSERT_EQ(Lineas(), ComprobarModelo(sesion().modelo).Lineas());
    // Which line bears which icon is the core's (IconoDeLinea); the list shows each's own.
    const auto icono = [this](const std::string& linea) {
        return ventana->lstErrores->item(Fila(linea))->icon().pixmap(16).cacheKey();
    };
    const auto estandar = [this](QStyle::StandardPixmap cual) {
        return ventana->style()->standardIcon(cual).pixmap(16).cacheKey();
    };
    EXPECT_EQ(icono("     Error: el nodo R2 tiene peso nulo"),
              estandar(QStyle::SP_MessageBoxCritical));
    EXPECT_EQ(icono("     Aviso: el nodo C1R2 solo tiene un indicador"),
              estandar(QStyle::SP_MessageBoxWarning));
    EXPECT_TRUE(ventana->lstErrores->item(0)->icon().isNull()) << "a total bears none";
    EXPECT_TRUE(dialogos.Peticiones().empty()) << "no compiled file for a model with errors";
}

TEST_F(VentanaCompilacion, TheSavedReportHasItsFiveLinesThenTheReportWithTheWarningsFirst) {
    sesion().modelo = ConAvisos();
    sesion().modelo.Archivo = Ruta("depuradora.vdm");
    mensajes.Esperar(kCorrecta, kPregunta, Respuesta::No);
    Abrir();
    const std::string log = Ruta("informe.log");
    dialogos.Elegir("Guardar informe de compilación...", log);
    QTest::mouseClick(ventana->cmdGuardar, Qt::LeftButton);
    EXPECT_EQ(dialogos.Peticiones().back().nombreArchivo, "depuradora");
    std::string bytes = Contenido(log);
    const std::regex fecha("Fecha de compilado: [^\r]*\\d[^\r]*\r\n");
    EXPECT_TRUE(std::regex_search(bytes, fecha));
    bytes = std::regex_replace(bytes, fecha, "Fecha de compilado: (fecha)\r\n",
                               std::regex_constants::format_first_only);
    EXPECT_EQ(bytes, pruebas::Datos("compilacion/informe_avisos.log", bytes));
}

// The pages of a PDF file, each a page object.
int PaginasPdf(const std::string& ruta) {
    std::ifstream archivo(ruta, std::ios::binary);
    const std::string pdf((std::istreambuf_iterator<char>(archivo)),
                          std::istreambuf_iterator<char>());
    const std::regex pagina("/Type\\s*/Page[^s]");
    return static_cast<int>(std::distance(std::sregex_iterator(pdf.begin(), pdf.end(), pagina),
                                          std::sregex_iterator()));
}

TEST_F(VentanaCompilacion, TheReportPrintsOnTheChosenPrinter) {
    sesion().modelo = ConErrores();
    mensajes.Esperar(kIncorrecta, kErrores);
    Abrir();
    impresoras.ElegirArchivo(Ruta("informe.pdf"));
    QTest::mouseClick(ventana->cmdImprimir, Qt::LeftButton);
    EXPECT_EQ(impresoras.Peticiones().back().flags, 0x106);
    EXPECT_EQ(PaginasPdf(Ruta("informe.pdf")), 1) << "some fifty lines fit one page";
}

TEST_F(VentanaCompilacion, ADoubleClickOnAFindingSendsItsKeyAndOnAnyOtherLineNothing) {
    sesion().modelo = ConErrores();
    mensajes.Esperar(kIncorrecta, kErrores);
    Abrir();
    QSignalSpy claves(ventana.get(), &frmCompilacion::IrAError);
    // The line and the key it sends; none for a total.
    for (const auto& [linea, clave] :
         {std::pair<std::string, std::string>{"     Error: el nodo R2 tiene peso nulo",
                                              "PesNul R2"},
          {"     Aviso: el nodo C1R2 solo tiene un indicador", "SinHij C1R2"},
          {"AVISOS TOTALES: 2", ""}}) {
        SCOPED_TRACE(linea);
        const int fila = Fila(linea);
        ASSERT_GE(fila, 0);
        claves.clear();
        DobleClic(fila);
        ASSERT_EQ(claves.count(), clave.empty() ? 0 : 1);
        EXPECT_EQ(claves.empty() ? "" : claves.at(0).at(0).toString().toStdString(), clave);
    }
    EXPECT_TRUE(ventana->Cargado) << "the report stays";
}

TEST_F(VentanaCompilacion, WidgetTreeAShowingAgainCompilesNothingAndCerrarUnloads) {
    sesion().modelo = ConAvisos();
    mensajes.Esperar(kCorrecta, kPregunta, Respuesta::No);
    pruebas::CompararVolcado(Abrir(), "frmCompilacion");
    ventana->hide();
    ventana->show();
    EXPECT_EQ(mensajes.Vistos().size(), 1U) << "no second compilation";
    QSignalSpy descargada(ventana.get(), &VentanaHija::Descargada);
    QTest::mouseClick(ventana->cmdCerrar, Qt::LeftButton);
    EXPECT_FALSE(ventana->Cargado);
    EXPECT_EQ(descargada.count(), 1);
}

// ---- The options dialog, which nothing in the program opens

TEST_F(VentanaCompilacion, TheOptionsShowAndSetWhetherTheTreeIsShown) {
    for (bool antes : {false, true}) {
        sesion().modelo.MostrarArbol = antes;
        frmOpcionesCompilacion opciones;
        EXPECT_EQ(opciones.chkMostrarArbol->isChecked(), antes);
        EXPECT_TRUE(opciones.Cargado);
        opciones.show();
        QTest::mouseClick(opciones.chkMostrarArbol, Qt::LeftButton);
        QTest::mouseClick(opciones.cmdAceptar, Qt::LeftButton);
        EXPECT_EQ(sesion().modelo.MostrarArbol, !antes);
        EXPECT_FALSE(opciones.Cargado);
        EXPECT_EQ(opciones.result(), QDialog::Accepted);
    }
    const Modelo modelo = ConAvisos();
    sesion().modelo = modelo;
    sesion().modelo.MostrarArbol = true;
    EXPECT_EQ(ComprobarModelo(sesion().modelo).Lineas(), ComprobarModelo(modelo).Lineas())
        << "the option changes nothing in the report";
    frmOpcionesCompilacion opciones;
    pruebas::CompararVolcado(opciones, "frmOpcionesCompilacion");
}

} // namespace
} // namespace vadro
