#pragma once

#include "core/core/registros.h"
#include "core/files/texto_modelo.h"

#include <string>

namespace vadro {

// The block of lines of a value function, keyed "FUN_" and the function's `Clave`, every
// key and the marker prefixed with `indice`.
//
// Writing never gives up: a statement that fails shows "Error <n> al guardar la función de
// valor." with the system's text and is tried again, until whatever caused it is gone.

// Adds the block to lines being built: the marker, the common lines, then those of the kind.
// Each option gets the key "O<n>" and the function's key before its own block is written.
void GuardarFuncionValor(FuncionValor& funcion, ArchivoSalida& salida,
                         const std::string& indice = {});
// Writes the block to a file: appended as part of a larger file, or as a complete file.
void GuardarFuncionValor(FuncionValor& funcion, const std::string& ruta, bool anadir,
                         const std::string& indice = {});

// The block of an optional indicator's function: no marker, and only the kinds none,
// continuous and step. Its failures name the optional indicator.
void GuardarFuncionOptativo(FuncionOptativo& funcion, ArchivoSalida& salida,
                            const std::string& indice = {});
void GuardarFuncionOptativo(FuncionOptativo& funcion, const std::string& ruta, bool anadir,
                            const std::string& indice = {});

// Reads a block from the current position of an open file. The caller sets `Clave` to the
// key the file uses; the "_IND" line then replaces it, and all later keys are formed from what
// it read. A value that should be a number and is not goes up as a runtime error.
void CargarFuncionValor(FuncionValor& funcion, ArchivoEntrada& archivo,
                        const std::string& indice = {});
// Reads a file that holds the block alone, plain or scrambled.
void CargarFuncionValor(FuncionValor& funcion, const std::string& ruta,
                        const std::string& indice = {});

void CargarFuncionOptativo(FuncionOptativo& funcion, ArchivoEntrada& archivo,
                           const std::string& indice = {});
void CargarFuncionOptativo(FuncionOptativo& funcion, const std::string& ruta,
                           const std::string& indice = {});

} // namespace vadro
