#include "ventana_principal.h"

#include "core/core/archivos.h"
#include "core/files/modelo_archivo.h"
#include "soporte/acta.h"
#include "soporte/guion_dialogos.h"
#include "soporte/modelo_sano.h"
#include "windows/core/frmInicio.h"
#include "windows/core/modal.h"

#include <QMenu>
#include <QPushButton>

#include <gtest/gtest.h>

namespace vadro {
namespace {

using pruebas::Criterio;
using pruebas::Hijo;
using pruebas::Indicador;
using pruebas::Requerimiento;
using pruebas::Subcriterio;
using Strings = std::vector<std::string>;

class Abrir : public pruebas::VentanaPrincipal {
protected:
    // A scrambled model written by another session, outside the window.
    std::string ModeloEnDisco(const std::string& nombre,
                              Modelo escrito = pruebas::ModeloCorrecto()) {
        escrito.Nombre = "Depuradora";
        escrito.Autor = "Ana";
        escrito.Aplicacion = "0.9.0";
        const std::string ruta = Ruta(nombre);
        EXPECT_TRUE(GuardarModelo(escrito, ruta, false));
        return ruta;
    }

    void AbrirDesdeBarra(const std::string& ruta) {
        pruebas::GuionDialogos dialogos;
        dialogos.Elegir("Abrir modelo", ruta);
        PulsarBoton("Abrir");
    }

    std::string Titulo() const { return principal.windowTitle().toStdString(); }
};

TEST_F(Abrir, AModelMadeOutsideOpensAtEjesWithItsCaptionLabelsAndStatus) {
    const std::string ruta = ModeloEnDisco("depuradora.vdm");
    AbrirDesdeBarra(ruta);
    EXPECT_EQ(Titulo(), "VADRO PROGRAMADOR - [" + ruta + "]");
    EXPECT_EQ(sesion().modelo.Nombre, "Depuradora");
    EXPECT_EQ(Situacion(), "Ejes | Posición: ejes | frmEjes");
    for (int i : {1, 2, 3, 6}) {
        EsperarNormal(i);
    }
    EsperarPendiente(8);
    EXPECT_TRUE(principal.pctPrincipal->isVisible());
    EXPECT_TRUE(principal.mnuModelo->menuAction()->isVisible());
    EXPECT_FALSE(principal.pctFondo->isVisible());
    EXPECT_TRUE(Visible(10) && Visible(13));
    EXPECT_TRUE(Habilitado(9));
    EXPECT_FALSE(principal.mnuPermitirSubcriterios->isChecked());
}

TEST_F(Abrir, TheSecondOpeningReplacesTheDesignWindowsAndFollowsThePermission) {
    AbrirDesdeBarra(ModeloEnDisco("a.vdm"));
    PulsarEtiqueta(1);
    PulsarEtiqueta(2);
    ASSERT_EQ(Hijas(), (Strings{"frmEjes", "frmRequerimientos", "frmComponentes"}));
    Modelo conSub = pruebas::ModeloCon(
        {Requerimiento("R", {Criterio("C", {}, {Subcriterio("S", {Indicador("I")})})})});
    conSub.NumComponentes = 0;
    const std::string otra = ModeloEnDisco("b.vdm", conSub);
    mensajes.Esperar("VADRO PROGRAMADOR",
                     "Desea guardar los cambios realizados en el modelo actual?", Respuesta::No);
    // The components window asks before it goes, even unedited.
    mensajes.Esperar("VADRO PROGRAMADOR: cerrar componentes",
                     "Está seguro que quiere descartar los cambios realizados en el árbol de "
                     "componentes?",
                     Respuesta::Si);
    AbrirDesdeBarra(otra);
    EXPECT_EQ(Hijas(), Strings{"frmEjes"});
    EXPECT_TRUE(principal.mnuPermitirSubcriterios->isChecked());
    EsperarNormal(1);
    EsperarPendiente(2);
    EXPECT_EQ(Titulo(), "VADRO PROGRAMADOR - [" + otra + "]");
}

TEST_F(Abrir, ExistenteOnTheStartScreenLeadsToTheOpenDialog) {
    const std::string ruta = ModeloEnDisco("depuradora.vdm");
    pruebas::GuionDialogos dialogos;
    dialogos.Elegir("Abrir modelo", ruta);
    modales.Esperar(QStringLiteral("frmInicio"),
                    [](QDialog& inicio) { Hijo<QPushButton>(inicio, "cmdExistente")->click(); });
    frmInicio inicio([this] { principal.Nuevo(); }, [this] { principal.Abrir(); }, &principal);
    MostrarModal(inicio);
    EXPECT_EQ(frmInicio::Abierto(), nullptr);
    EXPECT_EQ(NombrePosicion(principal.Posicion()), "Ejes");
    EXPECT_EQ(sesion().modelo.Nombre, "Depuradora");
}

TEST_F(Abrir, PrintingLoadsTheReportOnlyForTheMoment) {
    NuevoModelo();
    // The report window stands while the printer is chosen, and goes with the cancel, which
    // says nothing.
    pruebas::GuionImpresoras impresoras;
    impresoras.Cancelar();
    PulsarBoton("Imprimir");
    EXPECT_EQ(impresoras.Peticiones().size(), 1u);
    EXPECT_EQ(Hijas(), Strings{"frmEjes"});
    EXPECT_TRUE(principal.pctFondo->isVisible()) << "the background as it stood";
    EXPECT_EQ(NombrePosicion(principal.Posicion()), "Ejes");
}

// The entry follows the answers: off asks while the model holds subcriteria, and Yes moves
// their indicators up; on always asks.
TEST_F(Abrir, TheSubcriteriaEntryFollowsTheAnswersAndTheModel) {
    AbrirDesdeBarra(ModeloEnDisco(
        "sub.vdm",
        pruebas::ModeloCon({Requerimiento(
            "R", {Criterio("C", {}, {Subcriterio("S", {Indicador("a"), Indicador("b")})})})})));
    ASSERT_TRUE(principal.mnuPermitirSubcriterios->isChecked());
    const std::pair<const char*, Respuesta> pasos[] = {
        {"off, subcriteria in the model", Respuesta::No},
        {"off, the requirements window open", Respuesta::Si},
        {"on", Respuesta::Si},
        {"off, no subcriteria in the model", Respuesta::Aceptar},
        {"on", Respuesta::No},
    };
    pruebas::Acta acta;
    for (const auto& [paso, respuesta] : pasos) {
        if (std::string(paso).find("window") != std::string::npos) {
            PulsarEtiqueta(1);
        }
        acta.respuestas = {respuesta};
        principal.mnuPermitirSubcriterios->trigger();
        const NodoCriterio& c = sesion().modelo.Requerimientos(1).Criterios(1);
        std::string hijas;
        for (const std::string& hija : Hijas()) {
            hijas += " " + hija;
        }
        acta.Fila(
            paso,
            std::string(principal.mnuPermitirSubcriterios->isChecked() ? "checked" : "unchecked") +
                (sesion().modelo.ConSubcriterios ? ", allowed" : "") + ", " +
                std::to_string(c.NumSubcriterios.Cuenta()) + " subcriteria, " +
                std::to_string(c.NumIndicadores.Cuenta()) + " indicators, windows" + hijas);
    }
    acta.Comparar("comandos/menu_subcriterios.txt");
    EXPECT_EQ(sesion().modelo.Requerimientos(1).Criterios(1).Indicadores(2).Nombre, "b");
}

using Plantillas = Abrir;

// One kind proves the menu: its entries and what follows an import go by the part, the same
// for each kind.
TEST_F(Plantillas, ATemplateGoesOutAndComesBackThroughTheMenu) {
    AbrirDesdeBarra(ModeloEnDisco("depuradora.vdm"));
    pruebas::GuionDialogos dialogos;
    dialogos.Elegir("Exportar etapas", Ruta("plantilla"));
    principal.mnuExportarEtapas->trigger();
    ASSERT_TRUE(ExisteArchivo(Ruta("plantilla.tpa")));
    principal.MarcarPaso(3, false);
    sesion().modelo = Modelo{};
    sesion().modelo.Requerimientos.Redimensionar(1);
    dialogos.Elegir("Importar etapas", Ruta("plantilla.tpa"));
    principal.mnuImportarEtapas->trigger();
    // The label goes normal; the design window loaded for the tree marks it in hand.
    EXPECT_EQ(Color(3), principal.ColorNormal());
    EXPECT_NO_THROW(Hija("frmEtapas")) << "the design window of the tree is loaded";
}

} // namespace
} // namespace vadro
