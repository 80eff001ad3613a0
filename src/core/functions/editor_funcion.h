#pragma once

#include "core/core/registros.h"
#include "core/functions/curva_continua.h"
#include "core/functions/grafica.h"
#include "core/functions/graficos.h"
#include "core/functions/tabla_edicion.h"

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace vadro {

// The function editor without its widgets: every control it shows is a member here, and
// every handler of the window is a method that decides, asks through `MsgBox`, and leaves
// the controls as the window must show them. The window copies what the user does into the
// handlers and shows the state afterwards; a test drives the same methods.

// The text inputs of the editor.
enum class Campo { Min, Max, MinRef, MaxRef, Unidades, C, K, P };
inline constexpr int kCampos = 8;

// Positions of the kind list; -1 when it shows nothing.
inline constexpr int kTipoNinguno = -1;
inline constexpr int kTipoContinua = 0;
inline constexpr int kTipoEscalon = 1;
inline constexpr int kTipoPuntuacion = 2;
extern const std::array<const char*, 3> kTiposLista; // "Continua", "Escalón", "Puntuación"

// The tabs of `tspSeleccion`.
inline constexpr int kPestanaFuncion = 1;
inline constexpr int kPestanaPuntuacion = 2;

// What the window shows of its panels.
struct Paneles {
    bool FondoGrafica = true; // pctFondoGrafica
    bool Continua = true;     // fmeContinua
    bool Escalon = false;     // fmeEscalon
    bool Tablas = false;      // pctTablas
    bool Optativos = false;   // pctOptativos
    bool Error = false;       // pctError
    bool Referencias = true;  // txtMinRef and txtMaxRef; lblMinRef and lblMaxRef otherwise
    bool operator==(const Paneles&) const = default;
};

// A request to move the focus into an input, with its text selected.
struct PeticionFoco {
    Campo campo;
    bool operator==(const PeticionFoco&) const = default;
};

// The captions of the three shape parameters for their bounds.
std::string LeyendaLimitesC(double inferior, double superior);
inline const std::string kLeyendaLimitesK = "Pto. inflexión en ordenada (0 < K < 1)";
inline const std::string kLeyendaLimitesP = "Factor de forma (0 < P < infinito)";

// One interval in mathematical notation: `=10` to `<20` reads "[10,20)"; a missing end "?".
std::string FormatoIntervalo(const std::string& inicial, const std::string& final_);

// A limit read strictly, as the leave handlers of the reference limits compare it: a bare
// number, or the number behind an interval symbol; nothing when there is no number at all.
std::optional<double> LecturaEstricta(const std::string& texto);

// A preset of the shape buttons: P, C and K for reference limits as they stand.
struct FormaPredefinida {
    double P;
    double C;
    double K;
};
FormaPredefinida Forma(int indice, double refMin, double refMax);

// What a key in the floating input of the grid did.
enum class AccionEntrada { Ninguna, Confirmada, Descartada, Movida, Retenida };

class EditorFuncion {
public:
    EditorFuncion();

    // --- Controls -------------------------------------------------------------------------
    std::array<std::string, kCampos> Textos;
    std::string& Texto(Campo campo) { return Textos[static_cast<std::size_t>(campo)]; }
    const std::string& Texto(Campo campo) const { return Textos[static_cast<std::size_t>(campo)]; }
    std::array<std::string, 3> EtiquetaParametro; // tags of txtC, txtK, txtP ("Auto")
    std::array<std::string, 4> EtiquetaForma;     // tags of cmdFuncion(0..3) ("Usuario")
    bool chkMinUsuario = false;
    bool chkMaxUsuario = false;
    bool chkAjustarMinRef = false;
    bool chkAjustarMaxRef = false;
    bool chkMinRefUsuario = false;
    bool chkMaxRefUsuario = false;
    bool MinRefHabilitado = true;
    bool MaxRefHabilitado = true;
    int Tipo = kTipoNinguno; // position of cbbTipoFuncionPrimaria
    bool TipoHabilitado = true;
    bool PlantillasHabilitadas = true; // cmdCargar and cmdGuardar
    bool chkOptativos = false;
    int Pestana = kPestanaFuncion;
    Paneles paneles;

    std::string lblMinimo = "0 u";
    std::string lblMaximo = "100 u";
    std::string lblLimitesC;
    std::string lblLimitesK;
    std::string lblLimitesP;
    std::string lblMinRef;
    std::string lblMaxRef;

    // The interval grid: rows from 1 at index 0, the count of `lblIntervalos`, the current
    // cell (row from 1, column 0 to 3) and whether the floating input `txtValor` is open.
    std::vector<FilaIntervalo> Filas;
    int Intervalos = 0;
    bool RejillaHabilitada = false;
    int FilaActual = 1;
    int ColumnaActual = 1;
    bool EntradaAbierta = false;

    // --- Working state ----------------------------------------------------------------------
    double RefMinActual = 0;
    double RefMaxActual = 100;
    double CInferior = 0;
    double CSuperior = 100;
    double KInferior = 0;
    double KSuperior = 1;
    double PInferior = 0;
    double PSuperior = 0;
    double PasoC = 1;
    double PasoK = 0.01;
    double PasoP = 0.01;
    double UltimoC = 0;
    double UltimoK = 0;
    double UltimoP = 0;
    std::string UltimoRefMax;
    std::string UltimoRefMin;

    bool Cargando = false;
    bool ModificadoInicial = false;
    bool Aviso = true; // a reduction of the count asks first
    bool EdicionOptativo = false;
    bool Aceptado = false;
    bool Activando = false;
    std::string Nombre;

    // The optional indicators: their grid (`grdOptativos`, whose count `lblOptativos` starts
    // at 2), the selectable count `lblSeleccionables` with the upper limit of its up-down
    // control, and the drawing of the chosen row's function. The rows' functions are the
    // session's `FuncionesEdicion`.
    TablaEdicion Optativos;
    int Seleccionables = 1;
    int MaximoSeleccionables = 1;
    Grafica GraficaOptativo;

    // The scoring elements: `grdBooleanos` and `grdNumericos`.
    TablaEdicion Booleanos;
    TablaEdicion Numericos;

    // The main drawing, the curve whose factor survives between drawings, and how many
    // drawings were made.
    Grafica grafica;
    CurvaEditor curva;
    int Dibujos = 0;

    // Where the focus must go after the handler, if anywhere.
    std::optional<PeticionFoco> foco;

    // --- Ways out to the window -----------------------------------------------------------
    // The confirmation before a reduction of the count; true when confirmed.
    std::function<bool()> ConfirmarReduccion;
    // The notice that nothing can be drawn.
    std::function<void()> MostrarAviso;

    // --- Opening and closing ----------------------------------------------------------------
    // Loads the window on a record, which accepting writes.
    void Cargar(FuncionValor& registro);
    void Cargar(FuncionOptativo& registro);
    std::string Titulo() const;
    void Activar();
    // True when the window may close as accepted.
    bool Aceptar();
    void Cancelar();
    // The closing question; true when the window may close.
    bool PuedeCerrar();

    void LeerFuncion(const FuncionValor& funcion);
    void LeerOptativo(const FuncionOptativo& funcion);
    void EscribirFuncion(FuncionValor& funcion) const;
    void EscribirOptativo(FuncionOptativo& funcion) const;
    bool CargarPlantilla();
    bool GuardarPlantilla();

    // --- Continuous editing -----------------------------------------------------------------
    // The user changed the text of an input.
    void Cambio(Campo campo, const std::string& texto);
    // The input lost the focus.
    void Salir(Campo campo);
    // A key went down in an input: Enter in the four limits, the arrows in the parameters.
    // True when the key was used.
    bool Tecla(Campo campo, int tecla);
    void Subir(Campo parametro);
    void Bajar(Campo parametro);
    // A key or mouse button went down on a shape button; its click follows.
    void PulsarForma(int indice);
    void ClickForma(int indice);
    void ClickAjustar(bool maximo, bool marcado);
    void ClickUsuarioRef(bool maximo, bool marcado);
    void ClickTipo(int indice);
    void ClickPestana(int pestana);
    void ClickOptativos(bool marcado);

    void ActualizarLimites();
    void Graficar();
    // True when the limit was refused (and emptied).
    bool ErrorLimites(bool maximo);
    bool ValoresOK() const;

    // --- Step editing -----------------------------------------------------------------------
    void CambiarIntervalos(int n);
    // Opens the floating input over the current cell; false when the cell can't be edited.
    bool AbrirCelda();
    // True when the text is refused at the current cell, after the message.
    bool ValidarIntervalo(const std::string& texto);
    // The current cell is left: the open input's text is committed or dropped.
    void SalirCelda(const std::string& texto);
    AccionEntrada TeclaEntrada(int tecla, const std::string& texto);
    // True when the function can't be accepted, after the message.
    bool ErrorMinMax();
    void ActualizarEtiquetasRef();
    void ClickEtiquetaRef(bool maximo);

    // --- Table grids: optional indicators and scoring elements ------------------------------
    TablaEdicion& TablaDe(Tabla tabla);
    const TablaEdicion& TablaDe(Tabla tabla) const;
    // The count of a grid changes to `n`, a reduction only when confirmed.
    void CambiarCuenta(Tabla tabla, int n);
    void CambiarSeleccionables(int n);
    // The current cell moved to this cell.
    void EntrarCelda(Tabla tabla, int fila, int columna);
    // Opens the floating input over the current cell; false when it can't be edited, after
    // the message if the grid has no element.
    bool AbrirCelda(Tabla tabla);
    // The current cell is left: the open input's text is committed or refused.
    void SalirCelda(Tabla tabla, const std::string& texto);
    AccionEntrada TeclaEntrada(Tabla tabla, int tecla, const std::string& texto);
    // A double click on the optional indicator's drawing: the row whose function is to be
    // edited, or 0 after the message that says why there is none.
    int FilaOptativoAEditar();
    // The caption of the second window on the function of row `fila`.
    std::string TituloOptativo(const std::string& titulo, int fila) const;
    // Draws the function of the chosen optional indicator again; nothing without a row.
    void DibujarOptativo();
    // True when the scoring grids hold no element.
    bool PuntuacionVacia() const;

private:
    void Poner(Campo campo, const std::string& texto);
    void PonerCallado(Campo campo, const std::string& texto);
    void AlCambiar(Campo campo);
    void CambioParametro(Campo campo);
    void CambioReferencia(bool maximo);
    void SalirReferencia(bool maximo);
    void SalirLimite(bool maximo);
    void SalirParametro(Campo campo);
    void SeleccionarTipo(int indice);
    void AjustarParametro(Campo parametro, int sentido);
    void ReferenciasDeEscalones();
    void LeerComun(const FuncionComun& funcion);
    void EscribirComun(FuncionComun& funcion) const;
    void LeerEscalones(const Arreglo<Escalon>& escalones);
    void LeerOptativos(const FuncionValor& funcion);
    void EscribirOptativos(FuncionValor& funcion) const;
    void LeerPuntuaciones(const Arreglo<Puntuacion>& puntuaciones);
    void EscribirPuntuaciones(FuncionValor& funcion) const;
    // The text is refused at the current cell of a scoring grid, after the message.
    bool NumeroInvalido(const TablaEdicion& tabla, const std::string& texto) const;
    std::string& Celda(int fila, int columna);
    const std::string& Celda(int fila, int columna) const;

    std::variant<std::monostate, FuncionValor*, FuncionOptativo*> registro_;
};

} // namespace vadro
