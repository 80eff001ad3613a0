#include "core/core/archivos.h"
#include "core/core/version.h"
#include "core/files/compilado.h"
#include "core/files/modelo_archivo.h"
#include "core/files/proteccion.h"
#include "soporte/acta.h"
#include "soporte/guion_dialogos.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace vadro {
namespace {

class Compilado : public pruebas::PruebaSesion {
protected:
    Compilado() {
        std::filesystem::create_directories(Ruta("modelos"));
        sesion().modelo.Nombre = "Depuradora";
    }
};

// Where the save dialog of the compiled file opens (the program directory for a new model; an
// existing compiled file by folder and base name; a vanished one falls back to the model's own
// path), and what is written and told for each answer. The file written is scrambled and names
// itself.
TEST_F(Compilado, TheDialogTheFileAndTheNotice) {
    Escribir(Ruta("modelos/previo.vdc"), "x");
    Escribir(Ruta("modelos/m.vdm"), "x");
    struct Caso {
        const char* compilado; // the model's compiled file before
        const char* archivo;   // its model file
        const char* elegido;   // nullptr: the dialog is cancelled
    };
    const Caso casos[] = {
        {"", "", "modelos/d.vdc"},
        {"modelos/previo.vdc", "", "modelos/previo.vdc"},
        {"ya-no-esta.vdc", "modelos/m.vdm", nullptr},
        {"", "", "no-existe/d.vdc"},
    };
    pruebas::Acta acta;
    for (const Caso& c : casos) {
        Modelo& m = sesion().modelo;
        m.ArchivoCompilado = *c.compilado ? Ruta(c.compilado) : "";
        m.Archivo = *c.archivo ? Ruta(c.archivo) : "";
        m.Compilado = false;
        m.Modificado = true;
        pruebas::GuionDialogos guion;
        const std::string titulo = "Guardar modelo compilado como...";
        c.elegido ? guion.Elegir(titulo, Ruta(c.elegido)) : guion.Cancelar(titulo);
        const bool escrito = EscribirCompilado(sesion());
        const PeticionDialogo& p = guion.Peticiones().at(0);
        EXPECT_EQ(p.filtro, "Archivos compilados (*.vdc)|*.vdc|Todos los archivos (*.*)|*.*");
        EXPECT_NE(p.flags & DlgPreguntarSobrescribir, 0);
        acta.Fila(std::string("compiled '") + c.compilado + "', model '" + c.archivo +
                      "', chosen '" + (c.elegido ? c.elegido : "(cancel)") + "'",
                  "dialog in '" + p.directorioInicial + "' named '" + p.nombreArchivo + "'; " +
                      (escrito ? "written" : "not written") + (m.Compilado ? ", compiled" : "") +
                      (m.Modificado ? ", modified" : "") + ", compiled file '" +
                      m.ArchivoCompilado + "'");
    }
    acta.sustituciones = {{Directorio(), "<programa>"}};
    acta.Comparar("archivos/compilado.txt");
    const std::string ruta = Ruta("modelos/d.vdc");
    EXPECT_EQ(sesion().modelo.Aplicacion, VersionPrograma());
    const auto lineas = LineasPlanas(Contenido(ruta));
    EXPECT_EQ(lineas.at(1), "MOD_APL = " + VersionPrograma());
    EXPECT_EQ(lineas.at(9), "MOD_FCP = " + ruta) << "the file names itself";
    EXPECT_NE(Contenido(ruta).substr(0, 5), "*****");
}

} // namespace
} // namespace vadro
