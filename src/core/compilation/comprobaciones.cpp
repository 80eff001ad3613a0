#include "core/compilation/comprobaciones.h"

#include "core/core/codigo_pagina.h"
#include "core/core/comunes.h"

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <numeric>
#include <optional>
#include <string_view>
#include <vector>

namespace vadro {

namespace {

constexpr const char* kSinErrores = "     <sin errores>";
constexpr const char* kNivelRequerimientos = "** nivel de requerimientos **";
constexpr const char* kNivelCriterios = "** nivel de criterios **";
constexpr const char* kNivelSubcriterios = "** nivel de subcriterios **";
constexpr const char* kNivelIndicadores = "** nivel de indicadores **";
constexpr const char* kNivelComponentes = "** nivel de componentes **";
constexpr const char* kNivelOpciones = "** nivel de opciones **";

constexpr const char* kError = "     Error: ";
constexpr const char* kAviso = "     Aviso: ";

std::string N(int numero) {
    return std::to_string(numero);
}

// An error key: the key word, a blank and the place.
std::string Clave(std::string_view palabra, std::string_view lugar) {
    return Unir({palabra, " ", lugar});
}

// A finding on one node: "Error: " or "Aviso: ", "el nodo ", its label and what is said.
std::string SobreNodo(std::string_view inicio, std::string_view etiqueta, std::string_view texto) {
    return Unir({inicio, "el nodo ", etiqueta, texto});
}

std::string EtiquetaR(int r) {
    return Unir({"R", N(r)});
}
std::string EtiquetaC(int c, int r) {
    return Unir({"C", N(c), EtiquetaR(r)});
}
std::string EtiquetaS(int s, int c, int r) {
    return Unir({"S", N(s), EtiquetaC(c, r)});
}

// A level of a check: its line, its findings, the all-clear when the findings added no
// error (a level with warnings only gets it as well), and the blank line that closes it.
template <typename Hallazgos>
void Nivel(InformeErrores& informe, const char* linea, Hallazgos&& hallazgos) {
    informe.Agregar(linea);
    const int16_t errores = informe.Errores();
    hallazgos();
    if (informe.Errores() == errores) {
        informe.Agregar(kSinErrores);
    }
    informe.Agregar("");
}

// A check whose whole body is one count that must hold something; its finding, of whatever
// kind, stands instead of the all-clear.
void ComprobarCuenta(InformeErrores& informe, const char* encabezado, const ValorLibre& cuenta,
                     const char* hallazgo, const char* clave) {
    informe.Agregar(encabezado);
    if (HayElementos(cuenta)) {
        informe.Agregar(kSinErrores);
    } else {
        informe.Agregar(hallazgo, clave);
    }
    informe.Agregar("");
}

// The walks of the tree go by the counts, r ascending and c within it.
template <typename F> void ParaCadaRequerimiento(const Modelo& modelo, F&& f) {
    const int cuenta = modelo.NumRequerimientos.Cuenta();
    for (int r = 1; r <= cuenta; ++r) {
        f(r, modelo.Requerimientos(r));
    }
}

template <typename F> void ParaCadaCriterio(const Modelo& modelo, F&& f) {
    ParaCadaRequerimiento(modelo, [&](int r, const NodoRequerimiento& requerimiento) {
        const int cuenta = requerimiento.NumCriterios.Cuenta();
        for (int c = 1; c <= cuenta; ++c) {
            f(r, c, requerimiento.Criterios(c));
        }
    });
}

template <typename F> void ParaCadaSubcriterio(const Modelo& modelo, F&& f) {
    ParaCadaCriterio(modelo, [&](int r, int c, const NodoCriterio& criterio) {
        const int cuenta = criterio.NumSubcriterios.Cuenta();
        for (int s = 1; s <= cuenta; ++s) {
            f(r, c, s, criterio.Subcriterios(s));
        }
    });
}

// The indicators of one subcriterion, or those hanging from a criterion itself.
struct ConjuntoIndicadores {
    std::string padre; // the parent's label: "S1C2R1" or "C2R1"
    bool deSubcriterio;
    int cuenta;
    const Arreglo<NodoIndicador>& indicadores;

    std::string Etiqueta(int i) const { return Unir({"I", N(i), padre}); }
};

// Within a criterion the indicators of its subcriteria come first, then its own; both by
// their counts, whether the model uses subcriteria or not.
template <typename F> void ParaCadaConjuntoIndicadores(const Modelo& modelo, F&& f) {
    ParaCadaCriterio(modelo, [&](int r, int c, const NodoCriterio& criterio) {
        const int subcriterios = criterio.NumSubcriterios.Cuenta();
        for (int s = 1; s <= subcriterios; ++s) {
            const NodoSubcriterio& subcriterio = criterio.Subcriterios(s);
            f(ConjuntoIndicadores{EtiquetaS(s, c, r), true, subcriterio.NumIndicadores.Cuenta(),
                                  subcriterio.Indicadores});
        }
        f(ConjuntoIndicadores{EtiquetaC(c, r), false, criterio.NumIndicadores.Cuenta(),
                              criterio.Indicadores});
    });
}

template <typename F> void ParaCadaIndicador(const Modelo& modelo, F&& f) {
    ParaCadaConjuntoIndicadores(modelo, [&](const ConjuntoIndicadores& conjunto) {
        for (int i = 1; i <= conjunto.cuenta; ++i) {
            f(conjunto, i, conjunto.indicadores(i));
        }
    });
}

// ---- repeated names

// Every pair p < q of siblings that bear one name, p ascending and q ascending within it.
// Sorting the names first keeps a large set from comparing every name with every other.
template <typename NombreDe, typename F>
void ParaCadaParRepetido(int cuenta, NombreDe&& nombreDe, F&& f) {
    if (cuenta < 2) {
        return;
    }
    const auto n = static_cast<std::size_t>(cuenta);
    std::vector<std::string> nombres(n);
    for (std::size_t k = 0; k < n; ++k) {
        // Upper case, accents included: "Agua", "AGUA" and "agua" are one name.
        nombres[k] = EnMayusculas(nombreDe(static_cast<int>(k) + 1));
    }
    std::vector<std::size_t> orden(n);
    std::iota(orden.begin(), orden.end(), std::size_t{0});
    std::stable_sort(orden.begin(), orden.end(),
                     [&](std::size_t a, std::size_t b) { return nombres[a] < nombres[b]; });
    // For each sibling, where its later namesakes begin and end in the sorted order.
    std::vector<std::size_t> desde(n);
    std::vector<std::size_t> hasta(n);
    for (std::size_t inicio = 0; inicio < n;) {
        std::size_t fin = inicio + 1;
        while (fin < n && nombres[orden[fin]] == nombres[orden[inicio]]) {
            ++fin;
        }
        for (std::size_t k = inicio; k < fin; ++k) {
            desde[orden[k]] = k + 1;
            hasta[orden[k]] = fin;
        }
        inicio = fin;
    }
    for (std::size_t p = 0; p < n; ++p) {
        for (std::size_t k = desde[p]; k < hasta[p]; ++k) {
            f(static_cast<int>(p) + 1, static_cast<int>(orden[k]) + 1);
        }
    }
}

std::string MismoNombre(const std::string& p, const std::string& q, const std::string& nombre) {
    return Unir({kError, "los nodos ", p, " y ", q, " tienen el mismo nombre (", nombre, ")"});
}

// The indicators of a subcriterion say it with a colon and no brackets.
std::string MismoNombreConDosPuntos(const std::string& p, const std::string& q,
                                    const std::string& nombre) {
    return Unir({kError, "los nodos ", p, " y ", q, " tienen el mismo nombre: ", nombre});
}

// ---- weights

bool PesoNulo(const CabeceraNodo& nodo) {
    return nodo.Peso.EsVacio();
}

void InformarPesoNulo(InformeErrores& informe, const CabeceraNodo& nodo,
                      const std::string& etiqueta) {
    if (PesoNulo(nodo)) {
        informe.Agregar(SobreNodo(kError, etiqueta, " tiene peso nulo"), Clave("PesNul", etiqueta));
    }
}

// A ratio that was never computed, as after a load, counts as 0.
double Razon(const ValorLibre& pesoAuxiliar) {
    return pesoAuxiliar.EsVacio() ? 0.0 : pesoAuxiliar.Numero();
}

// What one sibling set's matrix says about itself, read from its first node, since its
// values are alike on every sibling. Direct sets are never inconsistent.
enum class EstadoMatriz { Correcta, Vacia, Inconsistente };

EstadoMatriz Estado(const CabeceraNodo& primero) {
    if (PesoNulo(primero)) {
        return EstadoMatriz::Vacia;
    }
    if (primero.Calculo == CalculoSaaty && Razon(primero.PesoAuxiliar) > 1.0 / 10) {
        return EstadoMatriz::Inconsistente;
    }
    return EstadoMatriz::Correcta;
}

// The texts of a set's two findings (behind "Error: " and "Aviso: ") and their common key.
struct TextosMatriz {
    std::string vacia;
    std::string inconsistente;
    std::string clave;
};

void InformarMatriz(InformeErrores& informe, const CabeceraNodo& primero,
                    const TextosMatriz& textos) {
    switch (Estado(primero)) {
    case EstadoMatriz::Vacia:
        informe.Agregar(Unir({kError, textos.vacia}), textos.clave);
        break;
    case EstadoMatriz::Inconsistente:
        informe.Agregar(Unir({kAviso, textos.inconsistente}), textos.clave);
        break;
    case EstadoMatriz::Correcta:
        break;
    }
}

constexpr const char* kNoConsistente = " no es consistente (consistencia > 0.1)";

TextosMatriz MatrizRequerimientos() {
    return {"la matriz de pesos de los requerimientos está vacía",
            Unir({"la matriz de requerimientos", kNoConsistente}), "NoCons R"};
}

TextosMatriz MatrizCriterios(int r) {
    const std::string requerimiento = EtiquetaR(r);
    return {Unir({"la matriz de pesos de los criterios del requerimiento ", requerimiento,
                  " está vacía"}),
            Unir({"la matriz de criterios del requerimiento ", requerimiento, kNoConsistente}),
            Unir({"NoCons C", requerimiento})};
}

// "la matriz pesos", without "de", is how this message has always read.
TextosMatriz MatrizSubcriterios(int c, int r) {
    const std::string criterio = EtiquetaC(c, r);
    return {Unir({"la matriz pesos de los subcriterios del criterio ", criterio, " está vacía"}),
            Unir({"la matriz de subcriterios del criterio ", criterio, kNoConsistente}),
            Unir({"NoCons S", criterio})};
}

// The key names the set, so the indicator stands as the literal number 0; the empty matrix of
// a subcriterion's indicators keeps its old tail ", , 1".
TextosMatriz MatrizIndicadores(const ConjuntoIndicadores& conjunto) {
    const std::string_view del = conjunto.deSubcriterio ? "del subcriterio " : "del criterio ";
    const std::string_view cola = conjunto.deSubcriterio ? ", , 1" : "";
    return {
        Unir({"la matriz de pesos de los indicadores ", del, conjunto.padre, " está vacía", cola}),
        Unir({"la matriz de indicadores ", del, conjunto.padre, kNoConsistente}),
        Unir({"NoCons I0", conjunto.padre})};
}

// ---- value functions

constexpr const char* kSinUnidades =
    " tiene una funcion de valor sin unidades, incompleta o con valores incorrectos";
constexpr const char* kIncompleta =
    " tiene una funcion de valor incompleta o con valores incorrectos";
constexpr const char* kMinimoEscalon =
    " tiene una funcion de valor de tipo escalón con el mínimo diferente de 0";
constexpr const char* kMaximoEscalon =
    " tiene una funcion de valor de tipo escalón con el máximo diferente de 1";
constexpr const char* kPuntuacionIncompleta =
    " tiene una funcion de valor de tipo 'puntuación' incompleta";

std::optional<double> ComoNumero(const ValorLibre& valor) {
    if (valor.EsNumero()) {
        return valor.Numero();
    }
    return LeerNumero(valor.Texto());
}

bool EsCero(const ValorLibre& valor) {
    const auto numero = ComoNumero(valor);
    return numero && *numero == 0;
}

// Two defined values compared as numbers when both are numbers, as texts otherwise.
bool MismoValor(const ValorLibre& a, const ValorLibre& b) {
    const auto x = ComoNumero(a);
    const auto y = ComoNumero(b);
    if (x && y) {
        return *x == *y;
    }
    return a.Texto() == b.Texto();
}

bool ReferenciasDefectuosas(const FuncionValor& f) {
    return f.Unidades.empty() || f.RMax.EsVacio() || f.RMin.EsVacio() || MismoValor(f.RMin, f.RMax);
}

// A zero K or P still gives a function; a zero C does not.
bool ContinuaDefectuosa(const FuncionValor& f) {
    return f.C.EsVacio() || EsCero(f.C) || f.K.EsVacio() || f.P.EsVacio() ||
           ReferenciasDefectuosas(f);
}

bool EscalonIncompleto(const Escalon& escalon) {
    return escalon.ValorInicial.EsVacio() || escalon.ValorFinal.EsVacio() ||
           escalon.Valor.EsVacio();
}

bool PuntuacionIncompleta(const Puntuacion& p) {
    const bool respuestas = p.Nombre.empty() || p.ValorMin.EsVacio() || p.ValorMax.EsVacio();
    switch (p.Tipo) {
    case PuntuacionNumerica:
        return respuestas || p.Minimo.EsVacio() || p.Maximo.EsVacio();
    case PuntuacionBooleana:
        return respuestas;
    default:
        return false;
    }
}

using Hallazgo = std::function<void(const char* texto)>;

// A step function without steps is as incomplete as one whose only step is empty. A step
// that lacks anything ends the scan, and nothing more is said of the function.
void ComprobarEscalones(const FuncionValor& f, const Hallazgo& hallazgo) {
    if (ReferenciasDefectuosas(f)) {
        hallazgo(kSinUnidades);
    }
    const Arreglo<Escalon>& escalones = f.Escalones;
    if (escalones.Tamano() == 0 ||
        std::any_of(escalones.begin(), escalones.end(), EscalonIncompleto)) {
        hallazgo(kIncompleta);
        return;
    }
    double minimo = escalones(1).Valor.Numero();
    double maximo = minimo;
    for (const Escalon& escalon : escalones) {
        minimo = std::min(minimo, escalon.Valor.Numero());
        maximo = std::max(maximo, escalon.Valor.Numero());
    }
    if (minimo != 0) {
        hallazgo(kMinimoEscalon);
    }
    if (maximo != 1) {
        hallazgo(kMaximoEscalon);
    }
}

// Optional indicators, and any kind the program does not know, are taken as they stand.
void ComprobarFuncion(const FuncionValor& f, const Hallazgo& hallazgo) {
    switch (f.Tipo) {
    case FuncionNinguna:
        hallazgo(" no tiene funcion de valor asignada");
        break;
    case FuncionContinua:
        if (ContinuaDefectuosa(f)) {
            hallazgo(kSinUnidades);
        }
        break;
    case FuncionEscalon:
        ComprobarEscalones(f, hallazgo);
        break;
    case FuncionPuntuacion:
        if (ContinuaDefectuosa(f)) {
            hallazgo(kSinUnidades);
        }
        for (const Puntuacion& puntuacion : f.Puntuaciones) {
            if (PuntuacionIncompleta(puntuacion)) {
                hallazgo(kPuntuacionIncompleta);
            }
        }
        break;
    default:
        break;
    }
}

// ---- incomplete branches

void InformarRama(InformeErrores& informe, const std::string& etiqueta, const char* error,
                  const char* aviso, int hijos) {
    if (hijos == 0) {
        informe.Agregar(SobreNodo(kError, etiqueta, error), Clave("SinHij", etiqueta));
    } else if (hijos == 1) {
        informe.Agregar(SobreNodo(kAviso, etiqueta, aviso), Clave("SinHij", etiqueta));
    }
}

// The tests are chained: a criterion with one subcriterion is told so, and its own
// indicators are not counted then.
void InformarCriterio(InformeErrores& informe, const NodoCriterio& criterio,
                      const std::string& etiqueta, bool conSubcriterios) {
    const int indicadores = criterio.NumIndicadores.Cuenta();
    const int subcriterios = criterio.NumSubcriterios.Cuenta();
    const auto agregar = [&](const char* inicio, const char* texto) {
        informe.Agregar(SobreNodo(inicio, etiqueta, texto), Clave("SinHij", etiqueta));
    };
    if (indicadores == 0 && subcriterios == 0) {
        agregar(kError, conSubcriterios ? " no tiene subcriterios ni indicadores"
                                        : " no tiene indicadores");
    } else if (subcriterios == 1) {
        agregar(kAviso, " solo tiene un subcriterio");
    } else if (indicadores == 1) {
        agregar(kAviso, " solo tiene un indicador");
    }
}

} // namespace

bool ConNivelSubcriterios(const Modelo& modelo) {
    return modelo.ConSubcriterios && HaySubcriterios(modelo);
}

void ComprobarExistenciaEtapas(const Modelo& modelo, InformeErrores& informe) {
    ComprobarCuenta(informe, "COMPROBACION DEL CICLO DE VIDA", modelo.NumEtapas,
                    "     Aviso: no se han definido etapas del ciclo de vida", "SinEta");
}

void ComprobarExistenciaComponentes(const Modelo& modelo, InformeErrores& informe) {
    ComprobarCuenta(informe, "COMPROBACION DE EXISTENCIA DE COMPONENTES", modelo.NumComponentes,
                    "     Aviso: no se han definido componentes", "SinCmp");
}

void ComprobarNombresRepetidosComponentes(const Modelo& modelo, InformeErrores& informe) {
    informe.Agregar("COMPROBACION DE REPETICION DE NOMBRES EN COMPONENTES");
    const int componentes = modelo.NumComponentes.Cuenta();
    Nivel(informe, kNivelComponentes, [&] {
        ParaCadaParRepetido(
            componentes, [&](int k) -> const std::string& { return modelo.Componentes(k).Nombre; },
            [&](int p, int q) {
                informe.Agregar(
                    MismoNombre(Unir({"C", N(p)}), Unir({"C", N(q)}), modelo.Componentes(p).Nombre),
                    Unir({"CmpRep Co", N(q)}));
            });
    });
    Nivel(informe, kNivelOpciones, [&] {
        for (int k = 1; k <= componentes; ++k) {
            const Componente& componente = modelo.Componentes(k);
            const std::string padre = Unir({"C", N(k)});
            ParaCadaParRepetido(
                componente.NumSubcomponentes,
                [&](int o) -> const std::string& { return componente.Subcomponentes(o).Nombre; },
                [&](int p, int q) {
                    informe.Agregar(MismoNombre(Unir({"O", N(p), padre}), Unir({"O", N(q), padre}),
                                                componente.Subcomponentes(p).Nombre),
                                    Unir({"CmpRep Op", N(q), "Co", N(k)}));
                });
        }
    });
}

void ComprobarExistenciaRequerimientos(const Modelo& modelo, InformeErrores& informe) {
    ComprobarCuenta(informe, "COMPROBACION DE EXISTENCIA DE REQUERIMIENTOS",
                    modelo.NumRequerimientos,
                    "     Error: no se ha definido arbol de requerimientos", "SinReq");
}

void ComprobarNombresRepetidosRequerimientos(const Modelo& modelo, InformeErrores& informe) {
    informe.Agregar("COMPROBACION DE REPETICION DE NOMBRES EN REQUERIMIENTOS");
    Nivel(informe, kNivelRequerimientos, [&] {
        ParaCadaParRepetido(
            modelo.NumRequerimientos.Cuenta(),
            [&](int r) -> const std::string& { return modelo.Requerimientos(r).Nombre; },
            [&](int p, int q) {
                informe.Agregar(
                    MismoNombre(EtiquetaR(p), EtiquetaR(q), modelo.Requerimientos(p).Nombre),
                    Clave("ReqRep", EtiquetaR(q)));
            });
    });
    Nivel(informe, kNivelCriterios, [&] {
        ParaCadaRequerimiento(modelo, [&](int r, const NodoRequerimiento& requerimiento) {
            ParaCadaParRepetido(
                requerimiento.NumCriterios.Cuenta(),
                [&](int c) -> const std::string& { return requerimiento.Criterios(c).Nombre; },
                [&](int p, int q) {
                    informe.Agregar(MismoNombre(EtiquetaC(p, r), EtiquetaC(q, r),
                                                requerimiento.Criterios(p).Nombre),
                                    Clave("ReqRep", EtiquetaC(q, r)));
                });
        });
    });
    if (ConNivelSubcriterios(modelo)) {
        Nivel(informe, kNivelSubcriterios, [&] {
            ParaCadaCriterio(modelo, [&](int r, int c, const NodoCriterio& criterio) {
                ParaCadaParRepetido(
                    criterio.NumSubcriterios.Cuenta(),
                    [&](int s) -> const std::string& { return criterio.Subcriterios(s).Nombre; },
                    [&](int p, int q) {
                        informe.Agregar(MismoNombre(EtiquetaS(p, c, r), EtiquetaS(q, c, r),
                                                    criterio.Subcriterios(p).Nombre),
                                        Clave("ReqRep", EtiquetaS(q, c, r)));
                    });
            });
        });
    }
    Nivel(informe, kNivelIndicadores, [&] {
        ParaCadaConjuntoIndicadores(modelo, [&](const ConjuntoIndicadores& conjunto) {
            const auto linea = conjunto.deSubcriterio ? MismoNombreConDosPuntos : MismoNombre;
            ParaCadaParRepetido(
                conjunto.cuenta,
                [&](int i) -> const std::string& { return conjunto.indicadores(i).Nombre; },
                [&](int p, int q) {
                    informe.Agregar(linea(conjunto.Etiqueta(p), conjunto.Etiqueta(q),
                                          conjunto.indicadores(p).Nombre),
                                    Clave("ReqRep", conjunto.Etiqueta(q)));
                });
        });
    });
}

void ComprobarPesosNulos(const Modelo& modelo, InformeErrores& informe) {
    informe.Agregar("COMPROBACION DE PESOS NULOS");
    Nivel(informe, kNivelRequerimientos, [&] {
        ParaCadaRequerimiento(modelo, [&](int r, const NodoRequerimiento& requerimiento) {
            InformarPesoNulo(informe, requerimiento, EtiquetaR(r));
        });
    });
    Nivel(informe, kNivelCriterios, [&] {
        ParaCadaCriterio(modelo, [&](int r, int c, const NodoCriterio& criterio) {
            InformarPesoNulo(informe, criterio, EtiquetaC(c, r));
        });
    });
    if (ConNivelSubcriterios(modelo)) {
        Nivel(informe, kNivelSubcriterios, [&] {
            ParaCadaSubcriterio(modelo,
                                [&](int r, int c, int s, const NodoSubcriterio& subcriterio) {
                                    InformarPesoNulo(informe, subcriterio, EtiquetaS(s, c, r));
                                });
        });
    }
    Nivel(informe, kNivelIndicadores, [&] {
        ParaCadaIndicador(modelo, [&](const ConjuntoIndicadores& conjunto, int i,
                                      const NodoIndicador& indicador) {
            if (PesoNulo(indicador)) {
                InformarPesoNulo(informe, indicador, conjunto.Etiqueta(i));
            }
        });
    });
}

void ComprobarConsistencia(const Modelo& modelo, InformeErrores& informe) {
    informe.Agregar("COMPROBACION DE MATRICES NO CONSISTENTES");
    Nivel(informe, kNivelRequerimientos, [&] {
        if (modelo.NumRequerimientos.Cuenta() > 0) {
            InformarMatriz(informe, modelo.Requerimientos(1), MatrizRequerimientos());
        }
    });
    Nivel(informe, kNivelCriterios, [&] {
        ParaCadaRequerimiento(modelo, [&](int r, const NodoRequerimiento& requerimiento) {
            if (requerimiento.NumCriterios.Cuenta() > 0) {
                InformarMatriz(informe, requerimiento.Criterios(1), MatrizCriterios(r));
            }
        });
    });
    if (ConNivelSubcriterios(modelo)) {
        Nivel(informe, kNivelSubcriterios, [&] {
            ParaCadaCriterio(modelo, [&](int r, int c, const NodoCriterio& criterio) {
                if (criterio.NumSubcriterios.Cuenta() > 0) {
                    InformarMatriz(informe, criterio.Subcriterios(1), MatrizSubcriterios(c, r));
                }
            });
        });
    }
    Nivel(informe, kNivelIndicadores, [&] {
        ParaCadaConjuntoIndicadores(modelo, [&](const ConjuntoIndicadores& conjunto) {
            if (conjunto.cuenta > 0) {
                InformarMatriz(informe, conjunto.indicadores(1), MatrizIndicadores(conjunto));
            }
        });
    });
}

void ComprobarFuncionValor(const Modelo& modelo, InformeErrores& informe) {
    informe.Agregar("COMPROBACION DE FUNCIONES DE VALOR");
    Nivel(informe, kNivelIndicadores, [&] {
        ParaCadaIndicador(modelo, [&](const ConjuntoIndicadores& conjunto, int i,
                                      const NodoIndicador& indicador) {
            ComprobarFuncion(indicador.Funcion, [&](const char* texto) {
                const std::string etiqueta = conjunto.Etiqueta(i);
                informe.Agregar(SobreNodo(kError, etiqueta, texto), Clave("FunVal", etiqueta));
            });
        });
    });
}

void ComprobarArbolIncompleto(const Modelo& modelo, InformeErrores& informe) {
    informe.Agregar("COMPROBACION DE RAMAS INCOMPLETAS");
    Nivel(informe, kNivelRequerimientos, [&] {
        ParaCadaRequerimiento(modelo, [&](int r, const NodoRequerimiento& requerimiento) {
            InformarRama(informe, EtiquetaR(r), " no tiene criterios", " solo tiene un criterio",
                         requerimiento.NumCriterios.Cuenta());
        });
    });
    Nivel(informe, kNivelCriterios, [&] {
        ParaCadaCriterio(modelo, [&](int r, int c, const NodoCriterio& criterio) {
            InformarCriterio(informe, criterio, EtiquetaC(c, r), modelo.ConSubcriterios);
        });
    });
    if (ConNivelSubcriterios(modelo)) {
        Nivel(informe, kNivelSubcriterios, [&] {
            ParaCadaSubcriterio(
                modelo, [&](int r, int c, int s, const NodoSubcriterio& subcriterio) {
                    InformarRama(informe, EtiquetaS(s, c, r), " no tiene indicadores",
                                 " solo tiene un indicador", subcriterio.NumIndicadores.Cuenta());
                });
        });
    }
}

} // namespace vadro
