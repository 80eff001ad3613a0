#include "core/files/proteccion.h"

#include "core/core/archivos.h"
#include "core/core/sesion.h"

#include <algorithm>
#include <filesystem>
#include <string_view>

namespace vadro {

namespace {

// The key phrase applied to a line from the start of the phrase, a phrase's length at a time,
// straight into the destination. Says whether a resulting character is a line break.
template <typename Operacion>
bool AplicarFrase(std::string_view linea, char* destino, Operacion operacion) {
    const std::size_t largoFrase = kFraseClave.size();
    bool salto = false;
    for (std::size_t inicio = 0; inicio < linea.size(); inicio += largoFrase) {
        const std::size_t tramo = std::min(largoFrase, linea.size() - inicio);
        for (std::size_t j = 0; j < tramo; ++j) {
            const int c = static_cast<unsigned char>(linea[inicio + j]);
            const int k = static_cast<unsigned char>(kFraseClave[j]);
            const auto codigo = static_cast<unsigned char>(operacion(c, k));
            destino[inicio + j] = static_cast<char>(codigo);
            salto |= codigo == '\r' || codigo == '\n';
        }
    }
    return salto;
}

// Code 255 plus a key code comes back to the key code: 255 is subtracted, not taken modulo.
int Codificar(int c, int k) {
    return c + k > 255 ? c + k - 255 : c + k;
}
int Decodificar(int c, int k) {
    return c - k < 0 ? c - k + 255 : c - k;
}

template <typename Operacion> std::string Aplicada(const std::string& linea, Operacion operacion) {
    std::string resultado(linea.size(), '\0');
    AplicarFrase(linea, resultado.data(), operacion);
    return resultado;
}

// The general rule: the coded lines are written, read back as lines (so that a coded line
// break splits its line) and each is followed by an empty line.
std::string ProtegidoPorLineas(const std::vector<std::string>& lineasPlanas) {
    std::vector<std::string> codificadas;
    codificadas.reserve(lineasPlanas.size());
    for (const auto& linea : lineasPlanas) {
        codificadas.push_back(Aplicada(linea, Codificar));
    }
    std::string bytes;
    PorCadaLinea(UnirLineas(codificadas), [&bytes](std::string_view linea) {
        bytes += linea;
        bytes += "\r\n\r\n";
    });
    return bytes;
}

} // namespace

std::string CodificarLinea(const std::string& linea) {
    return Aplicada(linea, Codificar);
}

std::string DecodificarLinea(const std::string& linea) {
    return Aplicada(linea, Decodificar);
}

// Coded straight into one buffer; only when a coded character breaks a line does the general
// rule have to run.
std::string ProtegerTexto(std::string_view textoPlano) {
    std::string bytes;
    bytes.reserve(textoPlano.size() + textoPlano.size() / 8);
    bool salto = false;
    PorCadaLinea(textoPlano, [&](std::string_view linea) {
        const std::size_t inicio = bytes.size();
        bytes.resize(inicio + linea.size());
        salto |= AplicarFrase(linea, bytes.data() + inicio, Codificar);
        bytes += "\r\n\r\n";
    });
    return salto ? ProtegidoPorLineas(DividirLineas(textoPlano)) : bytes;
}

std::string TextoProtegido(const std::vector<std::string>& lineasPlanas) {
    return ProtegerTexto(UnirLineas(lineasPlanas));
}

std::string ProtegerArchivo(const std::string& ruta) {
    EscribirArchivo(ruta, ProtegerTexto(LeerArchivo(ruta)));
    return ruta;
}

namespace {

std::filesystem::path Camino(const std::string& ruta) {
    const std::string normal = NormalizarRuta(ruta);
    return std::filesystem::path(std::u8string(normal.begin(), normal.end()));
}

bool MismoArchivo(const std::string& a, const std::string& b) {
    std::error_code ec;
    const auto uno = std::filesystem::weakly_canonical(Camino(a), ec);
    const auto otro = std::filesystem::weakly_canonical(Camino(b), ec);
    return !ec && uno == otro;
}

} // namespace

// A file the user named may itself be such a path (a ".$$$" file in the program directory);
// the temporary file then takes another name, so that it never overwrites or deletes it.
std::string RutaTemporal(const std::string& ruta) {
    const std::u8string base = Camino(ruta).stem().u8string();
    std::string nombre(base.begin(), base.end());
    std::string temporal = UnirRuta(SesionActual().DirectorioPrograma, nombre + ".$$$");
    while (MismoArchivo(temporal, ruta)) {
        nombre += '~';
        temporal = UnirRuta(SesionActual().DirectorioPrograma, nombre + ".$$$");
    }
    return temporal;
}

std::string TextoPlano(std::string_view bytes) {
    std::string texto;
    texto.reserve(bytes.size() + bytes.size() / 16);
    bool primera = true;
    bool plano = false;
    PorCadaLinea(bytes, [&](std::string_view linea) {
        if (primera) {
            plano = linea.substr(0, 5) == "*****";
            primera = false;
        }
        if (plano) {
            texto += linea;
        } else if (!linea.empty()) {
            const std::size_t inicio = texto.size();
            texto.resize(inicio + linea.size());
            AplicarFrase(linea, texto.data() + inicio, Decodificar);
        } else {
            return;
        }
        texto += "\r\n";
    });
    return texto;
}

std::vector<std::string> LineasPlanas(std::string_view bytes) {
    return DividirLineas(TextoPlano(bytes));
}

std::string RecuperarArchivo(const std::string& ruta) {
    std::string temporal = RutaTemporal(ruta);
    EscribirArchivo(temporal, TextoPlano(LeerArchivo(ruta)));
    return temporal;
}

} // namespace vadro
