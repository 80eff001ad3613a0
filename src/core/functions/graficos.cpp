#include "core/functions/graficos.h"

#include "core/functions/funcion_valor.h"

#include <cmath>
#include <cstdlib>

namespace vadro {

namespace {

constexpr int kPasos = 199;

bool Completa(const FilaIntervalo& fila) {
    return !fila[1].empty() && !fila[2].empty() && !fila[3].empty();
}

// The number behind the interval symbol of a cell, read leniently.
double NumeroCelda(const std::string& celda) {
    return LecturaLaxa(TextoNumeroIntervalo(ValorLibre(celda)));
}

// The axes of the main and small drawings, the ordinate up to a given height.
void Ejes(Grafica& grafica, const MarcoGrafica& marco, double alturaOrdenada) {
    grafica.AnchoLinea(2);
    grafica.Linea(marco.Inferior, 0, static_cast<float>(marco.Superior + 0.5 * marco.M), 0, kNegro);
    grafica.Linea(marco.Inferior, 0, marco.Inferior, static_cast<float>(alturaOrdenada), kNegro);
}

// The scale shared by the main and small drawings.
void EscalaPrincipal(Grafica& grafica, const MarcoGrafica& marco) {
    grafica.Escala(static_cast<float>(marco.Inferior - marco.M), 1.2F,
                   static_cast<float>(marco.Superior + 1.5 * marco.M), -0.3F);
}

// 199 lines from Inferior to Superior, each point given by the curve.
template <typename Curva>
void Curva199(Grafica& grafica, float inferior, float superior, const Curva& valor) {
    const double paso = (static_cast<double>(superior) - inferior) / kPasos;
    double x = inferior;
    double y = valor(x);
    for (int i = 0; i < kPasos; ++i) {
        const double nuevoX = x + paso;
        const double nuevoY = valor(nuevoX);
        grafica.Linea(static_cast<float>(x), static_cast<float>(y), static_cast<float>(nuevoX),
                      static_cast<float>(nuevoY), kAzul);
        x = nuevoX;
        y = nuevoY;
    }
}

// The frame of the report's pictures and of the small step drawing.
struct MarcoInforme {
    float Inferior;
    float Superior;
    double M;
};

std::optional<MarcoInforme> MarcoAlmacenado(const FuncionComun& funcion) {
    if (funcion.RMin.EsVacio() || funcion.RMax.EsVacio()) {
        return std::nullopt;
    }
    const double RMin = funcion.RMin.Numero();
    const double RMax = funcion.RMax.Numero();
    const auto inferior = static_cast<float>(RMin > RMax ? RMax : RMin);
    const auto superior = static_cast<float>(RMin > RMax ? RMin : RMax);
    if (!(superior - inferior > 0)) {
        return std::nullopt;
    }
    return MarcoInforme{inferior, superior, (static_cast<double>(superior) - inferior) / 50};
}

void EscalaInforme(Grafica& grafica, const MarcoInforme& marco) {
    grafica.Escala(static_cast<float>(marco.Inferior - marco.M), 1.05F,
                   static_cast<float>(marco.Superior + marco.M), -0.05F);
}

void EjesInforme(Grafica& grafica, const MarcoInforme& marco, float alturaOrdenada) {
    grafica.AnchoLinea(2);
    grafica.Linea(marco.Inferior, 0, static_cast<float>(marco.Superior + marco.M / 2), 0, kNegro);
    grafica.Linea(marco.Inferior, 0, marco.Inferior, alturaOrdenada, kNegro);
}

// Bars of complete steps, with a riser to the next step when that one is complete too.
void Escalones(Grafica& grafica, const std::vector<FilaIntervalo>& filas, int cuantas) {
    for (int i = 0; i < cuantas && i < static_cast<int>(filas.size()); ++i) {
        const FilaIntervalo& fila = filas[static_cast<std::size_t>(i)];
        if (!Completa(fila)) {
            continue;
        }
        const auto inicio = static_cast<float>(NumeroCelda(fila[1]));
        const auto fin = static_cast<float>(NumeroCelda(fila[2]));
        const auto valor = static_cast<float>(LecturaLaxa(fila[3]));
        grafica.AnchoLinea(3);
        grafica.Linea(inicio, valor, fin, valor, kAzul);
        if (i + 1 < cuantas && i + 1 < static_cast<int>(filas.size()) &&
            Completa(filas[static_cast<std::size_t>(i) + 1])) {
            const auto siguiente =
                static_cast<float>(LecturaLaxa(filas[static_cast<std::size_t>(i) + 1][3]));
            grafica.AnchoLinea(1);
            grafica.Linea(fin, valor, fin, siguiente, kAzul);
        }
    }
}

std::vector<FilaIntervalo> FilasDe(const Arreglo<Escalon>& escalones) {
    std::vector<FilaIntervalo> filas;
    for (const Escalon& e : escalones) {
        filas.push_back({"", e.ValorInicial.Texto(), e.ValorFinal.Texto(), e.Valor.Texto()});
    }
    return filas;
}

void DibujarEscalonesAlmacenados(const FuncionComun& funcion, const MarcoInforme& marco,
                                 Grafica& grafica) {
    EscalaInforme(grafica, marco);
    grafica.Borrar();
    EjesInforme(grafica, marco, 1.05F);
    const auto filas = FilasDe(funcion.Escalones);
    Escalones(grafica, filas, static_cast<int>(filas.size()));
}

Color ResolverColor(Color color) {
    // The one system colour the program uses: the face of buttons.
    return color == 0x8000000F ? kCaraBoton : (color & 0xFFFFFF);
}

} // namespace

double LecturaLaxa(const std::string& texto) {
    std::size_t i = 0;
    while (i < texto.size() && (texto[i] == ' ' || texto[i] == '\t')) {
        ++i;
    }
    std::size_t fin = i;
    if (fin < texto.size() && (texto[fin] == '+' || texto[fin] == '-')) {
        ++fin;
    }
    bool digitos = false;
    bool punto = false;
    for (; fin < texto.size(); ++fin) {
        const char c = texto[fin];
        if (c >= '0' && c <= '9') {
            digitos = true;
        } else if (c == '.' && !punto) {
            punto = true;
        } else {
            break;
        }
    }
    if (!digitos) {
        return 0;
    }
    return std::strtod(texto.substr(i, fin - i).c_str(), nullptr);
}

bool GraficaDeseada(const EntradaGrafica& entrada) {
    return entrada.MinRef != entrada.MaxRef || (entrada.AjustarMaxRef && entrada.AjustarMinRef);
}

std::array<std::string, 2> LeyendasAbscisa(const EntradaGrafica& entrada) {
    std::array<std::string, 2> leyendas{entrada.MinRef, entrada.MaxRef};
    if (!(LecturaLaxa(entrada.MaxRef) > LecturaLaxa(entrada.MinRef))) {
        std::swap(leyendas[0], leyendas[1]);
    }
    if (!entrada.Unidades.empty()) {
        for (std::string& leyenda : leyendas) {
            leyenda += " " + entrada.Unidades;
        }
    }
    return leyendas;
}

ResultadoGrafica Graficar(const EntradaGrafica& entrada, CurvaEditor& curva, Grafica& grafica) {
    grafica.Reiniciar();
    ResultadoGrafica resultado;
    if (!GraficaDeseada(entrada)) {
        grafica.Borrar();
        return resultado;
    }
    const auto leyendas = LeyendasAbscisa(entrada);
    resultado.Minimo = leyendas[0];
    resultado.Maximo = leyendas[1];

    MarcoGrafica& marco = resultado.Marco;
    if (entrada.MinRef.empty() || entrada.MaxRef.empty()) {
        marco.RefMinActual = 0;
        marco.RefMaxActual = 100;
    } else {
        marco.RefMinActual = LecturaLaxa(entrada.MinRef);
        marco.RefMaxActual = LecturaLaxa(entrada.MaxRef);
    }
    const Extremos extremos = ExtremosFuncion(marco.RefMinActual, marco.RefMaxActual);
    marco.Inferior = static_cast<float>(extremos.Inferior);
    marco.Superior = static_cast<float>(extremos.Superior);
    marco.M = 0.1 * (static_cast<double>(marco.Superior) - marco.Inferior);

    EscalaPrincipal(grafica, marco);
    Ejes(grafica, marco, 1);
    if (entrada.Escalon) {
        GraficarDiscreta(entrada, marco, grafica);
    } else {
        GraficarContinua(entrada, marco, curva, grafica);
    }
    resultado.Dibujada = true;
    return resultado;
}

void GraficarContinua(const EntradaGrafica& entrada, const MarcoGrafica& marco, CurvaEditor& curva,
                      Grafica& grafica) {
    grafica.Borrar();
    const double P = LecturaLaxa(entrada.P);
    const double K = LecturaLaxa(entrada.K);
    const double C = LecturaLaxa(entrada.C);
    if (curva.Preparar(C, marco.RefMinActual, marco.RefMaxActual, K, P)) {
        grafica.AnchoLinea(3);
        Curva199(grafica, marco.Inferior, marco.Superior,
                 [&curva](double x) { return curva.Valor(x); });
    }
    Ejes(grafica, marco, 1.05);
    const auto nivel = static_cast<float>(curva.Nivel());
    const auto refMax = static_cast<float>(marco.RefMaxActual);
    grafica.AnchoLinea(1);
    grafica.Linea(refMax, 0, refMax, nivel, kNegro);
    grafica.Linea(marco.Inferior, nivel, refMax, nivel, kNegro);
}

void GraficarDiscreta(const EntradaGrafica& entrada, const MarcoGrafica& marco, Grafica& grafica) {
    grafica.Borrar();
    Ejes(grafica, marco, 1.05);
    grafica.AnchoLinea(1);
    grafica.Linea(marco.Superior, 0, marco.Superior, 1, kNegro);
    grafica.Linea(marco.Inferior, 1, marco.Superior, 1, kNegro);
    Escalones(grafica, entrada.Filas, entrada.Intervalos);
}

Grafica GraficarOptativo(const FuncionOptativo& funcion) {
    Grafica grafica;
    if (funcion.Tipo != FuncionContinua) {
        if (const auto marco = MarcoAlmacenado(funcion)) {
            DibujarEscalonesAlmacenados(funcion, *marco, grafica);
        }
        return grafica;
    }
    if (funcion.P.EsVacio() || funcion.K.EsVacio() || funcion.C.EsVacio() ||
        funcion.RMin.EsVacio() || funcion.RMax.EsVacio()) {
        return grafica;
    }
    const double RMin = funcion.RMin.Numero();
    const double RMax = funcion.RMax.Numero();
    MarcoGrafica marco;
    marco.Inferior = static_cast<float>(RMin > RMax ? RMax : RMin);
    marco.Superior = static_cast<float>(RMin > RMax ? RMin : RMax);
    marco.M = 0.1 * (static_cast<double>(marco.Superior) - marco.Inferior);
    if (!(marco.M > 0)) {
        return grafica;
    }
    EscalaPrincipal(grafica, marco);
    Ejes(grafica, marco, 1);
    grafica.Borrar();
    const double C = funcion.C.Numero();
    if (!(std::fabs(C) > 0)) {
        return grafica;
    }
    const double K = funcion.K.Numero();
    const double P = funcion.P.Numero();
    const auto B = FactorContinuo(RMin, RMax, C, K, P);
    if (!B) {
        return grafica;
    }
    const CurvaContinua curva{RMin, RMax, C, K, P, *B, marco.Inferior, marco.Superior};
    grafica.AnchoLinea(2);
    Curva199(grafica, marco.Inferior, marco.Superior,
             [&curva](double x) { return curva.Valor(x); });
    Ejes(grafica, marco, 1.05);
    const auto nivel = static_cast<float>(curva.Nivel());
    grafica.AnchoLinea(1);
    grafica.Linea(marco.Superior, 0, marco.Superior, nivel, kNegro);
    grafica.Linea(marco.Inferior, nivel, marco.Superior, nivel, kNegro);
    return grafica;
}

bool GraficarInforme(const FuncionValor& funcion, Grafica& grafica) {
    const auto curva = CurvaAlmacenada(funcion);
    if (!curva) {
        GraficarCajaCruzada(grafica);
        return false;
    }
    const MarcoInforme marco{curva->Inferior, curva->Superior,
                             (static_cast<double>(curva->Superior) - curva->Inferior) / 50};
    EscalaInforme(grafica, marco);
    grafica.Borrar();
    EjesInforme(grafica, marco, 1);
    grafica.AnchoLinea(2);
    Curva199(grafica, marco.Inferior, marco.Superior,
             [&curva](double x) { return curva->Valor(x); });
    EjesInforme(grafica, marco, 1.05F);
    return true;
}

bool GraficarInformeEscalon(const FuncionValor& funcion, Grafica& grafica) {
    const auto marco = MarcoAlmacenado(funcion);
    if (!marco) {
        return false;
    }
    DibujarEscalonesAlmacenados(funcion, *marco, grafica);
    return true;
}

void GraficarCajaCruzada(Grafica& grafica) {
    grafica.Escala(-2, 102, 102, -2);
    grafica.Borrar();
    grafica.AnchoLinea(1);
    grafica.Linea(0, 100, 100, 0, kRojo);
    grafica.Linea(100, 100, 0, 0, kRojo);
    grafica.Linea(0, 0, 100, 0, kNegro);
    grafica.Linea(100, 0, 100, 100, kNegro);
    grafica.Linea(100, 100, 0, 100, kNegro);
    grafica.Linea(0, 100, 0, 0, kNegro);
}

void cTextoVertical::Caption(const std::string& texto) {
    const bool cambia = texto != caption_;
    caption_ = texto;
    if (cambia && superficie_ != nullptr) {
        Draw();
    }
}

void cTextoVertical::StartColor(Color color) {
    const bool cambia = color != inicio_;
    inicio_ = color;
    if (cambia && superficie_ != nullptr) {
        Draw();
    }
}

void cTextoVertical::EndColor(Color color) {
    const bool cambia = color != fin_;
    fin_ = color;
    if (cambia && superficie_ != nullptr) {
        Draw();
    }
}

void cTextoVertical::DrawingObject(Superficie* superficie) {
    superficie_ = superficie;
}

void cTextoVertical::Draw() {
    if (superficie_ == nullptr || superficie_->Alto <= 0) {
        return;
    }
    Grafica& grafica = superficie_->grafica;
    const int H = superficie_->Alto;
    const int W = superficie_->Ancho;
    const int S = H / 255 == 0 ? 1 : H / 255;
    const Color inicio = ResolverColor(inicio_);
    const Color fin = ResolverColor(fin_);
    const auto canal = [&](int desplazamiento, int posicion) {
        const int a = static_cast<int>((inicio >> desplazamiento) & 0xFF);
        const int b = static_cast<int>((fin >> desplazamiento) & 0xFF);
        return static_cast<Color>(a + (b - a) * posicion / H) << desplazamiento;
    };
    grafica.Escala(0, 0, static_cast<float>(W), static_cast<float>(H));
    for (int posicion = 0; posicion < H; posicion += S) {
        const Color color = canal(0, posicion) | canal(8, posicion) | canal(16, posicion);
        grafica.Rectangulo(0, static_cast<float>(H - posicion - S), static_cast<float>(W),
                           static_cast<float>(H - posicion), color);
    }
    grafica.TextoVertical(-2, static_cast<float>(H), caption_);
}

} // namespace vadro
