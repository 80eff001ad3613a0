#include "soporte/acta.h"

#include "soporte/datos.h"

#include <gtest/gtest.h>

#include <optional>

namespace vadro::pruebas {
namespace {

const char* const kRespuestas[] = {"Aceptar", "Cancelar", "Sí", "No", "Reintentar"};
const char* const kIconos[] = {"Ninguno", "Critico", "Pregunta", "Exclamacion", "Informacion"};
const char* const kBotones[] = {"Aceptar", "AceptarCancelar", "SiNo", "SiNoCancelar",
                                "ReintentarCancelar"};

// Line breaks written as "\n" and "\r", so that each row stays on one line.
std::string Escapado(std::string linea) {
    for (const auto& [caracter, escrito] : {std::pair{'\n', "\\n"}, {'\r', "\\r"}}) {
        for (std::size_t k = 0; (k = linea.find(caracter, k)) != std::string::npos;) {
            linea.replace(k, 1, escrito);
        }
    }
    return linea;
}

// The inverse of Escapado, for a case read back from its data file.
std::string Desescapado(std::string campo) {
    for (const auto& [escrito, caracter] : {std::pair{"\\n", '\n'}, {"\\r", '\r'}}) {
        for (std::size_t k = 0; (k = campo.find(escrito, k)) != std::string::npos; ++k) {
            campo.replace(k, 2, 1, caracter);
        }
    }
    return campo;
}

// The fields of a case's input: blank-separated words, or quoted texts that may be empty.
std::vector<std::string> Campos(const std::string& entrada) {
    std::vector<std::string> campos;
    for (std::size_t k = 0; k < entrada.size();) {
        if (entrada[k] == ' ') {
            ++k;
            continue;
        }
        const bool citado = entrada[k] == '\'';
        const std::size_t inicio = citado ? k + 1 : k;
        std::size_t fin = entrada.find(citado ? '\'' : ' ', inicio);
        fin = fin == std::string::npos ? entrada.size() : fin;
        campos.push_back(Desescapado(entrada.substr(inicio, fin - inicio)));
        k = citado ? fin + 1 : fin;
    }
    return campos;
}

} // namespace

std::vector<Caso> Casos(const std::string& datos) {
    const std::optional<std::string> texto = LeerDatos(datos);
    std::vector<Caso> casos;
    std::size_t inicio = 0;
    for (std::size_t fin; texto && (fin = texto->find('\n', inicio)) != std::string::npos;
         inicio = fin + 1) {
        const std::string linea = texto->substr(inicio, fin - inicio);
        const std::size_t flecha = linea.find(" -> ");
        if (linea.rfind("    ", 0) != 0 && flecha != std::string::npos) {
            casos.push_back({linea.substr(0, flecha), Campos(linea.substr(0, flecha))});
        }
    }
    EXPECT_FALSE(casos.empty()) << "no case in the data file " << datos;
    return casos;
}

Acta::Acta() : anterior_(InstalarMensajes([this](const Mensaje& m) { return Anotar(m); })) {}

Acta::~Acta() {
    InstalarMensajes(std::move(anterior_));
}

void Acta::Fila(const std::string& entrada, const std::string& salida) {
    texto += Escapado(entrada + " -> " + salida) + "\n" + pendientes_;
    pendientes_.clear();
}

void Acta::Comparar(const std::string& datos) const {
    std::string real = texto + pendientes_;
    for (const auto& [desde, hacia] : sustituciones) {
        for (std::size_t k = 0; (k = real.find(desde, k)) != std::string::npos; k += hacia.size()) {
            real.replace(k, desde.size(), hacia);
        }
    }
    EXPECT_EQ(real, Datos(datos, real));
}

Respuesta Acta::Anotar(const Mensaje& mensaje) {
    vistos.push_back(mensaje);
    Respuesta respuesta = PrimerBoton(mensaje.botones);
    if (!respuestas.empty()) {
        respuesta = respuestas.front();
        respuestas.pop_front();
    }
    std::string linea = "    [" + mensaje.titulo + "] " + mensaje.texto + " => " +
                        kRespuestas[static_cast<int>(respuesta)];
    if (iconos) {
        linea += std::string(" {") + kIconos[static_cast<int>(mensaje.icono)] + " " +
                 kBotones[static_cast<int>(mensaje.botones)] + "}";
    }
    pendientes_ += Escapado(linea) + "\n";
    return respuesta;
}

} // namespace vadro::pruebas
