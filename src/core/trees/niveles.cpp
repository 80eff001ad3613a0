#include "core/trees/niveles.h"

#include <algorithm>

namespace vadro {

std::string LetraNivel(int nivel) {
    static const char* const letras[] = {"", "R", "C", "S", "I", "M", "P", "A", "E"};
    return nivel >= 1 && nivel <= 8 ? letras[nivel] : "";
}

int ImagenNivel(int nivel) {
    return nivel >= 1 && nivel <= NivelModelo ? nivel : 0;
}

std::string TextoNivel(int nivel, const Modelo& modelo) {
    switch (nivel) {
    case NivelRequerimiento:
        return "Requerimiento";
    case NivelCriterio:
        return "Criterio";
    case NivelSubcriterio:
        return "Subcriterio";
    case NivelIndicador:
        return "Indicador";
    case NivelModelo:
        return "Modelo " + EnMinusculas(modelo.Nombre);
    default:
        return "";
    }
}

std::string EnMinusculas(const std::string& texto) {
    std::string resultado = texto;
    for (std::size_t i = 0; i < resultado.size(); ++i) {
        const auto c = static_cast<unsigned char>(resultado[i]);
        if (c >= 'A' && c <= 'Z') {
            resultado[i] = static_cast<char>(c + 32);
        } else if (c == 0xC3 && i + 1 < resultado.size()) {
            // Capitals from "À" to "Þ", except the sign "×", are two bytes apart from their
            // small letters by 0x20 in the second byte.
            const auto segundo = static_cast<unsigned char>(resultado[i + 1]);
            if (segundo >= 0x80 && segundo <= 0x9E && segundo != 0x97) {
                resultado[i + 1] = static_cast<char>(segundo + 0x20);
            }
            ++i;
        } else if (c == 0xC5 && i + 1 < resultado.size()) {
            // "Š", "Œ", "Ž" of the code page.
            const auto segundo = static_cast<unsigned char>(resultado[i + 1]);
            if (segundo == 0xA0 || segundo == 0x92 || segundo == 0xBD) {
                resultado[i + 1] = static_cast<char>(segundo + 1);
            } else if (segundo == 0xB8) { // "Ÿ" is "ÿ" in another block
                resultado[i] = static_cast<char>(0xC3);
                resultado[i + 1] = static_cast<char>(0xBF);
            }
            ++i;
        }
    }
    return resultado;
}

namespace {

bool TieneHijoDeNivel(const NodoArbol* nodo, int nivel) {
    const auto& hijos = nodo->Hijos();
    return std::any_of(hijos.begin(), hijos.end(),
                       [nivel](const NodoArbol* hijo) { return NivelNodo(hijo) == nivel; });
}

} // namespace

bool TieneIndicadores(const NodoArbol* nodo) {
    return TieneHijoDeNivel(nodo, NivelIndicador);
}

bool TieneSubcriterios(const NodoArbol* nodo) {
    return TieneHijoDeNivel(nodo, NivelSubcriterio);
}

bool DestinoPermitido(int nivel, const NodoArbol* destino) {
    if (destino == nullptr) {
        return nivel == NivelRequerimiento;
    }
    const int nivelDestino = NivelNodo(destino);
    switch (nivel) {
    case NivelRequerimiento:
        return nivelDestino == NivelModelo;
    case NivelSubcriterio:
        return nivelDestino == NivelCriterio && !TieneIndicadores(destino);
    case NivelIndicador:
        return nivelDestino == NivelSubcriterio ||
               (nivelDestino == NivelCriterio && !TieneSubcriterios(destino));
    default: // a criterion, and any other level, goes one level below its target
        return nivelDestino + 1 == nivel;
    }
}

} // namespace vadro
