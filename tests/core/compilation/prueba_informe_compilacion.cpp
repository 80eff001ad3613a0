#include "core/compilation/compilacion.h"
#include "core/compilation/informe_compilacion.h"
#include "core/core/archivos.h"
#include "soporte/datos.h"
#include "soporte/guion_dialogos.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <tuple>

namespace vadro {
namespace {

class InformeCompilacion : public pruebas::PruebaSesion {
protected:
    const std::string kTitulo = "Guardar informe de compilación...";
    const std::vector<std::string> informe = ComprobarModelo(Modelo()).Lineas();
    pruebas::GuionDialogos dialogos;
};

// The saved file as bytes (8-bit text, CRLF), the date aside, as the data file holds it.
TEST_F(InformeCompilacion, TheFileOpensWithFiveLinesAndThenTheReportAsShown) {
    sesion().modelo.Nombre = "Depuración";
    const std::string ruta = Ruta("informe.log");
    dialogos.Elegir(kTitulo, ruta);
    ASSERT_TRUE(GuardarInformeCompilacion(sesion(), informe));
    std::string bytes = Contenido(ruta);
    const std::regex fecha("Fecha de compilado: [^\r]*\\d[^\r]*\r\n");
    EXPECT_TRUE(std::regex_search(bytes, fecha)) << bytes.substr(0, 120);
    bytes = std::regex_replace(bytes, fecha, "Fecha de compilado: (fecha)\r\n",
                               std::regex_constants::format_first_only);
    EXPECT_EQ(bytes, pruebas::Datos("compilacion/informe_vacio.log", bytes));
}

// A new model is offered the program directory; a saved one its folder and base name. A cancel
// writes nothing.
TEST_F(InformeCompilacion, TheDialogProposesTheModelsFolderAndBaseName) {
    for (const auto& [archivo, carpeta, nombre] :
         {std::tuple(std::string(), Directorio(), ""),
          std::tuple(Ruta("modelos/planta.vdm"), Ruta("modelos"), "planta")}) {
        sesion().modelo.Archivo = archivo;
        dialogos.Cancelar(kTitulo);
        EXPECT_FALSE(GuardarInformeCompilacion(sesion(), informe));
        const PeticionDialogo& p = dialogos.Peticiones().back();
        EXPECT_EQ(std::tuple(p.directorioInicial, p.nombreArchivo), std::tuple(carpeta, nombre));
        EXPECT_EQ(p.filtro, "Archivos compilados (*.log)|*.log|Todos los archivos (*.*)|*.*");
        EXPECT_EQ(p.indiceFiltro, 1);
    }
    EXPECT_TRUE(std::filesystem::is_empty(Directorio())) << "a cancel writes nothing";
}

} // namespace
} // namespace vadro
