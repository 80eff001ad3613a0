#pragma once

#include "core/core/arreglo.h"
#include "core/core/registros.h"
#include "core/files/texto_modelo.h"

#include <cstddef>
#include <string>

namespace vadro {

// What the section readers of one open file share: the file, the prefix of the keys, and the
// number of array elements they may still create.
//
// A count in a file may claim far more elements than the file holds; the missing keys then
// read as empty, which is how a truncated file loads. Every element of a file the program
// wrote stands on at least one line of its own, so the readers allow one element per line
// and a fixed margin for hand-made files; beyond that a count can only be a broken file, and
// the reader gives up with the out-of-memory error instead of filling memory with empty
// records (a sibling list of 32767 nodes would otherwise ask for 32767 weight rows of 32767).
class LecturaSeccion {
public:
    LecturaSeccion(ArchivoEntrada& archivo, std::string indice);

    // The value of the key with the section's prefix in front.
    ValorLibre Buscar(const std::string& clave);

    // Sizes an array anew, or keeping its content, counting the new elements.
    template <typename T> void Dimensionar(Arreglo<T>& arreglo, int cota) {
        if (cota > 0) {
            Reservar(static_cast<std::size_t>(cota));
        }
        arreglo.Redimensionar(cota);
    }
    template <typename T> void DimensionarConservando(Arreglo<T>& arreglo, int cota) {
        if (cota > arreglo.Tamano()) {
            Reservar(static_cast<std::size_t>(cota - arreglo.Tamano()));
        }
        arreglo.RedimensionarConservando(cota);
    }

    static constexpr std::size_t kMargenElementos = 65536;

private:
    void Reservar(std::size_t elementos);

    ArchivoEntrada& archivo_;
    std::string indice_;
    std::size_t disponibles_;
};

// A complete file opened on its own by a reader; its temporary plain text is deleted when the
// reader is done, also when the reading fails.
class ArchivoPropio {
public:
    explicit ArchivoPropio(const std::string& ruta) : archivo_(ArchivoEntrada::Abrir(ruta)) {}
    ~ArchivoPropio() { archivo_.BorrarTemporal(); }
    ArchivoPropio(const ArchivoPropio&) = delete;
    ArchivoPropio& operator=(const ArchivoPropio&) = delete;
    ArchivoEntrada& operator*() { return archivo_; }

private:
    ArchivoEntrada archivo_;
};

// A count as read: the empty text stays empty (no children), anything else must be a number.
ValorLibre LeerCuenta(const ValorLibre& leido);

// The integer part of a count read from a file, the empty text giving 0; a 16-bit counter
// holds it or the count overflows.
int ParteEntera(const ValorLibre& leido);

// The block of a value function, from its "_IND" line on, read with the reader of the
// enclosing section.
void LeerFuncionValor(FuncionValor& funcion, LecturaSeccion& lectura);

} // namespace vadro
