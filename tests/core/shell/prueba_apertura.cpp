#include "core/core/archivos.h"
#include "core/core/configuracion.h"
#include "core/core/ini.h"
#include "core/core/version.h"
#include "core/files/modelo_archivo.h"
#include "core/shell/comandos_modelo.h"
#include "soporte/acta.h"
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

// Cancel at the question, or a save that fails there, keeps the model; the dialog, when it
// comes, is cancelled, which leaves the blank model.
TEST_F(Apertura, ALaterOpeningAsksWhateverTheChanges) {
    sesion().ModeloAbiertoAntes = true;
    pruebas::Acta acta;
    for (const auto& [respuesta, archivo] :
         {std::pair{Respuesta::Cancelar, "actual.vdm"}, std::pair{Respuesta::No, "actual.vdm"},
          std::pair{Respuesta::Si, "actual.vdm"}, std::pair{Respuesta::Si, ""}}) {
        BorrarArchivo(Ruta("actual.vdm"));
        modelo().Nombre = "actual";
        modelo().Archivo = *archivo ? Ruta(archivo) : "";
        pruebas::GuionDialogos dialogos;
        if (respuesta != Respuesta::Cancelar && *archivo) {
            dialogos.Cancelar(titulo);
        }
        acta.respuestas = {respuesta};
        const bool abierto = AbrirModelo(sesion());
        acta.Fila(std::string("open, file '") + archivo + "'",
                  std::string(abierto ? "opened" : "not opened") + ", model '" + modelo().Nombre +
                      "'" + (ExisteArchivo(Ruta("actual.vdm")) ? ", the old one saved" : ""));
    }
    acta.Comparar("comandos/abrir_pregunta.txt");
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
    std::filesystem::create_directories(Ruta("carpeta.vdm"));
    pruebas::Acta acta;
    for (const char* nombre :
         {"foto.vdm", "notas.vdm", "roto.vdm", "desaparecido.vdm", "carpeta.vdm"}) {
        const std::string ruta = Ruta(nombre);
        const bool archivo = std::filesystem::is_regular_file(ruta);
        const std::string antes = archivo ? Contenido(ruta) : std::string();
        modelo().Nombre = "anterior";
        pruebas::GuionDialogos dialogos;
        dialogos.Elegir(titulo, ruta);
        EXPECT_FALSE(AbrirModelo(sesion())) << ruta;
        acta.Fila(nombre, "model '" + modelo().Nombre + "', file '" + modelo().Archivo + "'" +
                              (sesion().ModeloAbiertoAntes ? ", opened before" : ""));
        EXPECT_EQ(archivo ? Contenido(ruta) : std::string(), antes);
        EXPECT_EQ(ClaveModelos(), Directorio()) << "the folder is remembered all the same";
    }
    acta.Comparar("comandos/abrir_fallos.txt");
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

Modelo ConSubcriterios() {
    return pruebas::ModeloCon({Requerimiento(
        "R", {Criterio("C", {}, {Subcriterio("S", {Indicador("a"), Indicador("b")})}),
              Criterio("D", {Indicador("directo")})})});
}

// Allowing asks; withdrawing asks only when the model holds subcriteria, and Yes moves their
// indicators up (how is EliminarSubcriterios's to test).
TEST_F(Apertura, AllowingAndWithdrawingTheSubcriteria) {
    const char* const cambios[] = {"nothing", "allowed", "withdrawn"};
    pruebas::Acta acta;
    // Whether the model holds subcriteria, whether the command withdraws them, the answer.
    for (const auto& [conSubcriterios, quitar, respuesta] :
         {std::tuple{false, false, Respuesta::No}, std::tuple{false, false, Respuesta::Si},
          std::tuple{true, true, Respuesta::No}, std::tuple{true, true, Respuesta::Si},
          std::tuple{false, true, Respuesta::Aceptar}}) {
        modelo() = conSubcriterios ? ConSubcriterios() : pruebas::ModeloCorrecto();
        modelo().ConSubcriterios = quitar;
        const Modelo antes = modelo();
        acta.respuestas = {respuesta};
        const CambioSubcriterios cambio = CambiarPermisoSubcriterios(modelo(), quitar);
        const NodoCriterio& criterio = modelo().Requerimientos(1).Criterios(1);
        acta.Fila(std::string(quitar ? "withdraw" : "allow") +
                      (conSubcriterios ? ", subcriteria in the model" : ""),
                  std::string(cambios[static_cast<int>(cambio)]) + ", allowed " +
                      (modelo().ConSubcriterios ? "yes" : "no") + ", first criterion " +
                      std::to_string(criterio.NumSubcriterios.Cuenta()) + " subcriteria " +
                      std::to_string(criterio.NumIndicadores.Cuenta()) + " indicators");
        if (cambio == CambioSubcriterios::Ninguno) {
            EXPECT_EQ(modelo(), antes);
        }
    }
    acta.Comparar("comandos/permiso_subcriterios.txt");
}

} // namespace
} // namespace vadro
