#include "core/core/registros.h"

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

TEST(Registros, NivelNodoReadsTheFirstLetter) {
    EXPECT_EQ(NivelNodo("R1"), 1);
    EXPECT_EQ(NivelNodo("C 12"), 2);
    EXPECT_EQ(NivelNodo("S1C2R1"), 3);
    EXPECT_EQ(NivelNodo("I3S1C2R1"), 4);
    EXPECT_EQ(NivelNodo("M"), 5);
    EXPECT_EQ(NivelNodo("P"), 6);
    EXPECT_EQ(NivelNodo("A"), 7);
    EXPECT_EQ(NivelNodo("E"), 8);
    EXPECT_EQ(NivelNodo("Co1"), 2) << "only the first letter counts";
    EXPECT_EQ(NivelNodo("x"), 0);
    EXPECT_EQ(NivelNodo(""), 0);
}

} // namespace
} // namespace vadro
