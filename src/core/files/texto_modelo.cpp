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

// Calls `hacer` with each line of 8-bit text, split as DividirLineas splits it: carriage
// return and line feed together end a line, and so does either alone.
template <typename Hacer> void PorCadaLinea(std::string_view bytes, Hacer&& hacer) {
    std::size_t inicio = 0;
    std::size_t i = 0;
    while (i < bytes.size()) {
        const char c = bytes[i];
        if (c != '\r' && c != '\n') {
            ++i;
            continue;
        }
        hacer(bytes.substr(inicio, i - inicio));
        i += (c == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n') ? 2 : 1;
        inicio = i;
    }
    if (inicio < bytes.size()) {
        hacer(bytes.substr(inicio));
    }
}

// The key phrase applied to a line, character by character from the start of the phrase, as
// CodificarLinea and DecodificarLinea apply it; written out here so that a whole file is coded
// straight into one buffer, a phrase's length at a time. Says whether a resulting character
// is a line break. The phrase is copied first, so that writing can't touch it.
template <typename Operacion>
bool AplicarFrase(std::string_view linea, char* destino, Operacion operacion) {
    std::array<unsigned char, 256> frase;
    const std::size_t largoFrase = std::min(kFraseClave.size(), frase.size());
    std::copy_n(kFraseClave.begin(), largoFrase, frase.begin());
    bool fin = false;
    for (std::size_t inicio = 0; inicio < linea.size(); inicio += largoFrase) {
        const std::size_t tramo = std::min(largoFrase, linea.size() - inicio);
        for (std::size_t j = 0; j < tramo; ++j) {
            const auto codigo = static_cast<unsigned char>(
                operacion(static_cast<unsigned char>(linea[inicio + j]), frase[j]));
            destino[inicio + j] = static_cast<char>(codigo);
            fin |= codigo == '\r' || codigo == '\n';
        }
    }
    return fin;
}

int Codificar(int c, int k) {
    return c + k > 255 ? c + k - 255 : c + k;
}
int Decodificar(int c, int k) {
    return c - k < 0 ? c - k + 255 : c - k;
}

// The plain lines of a file's bytes, as LineasPlanas gives them, in a single pass with no
// intermediate copy: plain text is told by its first five characters, and in scrambled text
// the empty lines are skipped and every other line decoded. `partida` tells whether a decoded
// line holds a line break.
std::vector<std::string> LineasDeBytes(std::string_view bytes, bool& partida) {
    std::vector<std::string> lineas;
    lineas.reserve(static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\n')) + 1);
    bool primera = true;
    bool plano = false;
    PorCadaLinea(bytes, [&](std::string_view linea) {
        if (primera) {
            plano = linea.substr(0, 5) == "*****";
            primera = false;
        }
        if (plano) {
            lineas.emplace_back(linea);
        } else if (!linea.empty()) {
            std::string decodificada(linea.size(), '\0');
            partida |= AplicarFrase(linea, decodificada.data(), Decodificar);
            lineas.push_back(std::move(decodificada));
        }
    });
    return lineas;
}

// The bytes TextoProtegido gives for these lines: each coded line followed by an empty line.
// Only when a coded character 10 or 13 breaks a line does the general rule have to run.
std::string BytesProtegidos(const std::vector<std::string>& lineas) {
    std::size_t total = 0;
    for (const auto& linea : lineas) {
        total += linea.size() + 4;
    }
    std::string bytes(total, '\0');
    char* destino = bytes.data();
    for (const auto& linea : lineas) {
        if (AplicarFrase(linea, destino, Codificar)) {
            return TextoProtegido(lineas);
        }
        destino = std::copy_n("\r\n\r\n", 4, destino + linea.size());
    }
    return bytes;
}

// The bytes of a file read in one piece. LeerArchivo grows its buffer as it reads, which for a
// large model touches several times the file's size in fresh memory; whenever this quick way
// fails, LeerArchivo runs and reports the failure as it always does.
std::string BytesDeArchivo(const std::string& ruta) {
    const std::string normal = NormalizarRuta(ruta);
    const std::filesystem::path camino(std::u8string(normal.begin(), normal.end()));
    std::error_code error;
    if (ruta.empty() || !std::filesystem::is_regular_file(camino, error)) {
        return LeerArchivo(ruta);
    }
    const auto largo = std::filesystem::file_size(camino, error);
    std::ifstream entrada(camino, std::ios::binary);
    if (error || !entrada) {
        return LeerArchivo(ruta);
    }
    std::string bytes(static_cast<std::size_t>(largo), '\0');
    entrada.read(bytes.data(), static_cast<std::streamsize>(largo));
    if (static_cast<std::uintmax_t>(entrada.gcount()) != largo ||
        entrada.peek() != std::ifstream::traits_type::eof()) {
        return LeerArchivo(ruta);
    }
    return bytes;
}

} // namespace

// The plain text still goes to the temporary file, which the reader deletes when it is done;
// the lines are taken from memory instead of from that file, which gives the same lines unless
// a decoded character breaks one.
ArchivoEntrada ArchivoEntrada::Abrir(const std::string& ruta) {
    bool partida = false;
    std::vector<std::string> lineas = LineasDeBytes(BytesDeArchivo(ruta), partida);
    const std::string temporal = RutaTemporal(ruta);
    const std::string plano = UnirLineas(lineas);
    EscribirArchivo(temporal, plano);
    if (partida) {
        lineas = DividirLineas(plano);
    }
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
    EscribirArchivo(ruta, BytesProtegidos(salida.Lineas()));
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
