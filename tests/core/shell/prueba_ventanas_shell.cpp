#include "core/shell/ventanas_shell.h"

#include <gtest/gtest.h>

namespace vadro {
namespace {

// Which label goes with which field is in the dump of the properties dialog.
TEST(Propiedades, LoadAndAcceptanceCopyTheTextsAsTheyStand) {
    Modelo m;
    m.Nombre = "Depuradora";
    m.Version = std::string("2");
    m.Aplicacion = "1.0.0";
    EXPECT_EQ(LeerPropiedades(m),
              (std::array<std::string, 7>{"Depuradora", "", "", "", "", "2", ""}));
    const std::array<std::string, 7> textos = {"",    "ayer por la tarde", "Sevilla", "Ana", "R-1",
                                               "v=3", "Una línea"};
    AceptarPropiedades(m, textos); // no field is required, and a date is any text
    EXPECT_EQ(
        std::tuple(m.Nombre, m.Fecha, m.Localizacion, m.Autor, m.Referencia, m.Version,
                   m.Descripcion, m.Aplicacion),
        std::tuple("", "ayer por la tarde", "Sevilla", "Ana", "R-1", "v=3", "Una línea", "1.0.0"));
    EXPECT_EQ(LeerPropiedades(m), textos);
}

TEST(Ejes, TitlesHintsAndDefaultsByAxis) {
    Modelo m;
    m.EjeY = "Objetivos";
    for (const auto& [eje, campo, defecto, ayuda] :
         {std::tuple{Eje::X, &Modelo::EjeX, "Tiempo",
                     "Definición de etapas del ciclo de vida afectadas por la decisión"},
          std::tuple{Eje::Y, &Modelo::EjeY, "Requerimientos",
                     "Definición de objetivos o condiciones a cumplir"},
          std::tuple{Eje::Z, &Modelo::EjeZ, "Componentes",
                     "Definición de componentes o elementos que describen la decisión"}}) {
        EXPECT_EQ(TituloPorDefecto(eje), std::string(defecto));
        EXPECT_EQ(AyudaEje(eje), std::string(ayuda));
        EXPECT_EQ(&TituloEje(m, eje), &(m.*campo));
    }
    EXPECT_EQ(LeerTitulosEjes(m),
              (std::array<std::string, 3>{"Tiempo", "Objetivos", "Componentes"}))
        << "a title the model lacks shows its default";
    AceptarTitulosEjes(m, {"Años", "", "Partes"}); // a field may be left empty
    EXPECT_EQ(std::tuple(m.EjeX, m.EjeY, m.EjeZ), std::tuple("Años", "", "Partes"));
    EXPECT_TRUE(m.Modificado);
}

TEST(Ejes, ThePictureAndItsButtonsStayInsideAndApart) {
    const auto dentro = [](const Rectangulo& r) {
        return r.x >= 0 && r.y >= 0 && r.x + r.ancho <= 1 && r.y + r.alto <= 1;
    };
    const auto solapan = [](const Rectangulo& a, const Rectangulo& b) {
        return a.x < b.x + b.ancho && b.x < a.x + a.ancho && a.y < b.y + b.alto &&
               b.y < a.y + a.alto;
    };
    std::vector<Rectangulo> botones = {BotonConfigurar()};
    for (Eje eje : kEjes) {
        const Segmento s = LineaEje(eje);
        const Rectangulo b = BotonEje(eje);
        EXPECT_TRUE(dentro(b));
        // Each button stands by the tip of its axis, nearer to it than to the origin.
        const double cx = b.x + b.ancho / 2;
        const double cy = b.y + b.alto / 2;
        const auto distancia = [&](double x, double y) {
            return (x - cx) * (x - cx) + (y - cy) * (y - cy);
        };
        EXPECT_LT(distancia(s.x2, s.y2), distancia(s.x1, s.y1));
        botones.push_back(b);
    }
    for (std::size_t i = 0; i < botones.size(); ++i) {
        for (std::size_t j = i + 1; j < botones.size(); ++j) {
            EXPECT_FALSE(solapan(botones[i], botones[j])) << i << " " << j;
        }
    }
}

TEST(Ejes, ScalingKeepsTheProportions) {
    const Rectangulo r{0.25, 0.5, 0.5, 0.25};
    EXPECT_EQ(Escalar(r, 400, 200), (std::array<int, 4>{100, 100, 200, 50}));
    EXPECT_EQ(Escalar(r, 800, 400), (std::array<int, 4>{200, 200, 400, 100}));
    // Rounded edges, so that neighbours never leave a gap or overlap by a pixel.
    EXPECT_EQ(Escalar({0.1, 0.1, 0.3, 0.3}, 15, 15), (std::array<int, 4>{2, 2, 4, 4}));
}

} // namespace
} // namespace vadro
