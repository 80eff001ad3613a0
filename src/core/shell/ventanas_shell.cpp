#include "core/shell/ventanas_shell.h"

#include <cmath>

namespace vadro {

const std::array<CampoPropiedad, kNumPropiedades>& CamposPropiedades() {
    static const std::array<CampoPropiedad, kNumPropiedades> campos = {{
        {"Nombre del modelo ................................", &Modelo::Nombre},
        {"Fecha de elaboración ....................................", &Modelo::Fecha},
        {"Localización ..................................................", &Modelo::Localizacion},
        {"Realizado por ..................................................", &Modelo::Autor},
        {"Referencia ..................................................", &Modelo::Referencia},
        {"Versión ..................................................", &Modelo::Version},
        {"Descripción:", &Modelo::Descripcion},
    }};
    return campos;
}

std::array<std::string, kNumPropiedades> LeerPropiedades(const Modelo& modelo) {
    std::array<std::string, kNumPropiedades> textos;
    for (std::size_t i = 0; i < textos.size(); ++i) {
        textos[i] = modelo.*CamposPropiedades()[i].campo;
    }
    return textos;
}

void AceptarPropiedades(Modelo& modelo, const std::array<std::string, kNumPropiedades>& textos) {
    for (std::size_t i = 0; i < textos.size(); ++i) {
        modelo.*CamposPropiedades()[i].campo = textos[i];
    }
}

namespace {

std::size_t Indice(Eje eje) {
    return static_cast<std::size_t>(eje);
}

} // namespace

const char* TituloPorDefecto(Eje eje) {
    static const char* const titulos[] = {"Tiempo", "Requerimientos", "Componentes"};
    return titulos[Indice(eje)];
}

const std::string& TituloEje(const Modelo& modelo, Eje eje) {
    switch (eje) {
    case Eje::X:
        return modelo.EjeX;
    case Eje::Y:
        return modelo.EjeY;
    case Eje::Z:
        break;
    }
    return modelo.EjeZ;
}

std::array<std::string, 3> LeerTitulosEjes(const Modelo& modelo) {
    std::array<std::string, 3> titulos;
    for (Eje eje : kEjes) {
        const std::string& titulo = TituloEje(modelo, eje);
        titulos[Indice(eje)] = titulo.empty() ? TituloPorDefecto(eje) : titulo;
    }
    return titulos;
}

void AceptarTitulosEjes(Modelo& modelo, const std::array<std::string, 3>& titulos) {
    modelo.EjeX = titulos[0];
    modelo.EjeY = titulos[1];
    modelo.EjeZ = titulos[2];
    modelo.Modificado = true;
}

const char* AyudaEje(Eje eje) {
    static const char* const ayudas[] = {
        "Definición de etapas del ciclo de vida afectadas por la decisión",
        "Definición de objetivos o condiciones a cumplir",
        "Definición de componentes o elementos que describen la decisión",
    };
    return ayudas[Indice(eje)];
}

// The picture: a corner seen in perspective. The origin stands left of the centre and low;
// X runs to the right, Y up, Z towards the viewer, down and to the left.
namespace {
constexpr double kOrigenX = 0.40;
constexpr double kOrigenY = 0.62;
} // namespace

Segmento LineaEje(Eje eje) {
    switch (eje) {
    case Eje::X:
        return {kOrigenX, kOrigenY, 0.94, kOrigenY};
    case Eje::Y:
        return {kOrigenX, kOrigenY, kOrigenX, 0.08};
    case Eje::Z:
        break;
    }
    return {kOrigenX, kOrigenY, 0.10, 0.92};
}

Rectangulo BotonEje(Eje eje) {
    switch (eje) {
    case Eje::X:
        return {0.66, 0.65, 0.28, 0.09};
    case Eje::Y:
        return {0.43, 0.08, 0.28, 0.09};
    case Eje::Z:
        break;
    }
    return {0.19, 0.82, 0.28, 0.09};
}

Rectangulo BotonConfigurar() {
    return {0.80, 0.88, 0.17, 0.08};
}

std::array<int, 4> Escalar(const Rectangulo& r, int ancho, int alto) {
    const auto redondear = [](double v) { return static_cast<int>(std::lround(v)); };
    const int x = redondear(r.x * ancho);
    const int y = redondear(r.y * alto);
    return {x, y, redondear((r.x + r.ancho) * ancho) - x, redondear((r.y + r.alto) * alto) - y};
}

} // namespace vadro
