#include "core/files/texto_modelo.h"

#include "core/core/archivos.h"
#include "core/core/codigo_pagina.h"
#include "core/core/error_ejecucion.h"
#include "core/files/proteccion.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string_view>

namespace vadro {

namespace {

// Searches a reader may make per line of its file, and a floor for small files.
constexpr std::size_t kBusquedasPorLinea = 64;
constexpr std::size_t kBusquedasMinimas = 1000000;

} // namespace

namespace {

std::size_t Presupuesto(std::size_t lineas) {
    return kBusquedasMinimas + kBusquedasPorLinea * lineas;
}

} // namespace

ArchivoEntrada::ArchivoEntrada(const std::vector<std::string>& lineasOchoBits) {
    for (const auto& linea : lineasOchoBits) {
        lineas_.push_back({texto_.size(), linea.size()});
        texto_ += linea;
    }
    presupuesto_ = Presupuesto(lineas_.size());
}

ArchivoEntrada::ArchivoEntrada(Texto, std::string textoOchoBits, std::string temporal)
    : texto_(std::move(textoOchoBits)), temporal_(std::move(temporal)) {
    const std::string_view texto(texto_);
    lineas_.reserve(static_cast<std::size_t>(std::count(texto.begin(), texto.end(), '\n')) + 1);
    PorCadaLinea(texto, [this, texto](std::string_view linea) {
        lineas_.push_back({static_cast<std::size_t>(linea.data() - texto.data()), linea.size()});
    });
    presupuesto_ = Presupuesto(lineas_.size());
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

void ArchivoEntrada::CobrarBusqueda(std::size_t lineasLeidas) {
    const std::size_t coste = lineasLeidas + 1;
    if (coste > presupuesto_) {
        presupuesto_ = 0;
        throw ErrorEjecucion(ErrFinArchivo);
    }
    presupuesto_ -= coste;
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

bool Contiene(std::string_view linea, std::string_view texto) {
    return linea.find(texto) != std::string_view::npos;
}

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

ValorLibre BuscarValor(ArchivoEntrada& archivo, const std::string& clave) {
    const std::size_t inicio = archivo.Posicion();
    if (archivo.FinArchivo()) {
        archivo.CobrarBusqueda(0);
        return ValorLibre();
    }
    std::size_t leidas = 0;
    // Keys are plain ASCII nearly always, and then their 8-bit form is the same text.
    std::string convertida;
    std::string_view clave8 = clave;
    if (!EsAscii(clave)) {
        convertida = AOchoBits(clave);
        clave8 = convertida;
    }
    std::string_view linea;
    std::optional<std::string_view> lineaPrimeraClave;
    while (!archivo.FinArchivo()) {
        linea = archivo.LeerLinea();
        ++leidas;
        if (!lineaPrimeraClave && Contiene(linea, "=")) {
            lineaPrimeraClave = linea;
        }
        if (Contiene(linea, clave8)) {
            break;
        }
    }
    if (archivo.FinArchivo()) {
        // Once more from the start, up to the line where the search began. An empty first
        // key is found in the first line, and so is a missing one.
        const std::string primeraClave =
            lineaPrimeraClave ? ParteClave(*lineaPrimeraClave) : std::string();
        archivo.IrA(0);
        while (!archivo.FinArchivo()) {
            linea = archivo.LeerLinea();
            ++leidas;
            if (Contiene(linea, clave8) || Contiene(linea, primeraClave)) {
                break;
            }
        }
    }
    archivo.CobrarBusqueda(leidas);
    if (!Contiene(linea, clave8)) {
        archivo.IrA(inicio);
        return ValorLibre();
    }
    return ValorLibre(DesdeOchoBits(ValorDeLinea(linea)));
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
