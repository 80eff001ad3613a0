#include "core/core/dialogos.h"
#include "soporte/guion_dialogos.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

namespace vadro {
namespace {

PeticionDialogo Guardar(const std::string& filtro, int indice = 0) {
    PeticionDialogo peticion;
    peticion.tipo = TipoDialogo::Guardar;
    peticion.filtro = filtro;
    peticion.indiceFiltro = indice;
    return peticion;
}

const std::string kModelo = "Archivos de modelo (*.vdm)|*.vdm";
const std::string kInforme = "Archivos compilados (*.log)|*.log|Todos los archivos (*.*)|*.*";
const std::string kAbrir =
    "Archivos de modelos (*.vdm)|*.vdm|Archivos de modelos compilados (*.vdc)|*.vdc|";

TEST(Dialogos, ANameTypedWithoutExtensionGetsTheChosenFilters) {
    struct Caso {
        std::string filtro;
        int indicePeticion;
        std::string ruta;
        int filtroElegido;
        std::string esperada;
    };
    const Caso casos[] = {
        {kModelo, 0, "/p/prueba", 0, "/p/prueba.vdm"},
        {kModelo, 1, "/p/prueba", 0, "/p/prueba.vdm"},
        {kModelo, 0, "/p/prueba", 1, "/p/prueba.vdm"},
        {kModelo, 0, "C:\\p\\prueba", 0, "C:\\p\\prueba.vdm"},
        {kModelo, 0, "prueba", 0, "prueba.vdm"},
        // A name with an extension of its own keeps it, whatever it is.
        {kModelo, 0, "/p/prueba.vdm", 0, "/p/prueba.vdm"},
        {kModelo, 0, "/p/prueba.txt", 0, "/p/prueba.txt"},
        {kModelo, 0, "/p/prueba.", 0, "/p/prueba."},
        // A dot in a folder is no extension of the name.
        {kModelo, 0, "/p.d/prueba", 0, "/p.d/prueba.vdm"},
        // The report offers its own extension first and "all files" second.
        {kInforme, 1, "/p/informe", 0, "/p/informe.log"},
        {kInforme, 1, "/p/informe", 2, "/p/informe"},
        {kInforme, 2, "/p/informe", 0, "/p/informe"},
        {"Plantillas de requerimientos (*.req)|*.req", 0, "/p/t", 0, "/p/t.req"},
        {"Plantillas de componentes (*.cmp)|*.cmp", 0, "/p/t", 0, "/p/t.cmp"},
        {"Plantillas de etapa (*.tpa)|*.tpa", 0, "/p/t", 0, "/p/t.tpa"},
        {"Plantillas de función de valor (*.fva)|*.fva", 0, "/p/t", 0, "/p/t.fva"},
        {"Archivos compilados (*.vdc)|*.vdc|Todos los archivos (*.*)|*.*", 0, "/p/c", 0,
         "/p/c.vdc"},
        // A filter of several patterns names no one extension; nor does a missing filter.
        {"Modelos (*.vdm;*.vdc)|*.vdm;*.vdc", 0, "/p/m", 0, "/p/m"},
        {"", 0, "/p/m", 0, "/p/m"},
        {kModelo, 0, "/p/m", 5, "/p/m"},
        // A path that ends in a folder gets nothing.
        {kModelo, 0, "/p/", 0, "/p/"},
    };
    for (const Caso& c : casos) {
        EXPECT_EQ(CompletarExtension(Guardar(c.filtro, c.indicePeticion),
                                     RespuestaDialogo(c.ruta, c.filtroElegido)),
                  c.esperada)
            << c.filtro << " / " << c.ruta << " / " << c.filtroElegido;
    }
}

TEST(Dialogos, AnOpenDialogsPathStaysAsChosen) {
    PeticionDialogo abrir = Guardar(kAbrir);
    abrir.tipo = TipoDialogo::Abrir;
    EXPECT_EQ(CompletarExtension(abrir, RespuestaDialogo("/p/modelo")), "/p/modelo");
}

class DialogosSesion : public pruebas::PruebaSesion {};

TEST_F(DialogosSesion, EverySaveDialogHandsItsCommandTheCompletedName) {
    pruebas::GuionDialogos dialogos;
    dialogos.Elegir("Guardar", "/p/prueba").Elegir("Guardar", "/p/prueba").Cancelar("Guardar");
    PeticionDialogo peticion = Guardar(kModelo);
    peticion.titulo = "Guardar";
    EXPECT_EQ(MostrarDialogoArchivo(peticion), "/p/prueba.vdm");
    EXPECT_EQ(ElegirArchivo(peticion), std::optional<std::string>("/p/prueba.vdm"));
    EXPECT_EQ(ElegirArchivo(peticion), std::nullopt);
}

} // namespace
} // namespace vadro
