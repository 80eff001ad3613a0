#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace vadro {

struct ColorRGB {
    uint8_t Rojo = 255;
    uint8_t Verde = 255;
    uint8_t Azul = 255;
    bool operator==(const ColorRGB&) const = default;
};

inline constexpr ColorRGB ColorBlanco{255, 255, 255};
inline constexpr ColorRGB ColorRojo{255, 0, 0};
inline constexpr ColorRGB ColorVerde{0, 255, 0};
inline constexpr ColorRGB ColorAmarilloClaro{255, 255, 192};
inline constexpr ColorRGB ColorRojoClaro{255, 192, 192};

// What the weights arithmetic needs of a grid: a fixed row 0 and column 0 with the names,
// texts and back colours of cells addressed from 0. The windows hand their grid over through
// this; the arithmetic never sees the toolkit.
class RejillaPonderacion {
public:
    virtual ~RejillaPonderacion() = default;

    // Counts include the fixed row and column: the last row is Filas() - 1.
    virtual int Filas() const = 0;
    virtual int Columnas() const = 0;
    // Sizes the grid anew, every cell empty and white.
    virtual void Dimensionar(int filas, int columnas) = 0;

    virtual std::string Texto(int fila, int columna) const = 0;
    virtual void PonerTexto(int fila, int columna, const std::string& texto) = 0;
    virtual void PonerColorFondo(int fila, int columna, ColorRGB color) = 0;
};

// A grid held in memory: for work without a window, and the record a window may mirror.
class RejillaMemoria : public RejillaPonderacion {
public:
    RejillaMemoria() = default;
    RejillaMemoria(int filas, int columnas) { Dimensionar(filas, columnas); }

    int Filas() const override { return filas_; }
    int Columnas() const override { return columnas_; }
    void Dimensionar(int filas, int columnas) override;

    std::string Texto(int fila, int columna) const override;
    void PonerTexto(int fila, int columna, const std::string& texto) override;
    void PonerColorFondo(int fila, int columna, ColorRGB color) override;
    ColorRGB ColorFondo(int fila, int columna) const;

private:
    std::size_t Posicion(int fila, int columna) const;

    int filas_ = 0;
    int columnas_ = 0;
    std::vector<std::string> textos_;
    std::vector<ColorRGB> colores_;
};

} // namespace vadro
