#include "core/files/texto_modelo.h"

#include "core/core/archivos.h"
#include "core/core/codigo_pagina.h"
#include "core/core/error_ejecucion.h"
#include "core/files/proteccion.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace vadro {

namespace {

// Searches a reader may make per line of its file, and a floor for small files.
constexpr std::size_t kBusquedasPorLinea = 64;
constexpr std::size_t kBusquedasMinimas = 1000000;

} // namespace

ArchivoEntrada::ArchivoEntrada(std::vector<std::string> lineasOchoBits, std::string temporal)
    : lineas_(std::move(lineasOchoBits)), temporal_(std::move(temporal)),
      presupuesto_(kBusquedasMinimas + kBusquedasPorLinea * lineas_.size()) {}

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
// when it is done; the lines are kept from memory rather than read back from it.
ArchivoEntrada ArchivoEntrada::Abrir(const std::string& ruta) {
    std::vector<std::string> lineas = LineasPlanas(LeerArchivo(ruta));
    const std::string temporal = RutaTemporal(ruta);
    EscribirArchivo(temporal, UnirLineas(lineas));
    return ArchivoEntrada(std::move(lineas), temporal);
}

const std::string& ArchivoEntrada::LeerLinea() {
    if (FinArchivo()) {
        throw ErrorEjecucion(ErrFinArchivo);
    }
    return lineas_[posicion_++];
}

void ArchivoEntrada::BorrarTemporal() {
    if (!temporal_.empty()) {
        BorrarArchivo(temporal_);
        temporal_.clear();
    }
}

namespace {

bool Contiene(const std::string& linea, std::string_view texto) {
    return linea.find(texto) != std::string::npos;
}

// The key part of a line: the text before its first "=", without the blank in front of it.
std::string ParteClave(const std::string& linea) {
    std::string parte = linea.substr(0, linea.find('='));
    if (!parte.empty() && parte.back() == ' ') {
        parte.pop_back();
    }
    return parte;
}

std::string RecortarBlancos(const std::string& texto) {
    const auto inicio = texto.find_first_not_of(' ');
    if (inicio == std::string::npos) {
        return {};
    }
    return texto.substr(inicio, texto.find_last_not_of(' ') - inicio + 1);
}

// What follows the last "=" of the line, the very last character left unexamined, trimmed:
// so "a=b" reads "b", and a value ending in "=" keeps it.
std::string ValorDeLinea(const std::string& linea) {
    if (linea.size() < 2) {
        return {};
    }
    const auto igual = linea.rfind('=', linea.size() - 2);
    if (igual == std::string::npos) {
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
    const std::string* linea = nullptr;
    const std::string* lineaPrimeraClave = nullptr;
    while (!archivo.FinArchivo()) {
        linea = &archivo.LeerLinea();
        ++leidas;
        if (lineaPrimeraClave == nullptr && Contiene(*linea, "=")) {
            lineaPrimeraClave = linea;
        }
        if (Contiene(*linea, clave8)) {
            break;
        }
    }
    if (archivo.FinArchivo()) {
        // Once more from the start, up to the line where the search began. An empty first
        // key is found in the first line, and so is a missing one.
        const std::string primeraClave =
            lineaPrimeraClave != nullptr ? ParteClave(*lineaPrimeraClave) : std::string();
        archivo.IrA(0);
        while (!archivo.FinArchivo()) {
            linea = &archivo.LeerLinea();
            ++leidas;
            if (Contiene(*linea, clave8) || Contiene(*linea, primeraClave)) {
                break;
            }
        }
    }
    archivo.CobrarBusqueda(leidas);
    if (!Contiene(*linea, clave8)) {
        archivo.IrA(inicio);
        return ValorLibre();
    }
    return ValorLibre(DesdeOchoBits(ValorDeLinea(*linea)));
}

// Text that is plain ASCII is its own 8-bit form.
void ArchivoSalida::Escribir(const std::string& linea) {
    lineas_.push_back(EsAscii(linea) ? linea : AOchoBits(linea));
}

void ArchivoSalida::Escribir(const std::string& clave, const std::string& valor) {
    std::string linea;
    linea.reserve(clave.size() + 3 + valor.size());
    linea += clave;
    linea += " = ";
    linea += valor;
    lineas_.push_back(EsAscii(linea) ? std::move(linea) : AOchoBits(linea));
}

void EscribirCompleto(const std::string& ruta, const ArchivoSalida& salida) {
    EscribirArchivo(ruta, TextoProtegido(salida.Lineas()));
}

void AnadirSeccion(const std::string& ruta, const ArchivoSalida& salida) {
    AnadirArchivo(ruta, UnirLineas(salida.Lineas()));
}

void GuardarSeccion(const std::string& ruta, const ArchivoSalida& salida, bool anadir) {
    if (anadir) {
        AnadirSeccion(ruta, salida);
    } else {
        EscribirCompleto(ruta, salida);
    }
}

} // namespace vadro
