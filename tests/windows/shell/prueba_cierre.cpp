#include "ventana_principal.h"

#include "core/core/archivos.h"

#include <gtest/gtest.h>

namespace vadro {
namespace {

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

TEST_F(Cierre, CancelRefusesTheCloseAndReloadsTheWindowsOfEjesAndNoClosesThroughSalir) {
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
    // Salir goes the same way.
    EsperarPregunta(Respuesta::No);
    principal.mnuSalir->trigger();
    EXPECT_FALSE(principal.isVisible());
}

} // namespace
} // namespace vadro
