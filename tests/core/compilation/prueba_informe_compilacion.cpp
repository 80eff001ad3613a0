#include "core/compilation/informe_compilacion.h"
#include "core/core/archivos.h"
#include "soporte/guion_dialogos.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <regex>

namespace vadro {
namespace {

class InformeCompilacion : public pruebas::PruebaSesion {
protected:
    const std::string kTitulo = "Guardar informe de compilación...";
    const std::vector<std::string> informe = {
        "AVISOS TOTALES: 1",
        "ERRORES TOTALES: 0",
        "",
        "COMPROBACION DEL CICLO DE VIDA",
        "     Aviso: no se han definido etapas del ciclo de vida",
        ""};
    pruebas::GuionDialogos dialogos;
};

TEST_F(InformeCompilacion, TheFileOpensWithFiveLinesAndThenTheReportAsShown) {
    sesion().modelo.Nombre = "Depuración";
    const std::string ruta = Ruta("informe.log");
    dialogos.Elegir(kTitulo, ruta);
    ASSERT_TRUE(GuardarInformeCompilacion(sesion(), informe));
    const auto lineas = DividirLineas(Contenido(ruta));
    ASSERT_EQ(lineas.size(), 11u);
    EXPECT_EQ(lineas[0], "COMPILACION. INFORME DE ERRORES.");
    EXPECT_EQ(lineas[1], "modelo: Depuraci\xF3n") << "plain 8-bit text";
    EXPECT_TRUE(std::regex_match(lineas[2], std::regex("Fecha de compilado: .*\\d.*")))
        << lineas[2];
    EXPECT_EQ(lineas[3], "");
    EXPECT_EQ(lineas[4], "");
    EXPECT_EQ(lineas[5], "AVISOS TOTALES: 1") << "the warnings total comes first";
    EXPECT_EQ(lineas[9], "     Aviso: no se han definido etapas del ciclo de vida");
    EXPECT_EQ(Contenido(ruta).substr(0, 34), "COMPILACION. INFORME DE ERRORES.\r\n");
}

TEST_F(InformeCompilacion, TheDialogProposesTheModelsFolderAndBaseName) {
    sesion().modelo.Archivo = Ruta("modelos/planta.vdm");
    dialogos.Cancelar(kTitulo);
    EXPECT_FALSE(GuardarInformeCompilacion(sesion(), informe));
    const PeticionDialogo& p = dialogos.Peticiones().at(0);
    EXPECT_EQ(p.directorioInicial, Ruta("modelos"));
    EXPECT_EQ(p.nombreArchivo, "planta");
    EXPECT_EQ(p.filtro, "Archivos compilados (*.log)|*.log|Todos los archivos (*.*)|*.*");
    EXPECT_EQ(p.indiceFiltro, 1);
    EXPECT_TRUE(std::filesystem::is_empty(Directorio())) << "a cancel writes nothing";
}

TEST_F(InformeCompilacion, ANewModelIsOfferedTheProgramDirectory) {
    dialogos.Cancelar(kTitulo);
    GuardarInformeCompilacion(sesion(), informe);
    EXPECT_EQ(dialogos.Peticiones().at(0).directorioInicial, Directorio());
    EXPECT_EQ(dialogos.Peticiones().at(0).nombreArchivo, "");
}

} // namespace
} // namespace vadro
