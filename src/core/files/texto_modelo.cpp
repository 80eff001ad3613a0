#include "core/files/texto_modelo.h"

#include "core/core/archivos.h"
#include "core/core/codigo_pagina.h"
#include "core/core/error_ejecucion.h"
#include "core/files/proteccion.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace vadro {

namespace {

// What the searches of one file may read: a number of passes over the whole file, and an
// allowance per key that covers the blocks a missing key costs in a large model.
constexpr std::size_t kPasadasLibres = 64;
constexpr std::size_t kBytesPorBusqueda = 256 * 1024;

} // namespace

// The lines are joined by a line feed, which no line holds, so that no occurrence of a key
// spans two of them.
ArchivoEntrada::ArchivoEntrada(const std::vector<std::string>& lineasOchoBits) {
    for (const auto& linea : lineasOchoBits) {
        if (!lineas_.empty()) {
            texto_ += '\n';
        }
        lineas_.push_back({texto_.size(), linea.size()});
        texto_ += linea;
    }
}

ArchivoEntrada::ArchivoEntrada(Texto, std::string textoOchoBits, std::string temporal)
    : texto_(std::move(textoOchoBits)), temporal_(std::move(temporal)) {
    const std::string_view texto(texto_);
    lineas_.reserve(static_cast<std::size_t>(std::count(texto.begin(), texto.end(), '\n')) + 1);
    PorCadaLinea(texto, [this, texto](std::string_view linea) {
        lineas_.push_back({static_cast<std::size_t>(linea.data() - texto.data()), linea.size()});
    });
}

ArchivoEntrada ArchivoEntrada::DesdeTexto(std::string textoOchoBits, std::string temporal) {
    return ArchivoEntrada(Texto{}, std::move(textoOchoBits), std::move(temporal));
}

std::vector<std::string> ArchivoEntrada::Lineas() const {
    std::vector<std::string> lineas;
    lineas.reserve(lineas_.size());
    for (const Tramo& tramo : lineas_) {
        lineas.emplace_back(Linea(tramo));
    }
    return lineas;
}

std::size_t ArchivoEntrada::LineaCon(std::string_view buscado, std::size_t desde,
                                     std::size_t hasta) {
    hasta = std::min(hasta, lineas_.size());
    if (desde >= hasta) {
        return lineas_.size();
    }
    const std::size_t fin = lineas_[hasta - 1].inicio + lineas_[hasta - 1].largo;
    std::size_t byte = lineas_[desde].inicio;
    for (;;) {
        const std::size_t donde = buscador_.Buscar(texto_, buscado, byte, fin, costeBusquedas_);
        if (donde == BuscadorTexto::kNoEncontrado) {
            return lineas_.size();
        }
        // The line that holds the first byte of the occurrence; it counts if the line holds all
        // of it (a text with a line break in it is in no line).
        const auto siguiente =
            std::upper_bound(lineas_.begin(), lineas_.end(), donde,
                             [](std::size_t b, const Tramo& tramo) { return b < tramo.inicio; });
        const Tramo& tramo = *(siguiente - 1);
        if (donde + buscado.size() <= tramo.inicio + tramo.largo) {
            return static_cast<std::size_t>(siguiente - lineas_.begin()) - 1;
        }
        byte = donde + 1;
    }
}

void ArchivoEntrada::CobrarBusqueda() {
    ++busquedas_;
    const double permitido =
        static_cast<double>(kPasadasLibres) * static_cast<double>(texto_.size()) +
        static_cast<double>(kBytesPorBusqueda) * static_cast<double>(busquedas_);
    if (static_cast<double>(costeBusquedas_) > permitido) {
        throw ErrorEjecucion(ErrFinArchivo, "El archivo pide muchos más valores de los que "
                                            "contiene: está dañado o no es un archivo de VADRO.");
    }
}

namespace {

bool EsAscii(std::string_view texto) {
    unsigned char bits = 0;
    for (const char c : texto) {
        bits |= static_cast<unsigned char>(c);
    }
    return bits < 0x80;
}

} // namespace

// As RecuperarArchivo, the plain text goes to the temporary file, which the reader deletes
// when it is done; the text is kept from memory rather than read back from it.
ArchivoEntrada ArchivoEntrada::Abrir(const std::string& ruta) {
    std::string texto = TextoPlano(LeerArchivo(ruta));
    const std::string temporal = RutaTemporal(ruta);
    EscribirArchivo(temporal, texto);
    return DesdeTexto(std::move(texto), temporal);
}

std::string_view ArchivoEntrada::LeerLinea() {
    if (FinArchivo()) {
        throw ErrorEjecucion(ErrFinArchivo);
    }
    return Linea(lineas_[posicion_++]);
}

void ArchivoEntrada::BorrarTemporal() {
    if (!temporal_.empty()) {
        BorrarArchivo(temporal_);
        temporal_.clear();
    }
}

namespace {

// The key part of a line: the text before its first "=", without the blank in front of it.
std::string ParteClave(std::string_view linea) {
    std::string_view parte = linea.substr(0, linea.find('='));
    if (!parte.empty() && parte.back() == ' ') {
        parte.remove_suffix(1);
    }
    return std::string(parte);
}

std::string_view RecortarBlancos(std::string_view texto) {
    const auto inicio = texto.find_first_not_of(' ');
    if (inicio == std::string_view::npos) {
        return {};
    }
    return texto.substr(inicio, texto.find_last_not_of(' ') - inicio + 1);
}

// What follows the last "=" of the line, the very last character left unexamined, trimmed:
// so "a=b" reads "b", and a value ending in "=" keeps it.
std::string_view ValorDeLinea(std::string_view linea) {
    if (linea.size() < 2) {
        return {};
    }
    const auto igual = linea.rfind('=', linea.size() - 2);
    if (igual == std::string_view::npos) {
        return {};
    }
    return RecortarBlancos(linea.substr(igual + 1));
}

} // namespace

// The rule reads line by line: from the position to the first line holding the key; if that
// search reaches the end of the file, whether or not its last line held the key, once more from
// the start up to the first line that holds the key or the key part of the first line read that
// has one. Here each of those reads is a search over the bytes of the lines it would read.
ValorLibre BuscarValor(ArchivoEntrada& archivo, const std::string& clave) {
    const std::size_t inicio = archivo.Posicion();
    const std::size_t lineas = archivo.NumLineas();
    if (archivo.FinArchivo()) {
        return ValorLibre();
    }
    // Keys are plain ASCII nearly always, and then their 8-bit form is the same text.
    std::string convertida;
    std::string_view clave8 = clave;
    if (!EsAscii(clave)) {
        convertida = AOchoBits(clave);
        clave8 = convertida;
    }
    std::size_t hallada = archivo.LineaCon(clave8, inicio, lineas);
    if (hallada + 1 < lineas) {
        archivo.CobrarBusqueda();
        archivo.IrA(hallada + 1);
        return ValorLibre(DesdeOchoBits(ValorDeLinea(archivo.LineaEn(hallada))));
    }
    // The end was reached. The first key is that of the first line read with an "="; an empty
    // first key, or none, stops the second search at the first line.
    const std::size_t conIgual = archivo.LineaCon("=", inicio, lineas);
    const std::string primeraClave =
        conIgual < lineas ? ParteClave(archivo.LineaEn(conIgual)) : std::string();
    // That line holds its own key part, so the second search ends there at the latest.
    std::size_t parada =
        archivo.LineaCon(primeraClave, 0, conIgual < lineas ? conIgual + 1 : lineas);
    hallada = archivo.LineaCon(clave8, 0, parada < lineas ? parada + 1 : lineas);
    archivo.CobrarBusqueda();
    if (hallada >= lineas) {
        archivo.IrA(inicio);
        return ValorLibre();
    }
    archivo.IrA(hallada + 1);
    return ValorLibre(DesdeOchoBits(ValorDeLinea(archivo.LineaEn(hallada))));
}

// Text that is plain ASCII is its own 8-bit form.
void ArchivoSalida::Escribir(const std::string& linea) {
    if (EsAscii(linea)) {
        texto_ += linea;
    } else {
        texto_ += AOchoBits(linea);
    }
    texto_ += "\r\n";
}

void ArchivoSalida::Escribir(const std::string& clave, const std::string& valor) {
    if (EsAscii(clave) && EsAscii(valor)) {
        texto_ += clave;
        texto_ += " = ";
        texto_ += valor;
        texto_ += "\r\n";
    } else {
        Escribir(clave + " = " + valor);
    }
}

std::vector<std::string> ArchivoSalida::Lineas() const {
    return DividirLineas(texto_);
}

void EscribirCompleto(const std::string& ruta, const ArchivoSalida& salida) {
    EscribirArchivo(ruta, ProtegerTexto(salida.Texto()));
}

void AnadirSeccion(const std::string& ruta, const ArchivoSalida& salida) {
    AnadirArchivo(ruta, salida.Texto());
}

void GuardarSeccion(const std::string& ruta, const ArchivoSalida& salida, bool anadir) {
    if (anadir) {
        AnadirSeccion(ruta, salida);
    } else {
        EscribirCompleto(ruta, salida);
    }
}

} // namespace vadro
