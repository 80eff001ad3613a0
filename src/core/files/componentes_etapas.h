#pragma once

#include "core/core/registros.h"
#include "core/files/texto_modelo.h"

#include <string>

namespace vadro {

// The components section: its marker, the count, and per component its name, its count of
// subcomponents and their names. The writer has no trap: a failure goes up to the caller.
void GuardarComponentes(const Modelo& modelo, ArchivoSalida& salida, const std::string& indice);
void GuardarComponentes(const Modelo& modelo, const std::string& ruta, bool anadir,
                        const std::string& indice = {});

// Reads the components; any failure is shown, and the model is left with no components and a
// single empty entry.
void CargarComponentes(Modelo& modelo, ArchivoEntrada& archivo, const std::string& indice);
void CargarComponentes(Modelo& modelo, const std::string& ruta, const std::string& indice = {});

// The stages section: its marker, the count and the names.
void GuardarEtapas(const Modelo& modelo, ArchivoSalida& salida, const std::string& indice);
void GuardarEtapas(const Modelo& modelo, const std::string& ruta, bool anadir,
                   const std::string& indice = {});

void CargarEtapas(Modelo& modelo, ArchivoEntrada& archivo, const std::string& indice);
void CargarEtapas(Modelo& modelo, const std::string& ruta, const std::string& indice = {});

} // namespace vadro
