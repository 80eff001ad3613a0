#pragma once

#include "core/core/registros.h"
#include "core/core/valor_libre.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vadro {

// The positions of the workflow line; `Ninguna` before a model is open.
enum class Posicion { Ninguna, Ejes, Resumen, Ponderacion, Informe };

// "Ejes", "Resumen", "Ponderacion", "Informe"; empty for `Ninguna`.
std::string NombrePosicion(Posicion posicion);

// What the status bar shows for a position: "Posición: " and the position in lower case.
std::string TextoPosicion(Posicion posicion);

// The child windows of the main window.
enum class Hija {
    Ejes,
    Requerimientos,
    Componentes,
    Etapas,
    Resumen,
    Ponderacion,
    Informe,
    Compilacion
};

// The three parts of a model that a design window edits and a template replaces.
enum class ParteModelo { Requerimientos, Componentes, Etapas };

// The object name of a child window: "frmEjes", "frmRequerimientos", ...
const char* NombreHija(Hija hija);

// The labels of the step panel, by index. The headings do nothing when clicked.
enum Etiqueta : int {
    EtqDefinicion = 0,
    EtqRequerimientos = 1,
    EtqComponentes = 2,
    EtqCicloVida = 3,
    EtqResumen = 4,
    EtqPonderacion = 5,
    EtqPesos = 6,
    EtqControl = 7,
    EtqCompilacion = 8,
};
inline constexpr int kNumEtiquetas = 9;
const char* TextoEtiqueta(int indice);
bool EsEncabezado(int indice);

// The toolbar buttons by place, counted from 1 with the separators: 8 mirrors Retroceder,
// 9 mirrors Continuar, 10 to 13 are the group of the three design windows.
enum BotonBarra : int {
    BtnRetroceder = 8,
    BtnContinuar = 9,
    BtnPrimeroDiseno = 10,
    BtnUltimoDiseno = 13,
};

// What a toolbar button, a step label or a menu entry asks of the main window.
enum class Comando {
    Ninguno,
    Nuevo,
    Abrir,
    Guardar,
    Imprimir,
    Retroceder,
    Continuar,
    Requerimientos,
    Componentes,
    Etapas,
    Compilar,
    SaltarAResumen,
    SaltarAPonderacion,
};
Comando ComandoDeBoton(std::string_view clave);
Comando ComandoDeEtiqueta(int indice);

// A setting of the main window's controls. What a field leaves empty stays as it is.
struct Ajuste {
    std::optional<bool> entradasDiseno; // the axes, requirements, components, stages entries
    std::optional<bool> cmdRetroceder;
    std::optional<bool> botonRetroceder; // toolbar button 8
    std::optional<bool> cmdContinuar;
    std::optional<bool> botonContinuar; // toolbar button 9
    std::optional<bool> grupoDiseno;    // toolbar buttons 10 to 13 shown
    std::optional<bool> importar;       // the import submenu enabled
    std::optional<bool> panel;          // the step panel shown
    std::optional<bool> fondo;          // the background shown, after the unloads
    std::optional<bool> menuModelo;     // the model menu shown
};

// Setting A, while the system is designed, and setting B, while the model is reviewed.
Ajuste AjusteDiseno();
Ajuste AjusteRevision();

// One step of the main window, applied in this order: the setting, the acceptance of the
// design windows that are open, the unloads, the background, the loads, the new position,
// and the status bar.
struct Transicion {
    Ajuste ajuste;
    std::vector<Hija> aceptar;   // each if open, in this order
    std::vector<Hija> descargar; // each if open
    std::vector<Hija> cargar;
    std::optional<Posicion> destino;
    // At "Resumen" the step goes on only when the users' permission is accepted.
    bool preguntarPermisos = false;
    // At "Informe": the end of the line, with its messages and the offer to compile.
    bool finalDeLinea = false;
};

Transicion TransicionContinuar(Posicion posicion);
Transicion TransicionRetroceder(Posicion posicion, const Modelo& modelo);
// What follows the acceptance of the users' permission.
Transicion TransicionTrasPermisos();
// The jumps of the step panel to "Resumen" and to "Ponderacion"; they ignore the position.
Transicion TransicionSaltoResumen();
Transicion TransicionSaltoPonderacion();
// At the end of the line, before the compilation the user asked for.
Transicion TransicionCompilarAlFinal();

// What a child window does to the main window when it loads and when it unloads: the
// background, the step label it marks as the step in hand, and the toolbar's printing button.
// The compilation window puts that button on while it is open, so that what it shows can be
// printed; its unload leaves the button on, since the model report prints from it as well.
struct EfectoHija {
    std::optional<bool> fondo;
    int etiquetaEnCurso = -1;
    std::optional<bool> botonImprimir;
};
EfectoHija EfectoAlCargar(Hija hija);
EfectoHija EfectoAlDescargar(Hija hija);

// The windows a refused close loads again, by position: at "Ejes" the axes and the design
// windows as they were open, otherwise the window of the position if it was open.
std::vector<Hija> VentanasARecargar(Posicion posicion, const std::vector<Hija>& abiertas);

// The end of the line at "Informe": the messages, and whether the user asked to compile.
// A compiled model only hears what to do next; otherwise the user is asked.
bool PreguntarCompilarAlFinal(const Modelo& modelo);

// The refusal of the compile command on a model without requirements: false after the
// message, true when compiling may go on.
bool ModeloCompilable(const Modelo& modelo);

} // namespace vadro
