#include "core/core/registros.h"
#include "tabla_funciones.h"

#include <gtest/gtest.h>

namespace vadro {
namespace {

Modelo ModeloConCriterios(const std::vector<ValorLibre>& subcriteriosPorCriterio) {
    Modelo m;
    m.NumRequerimientos = 1;
    m.Requerimientos.Redimensionar(1);
    auto& r = m.Requerimientos(1);
    r.NumCriterios = static_cast<int>(subcriteriosPorCriterio.size());
    r.Criterios.Redimensionar(static_cast<int>(subcriteriosPorCriterio.size()));
    for (int c = 1; c <= r.Criterios.Cota(); ++c) {
        r.Criterios(c).NumSubcriterios = subcriteriosPorCriterio[static_cast<std::size_t>(c - 1)];
    }
    return m;
}

TEST(Registros, HaySubcriteriosLooksAtEveryCriterion) {
    EXPECT_FALSE(HaySubcriterios(Modelo{}));
    Modelo cero;
    cero.NumRequerimientos = 0;
    EXPECT_FALSE(HaySubcriterios(cero));
    EXPECT_FALSE(HaySubcriterios(ModeloConCriterios({ValorLibre(), 0})));
    EXPECT_TRUE(HaySubcriterios(ModeloConCriterios({0, ValorLibre(), 2})));
}

// Only the first letter of a key counts.
TEST(Registros, NivelNodoReadsTheFirstLetter) {
    pruebas::Tabular("nucleo/niveles.txt", {{"NivelNodo", [](const pruebas::Argumentos& a) {
                                                 return std::to_string(NivelNodo(a.at(0)));
                                             }}});
}

} // namespace
} // namespace vadro
