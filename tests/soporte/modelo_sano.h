#pragma once

#include "core/compilation/informe_errores.h"
#include "core/core/registros.h"
#include "soporte/componentes_etapas.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vadro::pruebas {

// Small models built through the records, complete unless a test spoils them: every sibling
// set weighted evenly by pairwise comparison with a ratio of 0, every indicator with a sound
// continuous function.

inline FuncionValor Continua() {
    FuncionValor f;
    f.Tipo = FuncionContinua;
    f.Unidades = "m3";
    f.XMin = "<0";
    f.XMax = "=100";
    f.RMin = 0.0;
    f.RMax = 100.0;
    f.C = 50.0;
    f.K = 0.5;
    f.P = 2.0;
    return f;
}

// Counts and arrays as the file reader leaves them: the count as a number, the array sized,
// every row of comparisons all ones.
template <typename Nodo>
void Colgar(ValorLibre& cuenta, Arreglo<Nodo>& arreglo, std::vector<Nodo> nodos) {
    cuenta = static_cast<int>(nodos.size());
    arreglo.Redimensionar(static_cast<int>(nodos.size()));
    for (std::size_t k = 0; k < nodos.size(); ++k) {
        Nodo& nodo = arreglo(static_cast<int>(k) + 1);
        nodo = std::move(nodos[k]);
        nodo.Peso = 100.0 / static_cast<double>(nodos.size());
        nodo.PesoAuxiliar = 0.0;
        nodo.Saaty.Redimensionar(static_cast<int>(nodos.size()));
        std::fill(nodo.Saaty.begin(), nodo.Saaty.end(), ValorLibre(1.0));
    }
}

inline NodoIndicador Indicador(const std::string& nombre, FuncionValor funcion = Continua()) {
    NodoIndicador indicador;
    indicador.Nombre = nombre;
    indicador.Funcion = std::move(funcion);
    return indicador;
}

inline NodoSubcriterio Subcriterio(const std::string& nombre,
                                   std::vector<NodoIndicador> indicadores) {
    NodoSubcriterio subcriterio;
    subcriterio.Nombre = nombre;
    Colgar(subcriterio.NumIndicadores, subcriterio.Indicadores, std::move(indicadores));
    return subcriterio;
}

inline NodoCriterio Criterio(const std::string& nombre, std::vector<NodoIndicador> indicadores,
                             std::vector<NodoSubcriterio> subcriterios = {}) {
    NodoCriterio criterio;
    criterio.Nombre = nombre;
    Colgar(criterio.NumIndicadores, criterio.Indicadores, std::move(indicadores));
    Colgar(criterio.NumSubcriterios, criterio.Subcriterios, std::move(subcriterios));
    return criterio;
}

inline NodoRequerimiento Requerimiento(const std::string& nombre,
                                       std::vector<NodoCriterio> criterios) {
    NodoRequerimiento requerimiento;
    requerimiento.Nombre = nombre;
    Colgar(requerimiento.NumCriterios, requerimiento.Criterios, std::move(criterios));
    return requerimiento;
}

// A model with these requirements, one stage and one component with two options; it uses
// the subcriteria level when some criterion has subcriteria.
inline Modelo ModeloCon(std::vector<NodoRequerimiento> requerimientos) {
    Modelo modelo;
    Colgar(modelo.NumRequerimientos, modelo.Requerimientos, std::move(requerimientos));
    modelo.ConSubcriterios = HaySubcriterios(modelo);
    PonerEtapas(modelo, {"Construcción"});
    PonerComponentes(modelo, {{"Estructura", {"Hormigón", "Acero"}}});
    return modelo;
}

// Two requirements of two criteria of two indicators each: nothing to say about it.
inline Modelo ModeloCorrecto() {
    const auto criterio = [](const std::string& nombre) {
        return Criterio(nombre, {Indicador("Coste"), Indicador("Plazo")});
    };
    return ModeloCon({Requerimiento("Económico", {criterio("Inversión"), criterio("Explotación")}),
                      Requerimiento("Social", {criterio("Empleo"), criterio("Seguridad")})});
}

// Expected report lines written as the report reads, one per line, with " | " and the key
// after the lines that have one: the text with keys of those lines ("line<TAB>key"), so that
// a failing comparison shows a line-by-line difference. The line break right after the
// opening of a raw literal is dropped.
inline std::string Esperado(std::string_view tabla) {
    if (tabla.starts_with('\n')) {
        tabla.remove_prefix(1);
    }
    std::string texto;
    while (!tabla.empty()) {
        const std::size_t fin = tabla.find('\n');
        std::string_view linea = tabla.substr(0, fin);
        std::string_view clave;
        if (const std::size_t barra = linea.find(" | "); barra != std::string_view::npos) {
            clave = linea.substr(barra + 3);
            linea = linea.substr(0, barra);
        }
        texto.append(linea).append("\t").append(clave).append("\n");
        tabla.remove_prefix(fin == std::string_view::npos ? tabla.size() : fin + 1);
    }
    return texto;
}

} // namespace vadro::pruebas
