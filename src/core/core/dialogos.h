#pragma once

#include <functional>
#include <optional>
#include <string>

namespace vadro {

enum class TipoDialogo { Abrir, Guardar };

// Flags of the file dialog, with the values of the classic common dialog.
enum FlagsDialogo : int {
    DlgSoloLectura = 0x1,
    DlgPreguntarSobrescribir = 0x2,
    DlgOcultarSoloLectura = 0x4,
    DlgRutaDebeExistir = 0x800,
    DlgArchivoDebeExistir = 0x1000,
};

struct PeticionDialogo {
    TipoDialogo tipo = TipoDialogo::Abrir;
    std::string titulo;
    std::string directorioInicial;
    std::string nombreArchivo;
    std::string filtro; // "Description|pattern|Description|pattern"
    int indiceFiltro = 0;
    int flags = 0;
};

// Answers a request with the chosen path, or nothing when the user cancels.
using FuncionDialogos = std::function<std::optional<std::string>(const PeticionDialogo&)>;

// Shows a file dialog through the service installed in the session. Cancelling is reported
// to the command as the cancel error 32755.
std::string MostrarDialogoArchivo(const PeticionDialogo& peticion);

// The same for a command that ends quietly on a cancel: nothing when the user cancels.
std::optional<std::string> ElegirArchivo(const PeticionDialogo& peticion);

FuncionDialogos InstalarDialogos(FuncionDialogos funcion);

} // namespace vadro
