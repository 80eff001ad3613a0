#include "core/core/archivos.h"
#include "core/core/configuracion.h"
#include "core/core/error_ejecucion.h"
#include "core/core/ini.h"
#include "core/core/version.h"
#include "core/files/modelo_archivo.h"
#include "core/shell/comandos_modelo.h"
#include "soporte/guion_dialogos.h"
#include "soporte/modelo_sano.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace vadro {
namespace {

using pruebas::Criterio;
using pruebas::Indicador;
using pruebas::Requerimiento;
using pruebas::Subcriterio;

class Apertura : public pruebas::PruebaSesion {
protected:
    Modelo& modelo() { return sesion().modelo; }

    // A sound model written outside the window, as another session would have left it.
    std::string ModeloEnDisco(const std::string& nombre) {
        Modelo escrito = pruebas::ModeloCorrecto();
        escrito.Nombre = "Depuradora";
        escrito.Aplicacion = "0.1.0";
        escrito.EjeX = "Años";
        const std::string ruta = Ruta(nombre);
        EXPECT_TRUE(GuardarModelo(escrito, ruta, false));
        return ruta;
    }

    std::string Modelos() const { return UnirRuta(Directorio(), "Archivos de modelo"); }
    std::string ClaveModelos() {
        return LeerIni(kSeccionDirectorios, kClaveModelos, RutaConfiguracion(sesion())).Texto();
    }

    const std::string titulo = "Abrir modelo";
    const std::string tituloFallo = "VADRO PROGRAMADOR: abrir modelo";
    const std::string pregunta = "Desea guardar los cambios realizados en el modelo actual?";
};

TEST_F(Apertura, AFirstOpeningReadsTheModelAndRemembersItsFolder) {
    const std::string ruta = ModeloEnDisco("depuradora.vdm");
    modelo().Modificado = true;
    pruebas::GuionDialogos dialogos;
    dialogos.Elegir(titulo, ruta);
    ASSERT_TRUE(AbrirModelo(sesion()));
    EXPECT_TRUE(mensajes.Vistos().empty()) << "no question before the first opening";
    const PeticionDialogo& p = dialogos.Peticiones()[0];
    EXPECT_EQ(p.tipo, TipoDialogo::Abrir);
    EXPECT_EQ(p.flags, 4) << "hide read-only";
    EXPECT_EQ(p.filtro, "Archivos de modelos (*.vdm)|*.vdm|Archivos de modelos compilados "
                        "(*.vdc)|*.vdc|");
    EXPECT_EQ(std::tuple(p.indiceFiltro, p.directorioInicial, p.nombreArchivo),
              std::tuple(0, Modelos(), ""));
    EXPECT_TRUE(std::filesystem::is_directory(Modelos())) << "the dialog opens inside it";
    EXPECT_EQ(modelo().Nombre, "Depuradora");
    EXPECT_EQ(modelo().EjeX, "Años");
    EXPECT_EQ(modelo().NumRequerimientos, ValorLibre(2));
    EXPECT_EQ(modelo().Archivo, ruta);
    EXPECT_EQ(modelo().Aplicacion, VersionPrograma()) << "the running version, not the file's";
    EXPECT_FALSE(modelo().Modificado);
    EXPECT_TRUE(sesion().ModeloAbiertoAntes);
    EXPECT_EQ(sesion().configuracion.DirModelos, Directorio());
    EXPECT_EQ(ClaveModelos(), Directorio());
}

TEST_F(Apertura, ACompiledFileOrAnEmptyOneOpensLikeAModel) {
    Escribir(Ruta("vacio.vdm"), "");
    for (const auto& [ruta, nombre] : {std::pair(ModeloEnDisco("depuradora.vdc"), "Depuradora"),
                                       std::pair(Ruta("vacio.vdm"), "")}) {
        pruebas::GuionDialogos dialogos;
        dialogos.Elegir(titulo, ruta);
        sesion().ModeloAbiertoAntes = false; // no question
        ASSERT_TRUE(AbrirModelo(sesion())) << ruta;
        EXPECT_EQ(std::pair(modelo().Archivo, modelo().Nombre),
                  std::pair(ruta, std::string(nombre)));
    }
    EXPECT_EQ(modelo().NumRequerimientos, ValorLibre()) << "the empty model";
}

TEST_F(Apertura, ALaterOpeningAsksWhateverTheChanges) {
    sesion().ModeloAbiertoAntes = true;
    struct Caso {
        Respuesta respuesta;
        bool guarda;
        bool dialogo;
    };
    for (const Caso& c : {Caso{Respuesta::Cancelar, false, false}, Caso{Respuesta::No, false, true},
                          Caso{Respuesta::Si, true, true}}) {
        BorrarArchivo(Ruta("actual.vdm"));
        modelo().Nombre = "actual";
        modelo().Archivo = Ruta("actual.vdm");
        pruebas::GuionDialogos dialogos;
        if (c.dialogo) {
            dialogos.Cancelar(titulo);
        }
        mensajes.Esperar("VADRO PROGRAMADOR", pregunta, c.respuesta);
        EXPECT_FALSE(AbrirModelo(sesion()));
        EXPECT_EQ(ExisteArchivo(Ruta("actual.vdm")), c.guarda);
        // Cancel at the question changes nothing; a cancelled dialog leaves the blank model.
        EXPECT_EQ(modelo().Nombre, c.dialogo ? "" : "actual");
    }
}

TEST_F(Apertura, ASaveThatFailsAtTheQuestionKeepsTheModel) {
    sesion().ModeloAbiertoAntes = true;
    modelo().Nombre = "sin archivo";
    mensajes.Esperar("VADRO PROGRAMADOR", pregunta, Respuesta::Si);
    mensajes.Esperar("VADRO: Error ",
                     "Error 52 al guardar el modelo.\n\r" + DescripcionError(ErrNombreArchivo));
    EXPECT_FALSE(AbrirModelo(sesion()));
    EXPECT_EQ(modelo().Nombre, "sin archivo");
}

TEST_F(Apertura, TheLastFolderIsWhereTheDialogOpens) {
    sesion().configuracion.DirModelos = "/otros/modelos";
    pruebas::GuionDialogos dialogos;
    dialogos.Cancelar(titulo);
    EXPECT_FALSE(AbrirModelo(sesion()));
    EXPECT_EQ(dialogos.Peticiones()[0].directorioInicial, "/otros/modelos");
    EXPECT_EQ(ClaveModelos(), "-1") << "a cancel remembers nothing";
}

TEST_F(Apertura, BadFilesAreToldAndLeaveTheBlankModelWithNoFile) {
    Escribir(Ruta("foto.vdm"), std::string("\x89PNG\r\n\x1a\nIHDR\0\0\0\x10", 16));
    Escribir(Ruta("notas.vdm"), "Lista de la compra\r\npan = 2\r\n");
    Escribir(Ruta("roto.vdm"), "*****MODELO*****\r\nREQ_NUMR = tres\r\n");
    struct Caso {
        std::string ruta;
        std::string texto;
    };
    const Caso casos[] = {
        {Ruta("foto.vdm"),
         "Error 321 al abrir el modelo: El archivo no contiene un modelo de VADRO."},
        {Ruta("notas.vdm"),
         "Error 321 al abrir el modelo: El archivo no contiene un modelo de VADRO."},
        {Ruta("roto.vdm"), "Error 13 al abrir el modelo: " + DescripcionError(ErrTipos)},
        {Ruta("desaparecido.vdm"),
         "Error 53 al abrir el modelo: " + DescripcionError(ErrArchivoNoEncontrado)},
    };
    for (const Caso& c : casos) {
        const std::string antes = Contenido(c.ruta);
        modelo().Nombre = "anterior";
        pruebas::GuionDialogos dialogos;
        dialogos.Elegir(titulo, c.ruta);
        mensajes.Esperar(tituloFallo, c.texto);
        EXPECT_FALSE(AbrirModelo(sesion())) << c.ruta;
        EXPECT_EQ(modelo().Nombre, "");
        EXPECT_EQ(modelo().Archivo, "") << "nothing can be saved over the file that failed";
        EXPECT_EQ(Contenido(c.ruta), antes);
        EXPECT_FALSE(sesion().ModeloAbiertoAntes);
        EXPECT_EQ(ClaveModelos(), Directorio()) << "the folder is remembered all the same";
    }
}

TEST_F(Apertura, WhatReadsAsAModel) {
    using Lineas = std::vector<std::string>;
    EXPECT_TRUE(PareceModelo(Lineas{}));
    EXPECT_TRUE(PareceModelo(Lineas{"basura", "*****MODELO*****"}));
    for (const char* linea :
         {"MOD_NOM = x", "REQ_NUM = 1", "CMP_NUM = 0", "ETA_NUM = 0", "FUN_I1C1R1_TIP = 1"}) {
        EXPECT_TRUE(PareceModelo(Lineas{"otra cosa", linea})) << linea;
    }
    EXPECT_FALSE(PareceModelo(Lineas{""}));
    EXPECT_FALSE(PareceModelo(Lineas{"texto = MOD_NOM", " REQ_NUM = 1", "****"}));
}

TEST_F(Apertura, TheStepLabelsAfterAnOpening) {
    const auto etiquetas = [](const Modelo& m) { return EtiquetasTrasAbrir(m); };
    using Esperadas = std::vector<std::pair<int, bool>>;
    Modelo m = pruebas::ModeloCorrecto();
    EXPECT_EQ(etiquetas(m), (Esperadas{{1, true}, {2, true}, {3, true}, {6, true}}));
    m.Requerimientos(2).Criterios(1).Indicadores(2).Peso = ValorLibre();
    EXPECT_EQ(etiquetas(m)[3], (std::pair<int, bool>{6, false})) << "an indicator without weight";
    m = pruebas::ModeloCon(
        {Requerimiento("R", {Criterio("C", {}, {Subcriterio("S", {Indicador("I")})})})});
    m.Requerimientos(1).Criterios(1).Subcriterios(1).Peso = ValorLibre();
    EXPECT_EQ(etiquetas(m)[3], (std::pair<int, bool>{6, false})) << "a subcriterion without weight";
    Modelo vacio;
    InicializarModelo(vacio);
    EXPECT_EQ(etiquetas(vacio), (Esperadas{{1, false}, {2, false}, {3, false}, {6, true}}));
    vacio.NumRequerimientos = ValorLibre();
    vacio.NumEtapas = 1;
    EXPECT_EQ(etiquetas(vacio)[0].second, false);
    EXPECT_EQ(etiquetas(vacio)[2].second, true);
}

class Permiso : public Apertura {
protected:
    const std::string tituloPermitir = "VADRO PROGRAMADOR: permitir subcriterios";
    const std::string textoPermitir =
        "Se recomienda un máximo de tres niveles en el árbol de requerimientos.\r"
        "Está seguro de querer usar subcriterios?";
    const std::string tituloEliminar = "VADRO PROGRAMADOR: eliminar subcriterios";
    const std::string textoEliminar =
        "Existen subcriterios en el modelo actual que serán eliminados. Desea continuar?";

    static Modelo ConSubcriterios() {
        return pruebas::ModeloCon({Requerimiento(
            "R", {Criterio("C", {}, {Subcriterio("S", {Indicador("a"), Indicador("b")})}),
                  Criterio("D", {Indicador("directo")})})});
    }
};

TEST_F(Permiso, AllowingAsksAndYesAllows) {
    mensajes.Esperar(tituloPermitir, textoPermitir, Respuesta::No);
    EXPECT_EQ(CambiarPermisoSubcriterios(modelo(), false), CambioSubcriterios::Ninguno);
    EXPECT_FALSE(modelo().ConSubcriterios);
    mensajes.Esperar(tituloPermitir, textoPermitir, Respuesta::Si);
    EXPECT_EQ(CambiarPermisoSubcriterios(modelo(), false), CambioSubcriterios::Permitidos);
    EXPECT_TRUE(modelo().ConSubcriterios);
}

TEST_F(Permiso, WithdrawingWithSubcriteriaAsksAndYesMovesTheirIndicatorsUp) {
    modelo() = ConSubcriterios();
    const Modelo antes = modelo();
    mensajes.Esperar(tituloEliminar, textoEliminar, Respuesta::No);
    EXPECT_EQ(CambiarPermisoSubcriterios(modelo(), true), CambioSubcriterios::Ninguno);
    EXPECT_EQ(modelo(), antes);

    mensajes.Esperar(tituloEliminar, textoEliminar, Respuesta::Si);
    EXPECT_EQ(CambiarPermisoSubcriterios(modelo(), true), CambioSubcriterios::Eliminados);
    EXPECT_FALSE(modelo().ConSubcriterios);
    // How the indicators come up is EliminarSubcriterios's to test.
    const NodoCriterio& c = modelo().Requerimientos(1).Criterios(1);
    EXPECT_EQ(std::pair(c.NumSubcriterios.Cuenta(), c.NumIndicadores.Cuenta()), std::pair(0, 2));
}

TEST_F(Permiso, WithdrawingWithoutSubcriteriaInTheModelAsksNothing) {
    modelo() = pruebas::ModeloCorrecto();
    modelo().ConSubcriterios = true;
    EXPECT_EQ(CambiarPermisoSubcriterios(modelo(), true), CambioSubcriterios::Eliminados);
    EXPECT_FALSE(modelo().ConSubcriterios);
    EXPECT_TRUE(mensajes.Vistos().empty());
}

} // namespace
} // namespace vadro
