#include "core/files/texto_modelo.h"

#include "core/core/archivos.h"
#include "core/core/codigo_pagina.h"
#include "core/core/error_ejecucion.h"
#include "core/files/proteccion.h"

namespace vadro {

namespace {

// Searches a reader may make per line of its file, and a floor for small files.
constexpr std::size_t kBusquedasPorLinea = 64;
constexpr std::size_t kBusquedasMinimas = 100000;

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

ArchivoEntrada ArchivoEntrada::Abrir(const std::string& ruta) {
    const std::string temporal = RecuperarArchivo(ruta);
    return ArchivoEntrada(DividirLineas(LeerArchivo(temporal)), temporal);
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

bool Contiene(const std::string& linea, const std::string& texto) {
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
    const std::string clave8 = AOchoBits(clave);
    const std::string* linea = nullptr;
    std::string primeraClave;
    bool hayPrimeraClave = false;
    while (!archivo.FinArchivo()) {
        linea = &archivo.LeerLinea();
        ++leidas;
        if (!hayPrimeraClave && Contiene(*linea, "=")) {
            primeraClave = ParteClave(*linea);
            hayPrimeraClave = true;
        }
        if (Contiene(*linea, clave8)) {
            break;
        }
    }
    if (archivo.FinArchivo()) {
        // Once more from the start, up to the line where the search began. An empty first
        // key is found in the first line, and so is a missing one.
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

void ArchivoSalida::Escribir(const std::string& linea) {
    lineas_.push_back(AOchoBits(linea));
}

void ArchivoSalida::Escribir(const std::string& clave, const std::string& valor) {
    Escribir(clave + " = " + valor);
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
