#include "soporte/acta.h"

#include "soporte/datos.h"

#include <gtest/gtest.h>

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

} // namespace

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
