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

TEST_F(Comandos, CompilingFromTheToolbarWorksAtEveryPosition) {
    const std::string correcta = "VADRO PROGRAMADOR: compilación correcta";
    const std::string pregunta =
        "El modelo no contiene errores.\n"
        "Desea crear el archivo compilado (*.vdc) utilizable por el módulo VADRO USUARIO?";
    sesion().modelo = pruebas::ModeloCorrecto();
    mensajes.Esperar(correcta, pregunta, Respuesta::No);
    PulsarBoton("Compilar");
    EXPECT_EQ(Hijas(), Strings{"frmCompilacion"}) << "even before a model is open";
    NuevoModelo();
    sesion().modelo = pruebas::ModeloCorrecto();
    principal.cmdContinuar->click();
    mensajes.Esperar(correcta, pregunta, Respuesta::No);
    PulsarBoton("Compilar");
    EXPECT_EQ(Hijas(), (Strings{"frmResumen", "frmCompilacion"}));
}

TEST_F(Comandos, TheCompilationWindowPutsThePrintingButtonOn) {
    sesion().modelo = pruebas::ModeloCorrecto();
    principal.findChild<QAction*>(QStringLiteral("Imprimir"))->setEnabled(false);
    const bool antes = Habilitado(8);
    mensajes.Esperar("VADRO PROGRAMADOR: compilación correcta",
                     "El modelo no contiene errores.\nDesea crear el archivo compilado (*.vdc) "
                     "utilizable por el módulo VADRO USUARIO?",
                     Respuesta::No);
    PulsarBoton("Compilar");
    EXPECT_TRUE(principal.findChild<QAction*>(QStringLiteral("Imprimir"))->isEnabled());
    EXPECT_EQ(Habilitado(8), antes) << "button 8 is Retroceder's, which compiling leaves";
    QTest::mouseClick(Hijo<QPushButton>(*Hija("frmCompilacion"), "cmdCerrar"), Qt::LeftButton);
    EXPECT_TRUE(Hijas().empty());
    EXPECT_TRUE(principal.findChild<QAction*>(QStringLiteral("Imprimir"))->isEnabled())
        << "the model report still prints from it";
}

} // namespace
} // namespace vadro
