#include "core/core/archivos.h"
#include "core/core/version.h"
#include "core/files/compilado.h"
#include "core/files/modelo_archivo.h"
#include "core/files/proteccion.h"
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
        sesion().modelo.Modificado = true;
    }
    const std::string kTitulo = "Guardar modelo compilado como...";
    const std::string kCorrecta = "VADRO PROGRAMADOR: compilación correcta";
    std::string Aviso(const std::string& ruta) {
        return "Se ha creado el archivo compilado " + ruta +
               "\nEste archivo será utilizable por el módulo VADRO USUARIO.";
    }
    pruebas::GuionDialogos dialogos;
};

TEST_F(Compilado, ANewModelIsOfferedTheProgramDirectoryAndIsWrittenScrambled) {
    const std::string ruta = Ruta("modelos/d.vdc");
    dialogos.Elegir(kTitulo, ruta);
    mensajes.Esperar(kCorrecta, Aviso(ruta));
    ASSERT_TRUE(EscribirCompilado(sesion()));
    const PeticionDialogo& p = dialogos.Peticiones().at(0);
    EXPECT_EQ(p.directorioInicial, Directorio());
    EXPECT_EQ(p.nombreArchivo, "");
    EXPECT_EQ(p.filtro, "Archivos compilados (*.vdc)|*.vdc|Todos los archivos (*.*)|*.*");
    EXPECT_NE(p.flags & DlgPreguntarSobrescribir, 0);
    const Modelo& m = sesion().modelo;
    EXPECT_EQ(m.ArchivoCompilado, ruta);
    EXPECT_EQ(m.Aplicacion, VersionPrograma());
    EXPECT_TRUE(m.Compilado);
    EXPECT_FALSE(m.Modificado) << "the compiled file counts as a save";
    const auto lineas = LineasPlanas(Contenido(ruta));
    EXPECT_EQ(lineas.at(1), "MOD_APL = " + VersionPrograma());
    EXPECT_EQ(lineas.at(9), "MOD_FCP = " + ruta) << "the file names itself";
    EXPECT_NE(Contenido(ruta).substr(0, 5), "*****");
}

TEST_F(Compilado, AnExistingCompiledFileIsOfferedByFolderAndBaseName) {
    const std::string anterior = Ruta("modelos/previo.vdc");
    Escribir(anterior, "x");
    sesion().modelo.ArchivoCompilado = anterior;
    dialogos.Elegir(kTitulo, anterior);
    mensajes.Esperar(kCorrecta, Aviso(anterior));
    ASSERT_TRUE(EscribirCompilado(sesion()));
    EXPECT_EQ(dialogos.Peticiones().at(0).directorioInicial, Ruta("modelos"));
    EXPECT_EQ(dialogos.Peticiones().at(0).nombreArchivo, Ruta("modelos/previo"));
}

TEST_F(Compilado, AMissingCompiledFileFallsBackToTheModelsOwnPath) {
    const std::string modelo = Ruta("modelos/m.vdm");
    Escribir(modelo, "x");
    sesion().modelo.Archivo = modelo;
    sesion().modelo.ArchivoCompilado = Ruta("ya-no-esta.vdc");
    dialogos.Cancelar(kTitulo);
    EXPECT_FALSE(EscribirCompilado(sesion()));
    EXPECT_EQ(dialogos.Peticiones().at(0).nombreArchivo, Ruta("modelos/m"));
    EXPECT_EQ(sesion().modelo.ArchivoCompilado, modelo)
        << "a cancel leaves what the first step set";
    EXPECT_FALSE(sesion().modelo.Compilado);
    EXPECT_TRUE(sesion().modelo.Modificado);
}

TEST_F(Compilado, AFileThatCannotBeWrittenIsNotReportedAsCreated) {
    const std::string ruta = Ruta("no-existe/d.vdc");
    dialogos.Elegir(kTitulo, ruta);
    mensajes.Esperar("VADRO: Error ",
                     "Error 76 al guardar el modelo.\n\rNo se encontró la ruta de acceso");
    EXPECT_FALSE(EscribirCompilado(sesion()));
    EXPECT_FALSE(sesion().modelo.Compilado);
    EXPECT_TRUE(sesion().modelo.Modificado);
}

} // namespace
} // namespace vadro
