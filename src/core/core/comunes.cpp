#include "core/core/comunes.h"

#include "core/core/error_ejecucion.h"

#include <cstdio>

namespace vadro {

std::string Unir(std::initializer_list<std::string_view> partes) {
    std::size_t largo = 0;
    for (const std::string_view parte : partes) {
        largo += parte.size();
    }
    std::string texto;
    texto.reserve(largo);
    for (const std::string_view parte : partes) {
        texto += parte;
    }
    return texto;
}

namespace {

std::size_t UltimoSeparador(const std::string& ruta) {
    return ruta.find_last_of("\\/");
}

} // namespace

std::string DirectorioDe(const std::string& ruta) {
    if (ruta.empty()) {
        return {};
    }
    const auto separador = UltimoSeparador(ruta);
    if (separador == std::string::npos) {
        throw ErrorEjecucion(ErrLlamadaNoValida);
    }
    return ruta.substr(0, separador);
}

std::string NombreSinExtension(const std::string& ruta) {
    const auto separador = UltimoSeparador(ruta);
    const std::string nombre = separador == std::string::npos ? ruta : ruta.substr(separador + 1);
    const auto punto = nombre.rfind('.');
    return punto == std::string::npos ? nombre : nombre.substr(0, punto);
}

std::string ExtensionDe(const std::string& ruta) {
    if (ruta.empty()) {
        return {};
    }
    const auto punto = ruta.rfind('.');
    if (punto == std::string::npos) {
        throw ErrorEjecucion(ErrLlamadaNoValida);
    }
    return ruta.substr(punto + 1);
}

std::string MinusculasAscii(std::string texto) {
    for (char& c : texto) {
        if (c >= 'A' && c <= 'Z') {
            c = static_cast<char>(c - 'A' + 'a');
        }
    }
    return texto;
}

namespace {

// A number as the user's locale prints it; this is the one place that asks the locale.
std::string ImpresoSegunLocale(double numero) {
    char texto[32];
    std::snprintf(texto, sizeof texto, "%g", numero);
    return texto;
}

} // namespace

std::string SeparadorDecimal() {
    return ImpresoSegunLocale(77.7).find('.') != std::string::npos ? "." : ",";
}

std::string SeparadorDecimalDeMedio() {
    return ImpresoSegunLocale(0.5).substr(1, 1);
}

TeclaFiltrada FiltrarTeclaNumero(const std::string& texto, int tecla) {
    constexpr int kRetorno = 13;
    constexpr int kRetroceso = 8;
    const std::string separador = SeparadorDecimal();
    if (tecla == static_cast<unsigned char>(separador.front()) &&
        texto.find(separador) != std::string::npos) {
        return {0, false};
    }
    if (tecla == kRetorno) {
        return {0, false};
    }
    const bool digito = tecla >= '0' && tecla <= '9';
    const bool signoOSeparador = tecla >= 43 && tecla <= 46;
    const bool exponente = tecla == 'D' || tecla == 'E' || tecla == 'd' || tecla == 'e';
    if (digito || tecla == kRetroceso || signoOSeparador || exponente) {
        return {tecla, false};
    }
    return {0, true};
}

std::string TextoIntervalo(const ValorLibre& minimo, const ValorLibre& maximo) {
    std::string texto;
    if (minimo.EsVacio()) {
        texto = "(?,";
    } else {
        const std::string m = minimo.Texto();
        // Appended piece by piece: GCC 12 warns (-Wrestrict, a known false positive) on a
        // literal added to a temporary string.
        texto.push_back(m.front() == '=' ? '[' : '(');
        texto.append(m, 1);
        texto += ',';
    }
    if (maximo.EsVacio()) {
        texto += "?)";
    } else {
        const std::string m = maximo.Texto();
        texto += m.substr(1) + (m.front() == '=' ? "]" : ")");
    }
    return texto;
}

std::vector<FilaArbol> LlenarArbolComponentes(const Modelo& modelo, bool conClave) {
    std::vector<FilaArbol> filas;
    auto texto = [conClave](const std::string& clave, const std::string& nombre) {
        return conClave ? "(" + clave + ") " + nombre : nombre;
    };
    const int componentes = modelo.NumComponentes.Cuenta();
    for (int c = 1; c <= componentes; ++c) {
        const Componente& componente = modelo.Componentes(c);
        const std::string claveComponente = "Co" + std::to_string(c);
        filas.push_back({claveComponente, texto(claveComponente, componente.Nombre), {}});
        for (int s = 1; s <= componente.NumSubcomponentes; ++s) {
            const std::string clave = "Sc" + std::to_string(s) + claveComponente;
            filas.push_back(
                {clave, texto(clave, componente.Subcomponentes(s).Nombre), claveComponente});
        }
    }
    return filas;
}

std::vector<std::string> LlenarEtapas(const Modelo& modelo) {
    std::vector<std::string> nombres;
    const int etapas = modelo.NumEtapas.Cuenta();
    for (int n = 1; n <= etapas; ++n) {
        nombres.push_back(modelo.Etapas(n));
    }
    return nombres;
}

} // namespace vadro
