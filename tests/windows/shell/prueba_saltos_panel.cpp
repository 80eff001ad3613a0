#include "ventana_principal.h"

#include "soporte/modelo_sano.h"
#include "windows/trees/frmComponentes.h"
#include "windows/trees/frmRequerimientos.h"

#include <QMenu>

#include <gtest/gtest.h>

namespace vadro {
namespace {

using Strings = std::vector<std::string>;

class SaltosPanel : public pruebas::VentanaPrincipal {};

TEST_F(SaltosPanel, TheFirstThreeLabelsOpenTheDesignWindowsOnce) {
    NuevoModelo();
    PulsarEtiqueta(1);
    PulsarEtiqueta(2);
    PulsarEtiqueta(3);
    PulsarEtiqueta(1);
    EXPECT_EQ(Hijas(), (Strings{"frmEjes", "frmRequerimientos", "frmComponentes", "frmEtapas"}));
    EXPECT_EQ(principal.mdiCliente->activeSubWindow()->widget(),
              principal.Abierta<frmRequerimientos>())
        << "an open window comes to the front";
}

TEST_F(SaltosPanel, CompilationPaintsItsLabelBlackAndOpensTheWindowAnew) {
    NuevoModelo();
    sesion().modelo = pruebas::ModeloCorrecto();
    const std::string correcta = "VADRO PROGRAMADOR: compilación correcta";
    const std::string pregunta =
        "El modelo no contiene errores.\n"
        "Desea crear el archivo compilado (*.vdc) utilizable por el módulo VADRO USUARIO?";
    mensajes.Esperar(correcta, pregunta, Respuesta::No).Esperar(correcta, pregunta, Respuesta::No);
    PulsarEtiqueta(8);
    EXPECT_EQ(Color(8), QColor(0, 0, 0));
    EXPECT_FALSE(Negrita(8));
    EXPECT_EQ(Hijas(), (Strings{"frmEjes", "frmCompilacion"}));
    QWidget* primera = Hija("frmCompilacion");
    EXPECT_EQ(primera->windowTitle().toStdString(), "Compilación");

    principal.mnuCompilar->trigger();
    EXPECT_EQ(Hijas(), (Strings{"frmEjes", "frmCompilacion"}));
    EXPECT_NE(Hija("frmCompilacion"), primera) << "the open one is unloaded and loaded again";
    EXPECT_EQ(NombrePosicion(principal.Posicion()), "Ejes")
        << "compiling does not move along the line";
}

} // namespace
} // namespace vadro
