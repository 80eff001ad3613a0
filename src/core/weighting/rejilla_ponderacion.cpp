#include "core/weighting/rejilla_ponderacion.h"

#include "core/core/error_ejecucion.h"

namespace vadro {

void RejillaMemoria::Dimensionar(int filas, int columnas) {
    if (filas < 0 || columnas < 0) {
        throw ErrorEjecucion(ErrSubindice);
    }
    filas_ = filas;
    columnas_ = columnas;
    const auto celdas = static_cast<std::size_t>(filas) * static_cast<std::size_t>(columnas);
    textos_.assign(celdas, std::string());
    colores_.assign(celdas, ColorBlanco);
}

std::string RejillaMemoria::Texto(int fila, int columna) const {
    return textos_[Posicion(fila, columna)];
}

void RejillaMemoria::PonerTexto(int fila, int columna, const std::string& texto) {
    textos_[Posicion(fila, columna)] = texto;
}

void RejillaMemoria::PonerColorFondo(int fila, int columna, ColorRGB color) {
    colores_[Posicion(fila, columna)] = color;
}

ColorRGB RejillaMemoria::ColorFondo(int fila, int columna) const {
    return colores_[Posicion(fila, columna)];
}

std::size_t RejillaMemoria::Posicion(int fila, int columna) const {
    if (fila < 0 || fila >= filas_ || columna < 0 || columna >= columnas_) {
        throw ErrorEjecucion(ErrSubindice);
    }
    return static_cast<std::size_t>(fila) * static_cast<std::size_t>(columnas_) +
           static_cast<std::size_t>(columna);
}

} // namespace vadro
