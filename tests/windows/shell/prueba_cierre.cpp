#include "ventana_principal.h"

#include "core/core/archivos.h"
#include "soporte/guion_dialogos.h"

#include <gtest/gtest.h>

namespace vadro {
namespace {

using Strings = std::vector<std::string>;

class Cierre : public pruebas::VentanaPrincipal {
protected:
    // A new model with unsaved changes.
    void ModeloModificado(const std::string& archivo) {
        NuevoModelo();
        sesion().modelo.Nombre = "planta";
        sesion().modelo.Archivo = archivo;
        sesion().modelo.Modificado = true;
    }
    void EsperarPregunta(Respuesta respuesta) {
        mensajes.Esperar("VADRO PROGRAMADOR",
                         "Desea guardar los cambios realizados en el modelo actual?", respuesta);
    }
};

TEST_F(Cierre, AnUnmodifiedModelClosesWithoutAQuestion) {
    NuevoModelo();
    PulsarEtiqueta(1);
    EXPECT_TRUE(principal.close());
    EXPECT_FALSE(principal.Cargado);
    EXPECT_TRUE(Hijas().empty()) << "the child windows close first";
    EXPECT_TRUE(mensajes.Vistos().empty());
}

TEST_F(Cierre, CancelRefusesTheCloseAndReloadsTheWindowsOfEjes) {
    ModeloModificado(Ruta("planta.vdm"));
    PulsarEtiqueta(1);
    PulsarEtiqueta(3);
    const Modelo antes = sesion().modelo;
    EsperarPregunta(Respuesta::Cancelar);
    EXPECT_FALSE(principal.close());
    EXPECT_EQ(mensajes.Vistos().at(0).botones, Botones::SiNoCancelar);
    EXPECT_TRUE(principal.isVisible());
    EXPECT_TRUE(principal.Cargado);
    EXPECT_EQ(Situacion(), "Ejes | Posición: ejes | frmEjes frmRequerimientos frmEtapas");
    EXPECT_TRUE(principal.pctPrincipal->isVisible());
    EXPECT_FALSE(principal.pctFondo->isVisible()) << "the requirements window hides it";
    EXPECT_EQ(sesion().modelo, antes) << "Modificado stays too";
    EXPECT_FALSE(ExisteArchivo(Ruta("planta.vdm")));
}

TEST_F(Cierre, CancelReloadsTheWindowOfEachPosition) {
    ModeloModificado(Ruta("planta.vdm"));
    principal.cmdContinuar->click();
    EsperarPregunta(Respuesta::Cancelar);
    EXPECT_FALSE(principal.close());
    EXPECT_EQ(Situacion(), "Resumen | Posición: resumen | frmResumen");

    UnRequerimiento();
    ContinuarAceptandoPermisos();
    EsperarPregunta(Respuesta::Cancelar);
    EXPECT_FALSE(principal.close());
    EXPECT_EQ(Situacion(), "Ponderacion | Posición: ponderacion | frmPonderacion");
}

TEST_F(Cierre, CancelAtTheEmptyDeskBringsNothingBack) {
    ModeloModificado(Ruta("planta.vdm"));
    principal.cmdRetroceder->click();
    EsperarPregunta(Respuesta::Cancelar);
    EXPECT_FALSE(principal.close());
    EXPECT_TRUE(Hijas().empty());
    EXPECT_FALSE(principal.pctPrincipal->isVisible());
}

TEST_F(Cierre, YesSavesToTheModelFileAndCloses) {
    const std::string ruta = Ruta("planta.vdm");
    ModeloModificado(ruta);
    pruebas::GuionDialogos dialogos; // no dialog for a known file
    EsperarPregunta(Respuesta::Si);
    EXPECT_TRUE(principal.close());
    EXPECT_EQ(NombreGuardadoEn(ruta), "planta");
    EXPECT_FALSE(sesion().modelo.Modificado);
}

TEST_F(Cierre, YesOnANeverSavedModelAsksForItsName) {
    ModeloModificado("");
    const std::string ruta = Ruta("elegido.vdm");
    pruebas::GuionDialogos dialogos;
    dialogos.Elegir("Guardar modelo como...", ruta);
    EsperarPregunta(Respuesta::Si);
    EXPECT_TRUE(principal.close());
    EXPECT_EQ(NombreGuardadoEn(ruta), "planta");
    EXPECT_EQ(dialogos.Peticiones()[0].filtro, "Archivos de modelo (*.vdm)|*.vdm");
}

TEST_F(Cierre, NoClosesWithoutSaving) {
    const std::string ruta = Ruta("planta.vdm");
    ModeloModificado(ruta);
    EsperarPregunta(Respuesta::No);
    EXPECT_TRUE(principal.close());
    EXPECT_FALSE(ExisteArchivo(ruta));
    EXPECT_FALSE(principal.Cargado);
}

TEST_F(Cierre, SalirGoesTheSameWay) {
    ModeloModificado(Ruta("planta.vdm"));
    EsperarPregunta(Respuesta::Cancelar);
    principal.mnuSalir->trigger();
    EXPECT_TRUE(principal.isVisible());
    EsperarPregunta(Respuesta::No);
    principal.mnuSalir->trigger();
    EXPECT_FALSE(principal.isVisible());
}

} // namespace
} // namespace vadro
