#pragma once

#include "core/core/valor_libre.h"
#include "core/files/busqueda_texto.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vadro {

// An open model file: its plain lines in 8-bit text and the position of the next line to
// read. Readers ask for their keys in the order of writing, so each costs about one line.
class ArchivoEntrada {
public:
    ArchivoEntrada() : ArchivoEntrada(std::vector<std::string>{}) {}
    // A file made of these lines.
    explicit ArchivoEntrada(const std::vector<std::string>& lineasOchoBits);
    // A file whose plain 8-bit text this is, split into lines as any reader splits it.
    static ArchivoEntrada DesdeTexto(std::string textoOchoBits, std::string temporal = {});

    // Opens a complete file as its plain text: the scrambled form is decoded into a temporary
    // file in the program directory, which the reader deletes when it is done.
    static ArchivoEntrada Abrir(const std::string& ruta);

    bool FinArchivo() const { return posicion_ >= lineas_.size(); }
    std::size_t NumLineas() const { return lineas_.size(); }
    std::size_t Posicion() const { return posicion_; }
    void IrA(std::size_t posicion) { posicion_ = posicion; }
    // The next line; reading past the end is runtime error 62. It stays valid while the file
    // does.
    std::string_view LeerLinea();

    // A copy of all the lines.
    std::vector<std::string> Lineas() const;

    // Deletes the temporary file of the plain text, if any.
    void BorrarTemporal();

    // The first line in [desde, hasta) that holds the text anywhere in it, or NumLineas(). The
    // search runs over the bytes of the file, not over its lines, and its cost is charged (see
    // CobrarBusqueda).
    std::size_t LineaCon(std::string_view buscado, std::size_t desde, std::size_t hasta);
    std::string_view LineaEn(std::size_t linea) const { return Linea(lineas_[linea]); }

    // Closes the account of one key's search. A search reads at most about one pass over the
    // file, and most read a few bytes; a missing key costs the blocks where it could stand. A
    // broken or hostile file whose counts ask for far more keys than it holds, over a large
    // text, would search for hours: its searches may read a fixed allowance per key and a
    // small number of passes over the whole file besides, and beyond that the load fails.
    void CobrarBusqueda();

private:
    struct Texto {};
    ArchivoEntrada(Texto, std::string textoOchoBits, std::string temporal);

    // Where a line stands in the text; offsets, not views, so that a moved file stays valid.
    struct Tramo {
        std::size_t inicio;
        std::size_t largo;
    };
    std::string_view Linea(const Tramo& tramo) const {
        return std::string_view(texto_).substr(tramo.inicio, tramo.largo);
    }

    // All lines in one buffer: a large model has hundreds of thousands of them.
    std::string texto_;
    std::vector<Tramo> lineas_;
    std::size_t posicion_ = 0;
    std::string temporal_;
    BuscadorTexto buscador_;
    std::size_t costeBusquedas_ = 0;
    std::size_t busquedas_ = 0;
};

// The value of a key, searched from the current position onwards and then once from the
// start up to where the search began. The key may stand anywhere in a line; the value is what
// follows the line's last "=" (the very last character is not examined), trimmed. A missing key
// gives the empty text and leaves the position as it was.
ValorLibre BuscarValor(ArchivoEntrada& archivo, const std::string& clave);

// The plain text of a file about to be written, in 8-bit text, each line ended by carriage
// return and line feed. A value that holds a line break breaks its line there, as it does in
// the written file.
class ArchivoSalida {
public:
    // One line of UTF-8 text.
    void Escribir(const std::string& linea);
    // A value line: key, " = ", value.
    void Escribir(const std::string& clave, const std::string& valor);

    const std::string& Texto() const { return texto_; }
    // A copy of the lines, as a reader of the file will see them.
    std::vector<std::string> Lineas() const;

private:
    std::string texto_;
};

// Writes the lines as a complete file, scrambled; the previous file is replaced only when
// the new one is whole.
void EscribirCompleto(const std::string& ruta, const ArchivoSalida& salida);

// Appends the lines as plain text to a file, as a section that is part of a larger file.
void AnadirSeccion(const std::string& ruta, const ArchivoSalida& salida);

// Where a section's lines go: a complete file of its own, or the end of a larger one.
void GuardarSeccion(const std::string& ruta, const ArchivoSalida& salida, bool anadir);

} // namespace vadro
