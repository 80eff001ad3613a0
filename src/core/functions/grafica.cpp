#include "core/functions/grafica.h"

#include <cstdio>

namespace vadro {

void Grafica::Escala(float izquierda, float arriba, float derecha, float abajo) {
    primitivas_.push_back(
        {Primitiva::Tipo::Escala, izquierda, arriba, derecha, abajo, 0, kNegro, {}});
}

void Grafica::Borrar() {
    primitivas_.push_back({Primitiva::Tipo::Borrar, 0, 0, 0, 0, 0, kNegro, {}});
}

void Grafica::AnchoLinea(int ancho) {
    ancho_ = ancho;
}

void Grafica::Linea(float x1, float y1, float x2, float y2, Color color) {
    primitivas_.push_back({Primitiva::Tipo::Linea, x1, y1, x2, y2, ancho_, color, {}});
}

void Grafica::Rectangulo(float x1, float y1, float x2, float y2, Color color) {
    primitivas_.push_back({Primitiva::Tipo::Rectangulo, x1, y1, x2, y2, 0, color, {}});
}

void Grafica::Texto(float x, float y, const std::string& texto, Color color) {
    primitivas_.push_back({Primitiva::Tipo::Texto, x, y, 0, 0, 0, color, texto});
}

void Grafica::TextoVertical(float x, float y, const std::string& texto, Color color) {
    primitivas_.push_back({Primitiva::Tipo::TextoVertical, x, y, 0, 0, 0, color, texto});
}

void Grafica::Reiniciar() {
    primitivas_.clear();
    ancho_ = 1;
}

std::vector<Primitiva> Grafica::Visibles() const {
    std::size_t desde = 0;
    const Primitiva* escala = nullptr;
    for (std::size_t i = 0; i < primitivas_.size(); ++i) {
        if (primitivas_[i].tipo == Primitiva::Tipo::Borrar) {
            desde = i + 1;
        }
    }
    for (std::size_t i = 0; i < desde; ++i) {
        if (primitivas_[i].tipo == Primitiva::Tipo::Escala) {
            escala = &primitivas_[i];
        }
    }
    std::vector<Primitiva> visibles;
    if (escala != nullptr) {
        visibles.push_back(*escala);
    }
    visibles.insert(visibles.end(), primitivas_.begin() + static_cast<std::ptrdiff_t>(desde),
                    primitivas_.end());
    return visibles;
}

namespace {

std::string Numero(float valor) {
    char texto[32];
    std::snprintf(texto, sizeof texto, "%.6g", static_cast<double>(valor));
    // A value that rounds to nothing shows no sign.
    return std::string(texto) == "-0" ? "0" : texto;
}

std::string Punto(float x, float y) {
    std::string texto = "(";
    texto += Numero(x);
    texto += ',';
    texto += Numero(y);
    texto += ')';
    return texto;
}

std::string Hexadecimal(Color color) {
    char texto[8];
    std::snprintf(texto, sizeof texto, "%06X", static_cast<unsigned>(color & 0xFFFFFF));
    return texto;
}

std::string Linea(const Primitiva& p) {
    switch (p.tipo) {
    case Primitiva::Tipo::Escala:
        return "Escala " + Punto(p.x1, p.y1) + " " + Punto(p.x2, p.y2);
    case Primitiva::Tipo::Borrar:
        return "Borrar";
    case Primitiva::Tipo::Linea:
        return "Linea " + std::to_string(p.ancho) + " " + Hexadecimal(p.color) + " " +
               Punto(p.x1, p.y1) + " " + Punto(p.x2, p.y2);
    case Primitiva::Tipo::Rectangulo:
        return "Rectangulo " + Hexadecimal(p.color) + " " + Punto(p.x1, p.y1) + " " +
               Punto(p.x2, p.y2);
    case Primitiva::Tipo::Texto:
        return "Texto " + Hexadecimal(p.color) + " " + Punto(p.x1, p.y1) + " \"" + p.texto + "\"";
    case Primitiva::Tipo::TextoVertical:
        return "TextoVertical " + Hexadecimal(p.color) + " " + Punto(p.x1, p.y1) + " \"" + p.texto +
               "\"";
    }
    return {};
}

} // namespace

std::string ListadoGrafica(const Grafica& grafica) {
    std::string texto;
    for (const Primitiva& p : grafica.Primitivas()) {
        texto += Linea(p);
        texto += '\n';
    }
    return texto;
}

} // namespace vadro
