#pragma once

#include "core/core/registros.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vadro {

// The model report, built once in the core and read two ways: the report window turns it into a
// rich-text document (pictures drawn from the functions they carry), the companion into plain
// text. Both read the same lines, so they can never disagree.
//
// A report is a list of lines (paragraphs). A line has one indentation, taken from the last
// text written into it, and holds, in order, pieces: runs of text, the icon of a tree level and
// pictures of functions. Texts never hold line feeds: a line feed ends a line. The last line is
// the one still open, empty when the report ends with a line feed.

// The look of every run: one font and one size; only the weight changes.
inline constexpr std::string_view kFuenteInforme = "Verdana";
inline constexpr int kTamanoInforme = 11; // points

struct FormatoLetra {
    std::string_view Fuente = kFuenteInforme;
    int Tamano = kTamanoInforme;
    bool Negrita = false;
    bool Cursiva = false;
    bool Subrayado = false;
    bool operator==(const FormatoLetra&) const = default;
};

// The small picture before an entry of a tree. The first four are the images 1 to 4 of the
// node icons; the last three belong to the components tree and the list of stages.
enum class IconoInforme {
    Requerimiento = 1,
    Criterio = 2,
    Subcriterio = 3,
    Indicador = 4,
    Componente = 5,
    Subcomponente = 6,
    Etapa = 7,
};

// Which drawing a picture is: the report drawing of a continuous (or scoring) function, the
// report drawing of a step function, or the crossed box of a function without enough data.
enum class DibujoInforme { Continua, Escalon, Tachada };

enum class TipoPieza { Texto, Icono, Grafica };

struct PiezaInforme {
    TipoPieza Tipo = TipoPieza::Texto;
    std::string Texto;                                // Texto: the run, without line feeds
    FormatoLetra Letra;                               // Texto: its look
    IconoInforme Icono = IconoInforme::Requerimiento; // Icono
    DibujoInforme Dibujo = DibujoInforme::Tachada;    // Grafica
    std::shared_ptr<const FuncionValor> Funcion;      // Grafica Continua and Escalon: a copy
                                                      // of the function to draw; else null
};

struct LineaInforme {
    int Nivel = 1;          // level of indentation: 1, 2, 3, 4, any other
    int Sangria = 0;        // left indent in twips, from the level
    int SangriaDerecha = 0; // right indent in twips: 50 under text, 0 under a heading
    std::vector<PiezaInforme> Piezas;
};

// Left indent of a level in twips: 1 none, 2 350, 3 700, 4 1050, any other 1290.
int SangriaNivel(int nivel);
// The same indent in plain text: two blanks for each level past the first (none at 1, six at
// 4), eight for any other level.
std::string BlancosNivel(int nivel);

// The report under construction, as a rich-text pane is written: always at the end.
class Informe {
public:
    Informe();

    // Text at a level: plain weight, a right indent of 50. Line feeds in it ("\n", "\r\n" or
    // "\r") end lines; the open line and every line the text begins take the level.
    void AñadirTexto(std::string_view texto, int nivel);
    // Text and a line feed in bold, without indent.
    void AñadirEncabezado(std::string_view texto);
    void AñadirIcono(IconoInforme icono);
    // A picture of a function at the end of the open line. The crossed box needs no function.
    void AñadirImagen(DibujoInforme dibujo, std::shared_ptr<const FuncionValor> funcion = {});

    const std::vector<LineaInforme>& Lineas() const { return lineas_; }

private:
    void Formatear(LineaInforme& linea, int nivel, int derecha);
    void Escribir(std::string_view texto, const FormatoLetra& letra, int nivel, int derecha);

    std::vector<LineaInforme> lineas_;
};

// The rules of the report's lines, one each.

// "NOMBRE (V.version)" in capitals, or "Nuevo modelo" for a model without name.
std::string TituloInforme(const Modelo& modelo);
// A node of the requirements tree: "(key) name", with a weight "(key) 12.50% - name".
std::string LineaNodo(const std::string& clave, const CabeceraNodo& nodo);
// The shape of a function beside its picture: " C = c; K = k; P = p", each piece only when its
// field is defined; nothing for a step function.
std::string TextoForma(const FuncionValor& funcion);
// The picture of a function: a step function its step drawing; any other its continuous
// drawing when RMin, RMax, C, K and P are all defined, else the crossed box.
DibujoInforme DibujoDeFuncion(const FuncionValor& funcion);

// The writers of the report's parts, each at the end of the report.
void AñadirPropiedades(Informe& informe, const Modelo& modelo);
void AñadirRequerimientos(Informe& informe, const Modelo& modelo);
void AñadirComponentes(Informe& informe, const Modelo& modelo);
void AñadirEtapas(Informe& informe, const Modelo& modelo);
// The picture of a function and its shape text, on a line of its own at a level.
void AñadirFuncion(Informe& informe, const FuncionValor& funcion, int nivel);
// The elements of a scoring function, and the options of a function of optional indicators.
void AñadirPuntuacion(Informe& informe, const FuncionValor& funcion, int nivel);
void AñadirOptativos(Informe& informe, const FuncionValor& funcion, int nivel);

// The complete report: title, properties, requirements, components, stages.
Informe GenerarInforme(const Modelo& modelo);

// Everything the report window shows: the four parts alone and the complete report.
struct PanelesInforme {
    Informe Propiedades;
    Informe Requerimientos;
    Informe Componentes;
    Informe Etapas;
    Informe Completo;
};
PanelesInforme ActualizarPaneles(const Modelo& modelo);

// The report as plain text: one line per line, each after the blanks of its level (an empty
// line has none), a picture as "[gráfica]" or "[gráfica tachada]", no icons. Every line ends
// with a line feed; an empty last line is not written.
std::string TextoPlano(const Informe& informe);

} // namespace vadro
