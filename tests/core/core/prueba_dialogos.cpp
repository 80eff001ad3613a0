#include "core/core/dialogos.h"
#include "soporte/guion_dialogos.h"
#include "soporte/prueba_sesion.h"
#include "tabla_funciones.h"

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

// A name typed without an extension gets the one of the chosen filter; a name with an extension
// of its own keeps it, whatever it is, and a dot in a folder is no extension of the name. The
// report offers its own extension first and "all files" second. A filter of several patterns
// names no one extension, nor does a missing filter, and a path that ends in a folder gets
// nothing. An open dialog's path stays as chosen.
TEST(Dialogos, ANameTypedWithoutExtensionGetsTheChosenFilters) {
    const auto completar = [](TipoDialogo tipo) {
        return [tipo](const pruebas::Argumentos& a) {
            PeticionDialogo peticion = Guardar(a.at(0), std::stoi(a.at(1)));
            peticion.tipo = tipo;
            return CompletarExtension(peticion, RespuestaDialogo(a.at(2), std::stoi(a.at(3))));
        };
    };
    pruebas::Tabular("nucleo/dialogos.txt", {{"Guardar", completar(TipoDialogo::Guardar)},
                                             {"Abrir", completar(TipoDialogo::Abrir)}});
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
