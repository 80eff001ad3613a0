#include "core/core/fuente.h"

#include <array>

namespace vadro {

MedidaFuente MedidasFuente(ClaseControl clase, int tamanoFuente) {
    if (tamanoFuente < 0 || tamanoFuente > 2) {
        return {};
    }
    static constexpr std::array<int, 3> kPuntos = {8, 10, 12};
    static constexpr std::array<int, 3> kAltoEtiqueta = {255, 275, 295};
    static constexpr std::array<int, 3> kAltoTexto = {270, 315, 360};
    const auto i = static_cast<std::size_t>(tamanoFuente);
    MedidaFuente medida{kPuntos[i], std::nullopt};
    if (clase == ClaseControl::Etiqueta) {
        medida.altoTwips = kAltoEtiqueta[i];
    } else if (clase == ClaseControl::CuadroTexto) {
        medida.altoTwips = kAltoTexto[i];
    }
    return medida;
}

} // namespace vadro
