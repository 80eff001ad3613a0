#pragma once

#include "core/core/arreglo.h"
#include "core/core/valor_libre.h"

#include <array>
#include <cstdint>
#include <string>

namespace vadro {

// Kinds of value function, as stored in `Tipo`.
enum TipoFuncion : int32_t {
    FuncionNinguna = 0,
    FuncionContinua = 1,
    FuncionEscalon = 2,
    FuncionOptativos = 3,
    FuncionPuntuacion = 4,
};

// Kinds of scoring element.
enum TipoPuntuacion : int32_t {
    PuntuacionBooleana = 0,
    PuntuacionNumerica = 1,
};

// Weighting method of a sibling set, as stored in `Calculo`.
enum MetodoCalculo : int32_t {
    CalculoSaaty = 0,
    CalculoDirecto = 1,
};

struct Escalon {
    ValorLibre ValorInicial; // a sign character followed by the number
    ValorLibre ValorFinal;
    ValorLibre Valor;
    bool operator==(const Escalon&) const = default;
};

struct Puntuacion {
    int32_t Tipo = PuntuacionBooleana;
    std::string Nombre;
    ValorLibre Minimo;
    ValorLibre Maximo;
    ValorLibre ValorMin; // the score for the answer no, or at the minimum
    ValorLibre ValorMax; // the score for the answer yes, or at the maximum
    bool operator==(const Puntuacion&) const = default;
};

// What every value function holds, whether it is an indicator's or an optional indicator's:
// one editor serves both through it.
struct FuncionComun {
    std::string Nombre;
    std::string Clave;
    int32_t Tipo = FuncionNinguna;
    std::string Unidades;
    ValorLibre XMin; // "<" or "=" followed by the number, when defined
    ValorLibre XMax; // ">" or "=" followed by the number, when defined
    ValorLibre RMin;
    ValorLibre RMax;
    ValorLibre C;
    ValorLibre K;
    ValorLibre P;
    Arreglo<Escalon> Escalones;
    bool operator==(const FuncionComun&) const = default;
};

// The function of an optional indicator: only the kinds none, continuous and step.
struct FuncionOptativo : FuncionComun {
    bool operator==(const FuncionOptativo&) const = default;
};

struct IndicadorOptativo {
    std::string Nombre;
    FuncionOptativo Funcion;
    bool operator==(const IndicadorOptativo&) const = default;
};

struct FuncionValor : FuncionComun {
    int16_t OptativoSeleccionado = 0;
    Arreglo<IndicadorOptativo> Optativos;
    Arreglo<Puntuacion> Puntuaciones;
    bool operator==(const FuncionValor&) const = default;
};

// The head that the four levels of the requirements tree share.
struct CabeceraNodo {
    std::string Clave;
    std::string Nombre;
    std::string Descripcion;
    int32_t Calculo = CalculoSaaty;
    Arreglo<ValorLibre> Saaty; // this node's row of its sibling set's pairwise matrix
    ValorLibre Directo;
    ValorLibre PesoAuxiliar; // consistency ratio of the sibling set; never stored in a file
    ValorLibre Peso;         // per cent of the sibling set, unrounded
    bool operator==(const CabeceraNodo&) const = default;
};

struct NodoIndicador : CabeceraNodo {
    FuncionValor Funcion;
    bool operator==(const NodoIndicador&) const = default;
};

struct NodoSubcriterio : CabeceraNodo {
    ValorLibre NumIndicadores;
    Arreglo<NodoIndicador> Indicadores;
    bool operator==(const NodoSubcriterio&) const = default;
};

// A criterion may hold direct indicators and subcriteria at once; both lists are kept.
struct NodoCriterio : CabeceraNodo {
    ValorLibre NumIndicadores;
    Arreglo<NodoIndicador> Indicadores;
    ValorLibre NumSubcriterios;
    Arreglo<NodoSubcriterio> Subcriterios;
    bool operator==(const NodoCriterio&) const = default;
};

struct NodoRequerimiento : CabeceraNodo {
    ValorLibre NumCriterios;
    Arreglo<NodoCriterio> Criterios;
    bool operator==(const NodoRequerimiento&) const = default;
};

struct Subcomponente {
    std::string Clave;
    std::string Nombre;
    bool operator==(const Subcomponente&) const = default;
};

struct Componente {
    std::string Clave;
    std::string Nombre;
    int16_t NumSubcomponentes = 0;
    Arreglo<Subcomponente> Subcomponentes;
    bool operator==(const Componente&) const = default;
};

struct Modelo {
    std::string Clave; // never assigned: part of the "MOD" keys, always empty
    std::string Aplicacion;
    std::string Archivo;
    std::string Nombre;
    std::string Fecha;
    std::string Autor;
    std::string Version;
    std::string Localizacion;
    std::string Referencia;
    std::string Descripcion;
    std::string EjeX;
    std::string EjeY;
    std::string EjeZ;
    bool ConSubcriterios = false;
    ValorLibre NumRequerimientos;
    Arreglo<NodoRequerimiento> Requerimientos;
    ValorLibre NumComponentes;
    Arreglo<Componente> Componentes;
    ValorLibre NumEtapas;
    Arreglo<std::string> Etapas;
    std::string ArchivoCompilado;
    bool MostrarArbol = false;
    bool PermisoUsuarioVer = false;
    bool Modificado = false;
    bool Compilado = false;
    bool operator==(const Modelo&) const = default;
};

// A row of the requirements window's working table: what a tree node carries besides its
// name, reached through the node's `Tag`.
struct NodoEdicion {
    std::string Descripcion;
    bool PesosBorrados = false;
    Arreglo<ValorLibre> Saaty;
    ValorLibre Directo;
    ValorLibre Peso;
    ValorLibre PesoAuxiliar;
    int32_t Calculo = CalculoSaaty;
    FuncionValor Funcion;
    bool operator==(const NodoEdicion&) const = default;
};

// True if any criterion of the model has subcriteria. It walks the whole tree.
bool HaySubcriterios(const Modelo& modelo);

// The level of a tree node read from the first letter of its key; 0 for no key or a letter
// that names no level.
int NivelNodo(const std::string& clave);

} // namespace vadro
