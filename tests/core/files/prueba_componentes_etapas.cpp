#include "core/files/componentes_etapas.h"
#include "core/files/modelo_archivo.h"
#include "core/files/proteccion.h"
#include "soporte/acta.h"
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

// A complete model round-trips, its values trimmed on reading; a standalone section is a
// scrambled file of its own; a writer failure goes up and the model keeps its file.
TEST_F(ComponentesEtapas, ACompleteModelAndAStandaloneSectionRoundTrip) {
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
    GuardarEtapas(m, Ruta("etapas.tpa"), false);
    EXPECT_EQ(LineasPlanas(Contenido(Ruta("etapas.tpa"))).front(), "*****ETAPAS*****");
    Modelo etapas;
    CargarEtapas(etapas, Ruta("etapas.tpa"));
    EXPECT_EQ(etapas.Etapas(1), "Diseño");
    EXPECT_FALSE(std::filesystem::exists(Ruta("etapas.$$$")));
    const std::string anterior = Contenido(ruta);
    m.NumComponentes = 3; // the count governs, and the array holds two
    m.Modificado = true;
    EXPECT_THROW(GuardarModelo(m, ruta, false), ErrorEjecucion);
    EXPECT_TRUE(m.Modificado);
    EXPECT_EQ(Contenido(ruta), anterior);
}

// What a read leaves of the entries of a model that held two of each: a count of 0 keeps the
// old entries, a missing count empties them; a count that is no number, and a count of 0 on
// the last line read twice (the second read finds the empty text), are shown as an invalid
// file and leave no entries. Each section stands in a file of its own, so a key on the last
// line is found only by a search that starts on it or whose first key is its own.
TEST_F(ComponentesEtapas, WhatAReadLeavesOfTheEntries) {
    pruebas::Acta acta;
    for (const pruebas::Caso& caso : pruebas::Casos("archivos/lectura_componentes_etapas.txt")) {
        const bool etapas = caso.campos.at(0) == "stages";
        Modelo m = ConComponentesYEtapas();
        Escribir(ruta, caso.campos.at(1));
        etapas ? CargarEtapas(m, ruta) : CargarComponentes(m, ruta);
        acta.Fila(caso.texto, etapas ? "'" + m.NumEtapas.Texto() + "' in " +
                                           std::to_string(m.Etapas.Cota()) + ", first '" +
                                           m.Etapas(1) + "'"
                                     : "'" + m.NumComponentes.Texto() + "' in " +
                                           std::to_string(m.Componentes.Cota()) + ", first '" +
                                           m.Componentes(1).Nombre + "'");
    }
    acta.Comparar("archivos/lectura_componentes_etapas.txt");
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

TEST_F(ComponentesEtapas, AFailureInsideAModelLoadGoesOnWithTheNextSection) {
    Escribir(ruta, "*****MODELO*****\r\nMOD_NOM = M\r\n*****COMPONENTES*****\r\nCMP_NUM = x\r\n"
                   "*****ETAPAS*****\r\nETA_NUM =  1 \r\nETA_NOM1 = Uso\r\n");
    mensajes.Esperar("VADRO: Error.", "Fichero no válido o formato de datos incorrecto.\r\n"
                                      "No se ha podido cargar el árbol de componentes.");
    Modelo m;
    CargarModelo(m, ruta);
    EXPECT_EQ(m.Nombre, "M");
    EXPECT_EQ(m.Etapas(1), "Uso");
}

} // namespace
} // namespace vadro
