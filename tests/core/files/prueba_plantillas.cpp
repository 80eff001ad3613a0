#include "core/core/ini.h"
#include "core/files/componentes_etapas.h"
#include "core/files/plantillas.h"
#include "core/files/proteccion.h"
#include "core/files/seccion_funcion.h"
#include "soporte/componentes_etapas.h"
#include "soporte/guion_dialogos.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace vadro {
namespace {

class Plantillas : public pruebas::PruebaSesion {
protected:
    Plantillas() {
        std::filesystem::create_directories(otra);
        pruebas::PonerEtapas(sesion().modelo, {"Explotación"});
        pruebas::PonerComponentes(sesion().modelo, {{"Depósito", {}}});
    }
    std::string Directorio(const std::string& clave) {
        return LeerIni("DIRECTORIOS", clave, Ruta("Config.ini")).Texto();
    }
    std::string otra = Ruta("plantillas");
    pruebas::GuionDialogos dialogos;
};

// A cancelled dialog changes nothing, says nothing and remembers nothing; the first dialog
// opens on the default folder, and the chosen folder is remembered.
TEST_F(Plantillas, TheFirstDialogOpensOnTheDefaultFolderAndTheChosenFolderIsRemembered) {
    dialogos.Cancelar("Importar etapas");
    const Modelo antes = sesion().modelo;
    EXPECT_FALSE(ImportarEtapas(sesion().modelo));
    EXPECT_EQ(sesion().modelo, antes);
    EXPECT_EQ(Contenido(Ruta("Config.ini")), "");
    const std::string ruta = otra + "/etapas.tpa";
    dialogos.Elegir("Exportar etapas", ruta);
    ASSERT_TRUE(ExportarEtapas(sesion().modelo));
    const PeticionDialogo& p = dialogos.Peticiones().at(1);
    EXPECT_EQ(p.tipo, TipoDialogo::Guardar);
    EXPECT_EQ(p.directorioInicial, Ruta("Archivos de modelo"));
    EXPECT_TRUE(std::filesystem::is_directory(p.directorioInicial));
    EXPECT_EQ(p.filtro, "Plantillas de etapa (*.tpa)|*.tpa");
    EXPECT_EQ(p.nombreArchivo, "");
    EXPECT_EQ(sesion().configuracion.DirEtapas, otra);
    EXPECT_EQ(Directorio("ETAPAS"), otra);

    dialogos.Elegir("Importar etapas", ruta);
    sesion().modelo.Etapas(1) = "otra";
    ASSERT_TRUE(ImportarEtapas(sesion().modelo));
    EXPECT_EQ(dialogos.Peticiones().at(2).directorioInicial, otra);
    EXPECT_EQ(sesion().modelo.Etapas(1), "Explotación");
}

// A read that fails says so and still remembers the folder; an import replaces its own
// section and leaves the others; stages read from another kind of template are the single
// empty entry.
TEST_F(Plantillas, ImportReplacesOneSectionAndAFailedReadStillRemembersTheFolder) {
    dialogos.Elegir("Importar componentes", otra + "/no-esta.cmp");
    mensajes.Esperar("VADRO: Error.", "Fichero no válido o formato de datos incorrecto.\r\n"
                                      "No se ha podido cargar el árbol de componentes.");
    EXPECT_TRUE(ImportarComponentes(sesion().modelo));
    EXPECT_EQ(Directorio("COMPONENTES"), otra);
    EXPECT_EQ(sesion().modelo.Componentes.Cota(), 1);
    Modelo plantilla;
    pruebas::PonerComponentes(plantilla, {{"Bomba", {}}, {"Válvula", {}}});
    GuardarComponentes(plantilla, otra + "/c.cmp", false);
    dialogos.Elegir("Importar componentes", otra + "/c.cmp");
    ASSERT_TRUE(ImportarComponentes(sesion().modelo));
    EXPECT_EQ(sesion().modelo.NumComponentes, ValorLibre(2.0));
    EXPECT_EQ(sesion().modelo.Componentes(2).Nombre, "Válvula");
    EXPECT_EQ(sesion().modelo.Etapas(1), "Explotación");
    Escribir(otra + "/r.req", "*****REQUERIMIENTOS*****\r\nREQ_NUMR = 0\r\n");
    dialogos.Elegir("Importar etapas", otra + "/r.req");
    ASSERT_TRUE(ImportarEtapas(sesion().modelo));
    EXPECT_EQ(sesion().modelo.NumEtapas, ValorLibre(0.0));
    EXPECT_EQ(sesion().modelo.Etapas.Cota(), 1);
    EXPECT_EQ(sesion().modelo.Etapas(1), "");
}

TEST_F(Plantillas, ARequirementsTemplateReplacesOnlyTheTree) {
    Modelo origen;
    origen.NumRequerimientos = 1;
    origen.Requerimientos.Redimensionar(1);
    origen.Requerimientos(1).Nombre = "Funcional";
    origen.Requerimientos(1).Calculo = 3;
    origen.Requerimientos(1).Saaty.Redimensionar(1);
    const std::string ruta = otra + "/arbol.req";
    dialogos.Elegir("Exportar requerimientos", ruta);
    ASSERT_TRUE(ExportarRequerimientos(origen));
    EXPECT_EQ(dialogos.Peticiones().at(0).filtro, "Plantillas de requerimientos (*.req)|*.req");
    const auto lineas = LineasPlanas(Contenido(ruta));
    EXPECT_EQ(lineas.at(0), "*****REQUERIMIENTOS*****");
    EXPECT_EQ(lineas.at(1), "REQ_NUMR =  1 ");
    EXPECT_EQ(Directorio("REQUERIMIENTOS"), otra);

    dialogos.Elegir("Importar requerimientos", ruta);
    ASSERT_TRUE(ImportarRequerimientos(sesion().modelo));
    EXPECT_EQ(sesion().modelo.Requerimientos(1).Nombre, "Funcional");
    EXPECT_EQ(sesion().modelo.Requerimientos(1).Calculo, CalculoSaaty) << "written as 0";
    EXPECT_EQ(sesion().modelo.Etapas(1), "Explotación");
    EXPECT_EQ(sesion().modelo.Componentes(1).Nombre, "Depósito");
}

TEST_F(Plantillas, AValueFunctionTemplateIsBoundToNoIndicator) {
    FuncionValor funcion;
    funcion.Clave = "I2C1R1";
    funcion.Tipo = FuncionContinua;
    funcion.Unidades = "m³/h";
    funcion.XMin = "=0";
    funcion.XMax = "<100";
    const std::string ruta = otra + "/caudal.fva";
    dialogos.Elegir("Exportar función de valor", ruta);
    ASSERT_TRUE(ExportarFuncionValor(funcion));
    const auto lineas = LineasPlanas(Contenido(ruta));
    EXPECT_EQ(lineas.at(0), "*****FUNCION VALOR *****");
    EXPECT_EQ(lineas.at(1), "FUN__IND = ");
    EXPECT_EQ(funcion.Clave, "I2C1R1") << "the editor's function keeps its key";
    EXPECT_EQ(Directorio("FUNCION_VALOR"), otra);

    FuncionValor leida;
    leida.Clave = "I7C1R1";
    dialogos.Elegir("Importar función de valor", ruta);
    ASSERT_TRUE(ImportarFuncionValor(leida));
    EXPECT_EQ(leida.Clave, "");
    EXPECT_EQ(leida.Tipo, FuncionContinua);
    EXPECT_EQ(leida.Unidades, "m³/h");
    EXPECT_EQ(leida.XMin, ValorLibre("=0"));

    funcion.Unidades = "kg"; // a block under another key reads empty
    GuardarFuncionValor(funcion, otra + "/ajena.fva", false);
    dialogos.Elegir("Importar función de valor", otra + "/ajena.fva");
    ASSERT_TRUE(ImportarFuncionValor(leida));
    EXPECT_EQ(leida.Tipo, FuncionNinguna);
    EXPECT_EQ(leida.Unidades, "");
}

} // namespace
} // namespace vadro
