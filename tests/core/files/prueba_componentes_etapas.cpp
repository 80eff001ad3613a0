#include "core/files/componentes_etapas.h"
#include "core/files/modelo_archivo.h"
#include "core/files/proteccion.h"
#include "soporte/componentes_etapas.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace vadro {
namespace {

class ComponentesEtapas : public pruebas::PruebaSesion {
protected:
    static Modelo ConComponentesYEtapas() {
        Modelo m;
        pruebas::PonerComponentes(m, {{"Bombas", {"Motor"}}, {"Tuberías", {}}});
        pruebas::PonerEtapas(m, {"Diseño", " Obra"});
        return m;
    }
    std::string ruta = Ruta("modelo.vdm");
    const std::string kError = "VADRO: Error.";
    const std::string kNoValido = "Fichero no válido o formato de datos incorrecto.\r\n";
};

TEST_F(ComponentesEtapas, EmptyAndNonPositiveCountsWriteTheZeroLine) {
    Modelo m;
    m.NumEtapas = -1;
    ArchivoSalida salida;
    GuardarComponentes(m, salida, "");
    GuardarEtapas(m, salida, "X");
    EXPECT_EQ(salida.Lineas(), (std::vector<std::string>{"*****COMPONENTES*****", "CMP_NUM = 0",
                                                         "X*****ETAPAS*****", "XETA_NUM = 0"}));
}

TEST_F(ComponentesEtapas, ACompleteModelRoundTrips) {
    Modelo m = ConComponentesYEtapas();
    GuardarModelo(m, ruta, false);
    Modelo leido;
    CargarModelo(leido, ruta);
    EXPECT_EQ(leido.NumComponentes, ValorLibre(2.0));
    EXPECT_EQ(leido.Componentes(1).Nombre, "Bombas");
    EXPECT_EQ(leido.Componentes(1).Subcomponentes(1).Nombre, "Motor");
    EXPECT_EQ(leido.Componentes(2).NumSubcomponentes, 0);
    EXPECT_EQ(leido.Etapas(2), "Obra") << "values are trimmed on reading";
    GuardarModelo(leido, Ruta("otra.vdm"), false);
    leido.Etapas(2) = " Obra";
    GuardarModelo(leido, Ruta("otra.vdm"), false);
    EXPECT_EQ(Contenido(Ruta("otra.vdm")), Contenido(ruta));
}

TEST_F(ComponentesEtapas, ACountOfZeroKeepsTheOldEntriesAndAMissingCountEmptiesThem) {
    Modelo m = ConComponentesYEtapas();
    // Each section in a file of its own: a key on the last line is found only by a search
    // that starts on it or whose first key is its own.
    Escribir(ruta, "*****COMPONENTES*****\r\nCMP_NUM = 0\r\n*****ETAPAS*****\r\nETA_NUM = 0\r\n");
    Escribir(Ruta("etapas.tpa"), "*****ETAPAS*****\r\nETA_NUM = 0\r\n");
    CargarComponentes(m, ruta);
    CargarEtapas(m, Ruta("etapas.tpa"));
    EXPECT_EQ(m.NumComponentes, ValorLibre(0.0));
    EXPECT_EQ(m.Componentes.Cota(), 2) << "old entries stay behind a count of 0";
    EXPECT_EQ(m.Componentes(1).Nombre, "Bombas");
    EXPECT_EQ(m.Etapas.Cota(), 2);

    Escribir(ruta, "*****REQUERIMIENTOS*****\r\nREQ_NUMR = 0\r\n");
    CargarComponentes(m, ruta);
    CargarEtapas(m, ruta);
    EXPECT_EQ(m.NumComponentes, ValorLibre(0.0));
    EXPECT_EQ(m.Componentes.Cota(), 1) << "only a missing key empties the array";
    EXPECT_EQ(m.Componentes(1).Nombre, "");
    EXPECT_EQ(m.Etapas.Cota(), 1);
    EXPECT_EQ(m.Etapas(1), "");
}

TEST_F(ComponentesEtapas, AnInvalidFileIsShownAndLeavesNoEntries) {
    Modelo m = ConComponentesYEtapas();
    Escribir(ruta, "*****COMPONENTES*****\r\nCMP_NUM = dos\r\n");
    Escribir(Ruta("etapas.tpa"), "*****ETAPAS*****\r\nETA_NUM = 99999\r\n");
    mensajes.Esperar(kError, kNoValido + "No se ha podido cargar el árbol de componentes.");
    mensajes.Esperar(kError, kNoValido + "No se ha podido cargar la plantilla de etapas.");
    CargarComponentes(m, ruta);
    CargarEtapas(m, Ruta("etapas.tpa"));
    EXPECT_EQ(m.NumComponentes, ValorLibre(0.0));
    EXPECT_EQ(m.Componentes.Cota(), 1);
    EXPECT_EQ(m.NumEtapas, ValorLibre(0.0));
    EXPECT_EQ(m.Etapas.Cota(), 1);
    EXPECT_TRUE(std::filesystem::exists(Ruta("modelo.$$$")))
        << "the temporary file stays behind a failed read";
}

TEST_F(ComponentesEtapas, AZeroCountOnTheLastLineOfAWholeModelIsFoundAfterTheComponents) {
    Modelo m = ConComponentesYEtapas();
    m.NumEtapas = 0;
    GuardarModelo(m, ruta, false);
    Modelo leido;
    leido.Etapas.Redimensionar(3);
    CargarModelo(leido, ruta);
    EXPECT_EQ(leido.NumEtapas, ValorLibre(0.0));
    EXPECT_EQ(leido.Etapas.Cota(), 3) << "read as 0, not as missing";
}

TEST_F(ComponentesEtapas, TheSecondReadOfTheCountFindsNothingAtTheEndOfTheFile) {
    // A template whose count of 0 stands on its last line: the first read leaves the file at
    // its end, where the second read gives the empty text, which is no integer.
    Modelo m;
    Escribir(ruta, "*****COMPONENTES*****\r\nCMP_NUM = 0\r\n");
    mensajes.Esperar(kError, kNoValido + "No se ha podido cargar el árbol de componentes.");
    CargarComponentes(m, ruta);
    EXPECT_EQ(m.Componentes.Cota(), 1);
}

TEST_F(ComponentesEtapas, AMissingSubcomponentCountIsAConversionFailure) {
    Modelo m;
    Escribir(ruta, "*****COMPONENTES*****\r\nCMP_NUM =  1 \r\nCMP_C1_NOM = Sin cuenta\r\n");
    mensajes.Esperar(kError, kNoValido + "No se ha podido cargar el árbol de componentes.");
    CargarComponentes(m, ruta);
    EXPECT_EQ(m.NumComponentes, ValorLibre(0.0));
}

TEST_F(ComponentesEtapas, AFailureInsideAModelLoadGoesOnWithTheNextSection) {
    Escribir(ruta, "*****MODELO*****\r\nMOD_NOM = M\r\n*****COMPONENTES*****\r\nCMP_NUM = x\r\n"
                   "*****ETAPAS*****\r\nETA_NUM =  1 \r\nETA_NOM1 = Uso\r\n");
    mensajes.Esperar(kError, kNoValido + "No se ha podido cargar el árbol de componentes.");
    Modelo m;
    CargarModelo(m, ruta);
    EXPECT_EQ(m.Nombre, "M");
    EXPECT_EQ(m.Etapas(1), "Uso");
}

TEST_F(ComponentesEtapas, AWriterFailureGoesUpAndTheModelKeepsItsFile) {
    Modelo m = ConComponentesYEtapas();
    GuardarModelo(m, ruta, false);
    const std::string anterior = Contenido(ruta);
    m.NumComponentes = 3; // the count governs, and the array holds two
    m.Modificado = true;
    EXPECT_THROW(GuardarModelo(m, ruta, false), ErrorEjecucion);
    EXPECT_TRUE(m.Modificado);
    EXPECT_EQ(Contenido(ruta), anterior);
}

TEST_F(ComponentesEtapas, AStandaloneSectionIsAScrambledFile) {
    const Modelo m = ConComponentesYEtapas();
    GuardarEtapas(m, Ruta("etapas.tpa"), false);
    EXPECT_EQ(LineasPlanas(Contenido(Ruta("etapas.tpa"))).front(), "*****ETAPAS*****");
    Modelo leido;
    CargarEtapas(leido, Ruta("etapas.tpa"));
    EXPECT_EQ(leido.Etapas(1), "Diseño");
    EXPECT_FALSE(std::filesystem::exists(Ruta("etapas.$$$")));
}

} // namespace
} // namespace vadro
