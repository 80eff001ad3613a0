// The editor's limits, reference limits and shape parameters.
#include "core/core/formato_numero.h"
#include "core/core/mensajes.h"
#include "core/core/sesion.h"
#include "core/functions/editor_funcion.h"
#include "core/functions/funcion_valor.h"

#include <cmath>

namespace vadro {

namespace {

const std::string kTituloError = "VADRO PROGRAMADOR: error";
const std::string kDebeNumero = "Debe introducir un número.";
const std::string kCorrijalo = "Corríjalo o deje vacío su valor.";

void MarcarModificado() {
    SesionActual().modelo.Modificado = true;
}

bool EsNumero(const std::string& texto) {
    return LeerNumero(texto).has_value();
}

int IndiceParametro(Campo campo) {
    return static_cast<int>(campo) - static_cast<int>(Campo::C);
}

bool EsParametro(Campo campo) {
    return campo == Campo::C || campo == Campo::K || campo == Campo::P;
}

// The plain form of the number a reference limit holds.
std::string FormaLlana(const std::string& texto) {
    const auto numero = LeerNumero(texto);
    return TextoNumero(numero ? *numero : LecturaLaxa(texto));
}

} // namespace

std::string LeyendaLimitesC(double inferior, double superior) {
    return "Pto. inflexión en abcisa (" + TextoNumero(inferior) + " < C < " +
           TextoNumero(superior) + ")";
}

std::optional<double> LecturaEstricta(const std::string& texto) {
    if (const auto numero = LeerNumero(texto)) {
        return numero;
    }
    const std::string signo = SignoIntervalo(ValorLibre(texto));
    if (signo == "=" || signo == "<" || signo == ">") {
        return LeerNumero(TextoNumeroIntervalo(ValorLibre(texto)));
    }
    return std::nullopt;
}

FormaPredefinida Forma(int indice, double refMin, double refMax) {
    const double rango = refMax - refMin;
    switch (indice) {
    case 0:
        return {1, refMin + 0.1 * rango, 0.01};
    case 1:
        return {0.5, refMin + 0.1 * rango, 0.5};
    case 2:
        return {5, refMin + 0.8 * rango, 0.3};
    default:
        return {3, refMin + 0.5 * rango, 0.5};
    }
}

void EditorFuncion::PonerCallado(Campo campo, const std::string& texto) {
    Texto(campo) = texto;
}

// Writing an input runs its change handler when the text really changes, as typing does.
void EditorFuncion::Poner(Campo campo, const std::string& texto) {
    if (Texto(campo) == texto) {
        return;
    }
    Texto(campo) = texto;
    AlCambiar(campo);
}

void EditorFuncion::Cambio(Campo campo, const std::string& texto) {
    Texto(campo) = texto;
    AlCambiar(campo);
}

void EditorFuncion::AlCambiar(Campo campo) {
    if (Tipo == kTipoNinguno) {
        SeleccionarTipo(kTipoContinua);
    }
    switch (campo) {
    case Campo::C:
    case Campo::K:
    case Campo::P:
        CambioParametro(campo);
        break;
    case Campo::MinRef:
    case Campo::MaxRef:
        CambioReferencia(campo == Campo::MaxRef);
        break;
    case Campo::Unidades: {
        // The unit shows at once beside the ends of the abscissa.
        MarcarModificado();
        EntradaGrafica entrada;
        entrada.MinRef = Texto(Campo::MinRef);
        entrada.MaxRef = Texto(Campo::MaxRef);
        entrada.Unidades = Texto(Campo::Unidades);
        entrada.AjustarMinRef = chkAjustarMinRef;
        entrada.AjustarMaxRef = chkAjustarMaxRef;
        if (GraficaDeseada(entrada)) {
            const auto leyendas = LeyendasAbscisa(entrada);
            lblMinimo = leyendas[0];
            lblMaximo = leyendas[1];
        }
        break;
    }
    case Campo::Min:
    case Campo::Max:
        break;
    }
}

void EditorFuncion::CambioParametro(Campo campo) {
    const int i = IndiceParametro(campo);
    double& ultimo = i == 0 ? UltimoC : (i == 1 ? UltimoK : UltimoP);
    const auto valor = LeerNumero(Texto(campo));
    if (!valor) {
        MsgBox(kDebeNumero, Botones::Aceptar, Icono::Ninguno, kTituloError);
        PonerCallado(campo, Formato00(ultimo));
        return;
    }
    const double inferior = i == 0 ? CInferior : (i == 1 ? KInferior : PInferior);
    const double superior = i == 0 ? CSuperior : KSuperior;
    if (campo != Campo::P && *valor > superior) {
        PonerCallado(campo, TextoNumero(superior));
    }
    if (*LeerNumero(Texto(campo)) < inferior) {
        PonerCallado(campo, TextoNumero(inferior));
    }
    MarcarModificado();
    if (EtiquetaParametro[static_cast<std::size_t>(i)] != "Auto") {
        Graficar();
    }
    ultimo = *LeerNumero(Texto(campo));
}

void EditorFuncion::CambioReferencia(bool maximo) {
    const Campo campo = maximo ? Campo::MaxRef : Campo::MinRef;
    std::string& ultimo = maximo ? UltimoRefMax : UltimoRefMin;
    const std::string& texto = Texto(campo);
    if (texto.empty() || EsNumero(texto)) {
        MarcarModificado();
        ultimo = texto;
        ActualizarLimites();
        return;
    }
    MsgBox(kDebeNumero, Botones::Aceptar, Icono::Ninguno, kTituloError);
    PonerCallado(campo, ultimo);
}

void EditorFuncion::Salir(Campo campo) {
    switch (campo) {
    case Campo::Min:
    case Campo::Max:
        SalirLimite(campo == Campo::Max);
        break;
    case Campo::MinRef:
    case Campo::MaxRef:
        SalirReferencia(campo == Campo::MaxRef);
        break;
    case Campo::C:
    case Campo::K:
    case Campo::P:
        SalirParametro(campo);
        break;
    case Campo::Unidades:
        break;
    }
}

void EditorFuncion::SalirParametro(Campo campo) {
    Poner(campo, Formato00(ValorLibre(Texto(campo))));
}

void EditorFuncion::SalirReferencia(bool maximo) {
    const Campo campo = maximo ? Campo::MaxRef : Campo::MinRef;
    if (Texto(campo).empty()) {
        (maximo ? chkMaxRefUsuario : chkMinRefUsuario) = true;
        MarcarModificado();
        return;
    }
    const Campo otra = maximo ? Campo::MinRef : Campo::MaxRef;
    const auto reescribir = [&] { Poner(campo, FormaLlana(Texto(campo))); };
    // A question whose yes keeps the number and whose no empties the input.
    const auto preguntar = [&](const std::string& pregunta) {
        if (MsgBox(pregunta, Botones::SiNo, Icono::Pregunta,
                   "VADRO PROGRAMADOR: límite superior") == Respuesta::Si) {
            reescribir();
        } else {
            Poner(campo, "");
        }
    };
    const std::string kMaximaEncima =
        "Los valores de máxima satisfacción están por encima del límite superior. Es correcto?";
    if (Texto(otra).empty()) {
        reescribir();
    } else {
        const double minRef = LecturaLaxa(Texto(Campo::MinRef));
        const double maxRef = LecturaLaxa(Texto(Campo::MaxRef));
        const bool creciente = !(minRef > maxRef);
        const std::string& min = Texto(Campo::Min);
        const std::string& max = Texto(Campo::Max);
        if (maximo && creciente) {
            if (max.empty()) {
                reescribir();
            } else if (const auto limite = LecturaEstricta(max); limite && maxRef > *limite) {
                preguntar(kMaximaEncima);
            }
        } else if (maximo) {
            if (min.empty()) {
                reescribir();
            } else if (maxRef < LecturaLaxa(min)) {
                preguntar("Los valores de máxima satisfacción están por debajo del límite "
                          "inferior. Es correcto?");
            }
        } else if (creciente) {
            if (min.empty()) {
                reescribir();
            } else if (const auto limite = LecturaEstricta(min); limite && minRef < *limite) {
                preguntar("Los valores de mínima satisfacción están por debajo del límite "
                          "inferior. Es correcto?");
            }
        } else {
            if (max.empty()) {
                reescribir();
            } else if (const auto limite = LecturaEstricta(max); limite && minRef > *limite) {
                preguntar(kMaximaEncima);
            }
        }
    }
    ActualizarLimites();
    MarcarModificado();
}

void EditorFuncion::SalirLimite(bool maximo) {
    const Campo campo = maximo ? Campo::Max : Campo::Min;
    const Campo otro = maximo ? Campo::Min : Campo::Max;
    if (Texto(campo).empty()) {
        MarcarModificado();
        (maximo ? chkMaxUsuario : chkMinUsuario) = true;
        if (ErrorLimites(!maximo)) {
            foco = PeticionFoco{otro};
        }
        ActualizarLimites();
        return;
    }
    if (ErrorLimites(maximo)) {
        foco = PeticionFoco{campo};
        return;
    }
    const double numero = NumeroIntervalo(ValorLibre(Texto(campo)));
    const std::string& minRef = Texto(Campo::MinRef);
    const std::string& maxRef = Texto(Campo::MaxRef);
    if (maximo && !minRef.empty() && !maxRef.empty()) {
        const double refMin = LecturaLaxa(minRef);
        const double refMax = LecturaLaxa(maxRef);
        const std::string titulo = "VADRO PROGRAMADOR: límite superior";
        if (!(refMin > refMax) && refMax > numero) {
            MsgBox("Está poniendo límite a los valores de máxima satisfacción. Verifique si es "
                   "correcto.",
                   Botones::Aceptar, Icono::Informacion, titulo);
        }
        if (refMin > refMax && refMin > LecturaLaxa(Texto(Campo::Max))) {
            MsgBox("Está poniendo límite a los valores de mínima satisfacción. Verifique si es "
                   "correcto.",
                   Botones::Aceptar, Icono::Informacion, titulo);
        }
    }
    if (!maximo && !minRef.empty() && LecturaLaxa(minRef) < numero) {
        MsgBox("Está poniendo límite a los valores de mínima satisfacción. Verifique si es "
               "correcto.",
               Botones::Aceptar, Icono::Informacion, "VADRO PROGRAMADOR: límite inferior");
    }
    if (ErrorLimites(!maximo)) {
        foco = PeticionFoco{otro};
    }
    ActualizarLimites();
    MarcarModificado();
}

bool EditorFuncion::ErrorLimites(bool maximo) {
    const Campo campo = maximo ? Campo::Max : Campo::Min;
    const std::string texto = Texto(campo);
    if (texto.empty()) {
        return false;
    }
    const std::string titulo =
        maximo ? "VADRO: error en límite superior" : "VADRO: error en límite inferior";
    const auto rechazar = [&](const std::string& mensaje, const std::string& tituloMensaje) {
        MsgBox(mensaje, Botones::Aceptar, Icono::Informacion, tituloMensaje);
        Poner(campo, "");
        return true;
    };
    const std::string S = SignoIntervalo(ValorLibre(texto));
    const std::string cerrado = "=";
    const std::string abierto = maximo ? ">" : "<";
    if (S == (maximo ? "<" : ">")) {
        return rechazar(maximo ? "El símbolo de intervalo del límite superior no puede ser "
                                 "abierto hacia la izquierda.\n" +
                                     kCorrijalo
                               : "El símbolo de intervalo del límite INFERIOR no puede ser "
                                 "abierto hacia la DERECHA.\n" +
                                     kCorrijalo,
                        titulo);
    }
    if (S != cerrado && S != abierto) {
        return maximo ? rechazar("Falta introducir el signo de intervalo en el límite superior "
                                 "(=, < o >).",
                                 "VADRO:error en límite superior")
                      : rechazar("Falta introducir el signo de intervalo en el límite inferior "
                                 "(=, <).",
                                 titulo);
    }
    const auto numero = LeerNumero(TextoNumeroIntervalo(ValorLibre(texto)));
    if (!numero) {
        return rechazar(std::string("El valor a introducir debe de ser un número precedido del "
                                    "símbolo de intervalo (=, ") +
                            (maximo ? ">" : "<") + ").",
                        titulo);
    }
    if (Tipo != kTipoEscalon || Intervalos < 1) {
        return false;
    }
    const std::string& celda = maximo ? Celda(Intervalos, 2) : Celda(1, 1);
    if (celda.empty()) {
        return false;
    }
    const auto numeroCelda = LeerNumero(TextoNumeroIntervalo(ValorLibre(celda)));
    if (!numeroCelda || *numeroCelda != *numero) {
        return rechazar(maximo ? "El valor del límite superior debe ser igual al valor final del "
                                 "último intervalo.\n" +
                                     kCorrijalo
                               : "El valor del límite inferior debe ser igual al valor inicial "
                                 "del primer intervalo.\n" +
                                     kCorrijalo,
                        titulo);
    }
    // The limit and the outer step meet at the number: one of them must hold it.
    const std::string signoCelda = SignoIntervalo(ValorLibre(celda));
    const bool consecuente =
        maximo ? (signoCelda == "<" && S == "=") || (signoCelda == "=" && S == ">")
               : (S == "<" && signoCelda == "=") || (S == "=" && signoCelda == ">");
    if (consecuente) {
        return false;
    }
    return rechazar(maximo ? "Los símbolos de intervalo del límite superior y el del valor final "
                             "del último intervalo no son consecuentes\ny dejan discontinuidades "
                             "o soluciones múltiples.\n" +
                                 kCorrijalo
                           : "Los símbolos de intervalo del límite inferior y el del valor "
                             "inicial del primer intervalo no son consecuentes\ny dejan "
                             "discontinuidades o soluciones múltiples.\n" +
                                 kCorrijalo,
                    titulo);
}

bool EditorFuncion::ValoresOK() const {
    const auto min = LecturaEstricta(Texto(Campo::Min));
    const auto max = LecturaEstricta(Texto(Campo::Max));
    if (min && max && *max < *min) {
        MsgBox("El límite superior no puede ser menor al límite inferior", Botones::Aceptar,
               Icono::Critico, "VADRO PROGRAMADOR");
        return false;
    }
    return true;
}

void EditorFuncion::ActualizarLimites() {
    const std::string& minRef = Texto(Campo::MinRef);
    const std::string& maxRef = Texto(Campo::MaxRef);
    if (minRef.empty() || maxRef.empty()) {
        RefMinActual = 0;
        RefMaxActual = 100;
    } else {
        RefMinActual = LecturaLaxa(minRef);
        RefMaxActual = LecturaLaxa(maxRef);
    }
    PInferior = 0;
    if (LecturaLaxa(Texto(Campo::P)) > PSuperior) {
        PSuperior = LecturaLaxa(Texto(Campo::P));
    }
    PasoP = 1.0 / 100;
    // An empty parameter has nothing to keep inside the bounds.
    const auto C = LeerNumero(Texto(Campo::C));
    const auto acotar = [&](double inferior, double superior) {
        if (C && *C > superior) {
            PonerCallado(Campo::C, TextoNumero(superior));
        }
        if (C && *LeerNumero(Texto(Campo::C)) < inferior) {
            PonerCallado(Campo::C, TextoNumero(inferior));
        }
        CInferior = inferior;
        CSuperior = superior;
    };
    if (!(RefMaxActual > RefMinActual)) {
        if (C && *C < RefMaxActual) {
            PonerCallado(Campo::C, TextoNumero(RefMaxActual));
        }
        if (C && *LeerNumero(Texto(Campo::C)) > RefMinActual) {
            PonerCallado(Campo::C, TextoNumero(RefMinActual));
        }
        CInferior = RefMaxActual;
        CSuperior = RefMinActual;
    } else {
        acotar(RefMinActual, RefMaxActual);
    }
    PasoC = std::max(std::fabs(CSuperior - CInferior) / 100, 0.01);
    KInferior = 0;
    KSuperior = 1;
    PasoK = 1.0 / 100;
    lblLimitesC = LeyendaLimitesC(CInferior, CSuperior);
    lblLimitesK = kLeyendaLimitesK;
    lblLimitesP = kLeyendaLimitesP;
    Graficar();
}

void EditorFuncion::Graficar() {
    EntradaGrafica entrada;
    entrada.MinRef = Texto(Campo::MinRef);
    entrada.MaxRef = Texto(Campo::MaxRef);
    entrada.Unidades = Texto(Campo::Unidades);
    entrada.AjustarMinRef = chkAjustarMinRef;
    entrada.AjustarMaxRef = chkAjustarMaxRef;
    entrada.Escalon = Tipo == kTipoEscalon;
    entrada.C = Texto(Campo::C);
    entrada.K = Texto(Campo::K);
    entrada.P = Texto(Campo::P);
    entrada.Filas = Filas;
    entrada.Intervalos = Intervalos;
    ++Dibujos;
    const ResultadoGrafica resultado = vadro::Graficar(entrada, curva, grafica);
    if (resultado.Dibujada) {
        lblMinimo = resultado.Minimo;
        lblMaximo = resultado.Maximo;
    } else if (SesionActual().MostrarAvisoFuncionValor && !Activando && MostrarAviso) {
        MostrarAviso();
    }
}

bool EditorFuncion::Tecla(Campo campo, int tecla) {
    if (tecla == 13 && (campo == Campo::Min || campo == Campo::Max || campo == Campo::MinRef ||
                        campo == Campo::MaxRef)) {
        Salir(campo);
        return true;
    }
    if (EsParametro(campo) && (tecla == 38 || tecla == 40)) {
        AjustarParametro(campo, tecla == 38 ? 1 : -1);
        return true;
    }
    return false;
}

void EditorFuncion::Subir(Campo parametro) {
    AjustarParametro(parametro, 1);
}

void EditorFuncion::Bajar(Campo parametro) {
    AjustarParametro(parametro, -1);
}

void EditorFuncion::AjustarParametro(Campo parametro, int sentido) {
    const int i = IndiceParametro(parametro);
    const double paso = i == 0 ? PasoC : (i == 1 ? PasoK : PasoP);
    const double inferior = i == 0 ? CInferior : (i == 1 ? KInferior : PInferior);
    const double superior = i == 0 ? CSuperior : KSuperior;
    double valor = LecturaLaxa(Texto(parametro)) + sentido * paso;
    if (sentido < 0 && valor < inferior) {
        valor = inferior;
    }
    // P has no upper bound.
    if (sentido > 0 && parametro != Campo::P && valor > superior) {
        valor = superior;
    }
    Poner(parametro, Formato00(valor));
}

void EditorFuncion::PulsarForma(int indice) {
    EtiquetaForma[static_cast<std::size_t>(indice)] = "Usuario";
}

void EditorFuncion::ClickForma(int indice) {
    std::string& etiqueta = EtiquetaForma[static_cast<std::size_t>(indice)];
    if (etiqueta != "Usuario") {
        return;
    }
    etiqueta = "Auto";
    if (Tipo == kTipoNinguno) {
        SeleccionarTipo(kTipoContinua);
    }
    const FormaPredefinida forma = Forma(indice, RefMinActual, RefMaxActual);
    // The three inputs are written without a drawing each; the curve is drawn once.
    EtiquetaParametro.fill("Auto");
    Poner(Campo::P, TextoNumero(forma.P));
    Poner(Campo::C, TextoNumero(forma.C));
    Poner(Campo::K, TextoNumero(forma.K));
    EtiquetaParametro.fill("");
    Graficar();
}

void EditorFuncion::ClickAjustar(bool maximo, bool marcado) {
    const Campo campo = maximo ? Campo::MaxRef : Campo::MinRef;
    (maximo ? chkAjustarMaxRef : chkAjustarMinRef) = marcado;
    if (marcado && !Texto(campo).empty()) {
        (maximo ? MaxRefHabilitado : MinRefHabilitado) = true;
        Poner(campo, maximo ? UltimoRefMax : UltimoRefMin);
    } else if (!marcado && Texto(campo).empty()) {
        MsgBox(maximo ? "Se tomará como punto de máxima satisfacción el más permisivo"
                      : "Se tomará como punto de mínima satisfacción el más restrictivo",
               Botones::Aceptar, Icono::Informacion, "VADRO PROGRAMADOR");
        (maximo ? MaxRefHabilitado : MinRefHabilitado) = false;
        Poner(campo, "");
        (maximo ? chkMaxRefUsuario : chkMinRefUsuario) = true;
    }
    Graficar();
    MarcarModificado();
}

void EditorFuncion::ClickUsuarioRef(bool maximo, bool marcado) {
    (maximo ? chkMaxRefUsuario : chkMinRefUsuario) = marcado;
    const Campo campo = maximo ? Campo::MaxRef : Campo::MinRef;
    if (!marcado && Texto(campo).empty()) {
        ClickAjustar(maximo, true);
    }
    MarcarModificado();
}

} // namespace vadro
