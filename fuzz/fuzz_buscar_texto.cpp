// The searcher's summary of blocks must find exactly what a plain search finds: the input is
// split into a searched text (its first bytes) and the text searched, the range from two bytes.
#include "core/files/busqueda_texto.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, std::size_t tamano) {
    if (tamano < 3) {
        return 0;
    }
    const std::size_t largo = datos[0] % 24;
    const std::string bytes(reinterpret_cast<const char*>(datos) + 3, tamano - 3);
    const std::string_view buscado = std::string_view(bytes).substr(0, largo);
    // Repeated so that the text spans several blocks.
    std::string texto;
    while (texto.size() < 3 * vadro::BuscadorTexto::kBloque && !bytes.empty()) {
        texto += bytes;
    }
    const std::size_t desde = texto.empty() ? 0 : (datos[1] * 977u) % texto.size();
    const std::size_t hasta = texto.size() - (texto.empty() ? 0 : (datos[2] * 131u) % texto.size());
    vadro::BuscadorTexto plano;
    vadro::BuscadorTexto resumido;
    resumido.Resumir(texto);
    std::size_t leidos = 0;
    const std::size_t a = plano.Buscar(texto, buscado, desde, hasta, leidos);
    const std::size_t b = resumido.Buscar(texto, buscado, desde, hasta, leidos);
    const auto esperado = hasta < desde
                              ? std::string_view::npos
                              : std::string_view(texto).substr(0, hasta).find(buscado, desde);
    const std::size_t c =
        esperado == std::string_view::npos ? vadro::BuscadorTexto::kNoEncontrado : esperado;
    if (a != c || b != c) {
        std::abort();
    }
    return 0;
}
