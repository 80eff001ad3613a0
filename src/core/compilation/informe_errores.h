#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace vadro {

// The small picture beside a report line: the first of the list's images on an error, the
// second on a warning, none on any other line.
enum class IconoLinea { Ninguno, Error, Aviso };

// The beginnings that make a line a finding, and with it a count in the totals.
inline constexpr const char* kPrefijoError = "     Error:";
inline constexpr const char* kPrefijoAviso = "     Aviso:";

// The report of a compilation: the lines the user reads, the error key of each line at the
// same index (the empty key for a line with no place in the model), the icon of each line,
// and the two 16-bit counters. The lists only grow together, so they stay parallel.
class InformeErrores {
public:
    const std::vector<std::string>& Lineas() const { return lineas_; }
    const std::vector<std::string>& Claves() const { return claves_; }
    const std::vector<IconoLinea>& Iconos() const { return iconos_; }
    int16_t Errores() const { return errores_; }
    int16_t Avisos() const { return avisos_; }

    // Appends a line with its key. A line that begins as an error or a warning counts as one
    // and bears its icon; a count past 32767 is an overflow, as of a 16-bit counter.
    void Agregar(const std::string& linea, const std::string& clave = "");

    // Puts the totals at the very top: the warnings first, then the errors, then a blank line,
    // all without a key.
    void InsertarTotales();

private:
    void Insertar(const std::string& linea);

    std::vector<std::string> lineas_;
    std::vector<std::string> claves_;
    std::vector<IconoLinea> iconos_;
    int16_t errores_ = 0;
    int16_t avisos_ = 0;
};

// The kind of a line, read from its beginning.
IconoLinea IconoDeLinea(const std::string& linea);

// The report as the compile window shows it, one text line per report line, each ended by a
// line feed. With `conClaves` every line is followed by a tab and its key, the empty key
// included, so that each output line splits into exactly two fields.
std::string TextoInforme(const InformeErrores& informe, bool conClaves);

} // namespace vadro
