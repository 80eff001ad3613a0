#include "core/files/proteccion.h"

#include "core/core/archivos.h"
#include "core/core/sesion.h"

#include <filesystem>

namespace vadro {

namespace {

template <typename Operacion> std::string AplicarClave(const std::string& linea, Operacion op) {
    std::string resultado(linea.size(), '\0');
    std::size_t p = 0;
    for (std::size_t i = 0; i < linea.size(); ++i) {
        const int c = static_cast<unsigned char>(linea[i]);
        const int k = static_cast<unsigned char>(kFraseClave[p]);
        resultado[i] = static_cast<char>(static_cast<unsigned char>(op(c, k)));
        p = (p + 1) % kFraseClave.size();
    }
    return resultado;
}

bool EsTextoPlano(const std::vector<std::string>& lineas) {
    return !lineas.empty() && lineas.front().rfind("*****", 0) == 0;
}

} // namespace

std::string CodificarLinea(const std::string& linea) {
    return AplicarClave(linea, [](int c, int k) { return c + k > 255 ? c + k - 255 : c + k; });
}

std::string DecodificarLinea(const std::string& linea) {
    return AplicarClave(linea, [](int c, int k) { return c - k < 0 ? c - k + 255 : c - k; });
}

std::string TextoProtegido(const std::vector<std::string>& lineasPlanas) {
    std::vector<std::string> codificadas;
    codificadas.reserve(lineasPlanas.size());
    for (const auto& linea : lineasPlanas) {
        codificadas.push_back(CodificarLinea(linea));
    }
    std::string bytes;
    for (const auto& linea : DividirLineas(UnirLineas(codificadas))) {
        bytes += linea;
        bytes += "\r\n\r\n";
    }
    return bytes;
}

std::string ProtegerArchivo(const std::string& ruta) {
    const std::string plano = LeerArchivo(ruta);
    EscribirArchivo(ruta, TextoProtegido(DividirLineas(plano)));
    return ruta;
}

std::string RutaTemporal(const std::string& ruta) {
    const std::string normal = NormalizarRuta(ruta);
    const std::filesystem::path camino(std::u8string(normal.begin(), normal.end()));
    const std::u8string base = camino.stem().u8string();
    return UnirRuta(SesionActual().DirectorioPrograma,
                    std::string(base.begin(), base.end()) + ".$$$");
}

std::vector<std::string> LineasPlanas(const std::string& bytes) {
    std::vector<std::string> lineas = DividirLineas(bytes);
    if (lineas.empty() || EsTextoPlano(lineas)) {
        return lineas;
    }
    std::vector<std::string> planas;
    planas.reserve(lineas.size() / 2 + 1);
    for (const auto& linea : lineas) {
        if (!linea.empty()) {
            planas.push_back(DecodificarLinea(linea));
        }
    }
    return planas;
}

std::string RecuperarArchivo(const std::string& ruta) {
    const std::string temporal = RutaTemporal(ruta);
    EscribirArchivo(temporal, UnirLineas(LineasPlanas(LeerArchivo(ruta))));
    return temporal;
}

} // namespace vadro
