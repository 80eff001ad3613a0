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
    pruebas::Acta acta;
    for (const pruebas::Caso& caso : pruebas::Casos("archivos/compilado.txt")) {
        const std::string &compilado = caso.campos.at(1), &archivo = caso.campos.at(3),
                          &elegido = caso.campos.at(5);
        Modelo& m = sesion().modelo;
        m.ArchivoCompilado = compilado.empty() ? "" : Ruta(compilado);
        m.Archivo = archivo.empty() ? "" : Ruta(archivo);
        m.Compilado = false;
        m.Modificado = true;
        pruebas::GuionDialogos guion;
        const std::string titulo = "Guardar modelo compilado como...";
        elegido == "(cancel)" ? guion.Cancelar(titulo) : guion.Elegir(titulo, Ruta(elegido));
        const bool escrito = EscribirCompilado(sesion());
        const PeticionDialogo& p = guion.Peticiones().at(0);
        EXPECT_EQ(p.filtro, "Archivos compilados (*.vdc)|*.vdc|Todos los archivos (*.*)|*.*");
        EXPECT_NE(p.flags & DlgPreguntarSobrescribir, 0);
        acta.Fila(caso.texto, "dialog in '" + p.directorioInicial + "' named '" + p.nombreArchivo +
                                  "'; " + (escrito ? "written" : "not written") +
                                  (m.Compilado ? ", compiled" : "") +
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
