#pragma once

#include "core/core/registros.h"
#include "soporte/componentes_etapas.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace vadro::pruebas {

// Value functions of every kind, each sound for the checks, with limits that already follow
// their steps, so that a save and a load give the same records back. Their key is that of a
// first indicator.

inline FuncionValor Continua(const std::string& clave = "I1C1R1") {
    FuncionValor f;
    f.Clave = clave;
    f.Tipo = FuncionContinua;
    f.Unidades = std::string("m");
    f.XMin = "<0";
    f.XMax = "=100";
    f.RMin = 0.0;
    f.RMax = 100.0;
    f.C = 50.0;
    f.K = 0.5;
    f.P = 2.0;
    return f;
}

template <typename Funcion> Funcion DeEscalones() {
    Funcion f;
    f.Tipo = FuncionEscalon;
    f.Unidades = "h";
    f.XMin = "<0";
    f.XMax = ">90";
    f.RMin = 0.0;
    f.RMax = 90.0;
    f.Escalones.Redimensionar(3);
    f.Escalones(1) = {"=0", "<30", 0.0};
    f.Escalones(2) = {"=30", "=60", 0.5};
    f.Escalones(3) = {">60", "=90", 1.0};
    return f;
}

inline FuncionValor DePuntuacion() {
    FuncionValor f = Continua();
    f.Tipo = FuncionPuntuacion;
    f.Puntuaciones.Redimensionar(2);
    f.Puntuaciones(1) = {PuntuacionBooleana, "¿Licencia?", {}, {}, 0.0, 2.0};
    f.Puntuaciones(2) = {PuntuacionNumerica, "Años", 1.0, 20.0, 0.5, 8.0};
    return f;
}

// The options' keys are set, as writing sets them.
inline FuncionValor DeOptativos(const std::string& clave) {
    FuncionValor f;
    f.Clave = clave;
    f.Tipo = FuncionOptativos;
    f.OptativoSeleccionado = 1;
    f.Optativos.Redimensionar(2);
    f.Optativos(1).Nombre = "Caudal";
    f.Optativos(1).Funcion.Tipo = FuncionContinua;
    f.Optativos(1).Funcion.K = 0.25;
    f.Optativos(2) = {"Presión", DeEscalones<FuncionOptativo>()};
    f.Optativos(1).Funcion.Clave = "O1" + clave;
    f.Optativos(2).Funcion.Clave = "O2" + clave;
    return f;
}

// Small models built through the records, complete unless a test spoils them: every sibling
// set weighted evenly by pairwise comparison with a ratio of 0, every indicator with a sound
// continuous function.

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

// A large sound model for the benchmarks: ten indicators to a criterion, ten criteria to a
// requirement; even criteria hold their indicators, odd ones two subcriteria of five; the
// functions continuous, step and scoring in turn. With a first set, the first criterion holds
// that many indicators and the last criteria give way to it.
inline Modelo ModeloGenerado(int indicadores, int primerConjunto = 0) {
    const FuncionValor funciones[] = {Continua(), DeEscalones<FuncionValor>(), DePuntuacion()};
    int n = 0;
    const auto conjunto = [&](int cuantos) {
        std::vector<NodoIndicador> nodos;
        for (int k = 0; k < cuantos; ++k, ++n) {
            nodos.push_back(Indicador("Indicador " + std::to_string(n + 1), funciones[n % 3]));
        }
        return nodos;
    };
    const int criterios = (indicadores - primerConjunto) / 10 + (primerConjunto > 0 ? 1 : 0);
    std::vector<NodoRequerimiento> requerimientos;
    for (int c = 1; c <= criterios / 10 * 10; c += 10) {
        std::vector<NodoCriterio> hermanos;
        for (int numero = c; numero < c + 10; ++numero) {
            const std::string nombre = "Criterio " + std::to_string(numero);
            if (numero == 1 && primerConjunto > 0) {
                hermanos.push_back(Criterio(nombre, conjunto(primerConjunto)));
            } else if (numero % 2 == 0) {
                hermanos.push_back(Criterio(nombre, conjunto(10)));
            } else {
                hermanos.push_back(Criterio(
                    nombre, {}, {Subcriterio("A", conjunto(5)), Subcriterio("B", conjunto(5))}));
            }
        }
        requerimientos.push_back(
            Requerimiento("Requerimiento " + std::to_string(c / 10 + 1), std::move(hermanos)));
    }
    return ModeloCon(std::move(requerimientos));
}

// Every field of a model's identity filled, with letters of the Western code page.
inline void PonerIdentidad(Modelo& m) {
    m.Aplicacion = "1.0.0";
    m.Nombre = "Depuradora de Añón";
    m.Fecha = "22/11/2026";
    m.Autor = "Begoña";
    m.Version = std::string("3");
    m.Localizacion = "Zaragoza";
    m.Referencia = "REF-1";
    m.Descripcion = "Evaluación € ampliación";
    m.ArchivoCompilado = "C:\\modelos\\a.vdc";
    m.EjeX = "Tiempo";
    m.EjeY = "Requerimientos";
    m.EjeZ = "Componentes";
    m.PermisoUsuarioVer = true;
}

} // namespace vadro::pruebas
