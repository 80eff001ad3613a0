#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>

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

// What the user chose: the path as typed or picked, and the filter that stood chosen, from
// 1; 0 when the service does not tell it, and the request's filter counts.
struct RespuestaDialogo {
    RespuestaDialogo(std::string r, int filtro = 0) : ruta(std::move(r)), filtroElegido(filtro) {}
    std::string ruta;
    int filtroElegido = 0;
};

// Answers a request with the user's choice, or nothing when the user cancels.
using FuncionDialogos = std::function<std::optional<RespuestaDialogo>(const PeticionDialogo&)>;

// The extension a save dialog gives a name typed without one: that of the chosen filter when
// its pattern names one ("*.vdm" gives ".vdm"); none for "*.*" or a list of patterns. With
// no filter chosen, the request's (0 and 1 both the first).
std::string ExtensionDelFiltro(const std::string& filtro, int indice);

// The path a save dialog hands to its command: a name typed without an extension gets the
// chosen filter's. An open dialog's path, and a name with an extension, stay as they are.
std::string CompletarExtension(const PeticionDialogo& peticion, const RespuestaDialogo& respuesta);

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
