#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace vadro {

// Literal search over the bytes of one text, for the many searches of a model file.
//
// A key that is in the file is found a few bytes behind the reader's position; a key that is
// missing costs a pass over the whole text. A file with many missing keys (a hand-edited
// model, a truncated one) would pay that pass for each of them, so after a few passes the
// searcher builds a summary of the text: for each block of bytes, a bit set of the four-byte
// pieces it holds. A later search then looks only into the blocks that hold every piece of
// the searched text, which for a missing key is rarely more than the one or two blocks where
// it would stand.
class BuscadorTexto {
public:
    static constexpr std::size_t kNoEncontrado = static_cast<std::size_t>(-1);
    static constexpr std::size_t kBloque = 16384;

    // Every call names the same text, unchanged (its owner may have moved it).

    // Where the first occurrence of `buscado` lying wholly in [desde, hasta) starts, or
    // kNoEncontrado. Adds the bytes it looked at to `leidos`.
    std::size_t Buscar(std::string_view texto, std::string_view buscado, std::size_t desde,
                       std::size_t hasta, std::size_t& leidos);

    // Builds the summary of the blocks now; otherwise it is built once the searches have read
    // the text a few times over.
    void Resumir(std::string_view texto);
    bool Resumido() const { return !resumen_.empty(); }

private:
    static std::size_t BuscarEnTramo(std::string_view texto, std::string_view buscado,
                                     std::size_t desde, std::size_t hasta, std::size_t& leidos);
    std::size_t BuscarPorBloques(std::string_view texto, std::string_view buscado,
                                 std::size_t desde, std::size_t hasta, std::size_t& leidos) const;
    bool BloquePuedeTener(std::size_t bloque, const std::vector<std::uint32_t>& trozos) const;

    // One bit set per block, kPalabras words each.
    std::vector<std::uint64_t> resumen_;
    std::size_t leidosSinResumen_ = 0;
};

} // namespace vadro
