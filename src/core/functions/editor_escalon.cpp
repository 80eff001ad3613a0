// The editor's grid of intervals.
#include "core/core/mensajes.h"
#include "core/core/sesion.h"
#include "core/functions/editor_funcion.h"
#include "core/functions/funcion_valor.h"

#include <cmath>

namespace vadro {

namespace {

const std::string kTituloFuncion = "VADRO: función de valor";
const FilaIntervalo kFilaVacia{" -", " -", " -", " -"};

void Informar(const std::string& texto) {
    MsgBox(texto, Botones::Aceptar, Icono::Informacion, kTituloFuncion);
}

bool CeroOUno(double valor) {
    return valor == 0 || valor == 1;
}

// Two boundaries meet where one of them holds the number: "=" then ">", or "<" then "=".
bool Consecuentes(const std::string& fin, const std::string& inicio) {
    return (fin == "=" && inicio == ">") || (fin == "<" && inicio == "=");
}

const std::string kFrontera =
    "El valor inicial de un intervalo debe de ser el mismo que el valor final del intervalo "
    "anterior, con el símbolo correspondiente según sea abierto o cerrado (=, > o <)\n\nEl valor "
    "final de un intervalo debe de ser el mismo que el valor inicial del intervalo posterior, "
    "con el símbolo correspondiente según sea abierto o cerrado (=, > o <)";

const std::string kSinLimite =
    "Para modificarlo, deje vacío su valor, elimine el límite y vuelva a escribirlo.";

} // namespace

std::string FormatoIntervalo(const std::string& inicial, const std::string& final_) {
    std::string texto;
    if (inicial.empty()) {
        texto = "(?,";
    } else {
        texto += SignoIntervalo(ValorLibre(inicial)) == "=" ? '[' : '(';
        texto += TextoNumeroIntervalo(ValorLibre(inicial));
        texto += ',';
    }
    if (final_.empty()) {
        texto += "?)";
    } else {
        texto += TextoNumeroIntervalo(ValorLibre(final_));
        texto += SignoIntervalo(ValorLibre(final_)) == "=" ? ']' : ')';
    }
    return texto;
}

std::string& EditorFuncion::Celda(int fila, int columna) {
    return Filas[static_cast<std::size_t>(fila - 1)][static_cast<std::size_t>(columna)];
}

const std::string& EditorFuncion::Celda(int fila, int columna) const {
    return Filas[static_cast<std::size_t>(fila - 1)][static_cast<std::size_t>(columna)];
}

void EditorFuncion::CambiarIntervalos(int n) {
    const int m = static_cast<int>(Filas.size());
    if (n < m && !Cargando && Aviso && ConfirmarReduccion && !ConfirmarReduccion()) {
        return; // the count stays as it was, and so do the rows
    }
    Intervalos = n;
    if (n < m) {
        Filas.resize(static_cast<std::size_t>(n));
    }
    if (n == 0) {
        Filas.assign(1, kFilaVacia);
        RejillaHabilitada = false;
        FilaActual = 1;
        ColumnaActual = 1;
        return;
    }
    RejillaHabilitada = true;
    if (Filas.front() == kFilaVacia) {
        Filas.assign(1, FilaIntervalo{});
        FilaActual = 1;
        ColumnaActual = 1;
    }
    Filas.resize(static_cast<std::size_t>(n));
    for (int fila = 1; fila <= n; ++fila) {
        Celda(fila, 0) = std::to_string(fila);
    }
    FilaActual = std::min(FilaActual, n);
}

bool EditorFuncion::AbrirCelda() {
    if (Intervalos < 1 || ColumnaActual < 1) {
        return false;
    }
    EntradaAbierta = true;
    return true;
}

bool EditorFuncion::ValidarIntervalo(const std::string& texto) {
    if (texto.empty()) {
        return false;
    }
    const int fila = FilaActual;
    const int ultima = Intervalos;
    if (ColumnaActual == 3) {
        const auto valor = LeerNumero(texto);
        if (!valor) {
            Informar("El valor introducido debe ser un número.");
        } else if (fila == 1 && !CeroOUno(*valor)) {
            Informar("El valor inicial del primer intervalo tiene que ser 0 o 1.");
        } else if (fila == ultima && !CeroOUno(*valor)) {
            Informar("El valor final del último intervalo tiene que ser 0 o 1.");
        } else if (*valor < 0 || *valor > 1) {
            Informar("El valor introducido debe estar entre 0 y 1.");
        } else {
            return false;
        }
        return true;
    }
    const std::string S = SignoIntervalo(ValorLibre(texto));
    const std::string N = TextoNumeroIntervalo(ValorLibre(texto));
    if (S != "=" && S != "<" && S != ">") {
        Informar("Falta introducir el signo de intervalo (=, < o >).");
        return true;
    }
    if (!LeerNumero(N)) {
        Informar("El valor a introducir debe de ser un número precedido del símbolo de "
                 "intervalo (=, < o >).");
        return true;
    }
    const bool inicio = ColumnaActual == 1;
    if (inicio && fila == 1) {
        if (S == "<" && Celda(1, 3) == "1" && !Texto(Campo::Min).empty()) {
            Informar("Si el intervalo inicial ha de ser abierto hacia la izquierda y con valor "
                     "R(X) = 1, no puede existir límite inferior.\n" +
                     kSinLimite);
            return true;
        }
        return false;
    }
    if (!inicio && fila == ultima) {
        if (S != "=" && Celda(ultima, 3) == "1" && !Texto(Campo::Max).empty()) {
            Informar("Si el intervalo final ha de ser abierto hacia la derecha y con valor "
                     "R(X) = 1, no puede existir límite superior.\n" +
                     kSinLimite);
            return true;
        }
        return false;
    }
    // The numbers are compared as the texts write them.
    if (inicio) {
        const std::string& propioFin = Celda(fila, 2);
        if (propioFin.empty()) {
            return false;
        }
        const std::string& anterior = Celda(fila - 1, 2);
        const std::string numeroAnterior = TextoNumeroIntervalo(ValorLibre(anterior));
        if (N != numeroAnterior || N == TextoNumeroIntervalo(ValorLibre(propioFin))) {
            Informar(kFrontera);
            return true;
        }
        if (!Consecuentes(SignoIntervalo(ValorLibre(anterior)), S)) {
            Informar("El símbolo del valor inicial del intervalo (abierto o cerrado) no es "
                     "consecuente con el símbolo del valor final del intervalo anterior.");
            return true;
        }
        return false;
    }
    const std::string& siguiente = Celda(fila + 1, 1);
    if (siguiente.empty()) {
        return false;
    }
    if (N != TextoNumeroIntervalo(ValorLibre(siguiente)) ||
        N == TextoNumeroIntervalo(ValorLibre(Celda(fila, 1)))) {
        Informar(kFrontera);
        return true;
    }
    if (!Consecuentes(S, SignoIntervalo(ValorLibre(siguiente)))) {
        Informar("El símbolo del valor inicial del intervalo (abierto o cerrado) no es "
                 "consecuente con el símbolo del valor final del intervalo posterior.");
        return true;
    }
    return false;
}

void EditorFuncion::SalirCelda(const std::string& texto) {
    if (!EntradaAbierta) {
        return;
    }
    if (ColumnaActual == 1 || ColumnaActual == 2) {
        if (ValidarIntervalo(texto)) {
            Informar("Se mantendrá el valor existente anteriormente.");
        } else {
            Celda(FilaActual, ColumnaActual) = texto;
        }
    } else if (ColumnaActual == 3) {
        const auto valor = LeerNumero(texto);
        const std::string titulo = "VADRO PROGRAMADOR: error";
        if (texto.empty()) {
            Celda(FilaActual, 3).clear(); // a cell may be emptied at any time
        } else if (!valor) {
            MsgBox("Debe introducir un valor numérico.", Botones::Aceptar, Icono::Critico, titulo);
        } else if (*valor < 0 || *valor > 1) {
            MsgBox("El valor de la función R(x) debe de estar comprendido entre 0 y 1.",
                   Botones::Aceptar, Icono::Ninguno, titulo);
        } else if (!ValidarIntervalo(texto)) {
            Celda(FilaActual, 3) = TextoNumero(std::fabs(*valor));
        }
        ActualizarEtiquetasRef();
    }
    EntradaAbierta = false;
    ReferenciasDeEscalones();
    Graficar();
}

AccionEntrada EditorFuncion::TeclaEntrada(int tecla, const std::string& texto) {
    switch (tecla) {
    case 13:
        SalirCelda(texto);
        return AccionEntrada::Confirmada;
    case 27:
        EntradaAbierta = false;
        return AccionEntrada::Descartada;
    case 37:
    case 38:
    case 39:
    case 40:
        break;
    default:
        return AccionEntrada::Ninguna;
    }
    if (ValidarIntervalo(texto)) {
        return AccionEntrada::Retenida;
    }
    SalirCelda(texto);
    if (tecla == 37 && ColumnaActual >= 2) {
        --ColumnaActual;
    } else if (tecla == 38 && FilaActual > 1) {
        --FilaActual;
    } else if (tecla == 39 && ColumnaActual < 3) {
        ++ColumnaActual;
    } else if (tecla == 40 && FilaActual < Intervalos) {
        ++FilaActual;
    }
    return AccionEntrada::Movida;
}

bool EditorFuncion::ErrorMinMax() {
    if (Tipo != kTipoEscalon || EntradaAbierta) {
        return false;
    }
    double mayor = 0;
    double menor = 1;
    for (int fila = 1; fila <= Intervalos; ++fila) {
        if (const auto valor = LeerNumero(Celda(fila, 3))) {
            mayor = std::max(mayor, *valor);
            menor = std::min(menor, *valor);
        }
    }
    if (menor == 0 && mayor == 1) {
        return false;
    }
    MsgBox("La función escalón debe de tener al menos un mínimo en 0 y un máximo en 1",
           Botones::Aceptar, Icono::Critico, "VADRO: error");
    FilaActual = 1;
    ColumnaActual = 3;
    return true;
}

void EditorFuncion::ActualizarEtiquetasRef() {
    lblMinRef.clear();
    lblMaxRef.clear();
    for (int fila = 1; fila <= Intervalos; ++fila) {
        const auto valor = LeerNumero(Celda(fila, 3));
        if (!valor) {
            continue;
        }
        if (*valor == 0) {
            lblMinRef += FormatoIntervalo(Celda(fila, 1), Celda(fila, 2));
        } else if (*valor == 1) {
            lblMaxRef += FormatoIntervalo(Celda(fila, 1), Celda(fila, 2));
        }
    }
}

// The reference limits of a step function are what its outer steps say: the point of minimum
// satisfaction lies at the outer end whose step is worth 0, the point of maximum satisfaction
// at the other one.
void EditorFuncion::ReferenciasDeEscalones() {
    if (Tipo != kTipoEscalon || Intervalos < 1) {
        return;
    }
    const std::string& inicio = Celda(1, 1);
    const std::string& fin = Celda(Intervalos, 2);
    if (inicio.empty() || fin.empty()) {
        return;
    }
    std::string minimo = TextoNumeroIntervalo(ValorLibre(inicio));
    std::string maximo = TextoNumeroIntervalo(ValorLibre(fin));
    const auto primero = LeerNumero(Celda(1, 3));
    if (primero && *primero == 1) {
        std::swap(minimo, maximo);
    }
    PonerCallado(Campo::MinRef, minimo);
    PonerCallado(Campo::MaxRef, maximo);
    UltimoRefMin = minimo;
    UltimoRefMax = maximo;
}

void EditorFuncion::ClickEtiquetaRef(bool maximo) {
    Informar(maximo ? "Los puntos de máxima satisfacción vienen impuestos por los valores "
                      "introducidos en la definición de los escalones."
                    : "Los puntos de mínima satisfacción vienen impuestos por los valores "
                      "introducidos en la definición de los escalones.");
}

void EditorFuncion::LeerEscalones(const Arreglo<Escalon>& escalones) {
    const bool sinEscalones = escalones.Tamano() == 0 ||
                              (escalones.Tamano() == 1 && escalones(1).ValorInicial.EsVacio() &&
                               escalones(1).ValorFinal.EsVacio() && escalones(1).Valor.EsVacio());
    if (sinEscalones) {
        Intervalos = 0;
        Filas.assign(1, kFilaVacia);
        RejillaHabilitada = false;
    } else {
        Intervalos = escalones.Tamano();
        Filas.clear();
        int fila = 0;
        for (const Escalon& e : escalones) {
            Filas.push_back({std::to_string(++fila), e.ValorInicial.Texto(), e.ValorFinal.Texto(),
                             e.Valor.Texto()});
        }
        RejillaHabilitada = true;
    }
    ActualizarEtiquetasRef();
}

} // namespace vadro
