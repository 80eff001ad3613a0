#pragma once

#include "core/core/error_ejecucion.h"
#include "soporte/acta.h"

#include <charconv>
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace vadro::pruebas {

using Argumentos = std::vector<std::string>;
using Funcion = std::function<std::string(const Argumentos&)>;

// A number written in its shortest form that reads back to the same double, so a transcript
// misses no bit of it.
inline std::string Exacto(double numero) {
    char texto[32];
    return std::string(texto, std::to_chars(texto, texto + sizeof texto, numero).ptr);
}

inline std::string SiNo(bool valor) {
    return valor ? "yes" : "no";
}

// A table of functions kept in a data file: each case names the function in its first field
// and gives its arguments in the others; its outcome is what the function makes of them, or
// "error" and the number of the runtime error it raises, then the messages it showed (with
// their icons and buttons), answered in turn by `respuestas`.
inline void Tabular(const std::string& datos, const std::map<std::string, Funcion>& funciones,
                    std::deque<Respuesta> respuestas = {}) {
    Acta acta;
    acta.iconos = true;
    acta.respuestas = std::move(respuestas);
    for (const Caso& caso : Casos(datos)) {
        const Argumentos argumentos(caso.campos.begin() + 1, caso.campos.end());
        std::string salida;
        try {
            salida = funciones.at(caso.campos.at(0))(argumentos);
        } catch (const ErrorEjecucion& error) {
            salida = "error " + std::to_string(error.Numero());
        }
        acta.Fila(caso.texto, salida);
    }
    acta.Comparar(datos);
}

} // namespace vadro::pruebas
