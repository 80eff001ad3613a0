#include "core/functions/funcion_valor.h"

#include <algorithm>

namespace vadro {

namespace {

// Bytes of the first character of a UTF-8 text, so that a symbol outside ASCII is dropped
// whole.
std::size_t LargoPrimerCaracter(const std::string& texto) {
    if (texto.empty()) {
        return 0;
    }
    const auto primero = static_cast<unsigned char>(texto.front());
    std::size_t largo = 1;
    if (primero >= 0xF0) {
        largo = 4;
    } else if (primero >= 0xE0) {
        largo = 3;
    } else if (primero >= 0xC0) {
        largo = 2;
    }
    return std::min(largo, texto.size());
}

// A closed first step leaves its number outside the range with an open limit; an open first
// step, a closed limit; a step that is open at its start leaves no lower limit at all.
void NormalizarInferior(ValorLibre& limite, const ValorLibre& inicio) {
    if (limite.EsVacio() || inicio.EsVacio()) {
        return;
    }
    std::string signo = SignoIntervalo(limite);
    const std::string numero = TextoNumeroIntervalo(inicio);
    const std::string signoPaso = SignoIntervalo(inicio);
    if (signoPaso == "=") {
        signo = '<';
    } else if (signoPaso == ">") {
        signo = '=';
    }
    limite = signoPaso == "<" ? ValorLibre() : ValorLibre(signo + numero);
}

// The mirror image for the upper limit, except that an end marked "<" keeps the limit's own
// symbol: the program has always treated the two ends unequally, and files depend on it.
void NormalizarSuperior(ValorLibre& limite, const ValorLibre& fin) {
    if (limite.EsVacio() || fin.EsVacio()) {
        return;
    }
    std::string signo = SignoIntervalo(limite);
    const std::string numero = TextoNumeroIntervalo(fin);
    const std::string signoPaso = SignoIntervalo(fin);
    if (signoPaso == "=") {
        signo = '>';
    }
    limite = signoPaso == ">" ? ValorLibre() : ValorLibre(signo + numero);
}

template <typename Funcion> void NormalizarLimitesDe(Funcion& funcion) {
    const int pasos = funcion.Escalones.Tamano();
    if (pasos == 0) {
        return;
    }
    NormalizarInferior(funcion.XMin, funcion.Escalones(1).ValorInicial);
    NormalizarSuperior(funcion.XMax, funcion.Escalones(pasos).ValorFinal);
}

} // namespace

std::string SignoIntervalo(const ValorLibre& intervalo) {
    const std::string texto = intervalo.Texto();
    return texto.substr(0, LargoPrimerCaracter(texto));
}

std::string TextoNumeroIntervalo(const ValorLibre& intervalo) {
    const std::string texto = intervalo.Texto();
    return texto.substr(LargoPrimerCaracter(texto));
}

double NumeroIntervalo(const ValorLibre& intervalo) {
    return ValorLibre(TextoNumeroIntervalo(intervalo)).Numero();
}

Extremos ExtremosFuncion(double RMin, double RMax) {
    if (RMax > RMin) {
        return {RMin, RMax};
    }
    return {RMax, RMin};
}

LimitesReferencia LimitesConVacios(const ValorLibre& RMin, const ValorLibre& RMax) {
    if (RMin.EsVacio() || RMax.EsVacio()) {
        return {0, 100};
    }
    return {RMin.Numero(), RMax.Numero()};
}

Intervalo ValorIntervalo(const Escalon& escalon) {
    return {escalon.Valor.Numero(), NumeroIntervalo(escalon.ValorInicial),
            NumeroIntervalo(escalon.ValorFinal)};
}

FuncionValor ConvertirFuncion(const FuncionOptativo& funcion) {
    FuncionValor valor;
    static_cast<FuncionComun&>(valor) = funcion;
    return valor;
}

void NormalizarLimites(FuncionValor& funcion) {
    NormalizarLimitesDe(funcion);
}

void NormalizarLimites(FuncionOptativo& funcion) {
    NormalizarLimitesDe(funcion);
}

} // namespace vadro
