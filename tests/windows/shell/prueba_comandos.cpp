#include "ventana_principal.h"

#include "core/core/archivos.h"
#include "soporte/guion_dialogos.h"
#include "soporte/modelo_sano.h"

#include <QMenu>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace vadro {
namespace {

using pruebas::Hijo;
using Strings = std::vector<std::string>;

class Comandos : public pruebas::VentanaPrincipal {};

TEST_F(Comandos, NuevoUnloadsEveryOtherWindowBeforeTheProperties) {
    NuevoModelo();
    principal.cmdContinuar->click();
    PulsarEtiqueta(1);
    UnRequerimiento();
    PulsarEtiqueta(6);
    ASSERT_EQ(Hijas(), (Strings{"frmRequerimientos", "frmPonderacion"}));
    for (int i : {1, 2, 3}) {
        principal.MarcarPaso(i, true); // the design steps of the old model, done
    }
    modales.Esperar(QStringLiteral("frmPropiedades"), [this](QDialog& propiedades) {
        EXPECT_TRUE(Hijas().empty());
        propiedades.reject();
    });
    PulsarBoton("Nuevo");
    EXPECT_EQ(Hijas(), Strings{"frmEjes"}) << "a cancelled dialog leaves the new model in place";
    EXPECT_EQ(Situacion(), "Ejes | Posición: ejes | frmEjes");
    for (int i : {1, 2, 3}) {
        EsperarPendiente(i); // a new model has none of them
    }
}

TEST_F(Comandos, SavingANewModelAsksForANameAndShowsItInTheCaption) {
    NuevoModelo();
    const std::string ruta = Ruta("nuevo.vdm");
    pruebas::GuionDialogos dialogos;
    dialogos.Cancelar("Guardar modelo como...");
    PulsarBoton("Guardar");
    EXPECT_EQ(principal.windowTitle().toStdString(), "VADRO PROGRAMADOR - [...]");
    EXPECT_FALSE(ExisteArchivo(ruta));

    sesion().modelo.Nombre = "planta";
    dialogos.Elegir("Guardar modelo como...", ruta);
    principal.mnuGuardar->trigger();
    EXPECT_EQ(principal.windowTitle().toStdString(), "VADRO PROGRAMADOR - [" + ruta + "]");
    EXPECT_EQ(NombreGuardadoEn(ruta), "planta");
    EXPECT_EQ(dialogos.Peticiones()[1].directorioInicial,
              UnirRuta(Directorio(), "Archivos de proyecto"));

    sesion().modelo.Nombre = "planta 2";
    PulsarBoton("Guardar"); // a known model file: no dialog
    EXPECT_EQ(NombreGuardadoEn(ruta), "planta 2");
}

// Compiling needs no model open and does not move along the line; it puts the printing button
// on for good, and opens its window anew each time.
TEST_F(Comandos, CompilingOpensItsWindowAnewAndPutsThePrintingButtonOn) {
    sesion().modelo = pruebas::ModeloCorrecto();
    QAction* imprimir = Hijo<QAction>(principal, "Imprimir");
    imprimir->setEnabled(false);
    const bool retroceder = Habilitado(8);
    EsperarCompilacionCorrecta();
    PulsarBoton("Compilar");
    EXPECT_EQ(Hijas(), Strings{"frmCompilacion"}) << "even before a model is open";
    EXPECT_TRUE(imprimir->isEnabled());
    EXPECT_EQ(Habilitado(8), retroceder) << "button 8 is Retroceder's, which compiling leaves";
    QTest::mouseClick(Hijo<QPushButton>(*Hija("frmCompilacion"), "cmdCerrar"), Qt::LeftButton);
    EXPECT_TRUE(Hijas().empty());
    EXPECT_TRUE(imprimir->isEnabled()) << "the model report still prints from it";

    NuevoModelo();
    sesion().modelo = pruebas::ModeloCorrecto();
    EsperarCompilacionCorrecta();
    PulsarEtiqueta(8);
    EXPECT_EQ(Color(8), QColor(0, 0, 0)) << "its label is painted black";
    EXPECT_FALSE(Negrita(8));
    EXPECT_EQ(Hijas(), (Strings{"frmEjes", "frmCompilacion"}));
    QWidget* primera = Hija("frmCompilacion");
    EsperarCompilacionCorrecta();
    principal.mnuCompilar->trigger();
    EXPECT_EQ(Hijas(), (Strings{"frmEjes", "frmCompilacion"}));
    EXPECT_NE(Hija("frmCompilacion"), primera) << "the open one is unloaded and loaded again";
    EXPECT_EQ(NombrePosicion(principal.Posicion()), "Ejes");
}

} // namespace
} // namespace vadro
