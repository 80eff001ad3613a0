#include "core/core/archivos.h"
#include "core/core/configuracion.h"
#include "core/core/error_ejecucion.h"
#include "core/core/ini.h"
#include "core/files/proteccion.h"
#include "core/shell/comandos_modelo.h"
#include "core/shell/plantillas_menu.h"
#include "soporte/acta.h"
#include "soporte/componentes_etapas.h"
#include "soporte/guion_dialogos.h"
#include "soporte/modelo_sano.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace vadro {
namespace {

struct Tipo {
    ParteModelo parte;
    const char* importar;
    const char* exportar;
    const char* titulo; // of the import dialog; the export's says "Exportar"
    const char* filtro;
    const char* clave;
    const char* extension;
    Hija hija;
    int etiqueta;
};

const Tipo kTipos[] = {
    {ParteModelo::Requerimientos, "mnuImportarR", "mnuExportarR", "requerimientos",
     "Plantillas de requerimientos (*.req)|*.req", "REQUERIMIENTOS", ".req", Hija::Requerimientos,
     1},
    {ParteModelo::Componentes, "mnuImportarComp", "mnuExportarComp", "componentes",
     "Plantillas de componentes (*.cmp)|*.cmp", "COMPONENTES", ".cmp", Hija::Componentes, 2},
    {ParteModelo::Etapas, "mnuImportarEtapas", "mnuExportarEtapas", "etapas",
     "Plantillas de etapa (*.tpa)|*.tpa", "ETAPAS", ".tpa", Hija::Etapas, 3},
};

const EntradaPlantilla& Entrada(const char* nombre) {
    for (const EntradaPlantilla& entrada : EntradasPlantilla()) {
        if (std::string(entrada.nombre) == nombre) {
            return entrada;
        }
    }
    throw std::runtime_error(nombre);
}

class PlantillasMenu : public pruebas::PruebaSesion {
protected:
    Modelo& modelo() { return sesion().modelo; }
    std::string Clave(const char* clave) {
        return LeerIni(kSeccionDirectorios, clave, RutaConfiguracion(sesion())).Texto();
    }
};

// Titles, filters and folder keys are checked where the round trip below meets them.
TEST_F(PlantillasMenu, TheSixEntriesByKind) {
    ASSERT_EQ(EntradasPlantilla().size(), 6u);
    for (const Tipo& t : kTipos) {
        EXPECT_EQ(Entrada(t.importar).parte, t.parte);
        EXPECT_TRUE(Entrada(t.importar).importar);
        EXPECT_EQ(Entrada(t.exportar).parte, t.parte);
        EXPECT_FALSE(Entrada(t.exportar).importar);
        EXPECT_EQ(HijaDeParte(t.parte), t.hija);
        EXPECT_EQ(EtiquetaDeParte(t.parte), t.etiqueta);
    }
}

TEST_F(PlantillasMenu, EachTemplateGoesOutAndComesBackWithItsFolderRemembered) {
    const Modelo original = pruebas::ModeloCorrecto();
    const std::string carpeta = UnirRuta(Directorio(), "plantillas");
    std::filesystem::create_directories(carpeta);
    for (const Tipo& t : kTipos) {
        modelo() = original;
        pruebas::GuionDialogos dialogos;
        // A name typed without extension gets the kind's.
        dialogos.Elegir(std::string("Exportar ") + t.titulo, UnirRuta(carpeta, "p"));
        ASSERT_TRUE(EjecutarPlantilla(sesion(), Entrada(t.exportar)));
        const std::string archivo = UnirRuta(carpeta, std::string("p") + t.extension);
        ASSERT_TRUE(ExisteArchivo(archivo)) << archivo;
        EXPECT_EQ(dialogos.Peticiones()[0].directorioInicial,
                  UnirRuta(Directorio(), "Archivos de modelo"));
        EXPECT_EQ(dialogos.Peticiones()[0].filtro, t.filtro);
        EXPECT_TRUE(std::filesystem::is_directory(UnirRuta(Directorio(), "Archivos de modelo")));
        EXPECT_EQ(Clave(t.clave), carpeta);

        Modelo vacio;
        vacio.Requerimientos.Redimensionar(1);
        vacio.Componentes.Redimensionar(1);
        vacio.Etapas.Redimensionar(1);
        modelo() = vacio;
        dialogos.Elegir(std::string("Importar ") + t.titulo, archivo);
        ASSERT_TRUE(EjecutarPlantilla(sesion(), Entrada(t.importar)));
        EXPECT_EQ(dialogos.Peticiones()[1].directorioInicial, carpeta) << "the last folder";
        EXPECT_EQ(dialogos.Peticiones()[1].filtro, t.filtro);
        // What came back goes out again as the same text.
        dialogos.Elegir(std::string("Exportar ") + t.titulo, UnirRuta(carpeta, "q"));
        ASSERT_TRUE(EjecutarPlantilla(sesion(), Entrada(t.exportar)));
        const std::string otra = UnirRuta(carpeta, std::string("q") + t.extension);
        EXPECT_EQ(TextoPlano(Contenido(otra)), TextoPlano(Contenido(archivo)));
        const char* muestra = t.parte == ParteModelo::Requerimientos ? "Social"
                              : t.parte == ParteModelo::Componentes  ? "Estructura"
                                                                     : "Construcci";
        EXPECT_NE(TextoPlano(Contenido(archivo)).find(muestra), std::string::npos);
        // The other parts stay as they were.
        EXPECT_EQ(modelo().NumRequerimientos.EsVacio(), t.parte != ParteModelo::Requerimientos);
        EXPECT_EQ(modelo().NumComponentes.EsVacio(), t.parte != ParteModelo::Componentes);
        EXPECT_EQ(modelo().NumEtapas.EsVacio(), t.parte != ParteModelo::Etapas);
    }
    EXPECT_TRUE(mensajes.Vistos().empty());
}

// A template of another kind or an empty one is refused with a message; a broken one or one
// gone fails to the failure boundary, its folder remembered first. The model stays whole.
TEST_F(PlantillasMenu, ATemplateThatCannotBeReadLeavesTheModelWhole) {
    modelo() = pruebas::ModeloCorrecto();
    const Modelo antes = modelo();
    pruebas::GuionDialogos dialogos;
    dialogos.Elegir("Exportar etapas", Ruta("etapas.tpa"));
    ASSERT_TRUE(EjecutarPlantilla(sesion(), Entrada("mnuExportarEtapas")));
    const std::string bytes = Contenido(Ruta("etapas.tpa"));
    Escribir(Ruta("vacia.cmp"), "");
    Escribir(Ruta("rota.req"), "*****REQUERIMIENTOS*****\r\nREQ_NUMR = dos\r\n");
    pruebas::Acta acta;
    acta.sustituciones = {{Directorio(), "<dir>"}};
    for (const pruebas::Caso& caso : pruebas::Casos("comandos/plantillas_fallidas.txt")) {
        const EntradaPlantilla& entrada = Entrada(caso.campos.at(0).c_str());
        const TipoPlantilla& tipo = TipoDeParte(entrada.parte);
        dialogos.Elegir(tipo.tituloImportar, Ruta(caso.campos.at(1)));
        std::string salida;
        try {
            salida = EjecutarPlantilla(sesion(), entrada) ? "read" : "refused";
        } catch (const ErrorEjecucion& error) {
            salida = "error " + std::to_string(error.Numero()) + " " + error.Descripcion();
        }
        acta.Fila(caso.texto, salida + (modelo() == antes ? ", the model whole" : ", CHANGED") +
                                  ", folder '" + Clave(tipo.claveDirectorio.c_str()) + "'");
    }
    acta.Comparar("comandos/plantillas_fallidas.txt");
    EXPECT_EQ(Contenido(Ruta("etapas.tpa")), bytes);
}

TEST_F(PlantillasMenu, ACancelledDialogDoesNothing) {
    for (const EntradaPlantilla& entrada : EntradasPlantilla()) {
        pruebas::GuionDialogos dialogos;
        dialogos.Cancelar(entrada.importar ? TipoDeParte(entrada.parte).tituloImportar
                                           : TipoDeParte(entrada.parte).tituloExportar);
        EXPECT_FALSE(EjecutarPlantilla(sesion(), entrada));
    }
    for (const Tipo& t : kTipos) {
        EXPECT_EQ(Clave(t.clave), "-1") << "a cancel remembers no folder";
    }
}

// Each case's fields after the first are the plain lines of a file.
TEST_F(PlantillasMenu, WhatReadsAsAModelAndAsATemplateOfEachKind) {
    pruebas::Acta acta;
    for (const pruebas::Caso& caso : pruebas::Casos("comandos/es_plantilla.txt")) {
        const std::vector<std::string> lineas(caso.campos.begin() + 1, caso.campos.end());
        std::string plantillas;
        for (const Tipo& t : kTipos) {
            plantillas += EsPlantillaDe(lineas, t.parte) ? std::string(" ") + t.titulo : "";
        }
        acta.Fila(caso.texto, std::string(PareceModelo(lineas) ? "a model, " : "") +
                                  "a template of" + plantillas);
    }
    acta.Comparar("comandos/es_plantilla.txt");
}

TEST_F(PlantillasMenu, WhatFollowsAnImport) {
    pruebas::Acta acta;
    for (const Tipo& t : kTipos) {
        for (const auto& [resumen, diseno] :
             {std::pair{true, false}, {true, true}, {false, true}, {false, false}}) {
            const EfectoImportacion e = EfectoTrasImportar(t.parte, resumen, diseno);
            acta.Fila(std::string(t.titulo) + (resumen ? ", summary open" : "") +
                          (diseno ? ", design window open" : ""),
                      "label " + std::to_string(e.etiqueta) +
                          (e.seguirPermiso ? ", the permission follows" : "") +
                          (e.rellenarResumen ? ", summary refilled" : "") +
                          (e.rellenarDiseno ? ", design window refilled" : "") +
                          (e.cargarDiseno ? ", design window loaded" : ""));
        }
    }
    acta.Comparar("comandos/tras_importar.txt");
}

} // namespace
} // namespace vadro
