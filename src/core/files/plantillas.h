#pragma once

#include "core/core/registros.h"
#include "core/core/sesion.h"

#include <functional>
#include <string>

namespace vadro {

// The kinds of template: a single section in a file of its own.
struct TipoPlantilla {
    std::string filtro;
    std::string tituloImportar;
    std::string tituloExportar;
    std::string claveDirectorio; // key in "DIRECTORIOS"
    std::string Configuracion::*directorio;
};

extern const TipoPlantilla kPlantillaRequerimientos;
extern const TipoPlantilla kPlantillaComponentes;
extern const TipoPlantilla kPlantillaEtapas;
extern const TipoPlantilla kPlantillaFuncionValor;

// The default folder of templates and models: "Archivos de modelo" in the program directory.
std::string CarpetaArchivosDeModelo(const Sesion& sesion);

// Asks for a template file in the kind's last folder (the default folder the first time),
// remembers the chosen folder in the session and in "Config.ini" before anything is read or
// written, and hands the path to the action. A cancelled dialog ends quietly: false.
bool ImportarPlantilla(Sesion& sesion, const TipoPlantilla& tipo,
                       const std::function<void(const std::string& ruta)>& leer);
bool ExportarPlantilla(Sesion& sesion, const TipoPlantilla& tipo,
                       const std::function<void(const std::string& ruta)>& escribir);

// The commands of the model menu: each replaces or writes one section of the live model;
// refreshing the windows is the caller's part.
bool ImportarRequerimientos(Modelo& modelo);
bool ExportarRequerimientos(Modelo& modelo);
bool ImportarComponentes(Modelo& modelo);
bool ExportarComponentes(const Modelo& modelo);
bool ImportarEtapas(Modelo& modelo);
bool ExportarEtapas(const Modelo& modelo);

// The value-function template works on a scratch function with an empty key, so that its
// lines read "FUN__IND" and so on and it binds to no indicator. The import reads the file into
// a fresh scratch function for the editor; the export writes the function the editor filled,
// under the empty key.
bool ImportarFuncionValor(FuncionValor& leida);
bool ExportarFuncionValor(const FuncionValor& funcion);

} // namespace vadro
