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

// Flags of the printer dialog: the boxes it leaves out.
enum FlagsImpresora : int {
    ImpSinNumerosPagina = 0x2,
    ImpSinSeleccion = 0x4,
    ImpOcultarArchivo = 0x100,
};

struct PeticionImpresora {
    int flags = 0;
};

// The printer the user chose and how: enough for the window layer to set up the same printer
// again. A test chooses a file, where the output goes as PDF instead of to a printer.
struct ImpresoraElegida {
    std::string nombre;  // empty: the default printer
    std::string archivo; // not empty: printed into this file
    int copias = 1;
    bool apaisado = false;
    // The paper in points; zero keeps the printer's own.
    double anchoPapel = 0;
    double altoPapel = 0;
    bool operator==(const ImpresoraElegida&) const = default;
};

// Answers a printer request with the chosen printer, or nothing when the user cancels.
using FuncionImpresora = std::function<std::optional<ImpresoraElegida>(const PeticionImpresora&)>;

// Shows the printer dialog through the service installed in the session. Cancelling is
// reported to the command as the cancel error 32755, as without a service.
ImpresoraElegida MostrarDialogoImpresora(const PeticionImpresora& peticion);

FuncionImpresora InstalarImpresora(FuncionImpresora funcion);

} // namespace vadro
