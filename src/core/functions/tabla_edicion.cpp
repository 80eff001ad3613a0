#include "core/functions/tabla_edicion.h"

#include <algorithm>

namespace vadro {

TablaEdicion::TablaEdicion(std::vector<std::string> cabeceras, bool conId, bool colorea)
    : Cabeceras(std::move(cabeceras)), ConId(conId), Colorea(colorea) {
    Dimensionar(0);
}

std::string& TablaEdicion::Celda(int fila, int columna) {
    return Filas[static_cast<std::size_t>(fila - 1)][static_cast<std::size_t>(columna)];
}

const std::string& TablaEdicion::Celda(int fila, int columna) const {
    return Filas[static_cast<std::size_t>(fila - 1)][static_cast<std::size_t>(columna)];
}

Color TablaEdicion::Fondo(int fila, int columna) const {
    const bool actual = fila == FilaActual && columna == ColumnaActual;
    return Colorea && Cuenta > 0 && actual ? kFondoCeldaActual : kFondoCelda;
}

void TablaEdicion::Dimensionar(int n) {
    const bool vacia = Cuenta == 0 || Filas.empty();
    Cuenta = n;
    if (n == 0) {
        Filas.assign(1, std::vector<std::string>(Cabeceras.size(), " -"));
        FilaActual = 0;
        EntradaAbierta = false;
        return;
    }
    if (vacia) {
        Filas.clear(); // the row of " -" cells goes
    }
    Filas.resize(static_cast<std::size_t>(n), std::vector<std::string>(Cabeceras.size()));
    if (ConId) {
        for (int fila = 1; fila <= n; ++fila) {
            Celda(fila, 0) = std::to_string(fila);
        }
    }
    FilaActual = std::min(FilaActual, n);
}

void TablaEdicion::Poner(std::vector<std::vector<std::string>> filas) {
    Filas = std::move(filas);
    Cuenta = static_cast<int>(Filas.size());
    FilaActual = 0;
    EntradaAbierta = false;
    Dimensionar(Cuenta);
}

} // namespace vadro
