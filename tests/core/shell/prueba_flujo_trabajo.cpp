#include "core/shell/flujo_trabajo.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

namespace vadro {
namespace {

// The status texts and the questions at the end of the line, answered each way, are checked
// by the walks of the main window.
class FlujoTrabajo : public pruebas::PruebaSesion {};

TEST_F(FlujoTrabajo, AnEmptyCountAndZeroBothMeanNone) {
    EXPECT_FALSE(HayElementos(ValorLibre()));
    EXPECT_FALSE(HayElementos(0));
    EXPECT_FALSE(HayElementos("0"));
    EXPECT_TRUE(HayElementos(1));
    EXPECT_TRUE(HayElementos(" 3 ")) << "a count read from a file as text";
}

TEST_F(FlujoTrabajo, ACompiledModelOnlyHearsWhatToDoNext) {
    sesion().modelo.Compilado = true;
    mensajes.Esperar("VADRO PROGRAMADOR: final de modelo",
                     "Ya ha completado el diseño del modelo.\n\rGuarde el modelo y cierre la "
                     "aplicación, cree un modelo nuevo o abra uno existente.");
    EXPECT_FALSE(PreguntarCompilarAlFinal(sesion().modelo));
    ASSERT_EQ(mensajes.Vistos().size(), 1u);
    EXPECT_EQ(mensajes.Vistos()[0].botones, Botones::Aceptar);
    EXPECT_EQ(mensajes.Vistos()[0].icono, Icono::Informacion);
}

TEST_F(FlujoTrabajo, AModelWithoutRequirementsCannotBeCompiled) {
    for (const ValorLibre& cuenta : {ValorLibre(), ValorLibre(0)}) {
        sesion().modelo.NumRequerimientos = cuenta;
        mensajes.Esperar("VADRO PROGRAMADOR: Compilar modelo",
                         "Imposible compilar. El modelo está vacío.");
        EXPECT_FALSE(ModeloCompilable(sesion().modelo));
        EXPECT_EQ(mensajes.Vistos().back().icono, Icono::Critico);
    }
    sesion().modelo.NumRequerimientos = 2;
    EXPECT_TRUE(ModeloCompilable(sesion().modelo));
    EXPECT_EQ(mensajes.Vistos().size(), 2u) << "no message for a model with requirements";
}

} // namespace
} // namespace vadro
