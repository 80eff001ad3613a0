#pragma once

#include "core/core/mensajes.h"

#include <deque>
#include <string>
#include <utility>
#include <vector>

namespace vadro::pruebas {

// A transcript of a table of cases: each row's input and outcome, then every message box the
// row showed ("[title] text => answer", line breaks written "\n" and "\r"), answered in turn by
// `respuestas` and then by their first button. Compared as a whole with a data file, so the
// exact messages, their order and their answers are checked without being restated in code.
// Installed for the life of the object, in place of the strict script.
class Acta {
public:
    Acta();
    ~Acta();
    Acta(const Acta&) = delete;
    Acta& operator=(const Acta&) = delete;

    // One row: what was done, what came of it (line breaks written as in messages), then the
    // messages it showed.
    void Fila(const std::string& entrada, const std::string& salida);
    // Compares the transcript with tests/datos/<datos>.
    void Comparar(const std::string& datos) const;

    std::deque<Respuesta> respuestas;
    // Each message line also names its icon and buttons: "{Pregunta SiNo}".
    bool iconos = false;
    // Texts written in their place on comparing (a test's own directory, say).
    std::vector<std::pair<std::string, std::string>> sustituciones;
    std::string texto;
    // Every message shown, for what the text leaves out (icons, buttons).
    std::vector<Mensaje> vistos;

private:
    Respuesta Anotar(const Mensaje& mensaje);

    std::string pendientes_;
    FuncionMensajes anterior_;
};

// One case of a table kept in a data file: the input of a transcript row as written, and its
// fields. Fields are separated by blanks; a field in single quotes may hold blanks or be empty
// ('' is the empty text), and "\n" and "\r" stand for line breaks.
struct Caso {
    std::string texto;
    std::vector<std::string> campos;
};

// The cases of the transcript in tests/datos/<datos>, in their order: the test works each one,
// writes its row with `caso.texto` as the input, and compares the whole transcript with the same
// file. So the table of inputs and their expected outcomes is one data file. A file that cannot
// be read, or holds no case, fails the test.
std::vector<Caso> Casos(const std::string& datos);

} // namespace vadro::pruebas
