#include "core/reports/informe_modelo.h"

#include "core/core/codigo_pagina.h"
#include "core/core/comunes.h"

#include "core/core/formato_numero.h"
#include "core/functions/funcion_valor.h"

#include <utility>

namespace vadro {

namespace {

constexpr int kSangriaDerechaTexto = 50;

std::string Numerada(const char* letra, int numero) {
    return Unir({letra, std::to_string(numero)});
}

// A line "etiqueta valor" at the level, only when the value is defined.
void AñadirSiHay(Informe& informe, const char* etiqueta, const ValorLibre& valor, int nivel) {
    if (!valor.EsVacio()) {
        informe.AñadirTexto(etiqueta + valor.Texto() + "\n", nivel);
    }
}

void AñadirSiHay(Informe& informe, const char* etiqueta, const std::string& valor, int nivel) {
    if (!valor.empty()) {
        informe.AñadirTexto(etiqueta + valor + "\n", nivel);
    }
}

// The limits of a plain indicator read "Límite inferior: "; those of an option
// "Límite inferior = ". The two forms are kept as they were always printed.
struct Rotulos {
    const char* inferior;
    const char* superior;
};
constexpr Rotulos kRotulosIndicador{"Límite inferior: ", "Límite superior: "};
constexpr Rotulos kRotulosOptativo{"Límite inferior = ", "Límite superior = "};

// The lines under a function's picture, each only when its field is defined.
void AñadirDatosFuncion(Informe& informe, const FuncionValor& funcion, const Rotulos& rotulos,
                        int nivel) {
    AñadirSiHay(informe, "Punto de mínima satisfacción = ", funcion.RMin, nivel);
    AñadirSiHay(informe, "Punto de máxima satisfacción = ", funcion.RMax, nivel);
    AñadirSiHay(informe, rotulos.inferior, funcion.XMin, nivel);
    AñadirSiHay(informe, rotulos.superior, funcion.XMax, nivel);
    AñadirSiHay(informe, "Unidad: ", funcion.Unidades, nivel);
}

// What follows an indicator's line, one level below it.
void AñadirFuncionIndicador(Informe& informe, const FuncionValor& funcion, int nivel) {
    if (funcion.Tipo == FuncionOptativos) {
        AñadirOptativos(informe, funcion, nivel);
        return;
    }
    AñadirFuncion(informe, funcion, nivel);
    AñadirDatosFuncion(informe, funcion, kRotulosIndicador, nivel);
    if (funcion.Tipo == FuncionPuntuacion) {
        AñadirPuntuacion(informe, funcion, nivel);
    } else {
        informe.AñadirTexto("\n", nivel);
    }
}

void AñadirNodo(Informe& informe, IconoInforme icono, const std::string& clave,
                const CabeceraNodo& nodo, int nivel) {
    informe.AñadirIcono(icono);
    informe.AñadirTexto(LineaNodo(clave, nodo) + "\n", nivel);
}

void AñadirIndicador(Informe& informe, const std::string& clave, const NodoIndicador& indicador,
                     int nivel) {
    AñadirNodo(informe, IconoInforme::Indicador, clave, indicador, nivel);
    AñadirFuncionIndicador(informe, indicador.Funcion, nivel + 1);
}

// Where a text breaks into lines: "\r\n", "\r" or "\n".
std::size_t FinDeLinea(std::string_view texto, std::size_t desde) {
    return texto.find_first_of("\r\n", desde);
}

std::size_t TrasFinDeLinea(std::string_view texto, std::size_t fin) {
    return texto.compare(fin, 2, "\r\n") == 0 ? fin + 2 : fin + 1;
}

} // namespace

int SangriaNivel(int nivel) {
    switch (nivel) {
    case 1:
        return 0;
    case 2:
        return 350;
    case 3:
        return 700;
    case 4:
        return 1050;
    default:
        return 1290;
    }
}

std::string BlancosNivel(int nivel) {
    return std::string(nivel >= 1 && nivel <= 4 ? static_cast<std::size_t>(2 * (nivel - 1)) : 8,
                       ' ');
}

Informe::Informe() : lineas_(1) {}

void Informe::Formatear(LineaInforme& linea, int nivel, int derecha) {
    linea.Nivel = nivel;
    linea.Sangria = SangriaNivel(nivel);
    linea.SangriaDerecha = derecha;
}

void Informe::Escribir(std::string_view texto, const FormatoLetra& letra, int nivel, int derecha) {
    // As in a rich-text pane: the format goes to the paragraph at the caret and to every
    // paragraph the text opens.
    std::size_t inicio = 0;
    while (true) {
        Formatear(lineas_.back(), nivel, derecha);
        const std::size_t fin = FinDeLinea(texto, inicio);
        const std::string_view trozo = texto.substr(
            inicio, fin == std::string_view::npos ? std::string_view::npos : fin - inicio);
        if (!trozo.empty()) {
            PiezaInforme pieza;
            pieza.Texto = std::string(trozo);
            pieza.Letra = letra;
            lineas_.back().Piezas.push_back(std::move(pieza));
        }
        if (fin == std::string_view::npos) {
            return;
        }
        lineas_.emplace_back();
        inicio = TrasFinDeLinea(texto, fin);
    }
}

void Informe::AñadirTexto(std::string_view texto, int nivel) {
    Escribir(texto, FormatoLetra{}, nivel, kSangriaDerechaTexto);
}

void Informe::AñadirEncabezado(std::string_view texto) {
    FormatoLetra negrita;
    negrita.Negrita = true;
    Escribir(texto, negrita, 1, 0);
    lineas_.emplace_back();
    Formatear(lineas_.back(), 1, 0);
}

void Informe::AñadirIcono(IconoInforme icono) {
    PiezaInforme pieza;
    pieza.Tipo = TipoPieza::Icono;
    pieza.Icono = icono;
    lineas_.back().Piezas.push_back(std::move(pieza));
}

void Informe::AñadirImagen(DibujoInforme dibujo, std::shared_ptr<const FuncionValor> funcion) {
    PiezaInforme pieza;
    pieza.Tipo = TipoPieza::Grafica;
    pieza.Dibujo = dibujo;
    pieza.Funcion = std::move(funcion);
    lineas_.back().Piezas.push_back(std::move(pieza));
}

std::string TituloInforme(const Modelo& modelo) {
    if (modelo.Nombre.empty()) {
        return "Nuevo modelo";
    }
    return EnMayusculas(modelo.Nombre) + " (V." + modelo.Version + ")";
}

std::string LineaNodo(const std::string& clave, const CabeceraNodo& nodo) {
    std::string linea = "(" + clave + ") ";
    if (!nodo.Peso.EsVacio()) {
        linea += Formato00(nodo.Peso) + "% - ";
    }
    return linea + nodo.Nombre;
}

std::string TextoForma(const FuncionValor& funcion) {
    std::string texto;
    if (funcion.Tipo == FuncionEscalon) {
        return texto;
    }
    if (!funcion.C.EsVacio()) {
        texto += " C = " + funcion.C.Texto();
    }
    if (!funcion.K.EsVacio()) {
        texto += "; K = " + funcion.K.Texto();
    }
    if (!funcion.P.EsVacio()) {
        texto += "; P = " + funcion.P.Texto();
    }
    return texto;
}

DibujoInforme DibujoDeFuncion(const FuncionValor& funcion) {
    if (funcion.Tipo == FuncionEscalon) {
        return DibujoInforme::Escalon;
    }
    for (const ValorLibre* campo :
         {&funcion.RMin, &funcion.RMax, &funcion.C, &funcion.K, &funcion.P}) {
        if (campo->EsVacio()) {
            return DibujoInforme::Tachada;
        }
    }
    return DibujoInforme::Continua;
}

void AñadirPropiedades(Informe& informe, const Modelo& modelo) {
    informe.AñadirTexto(
        "Denominación: " + modelo.Nombre + "\nRealizado por " + modelo.Autor +
            "\nFecha de elaboración: " + modelo.Fecha + "\nVersión: " + modelo.Version +
            "\nLocalización: " + modelo.Localizacion + "\nReferencia: " + modelo.Referencia +
            "\nDescripción: " + modelo.Descripcion + "\n",
        1);
}

void AñadirRequerimientos(Informe& informe, const Modelo& modelo) {
    for (int r = 1; r <= modelo.NumRequerimientos.Cuenta(); ++r) {
        const NodoRequerimiento& requerimiento = modelo.Requerimientos(r);
        const std::string claveR = Numerada("R", r);
        AñadirNodo(informe, IconoInforme::Requerimiento, claveR, requerimiento, 1);
        for (int c = 1; c <= requerimiento.NumCriterios.Cuenta(); ++c) {
            const NodoCriterio& criterio = requerimiento.Criterios(c);
            const std::string claveC = Unir({Numerada("C", c), claveR});
            AñadirNodo(informe, IconoInforme::Criterio, claveC, criterio, 2);
            // As the tree shows them: the subcriteria with their indicators, then the
            // criterion's own indicators.
            for (int s = 1; s <= criterio.NumSubcriterios.Cuenta(); ++s) {
                const NodoSubcriterio& subcriterio = criterio.Subcriterios(s);
                const std::string claveS = Unir({Numerada("S", s), claveC});
                AñadirNodo(informe, IconoInforme::Subcriterio, claveS, subcriterio, 3);
                for (int i = 1; i <= subcriterio.NumIndicadores.Cuenta(); ++i) {
                    AñadirIndicador(informe, Unir({Numerada("I", i), claveS}),
                                    subcriterio.Indicadores(i), 4);
                }
            }
            for (int i = 1; i <= criterio.NumIndicadores.Cuenta(); ++i) {
                AñadirIndicador(informe, Unir({Numerada("I", i), claveC}), criterio.Indicadores(i),
                                3);
            }
        }
    }
}

void AñadirFuncion(Informe& informe, const FuncionValor& funcion, int nivel) {
    const DibujoInforme dibujo = DibujoDeFuncion(funcion);
    if (dibujo == DibujoInforme::Tachada) {
        informe.AñadirImagen(dibujo);
    } else {
        informe.AñadirImagen(dibujo, std::make_shared<const FuncionValor>(funcion));
    }
    informe.AñadirTexto(TextoForma(funcion) + "\n", nivel);
}

void AñadirPuntuacion(Informe& informe, const FuncionValor& funcion, int nivel) {
    informe.AñadirTexto("\n", nivel);
    bool hayNumericos = false;
    bool hayBooleanos = false;
    for (const Puntuacion& elemento : funcion.Puntuaciones) {
        if (elemento.Tipo == PuntuacionNumerica) {
            if (!std::exchange(hayNumericos, true)) {
                informe.AñadirTexto("ELEMENTOS NUMERICOS\n", nivel);
            }
            informe.AñadirTexto("* " + elemento.Nombre +
                                    "\nValor mínimo = " + elemento.Minimo.Texto() + " igual a " +
                                    elemento.ValorMin.Texto() +
                                    ", Valor máximo = " + elemento.Maximo.Texto() + " igual a " +
                                    elemento.ValorMax.Texto() + "\n",
                                nivel);
        } else {
            if (!std::exchange(hayBooleanos, true)) {
                informe.AñadirTexto("ELEMENTOS BOOLEANOS\n", nivel);
            }
            informe.AñadirTexto("* " + elemento.Nombre +
                                    "\nValor falso = " + elemento.ValorMin.Texto() +
                                    ", Valor verdadero = " + elemento.ValorMax.Texto() + "\n",
                                nivel);
        }
    }
    informe.AñadirTexto("\n", nivel);
}

void AñadirOptativos(Informe& informe, const FuncionValor& funcion, int nivel) {
    informe.AñadirTexto(
        "INDICADORES OPTATIVOS\nTotales: " + std::to_string(funcion.Optativos.Tamano()) +
            "\nSeleccionables: " + std::to_string(funcion.OptativoSeleccionado) + "\n\n",
        nivel);
    int i = 0;
    for (const IndicadorOptativo& optativo : funcion.Optativos) {
        informe.AñadirTexto(std::to_string(++i) + ". " + optativo.Nombre + "\n", nivel);
        const FuncionValor propia = ConvertirFuncion(optativo.Funcion);
        AñadirFuncion(informe, propia, nivel);
        AñadirDatosFuncion(informe, propia, kRotulosOptativo, nivel);
        informe.AñadirTexto("\n", nivel);
    }
}

void AñadirComponentes(Informe& informe, const Modelo& modelo) {
    for (int c = 1; c <= modelo.NumComponentes.Cuenta(); ++c) {
        const Componente& componente = modelo.Componentes(c);
        const std::string claveC = Numerada("Co", c);
        informe.AñadirIcono(IconoInforme::Componente);
        informe.AñadirTexto("(" + claveC + ") " + componente.Nombre + "\n", 1);
        for (int s = 1; s <= componente.NumSubcomponentes; ++s) {
            informe.AñadirIcono(IconoInforme::Subcomponente);
            informe.AñadirTexto(Unir({"(", Numerada("Op", s), claveC, ") ",
                                      componente.Subcomponentes(s).Nombre, "\n"}),
                                2);
        }
    }
}

void AñadirEtapas(Informe& informe, const Modelo& modelo) {
    for (int e = 1; e <= modelo.NumEtapas.Cuenta(); ++e) {
        informe.AñadirIcono(IconoInforme::Etapa);
        informe.AñadirTexto(modelo.Etapas(e) + "\n", 1);
    }
}

Informe GenerarInforme(const Modelo& modelo) {
    Informe informe;
    informe.AñadirEncabezado(TituloInforme(modelo));
    informe.AñadirTexto("\n", 1);

    informe.AñadirEncabezado("Descripción del modelo");
    AñadirPropiedades(informe, modelo);
    informe.AñadirTexto("\n", 1);

    informe.AñadirEncabezado("Arbol de requerimientos");
    if (HayElementos(modelo.NumRequerimientos)) {
        AñadirRequerimientos(informe, modelo);
    } else {
        informe.AñadirTexto("No se ha definido árbol de requerimientos\n\n", 1);
    }

    informe.AñadirEncabezado("Componentes");
    if (HayElementos(modelo.NumComponentes)) {
        AñadirComponentes(informe, modelo);
    } else {
        informe.AñadirTexto("No se ha definido ningún componente\n\n", 1);
    }

    informe.AñadirTexto("", 1);
    informe.AñadirEncabezado("Etapas del ciclo de vida");
    if (HayElementos(modelo.NumEtapas)) {
        AñadirEtapas(informe, modelo);
    } else {
        informe.AñadirTexto("No se han definido etapas del ciclo de vida\n\n", 1);
    }
    return informe;
}

PanelesInforme ActualizarPaneles(const Modelo& modelo) {
    PanelesInforme paneles;
    AñadirPropiedades(paneles.Propiedades, modelo);
    AñadirRequerimientos(paneles.Requerimientos, modelo);
    AñadirComponentes(paneles.Componentes, modelo);
    AñadirEtapas(paneles.Etapas, modelo);
    paneles.Completo = GenerarInforme(modelo);
    return paneles;
}

std::string TextoPlano(const Informe& informe) {
    std::string texto;
    const std::vector<LineaInforme>& lineas = informe.Lineas();
    for (std::size_t k = 0; k < lineas.size(); ++k) {
        std::string contenido;
        for (const PiezaInforme& pieza : lineas[k].Piezas) {
            if (pieza.Tipo == TipoPieza::Texto) {
                contenido += pieza.Texto;
            } else if (pieza.Tipo == TipoPieza::Grafica) {
                contenido +=
                    pieza.Dibujo == DibujoInforme::Tachada ? "[gráfica tachada]" : "[gráfica]";
            }
        }
        if (contenido.empty() && k + 1 == lineas.size()) {
            break;
        }
        if (!contenido.empty()) {
            texto += BlancosNivel(lineas[k].Nivel);
            texto += contenido;
        }
        texto += '\n';
    }
    return texto;
}

} // namespace vadro
