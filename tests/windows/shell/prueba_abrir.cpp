#include "ventana_principal.h"

#include "core/core/archivos.h"
#include "core/core/configuracion.h"
#include "core/core/error_ejecucion.h"
#include "core/core/ini.h"
#include "core/core/version.h"
#include "core/files/modelo_archivo.h"
#include "core/files/proteccion.h"
#include "soporte/guion_dialogos.h"
#include "soporte/modelo_sano.h"
#include "windows/core/frmInicio.h"
#include "windows/core/modal.h"

#include <QMenu>
#include <QPushButton>

#include <gtest/gtest.h>

#include <filesystem>
#include <unistd.h>

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
    std::vector<std::string> LineasPlanas(const std::string& ruta) {
        return DividirLineas(TextoPlano(Contenido(ruta)));
    }

    const std::string tituloFallo = "VADRO PROGRAMADOR: abrir modelo";
};

TEST_F(Abrir, AModelMadeOutsideOpensAtEjesWithItsCaptionLabelsAndStatus) {
    const std::string ruta = ModeloEnDisco("depuradora.vdm");
    AbrirDesdeBarra(ruta);
    EXPECT_EQ(Titulo(), "VADRO PROGRAMADOR - [" + ruta + "]");
    EXPECT_EQ(sesion().modelo.Nombre, "Depuradora");
    EXPECT_EQ(Hijas(), Strings{"frmEjes"});
    EXPECT_EQ(NombrePosicion(principal.Posicion()), "Ejes");
    EXPECT_EQ(Estado(), "Posición: ejes");
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

TEST_F(Abrir, SavedUnderAnotherNameTheTextDiffersOnlyInTheRewrittenVersion) {
    const std::string ruta = ModeloEnDisco("depuradora.vdm");
    AbrirDesdeBarra(ruta);
    pruebas::GuionDialogos dialogos;
    dialogos.Elegir("Guardar modelo como...", Ruta("copia"));
    principal.mnuGuardarComo->trigger();
    const std::string copia = Ruta("copia.vdm");
    EXPECT_EQ(Titulo(), "VADRO PROGRAMADOR - [" + copia + "]");
    std::vector<std::string> antes = LineasPlanas(ruta);
    std::vector<std::string> despues = LineasPlanas(copia);
    ASSERT_EQ(antes.size(), despues.size());
    int distintas = 0;
    for (std::size_t i = 0; i < antes.size(); ++i) {
        if (antes[i] != despues[i]) {
            ++distintas;
            EXPECT_EQ(antes[i], "MOD_APL = 0.9.0");
            EXPECT_EQ(despues[i], "MOD_APL = " + VersionPrograma());
        }
    }
    EXPECT_EQ(distintas, 1);
}

TEST_F(Abrir, ASecondOpeningAsksAndACancelledDialogLeavesTheModelBlank) {
    AbrirDesdeBarra(ModeloEnDisco("depuradora.vdm"));
    const std::string titulo = Titulo();
    pruebas::GuionDialogos dialogos;
    dialogos.Cancelar("Abrir modelo");
    mensajes.Esperar("VADRO PROGRAMADOR",
                     "Desea guardar los cambios realizados en el modelo actual?", Respuesta::No);
    principal.mnuAbrir->trigger();
    EXPECT_EQ(sesion().modelo.Nombre, "");
    EXPECT_EQ(sesion().modelo.NumRequerimientos, ValorLibre(0));
    EXPECT_EQ(Titulo(), titulo) << "the windows still show what stood";
    EXPECT_EQ(Hijas(), Strings{"frmEjes"});
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

TEST_F(Abrir, BadFilesAreToldAndNothingIsDamaged) {
    Escribir(Ruta("foto.vdm"), std::string("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16));
    std::filesystem::create_directories(Ruta("carpeta.vdm"));
    struct Caso {
        std::string ruta;
        std::string texto;
    };
    const Caso casos[] = {
        {Ruta("foto.vdm"),
         "Error 321 al abrir el modelo: El archivo no contiene un modelo de VADRO."},
        {Ruta("no_esta.vdm"),
         "Error 53 al abrir el modelo: " + DescripcionError(ErrArchivoNoEncontrado)},
        {Ruta("carpeta.vdm"),
         "Error 75 al abrir el modelo: " + DescripcionError(ErrAccesoRuta) + ": no es un archivo"},
    };
    for (const Caso& c : casos) {
        const bool archivo = std::filesystem::is_regular_file(c.ruta);
        const std::string bytes = archivo ? Contenido(c.ruta) : std::string();
        mensajes.Esperar(tituloFallo, c.texto);
        AbrirDesdeBarra(c.ruta);
        EXPECT_EQ(Titulo(), "VADRO PROGRAMADOR") << c.ruta;
        EXPECT_TRUE(Hijas().empty());
        EXPECT_EQ(sesion().modelo.Archivo, "");
        EXPECT_EQ(archivo ? Contenido(c.ruta) : std::string(), bytes);
    }
    // The next save asks for a name instead of writing over the file that failed.
    pruebas::GuionDialogos dialogos;
    dialogos.Cancelar("Guardar modelo como...");
    principal.Guardar();
    EXPECT_EQ(Contenido(Ruta("foto.vdm")).size(), 16u);
}

TEST_F(Abrir, AFolderWithoutReadPermission) {
    if (geteuid() == 0) {
        GTEST_SKIP() << "the superuser reads every folder";
    }
    const std::string carpeta = Ruta("cerrada");
    std::filesystem::create_directories(carpeta);
    const std::string ruta = UnirRuta(carpeta, "m.vdm");
    ModeloEnDisco("m.vdm");
    std::filesystem::rename(Ruta("m.vdm"), ruta);
    std::filesystem::permissions(carpeta, std::filesystem::perms::none);
    mensajes.Esperar(tituloFallo, "Error 70 al abrir el modelo: " + DescripcionError(ErrPermiso));
    AbrirDesdeBarra(ruta);
    std::filesystem::permissions(carpeta, std::filesystem::perms::owner_all);
    EXPECT_TRUE(Hijas().empty());
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

class Subcriterios : public Abrir {
protected:
    void AbrirConSubcriterios() {
        Modelo m = pruebas::ModeloCon({Requerimiento(
            "R", {Criterio("C", {}, {Subcriterio("S", {Indicador("a"), Indicador("b")})})})});
        AbrirDesdeBarra(ModeloEnDisco("sub.vdm", m));
        ASSERT_TRUE(principal.mnuPermitirSubcriterios->isChecked());
    }
    const std::string tituloEliminar = "VADRO PROGRAMADOR: eliminar subcriterios";
    const std::string textoEliminar =
        "Existen subcriterios en el modelo actual que serán eliminados. Desea continuar?";
};

TEST_F(Subcriterios, OffWithSubcriteriaAsksAndYesMovesTheIndicatorsUp) {
    AbrirConSubcriterios();
    mensajes.Esperar(tituloEliminar, textoEliminar, Respuesta::No);
    principal.mnuPermitirSubcriterios->trigger();
    EXPECT_TRUE(principal.mnuPermitirSubcriterios->isChecked()) << "No changes nothing";
    EXPECT_EQ(sesion().modelo.Requerimientos(1).Criterios(1).NumSubcriterios, ValorLibre(1));

    PulsarEtiqueta(1);
    mensajes.Esperar(tituloEliminar, textoEliminar, Respuesta::Si);
    principal.mnuPermitirSubcriterios->trigger();
    EXPECT_FALSE(principal.mnuPermitirSubcriterios->isChecked());
    const NodoCriterio& c = sesion().modelo.Requerimientos(1).Criterios(1);
    EXPECT_EQ(c.NumSubcriterios.Cuenta(), 0);
    ASSERT_EQ(c.NumIndicadores, ValorLibre(2));
    EXPECT_EQ(c.Indicadores(2).Nombre, "b");
    EXPECT_FALSE(sesion().modelo.ConSubcriterios);
    EXPECT_EQ(Hijas(), (Strings{"frmEjes", "frmRequerimientos"}));

    // Off without subcriteria in the model goes without a question.
    mensajes.Esperar("VADRO PROGRAMADOR: permitir subcriterios",
                     "Se recomienda un máximo de tres niveles en el árbol de requerimientos.\r"
                     "Está seguro de querer usar subcriterios?",
                     Respuesta::Si);
    principal.mnuPermitirSubcriterios->trigger();
    EXPECT_TRUE(principal.mnuPermitirSubcriterios->isChecked());
    EXPECT_TRUE(sesion().modelo.ConSubcriterios);
    principal.mnuPermitirSubcriterios->trigger();
    EXPECT_FALSE(principal.mnuPermitirSubcriterios->isChecked());
}

TEST_F(Subcriterios, NoToAllowingLeavesTheEntryUnchecked) {
    NuevoModelo();
    mensajes.Esperar("VADRO PROGRAMADOR: permitir subcriterios",
                     "Se recomienda un máximo de tres niveles en el árbol de requerimientos.\r"
                     "Está seguro de querer usar subcriterios?",
                     Respuesta::No);
    principal.mnuPermitirSubcriterios->trigger();
    EXPECT_FALSE(principal.mnuPermitirSubcriterios->isChecked());
    EXPECT_FALSE(sesion().modelo.ConSubcriterios);
}

class Plantillas : public Abrir {
protected:
    std::string Clave(const char* clave) {
        return LeerIni(kSeccionDirectorios, clave, RutaConfiguracion(sesion())).Texto();
    }
};

TEST_F(Plantillas, EachTemplateGoesOutAndComesBackThroughTheMenu) {
    AbrirDesdeBarra(ModeloEnDisco("depuradora.vdm"));
    const Modelo original = sesion().modelo;
    const std::string carpeta = Ruta("plantillas");
    std::filesystem::create_directories(carpeta);
    struct Caso {
        const char* exportar;
        const char* importar;
        const char* parte;
        const char* extension;
        const char* clave;
        int etiqueta;
        const char* ventana;
    };
    const Caso casos[] = {
        {"mnuExportarR", "mnuImportarR", "requerimientos", ".req", "REQUERIMIENTOS", 1,
         "frmRequerimientos"},
        {"mnuExportarComp", "mnuImportarComp", "componentes", ".cmp", "COMPONENTES", 2,
         "frmComponentes"},
        {"mnuExportarEtapas", "mnuImportarEtapas", "etapas", ".tpa", "ETAPAS", 3, "frmEtapas"},
    };
    for (const Caso& c : casos) {
        pruebas::GuionDialogos dialogos;
        dialogos.Elegir(std::string("Exportar ") + c.parte, UnirRuta(carpeta, "plantilla"));
        Hijo<QAction>(principal, c.exportar)->trigger();
        const std::string archivo = UnirRuta(carpeta, std::string("plantilla") + c.extension);
        ASSERT_TRUE(ExisteArchivo(archivo)) << archivo;
        EXPECT_EQ(Clave(c.clave), carpeta);

        principal.MarcarPaso(c.etiqueta, false);
        sesion().modelo = Modelo{};
        sesion().modelo.Requerimientos.Redimensionar(1);
        dialogos.Elegir(std::string("Importar ") + c.parte, archivo);
        Hijo<QAction>(principal, c.importar)->trigger();
        EXPECT_EQ(dialogos.Peticiones()[1].directorioInicial, carpeta);
        // The label goes normal; the design window loaded for the tree marks it in hand.
        EXPECT_EQ(Color(c.etiqueta), principal.ColorNormal());
        EXPECT_NO_THROW(Hija(c.ventana)) << "the design window of the tree is loaded";
        sesion().modelo = original;
    }
}

TEST_F(Plantillas, AnImportWithTheSummaryOpenLoadsNoDesignWindow) {
    AbrirDesdeBarra(ModeloEnDisco("depuradora.vdm"));
    pruebas::GuionDialogos dialogos;
    dialogos.Elegir("Exportar etapas", Ruta("e"));
    principal.mnuExportarEtapas->trigger();
    principal.cmdContinuar->click();
    ASSERT_EQ(Hijas(), Strings{"frmResumen"});
    dialogos.Elegir("Importar etapas", Ruta("e.tpa"));
    principal.mnuImportarEtapas->trigger();
    EXPECT_EQ(Hijas(), Strings{"frmResumen"});
}

TEST_F(Plantillas, ATemplateOfTheWrongKindIsRefusedThroughTheMenu) {
    AbrirDesdeBarra(ModeloEnDisco("depuradora.vdm"));
    pruebas::GuionDialogos dialogos;
    dialogos.Elegir("Exportar componentes", Ruta("c"));
    principal.mnuExportarComp->trigger();
    const Modelo antes = sesion().modelo;
    dialogos.Elegir("Importar requerimientos", Ruta("c.cmp"));
    mensajes.Esperar("VADRO: Error.", "Fichero no válido o formato de datos incorrecto.\r\n"
                                      "No se ha podido cargar el árbol de requerimientos.");
    principal.mnuImportarR->trigger();
    EXPECT_EQ(sesion().modelo, antes);
    EXPECT_EQ(Hijas(), Strings{"frmEjes"});
}

TEST_F(Plantillas, AVanishedTemplateShowsTheFailureBoundarysMessage) {
    NuevoModelo();
    pruebas::GuionDialogos dialogos;
    dialogos.Elegir("Importar etapas", Ruta("no_esta.tpa"));
    mensajes.Esperar("VADRO PROGRAMADOR", "53: " + DescripcionError(ErrArchivoNoEncontrado));
    principal.mnuImportarEtapas->trigger();
    EXPECT_EQ(Hijas(), Strings{"frmEjes"});
}

} // namespace
} // namespace vadro
