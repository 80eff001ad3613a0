#pragma once

#include "core/core/error_ejecucion.h"

#include <cstddef>
#include <vector>

namespace vadro {

// A dynamic array indexed from 1. An array that was never sized is absent: its bound and its
// elements are a subscript error, which is why counts are tested before an array is touched.
template <typename T> class Arreglo {
public:
    bool Presente() const { return presente_; }

    // The upper bound; an absent array has none.
    int Cota() const {
        ExigirPresente();
        return static_cast<int>(elementos_.size());
    }
    // The number of elements, zero for an absent array.
    int Tamano() const { return static_cast<int>(elementos_.size()); }

    // Sizes the array anew, its old content gone.
    void Redimensionar(int cota) {
        ExigirCota(cota);
        elementos_.assign(static_cast<std::size_t>(cota), T{});
        presente_ = true;
    }
    // Sizes the array keeping what it held up to the new bound.
    void RedimensionarConservando(int cota) {
        ExigirCota(cota);
        elementos_.resize(static_cast<std::size_t>(cota));
        presente_ = true;
    }
    // Makes the array absent again.
    void Borrar() {
        elementos_.clear();
        presente_ = false;
    }

    T& operator()(int indice) { return elementos_[Posicion(indice)]; }
    const T& operator()(int indice) const { return elementos_[Posicion(indice)]; }

    auto begin() { return elementos_.begin(); }
    auto end() { return elementos_.end(); }
    auto begin() const { return elementos_.begin(); }
    auto end() const { return elementos_.end(); }

    bool operator==(const Arreglo&) const = default;

private:
    void ExigirPresente() const {
        if (!presente_) {
            throw ErrorEjecucion(ErrSubindice);
        }
    }
    static void ExigirCota(int cota) {
        if (cota < 0) {
            throw ErrorEjecucion(ErrSubindice);
        }
    }
    std::size_t Posicion(int indice) const {
        if (indice < 1 || indice > Tamano()) {
            throw ErrorEjecucion(ErrSubindice);
        }
        return static_cast<std::size_t>(indice - 1);
    }

    std::vector<T> elementos_;
    bool presente_ = false;
};

// A two-dimensional array indexed from 1 in both directions.
template <typename T> class Matriz {
public:
    bool Presente() const { return presente_; }
    int Filas() const { return filas_; }
    int Columnas() const { return columnas_; }

    void Redimensionar(int filas, int columnas) {
        if (filas < 0 || columnas < 0) {
            throw ErrorEjecucion(ErrSubindice);
        }
        filas_ = filas;
        columnas_ = columnas;
        celdas_.assign(static_cast<std::size_t>(filas) * static_cast<std::size_t>(columnas), T{});
        presente_ = true;
    }
    void Borrar() {
        celdas_.clear();
        filas_ = columnas_ = 0;
        presente_ = false;
    }

    T& operator()(int fila, int columna) { return celdas_[Posicion(fila, columna)]; }
    const T& operator()(int fila, int columna) const { return celdas_[Posicion(fila, columna)]; }

    bool operator==(const Matriz&) const = default;

private:
    std::size_t Posicion(int fila, int columna) const {
        if (fila < 1 || fila > filas_ || columna < 1 || columna > columnas_) {
            throw ErrorEjecucion(ErrSubindice);
        }
        return static_cast<std::size_t>(fila - 1) * static_cast<std::size_t>(columnas_) +
               static_cast<std::size_t>(columna - 1);
    }

    std::vector<T> celdas_;
    int filas_ = 0;
    int columnas_ = 0;
    bool presente_ = false;
};

} // namespace vadro
