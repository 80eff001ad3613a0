#include "core/files/seccion_funcion.h"

#include "core/core/error_ejecucion.h"
#include "core/core/mensajes.h"
#include "core/files/formato.h"
#include "core/files/lectura_seccion.h"
#include "core/functions/funcion_valor.h"

#include <utility>

namespace vadro {

namespace {

constexpr const char* kTemaFuncion = "la función de valor";
constexpr const char* kTemaOptativo = "la función de valor de indicador optativo";

// Runs the statements of one block's writing. A statement that fails is shown to the user, who
// may have it run again once the cause is removed, or give up: Cancelar abandons the whole save
// (the cancel error goes up to the save, which writes nothing).
class EscritorFuncion {
public:
    EscritorFuncion(ArchivoSalida& salida, std::string prefijo, const char* tema)
        : salida_(salida), prefijo_(std::move(prefijo)), tema_(tema) {}

    template <typename Sentencia> decltype(auto) Ejecutar(Sentencia&& sentencia) {
        for (;;) {
            try {
                return sentencia();
            } catch (const ErrorEjecucion& error) {
                if (error.Numero() == ErrCancelar || !Reintentar(error)) {
                    throw ErrorEjecucion(ErrCancelar);
                }
            }
        }
    }

    // The line of a key; the value is worked out inside the statement, so that a retry sees
    // the record as it stands then.
    template <typename Valor> void Linea(const std::string& sufijo, Valor&& valor) {
        Ejecutar([&] { salida_.Escribir(prefijo_ + sufijo, valor()); });
    }

    ArchivoSalida& Salida() { return salida_; }

private:
    bool Reintentar(const ErrorEjecucion& error) const {
        return MsgBox("Error " + std::to_string(error.Numero()) + " al guardar " + tema_ + ".\n\r" +
                          error.Descripcion(),
                      Botones::ReintentarCancelar, Icono::Critico,
                      "VADRO: Error ") == Respuesta::Reintentar;
    }

    ArchivoSalida& salida_;
    std::string prefijo_;
    const char* tema_;
};

// The key of option n of the function with key K: "O<n>" and K.
std::string ClaveOpcion(int n, const std::string& clave) {
    std::string opcion(1, 'O');
    opcion += std::to_string(n);
    opcion += clave;
    return opcion;
}

std::string PrefijoFuncion(const std::string& indice, const std::string& clave) {
    return indice + "FUN_" + clave;
}

// The number of an interval text, scaled; nothing for an undefined value.
std::string NumeroIntervaloEscalado(const ValorLibre& intervalo) {
    return NumeroEscalado(ValorLibre(TextoNumeroIntervalo(intervalo)));
}

// The symbol as the file spells it: "=" would confuse the search for the value.
std::string SignoArchivo(const ValorLibre& intervalo) {
    const std::string signo = SignoIntervalo(intervalo);
    return signo == "=" ? "igual" : signo;
}

std::string SignoLeido(const std::string& texto, const char* signoVacio) {
    if (texto.empty()) {
        return signoVacio;
    }
    return texto == "igual" ? "=" : texto;
}

const char* PalabraTipo(int32_t tipo) {
    switch (tipo) {
    case FuncionNinguna:
        return "ninguna";
    case FuncionContinua:
        return "fContinua";
    case FuncionEscalon:
        return "fEscalon";
    case FuncionOptativos:
        return "fOptativos";
    case FuncionPuntuacion:
        return "fPuntuacion";
    default:
        return nullptr;
    }
}

// ---- Writing

// A limit is written as its scaled number, and its symbol only when it is defined.
void EscribirLimite(EscritorFuncion& e, const std::string& sufijo, const ValorLibre& limite) {
    e.Linea(sufijo, [&] { return NumeroIntervaloEscalado(limite); });
    if (!limite.EsVacio()) {
        e.Linea(sufijo + "S", [&] { return SignoArchivo(limite); });
    }
}

template <typename Funcion> void EscribirComun(Funcion& f, EscritorFuncion& e) {
    e.Linea("_IND", [&] { return f.Clave; });
    e.Linea("_UNI", [&] { return f.Unidades; });
    EscribirLimite(e, "_XMN", f.XMin);
    EscribirLimite(e, "_XMX", f.XMax);
    e.Linea("_RMN", [&] { return NumeroEscalado(f.RMin); });
    e.Linea("_RMX", [&] { return NumeroEscalado(f.RMax); });
}

void EscribirTipo(EscritorFuncion& e, const char* palabra) {
    if (palabra != nullptr) {
        e.Linea("_TIP", [&] { return std::string(palabra); });
    }
}

template <typename Funcion> void EscribirForma(Funcion& f, EscritorFuncion& e) {
    e.Linea("_C", [&] { return NumeroEscalado(f.C); });
    e.Linea("_K", [&] { return NumeroEscalado(f.K); });
    e.Linea("_P", [&] { return NumeroEscalado(f.P); });
}

// The count comes from the array itself; an absent array (a function read from a file whose
// count was missing or not positive) is written as a count of 0, so that it reads back as it
// was. Unlike a limit, a step writes both symbol lines at all times.
template <typename T> int CotaEscrita(const Arreglo<T>& arreglo) {
    return arreglo.Presente() ? arreglo.Cota() : 0;
}

void EscribirEscalones(Arreglo<Escalon>& pasos, EscritorFuncion& e) {
    e.Linea("_ESC_NUM", [&] { return FormaImpresa(CotaEscrita(pasos)); });
    const int cota = e.Ejecutar([&] { return CotaEscrita(pasos); });
    for (int n = 1; n <= cota; ++n) {
        const std::string esc = "_ESC" + std::to_string(n);
        e.Linea(esc + "_VINI", [&] { return NumeroIntervaloEscalado(pasos(n).ValorInicial); });
        e.Linea(esc + "_SINI", [&] { return SignoArchivo(pasos(n).ValorInicial); });
        e.Linea(esc + "_VFIN", [&] { return NumeroIntervaloEscalado(pasos(n).ValorFinal); });
        e.Linea(esc + "_SFIN", [&] { return SignoArchivo(pasos(n).ValorFinal); });
        e.Linea(esc + "_VAL", [&] { return NumeroEscalado(pasos(n).Valor); });
    }
}

void EscribirPuntuaciones(Arreglo<Puntuacion>& elementos, EscritorFuncion& e) {
    e.Linea("_PTN_NUM", [&] { return FormaImpresa(CotaEscrita(elementos)); });
    const int cota = e.Ejecutar([&] { return CotaEscrita(elementos); });
    for (int n = 1; n <= cota; ++n) {
        const std::string ptn = "_PTN" + std::to_string(n);
        e.Linea(ptn + "_NOM", [&] { return elementos(n).Nombre; });
        const bool numerica = e.Ejecutar([&] { return elementos(n).Tipo != PuntuacionBooleana; });
        e.Linea(ptn + "_TIP", [&] { return std::string(numerica ? "pNumerica" : "pBooleana"); });
        if (numerica) {
            e.Linea(ptn + "_MIN", [&] { return NumeroEscalado(elementos(n).Minimo); });
            e.Linea(ptn + "_MAX", [&] { return NumeroEscalado(elementos(n).Maximo); });
        }
        e.Linea(ptn + "_VLN", [&] { return NumeroEscalado(elementos(n).ValorMin); });
        e.Linea(ptn + "_VLS", [&] { return NumeroEscalado(elementos(n).ValorMax); });
    }
}

void EscribirOptativos(FuncionValor& f, EscritorFuncion& e, const std::string& indice) {
    e.Linea("_OPT_NUM", [&] { return FormaImpresa(CotaEscrita(f.Optativos)); });
    e.Linea("_OPT_SEL", [&] { return FormaImpresa(f.OptativoSeleccionado); });
    const int cota = e.Ejecutar([&] { return CotaEscrita(f.Optativos); });
    for (int n = 1; n <= cota; ++n) {
        const std::string opt = "_OPT" + std::to_string(n);
        e.Linea(opt + "_NOM", [&] { return f.Optativos(n).Nombre; });
        FuncionOptativo& opcion =
            e.Ejecutar([&]() -> FuncionOptativo& { return f.Optativos(n).Funcion; });
        opcion.Clave = ClaveOpcion(n, f.Clave);
        GuardarFuncionOptativo(opcion, e.Salida(), indice);
    }
}

// Commits a block built apart, retrying the commit like any other statement.
void ConfirmarBloque(const ArchivoSalida& salida, const std::string& ruta, bool anadir,
                     const char* tema) {
    ArchivoSalida sinUso;
    EscritorFuncion(sinUso, {}, tema).Ejecutar([&] { GuardarSeccion(ruta, salida, anadir); });
}

// ---- Reading

// A limit or a step bound: the number, then its symbol, "igual" standing for "=". A missing
// symbol gives `signoVacio`.
ValorLibre LeerIntervalo(LecturaSeccion& l, const std::string& claveNumero,
                         const std::string& claveSigno, const char* signoVacio) {
    ValorLibre leido = l.Buscar(claveNumero);
    // A limit's key is the start of its sign's key ("_XMN", "_XMNS"): when the number's line is
    // missing, the search goes on to the sign line and reads a sign word. The number is then
    // missing, as the sign's own line is passed.
    const std::string texto = leido.Texto();
    if (claveSigno.rfind(claveNumero, 0) == 0 &&
        (texto == "igual" || texto == "<" || texto == ">")) {
        leido = ValorLibre();
    }
    ValorLibre numero = LeerEscalado(leido);
    if (numero.EsVacio()) {
        return numero;
    }
    return ValorLibre(SignoLeido(l.Buscar(claveSigno).Texto(), signoVacio) + numero.Texto());
}

// The lines from "_IND" to "_RMX"; gives the text of "_TIP".
template <typename Funcion> std::string LeerComun(Funcion& f, LecturaSeccion& l) {
    f.Clave = l.Buscar(PrefijoFuncion({}, f.Clave) + "_IND").Texto();
    const std::string prefijo = PrefijoFuncion({}, f.Clave);
    f.Unidades = l.Buscar(prefijo + "_UNI").Texto();
    f.XMin = LeerIntervalo(l, prefijo + "_XMN", prefijo + "_XMNS", "<");
    f.XMax = LeerIntervalo(l, prefijo + "_XMX", prefijo + "_XMXS", ">");
    f.RMin = LeerEscalado(l.Buscar(prefijo + "_RMN"));
    f.RMax = LeerEscalado(l.Buscar(prefijo + "_RMX"));
    return l.Buscar(prefijo + "_TIP").Texto();
}

template <typename Funcion> void LeerForma(Funcion& f, LecturaSeccion& l) {
    const std::string prefijo = PrefijoFuncion({}, f.Clave);
    f.C = LeerEscalado(l.Buscar(prefijo + "_C"));
    f.K = LeerEscalado(l.Buscar(prefijo + "_K"));
    f.P = LeerEscalado(l.Buscar(prefijo + "_P"));
}

// The steps, then the limits made to follow the outer ones. A step's missing symbol stays
// missing.
template <typename Funcion> void LeerEscalones(Funcion& f, LecturaSeccion& l) {
    const std::string prefijo = PrefijoFuncion({}, f.Clave);
    l.Dimensionar(f.Escalones, ParteEntera(l.Buscar(prefijo + "_ESC_NUM")));
    for (int n = 1; n <= f.Escalones.Tamano(); ++n) {
        const std::string esc = prefijo + "_ESC" + std::to_string(n);
        Escalon& paso = f.Escalones(n);
        paso.ValorInicial = LeerIntervalo(l, esc + "_VINI", esc + "_SINI", "");
        paso.ValorFinal = LeerIntervalo(l, esc + "_VFIN", esc + "_SFIN", "");
        paso.Valor = LeerEscalado(l.Buscar(esc + "_VAL"));
    }
    NormalizarLimites(f);
}

// Elements are read only for a count of at least 1; otherwise the list stays as it was.
void LeerPuntuaciones(FuncionValor& f, LecturaSeccion& l) {
    const std::string prefijo = PrefijoFuncion({}, f.Clave);
    const ValorLibre cuenta = l.Buscar(prefijo + "_PTN_NUM");
    if (cuenta.EsVacio() || cuenta.Numero() < 1) {
        return;
    }
    l.Dimensionar(f.Puntuaciones, ParteEntera(cuenta));
    for (int n = 1; n <= f.Puntuaciones.Tamano(); ++n) {
        const std::string ptn = prefijo + "_PTN" + std::to_string(n);
        Puntuacion& elemento = f.Puntuaciones(n);
        elemento.Nombre = l.Buscar(ptn + "_NOM").Texto();
        if (l.Buscar(ptn + "_TIP").Texto() == "pBooleana") {
            elemento.Tipo = PuntuacionBooleana;
        } else {
            elemento.Tipo = PuntuacionNumerica;
            elemento.Minimo = LeerEscalado(l.Buscar(ptn + "_MIN"));
            elemento.Maximo = LeerEscalado(l.Buscar(ptn + "_MAX"));
        }
        elemento.ValorMin = LeerEscalado(l.Buscar(ptn + "_VLN"));
        elemento.ValorMax = LeerEscalado(l.Buscar(ptn + "_VLS"));
    }
}

void LeerFuncionOptativo(FuncionOptativo& f, LecturaSeccion& l) {
    const std::string tipo = LeerComun(f, l);
    if (tipo == "fContinua") {
        f.Tipo = FuncionContinua;
        LeerForma(f, l);
    } else if (tipo == "fEscalon") {
        f.Tipo = FuncionEscalon;
        LeerEscalones(f, l);
    } else {
        f.Tipo = FuncionNinguna;
    }
}

void LeerOptativos(FuncionValor& f, LecturaSeccion& l) {
    const std::string prefijo = PrefijoFuncion({}, f.Clave);
    l.Dimensionar(f.Optativos, ParteEntera(l.Buscar(prefijo + "_OPT_NUM")));
    f.OptativoSeleccionado = static_cast<int16_t>(ParteEntera(l.Buscar(prefijo + "_OPT_SEL")));
    for (int n = 1; n <= f.Optativos.Tamano(); ++n) {
        IndicadorOptativo& opcion = f.Optativos(n);
        opcion.Nombre = l.Buscar(prefijo + "_OPT" + std::to_string(n) + "_NOM").Texto();
        opcion.Funcion.Clave = ClaveOpcion(n, f.Clave);
        LeerFuncionOptativo(opcion.Funcion, l);
    }
}

} // namespace

void GuardarFuncionValor(FuncionValor& funcion, ArchivoSalida& salida, const std::string& indice) {
    EscritorFuncion e(salida, PrefijoFuncion(indice, funcion.Clave), kTemaFuncion);
    e.Ejecutar([&] { salida.Escribir(indice + "*****FUNCION VALOR " + funcion.Clave + "*****"); });
    EscribirComun(funcion, e);
    EscribirTipo(e, PalabraTipo(funcion.Tipo));
    switch (funcion.Tipo) {
    case FuncionContinua:
        EscribirForma(funcion, e);
        break;
    case FuncionEscalon:
        EscribirEscalones(funcion.Escalones, e);
        break;
    case FuncionOptativos:
        EscribirOptativos(funcion, e, indice);
        break;
    case FuncionPuntuacion:
        EscribirForma(funcion, e);
        EscribirPuntuaciones(funcion.Puntuaciones, e);
        break;
    default:
        break;
    }
}

void GuardarFuncionValor(FuncionValor& funcion, const std::string& ruta, bool anadir,
                         const std::string& indice) {
    ArchivoSalida salida;
    GuardarFuncionValor(funcion, salida, indice);
    ConfirmarBloque(salida, ruta, anadir, kTemaFuncion);
}

void GuardarFuncionOptativo(FuncionOptativo& funcion, ArchivoSalida& salida,
                            const std::string& indice) {
    EscritorFuncion e(salida, PrefijoFuncion(indice, funcion.Clave), kTemaOptativo);
    EscribirComun(funcion, e);
    const bool conocido = funcion.Tipo == FuncionNinguna || funcion.Tipo == FuncionContinua ||
                          funcion.Tipo == FuncionEscalon;
    EscribirTipo(e, conocido ? PalabraTipo(funcion.Tipo) : nullptr);
    if (funcion.Tipo == FuncionContinua) {
        EscribirForma(funcion, e);
    } else if (funcion.Tipo == FuncionEscalon) {
        EscribirEscalones(funcion.Escalones, e);
    }
}

void GuardarFuncionOptativo(FuncionOptativo& funcion, const std::string& ruta, bool anadir,
                            const std::string& indice) {
    ArchivoSalida salida;
    GuardarFuncionOptativo(funcion, salida, indice);
    ConfirmarBloque(salida, ruta, anadir, kTemaOptativo);
}

void LeerFuncionValor(FuncionValor& f, LecturaSeccion& l) {
    const std::string tipo = LeerComun(f, l);
    if (tipo == "fContinua") {
        f.Tipo = FuncionContinua;
        LeerForma(f, l);
    } else if (tipo == "fEscalon") {
        f.Tipo = FuncionEscalon;
        LeerEscalones(f, l);
    } else if (tipo == "fOptativos") {
        f.Tipo = FuncionOptativos;
        LeerOptativos(f, l);
    } else if (tipo == "fPuntuacion") {
        f.Tipo = FuncionPuntuacion;
        LeerForma(f, l);
        LeerPuntuaciones(f, l);
    } else {
        f.Tipo = FuncionNinguna;
    }
}

void CargarFuncionValor(FuncionValor& funcion, ArchivoEntrada& archivo, const std::string& indice) {
    LecturaSeccion lectura(archivo, indice);
    LeerFuncionValor(funcion, lectura);
}

void CargarFuncionValor(FuncionValor& funcion, const std::string& ruta, const std::string& indice) {
    ArchivoPropio archivo(ruta);
    CargarFuncionValor(funcion, *archivo, indice);
}

void CargarFuncionOptativo(FuncionOptativo& funcion, ArchivoEntrada& archivo,
                           const std::string& indice) {
    LecturaSeccion lectura(archivo, indice);
    LeerFuncionOptativo(funcion, lectura);
}

void CargarFuncionOptativo(FuncionOptativo& funcion, const std::string& ruta,
                           const std::string& indice) {
    ArchivoPropio archivo(ruta);
    CargarFuncionOptativo(funcion, *archivo, indice);
}

} // namespace vadro
