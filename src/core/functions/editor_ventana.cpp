// The editor as a window: opening, the kind list and the tabs, the record, the templates,
// accepting and closing.
#include "core/core/mensajes.h"
#include "core/core/sesion.h"
#include "core/files/plantillas.h"
#include "core/functions/editor_funcion.h"

namespace vadro {

const std::array<const char*, 3> kTiposLista{"Continua", "Escalón", "Puntuación"};

namespace {

ValorLibre NumeroOVacio(const std::string& texto) {
    if (const auto numero = LeerNumero(texto)) {
        return *numero;
    }
    return {};
}

// A cell of the grid as the record keeps it: the empty text for an empty cell, a value as its
// number.
ValorLibre ValorCelda(const std::string& texto, bool numerico) {
    if (texto.empty()) {
        return {};
    }
    if (numerico) {
        if (const auto numero = LeerNumero(texto)) {
            return *numero;
        }
    }
    return texto;
}

} // namespace

EditorFuncion::EditorFuncion()
    : Optativos({"Descripción del indicador optativo"}, false, true),
      Booleanos({"Id", "Enunciado / Descripción", "Puntuación para el NO", "Puntuación para el SI"},
                true, false),
      Numericos({"Id", "Enunciado / Descripción", "Mínimo", "Máximo", "Puntuación del Mínimo",
                 "Puntuación del Máximo"},
                true, false) {
    Optativos.Dimensionar(2);
    Filas.assign(1, FilaIntervalo{" -", " -", " -", " -"});
    lblLimitesC = LeyendaLimitesC(CInferior, CSuperior);
    lblLimitesK = kLeyendaLimitesK;
    lblLimitesP = kLeyendaLimitesP;
}

void EditorFuncion::Cargar(FuncionValor& registro) {
    Cargando = true;
    ModificadoInicial = SesionActual().modelo.Modificado;
    Aviso = true;
    registro_ = &registro;
    SesionActual().FuncionesEdicion.Redimensionar(2);
    LeerFuncion(registro);
    ActualizarLimites();
    Cargando = false;
}

void EditorFuncion::Cargar(FuncionOptativo& registro) {
    Cargando = true;
    ModificadoInicial = SesionActual().modelo.Modificado;
    Aviso = true;
    EdicionOptativo = true;
    registro_ = &registro;
    SeleccionarTipo(kTipoContinua); // a function without a kind starts as a continuous one
    LeerOptativo(registro);
    ActualizarLimites();
    Cargando = false;
}

std::string EditorFuncion::Titulo() const {
    return "Definición de la función de valor - [" + Nombre + "]";
}

void EditorFuncion::Activar() {
    Activando = true;
    if (auto* const* optativo = std::get_if<FuncionOptativo*>(&registro_)) {
        LeerOptativo(**optativo);
    }
    if (ErrorLimites(false)) {
        foco = PeticionFoco{Campo::Min};
    } else if (ErrorLimites(true)) {
        foco = PeticionFoco{Campo::Max};
    }
    Activando = false;
}

bool EditorFuncion::PuntuacionVacia() const {
    return Booleanos.Cuenta + Numericos.Cuenta < 1;
}

bool EditorFuncion::Aceptar() {
    // Optional indicators write nothing of the kind below them, so its checks don't apply.
    if (!chkOptativos && Tipo == kTipoPuntuacion && PuntuacionVacia()) {
        if (MsgBox("La función definida como función de puntuación, no tiene elementos "
                   "numéricos ni booleanos. Se guardará cómo función contínua.",
                   Botones::AceptarCancelar, Icono::Pregunta,
                   "VADRO: error") == Respuesta::Cancelar) {
            return false;
        }
        SeleccionarTipo(kTipoContinua);
    }
    if (!chkOptativos && ErrorMinMax()) {
        return false;
    }
    if (auto* const* optativo = std::get_if<FuncionOptativo*>(&registro_)) {
        EscribirOptativo(**optativo);
    } else if (auto* const* funcion = std::get_if<FuncionValor*>(&registro_)) {
        EscribirFuncion(**funcion);
    }
    SesionActual().modelo.Modificado = true;
    Aceptado = true;
    return true;
}

void EditorFuncion::Cancelar() {
    SesionActual().modelo.Modificado = ModificadoInicial;
}

bool EditorFuncion::PuedeCerrar() {
    if (Aceptado) {
        return true;
    }
    if (MsgBox("Se perderán los últimos valores introducidos. Está seguro que quiere cerrar la "
               "ventana?",
               Botones::SiNo, Icono::Pregunta, "VADRO") == Respuesta::No) {
        Aceptado = false;
        return false;
    }
    return true;
}

void EditorFuncion::LeerComun(const FuncionComun& funcion) {
    PonerCallado(Campo::Unidades, funcion.Unidades);
    PonerCallado(Campo::Min, funcion.XMin.Texto());
    PonerCallado(Campo::Max, funcion.XMax.Texto());
    PonerCallado(Campo::MinRef, funcion.RMin.Texto());
    PonerCallado(Campo::MaxRef, funcion.RMax.Texto());
    UltimoRefMin = Texto(Campo::MinRef);
    UltimoRefMax = Texto(Campo::MaxRef);
    if (funcion.Tipo == FuncionContinua || funcion.Tipo == FuncionPuntuacion) {
        PonerCallado(Campo::C, funcion.C.Texto());
        PonerCallado(Campo::K, funcion.K.Texto());
        PonerCallado(Campo::P, funcion.P.Texto());
        UltimoC = LecturaLaxa(Texto(Campo::C));
        UltimoK = LecturaLaxa(Texto(Campo::K));
        UltimoP = LecturaLaxa(Texto(Campo::P));
    }
    switch (funcion.Tipo) {
    case FuncionContinua:
        chkOptativos = false;
        SeleccionarTipo(kTipoContinua);
        break;
    case FuncionEscalon:
        chkOptativos = false;
        SeleccionarTipo(kTipoEscalon);
        LeerEscalones(funcion.Escalones);
        break;
    case FuncionPuntuacion:
        chkOptativos = false;
        SeleccionarTipo(kTipoPuntuacion);
        break;
    default:
        break;
    }
}

void EditorFuncion::LeerFuncion(const FuncionValor& funcion) {
    LeerComun(funcion);
    if (funcion.Tipo == FuncionPuntuacion) {
        LeerPuntuaciones(funcion.Puntuaciones);
    }
    if (funcion.Tipo == FuncionOptativos) {
        SeleccionarTipo(kTipoContinua);
        ClickOptativos(true);
        LeerOptativos(funcion);
    }
}

void EditorFuncion::LeerOptativo(const FuncionOptativo& funcion) {
    LeerComun(funcion);
}

void EditorFuncion::EscribirComun(FuncionComun& funcion) const {
    funcion.Unidades = Texto(Campo::Unidades);
    funcion.XMin = ValorCelda(Texto(Campo::Min), false);
    funcion.XMax = ValorCelda(Texto(Campo::Max), false);
    funcion.RMin = NumeroOVacio(Texto(Campo::MinRef));
    funcion.RMax = NumeroOVacio(Texto(Campo::MaxRef));
    if (Tipo == kTipoContinua || Tipo == kTipoPuntuacion) {
        funcion.Tipo = Tipo == kTipoContinua ? FuncionContinua : FuncionPuntuacion;
        funcion.C = NumeroOVacio(Texto(Campo::C));
        funcion.K = NumeroOVacio(Texto(Campo::K));
        funcion.P = NumeroOVacio(Texto(Campo::P));
    } else if (Tipo == kTipoEscalon) {
        funcion.Tipo = FuncionEscalon;
        funcion.Escalones.Redimensionar(1);
        if (Intervalos > 0) {
            funcion.Escalones.Redimensionar(Intervalos);
            for (int fila = 1; fila <= Intervalos; ++fila) {
                funcion.Escalones(fila) = {ValorCelda(Celda(fila, 1), false),
                                           ValorCelda(Celda(fila, 2), false),
                                           ValorCelda(Celda(fila, 3), true)};
            }
        }
    }
}

void EditorFuncion::EscribirFuncion(FuncionValor& funcion) const {
    if (chkOptativos) {
        EscribirOptativos(funcion);
        return;
    }
    EscribirComun(funcion);
    if (Tipo == kTipoPuntuacion) {
        EscribirPuntuaciones(funcion);
    }
}

void EditorFuncion::EscribirOptativo(FuncionOptativo& funcion) const {
    if (Tipo == kTipoContinua || Tipo == kTipoEscalon) {
        EscribirComun(funcion);
    }
}

bool EditorFuncion::CargarPlantilla() {
    FuncionValor leida;
    if (!ImportarFuncionValor(leida)) {
        return false;
    }
    if (EdicionOptativo && leida.Tipo != FuncionContinua && leida.Tipo != FuncionEscalon) {
        leida.Tipo = FuncionNinguna; // an optional indicator's function knows no other kind
    }
    LeerFuncion(leida);
    ActualizarLimites();
    SesionActual().modelo.Modificado = true;
    return true;
}

bool EditorFuncion::GuardarPlantilla() {
    FuncionValor funcion;
    EscribirFuncion(funcion);
    return ExportarFuncionValor(funcion);
}

void EditorFuncion::SeleccionarTipo(int indice) {
    if (Tipo != indice) {
        ClickTipo(indice);
    }
}

void EditorFuncion::ClickTipo(int indice) {
    Tipo = indice;
    paneles.Optativos = false;
    paneles.Escalon = indice == kTipoEscalon;
    paneles.Continua = indice != kTipoEscalon;
    paneles.Referencias = indice != kTipoEscalon;
    if (indice == kTipoPuntuacion) {
        paneles.FondoGrafica = Pestana != kPestanaPuntuacion;
        paneles.Tablas = Pestana == kPestanaPuntuacion;
        paneles.Error = false;
    } else {
        paneles.Tablas = false;
        Pestana = kPestanaFuncion;
        ClickPestana(kPestanaFuncion);
    }
}

void EditorFuncion::ClickPestana(int pestana) {
    Pestana = pestana;
    if (chkOptativos) {
        return; // the optional indicators' panel stands alone under either tab
    }
    if (pestana == kPestanaFuncion) {
        paneles.FondoGrafica = true;
        paneles.Error = false;
        paneles.Tablas = false;
    } else {
        paneles.FondoGrafica = false;
        paneles.Tablas = Tipo == kTipoPuntuacion;
        paneles.Error = Tipo != kTipoPuntuacion;
    }
}

void EditorFuncion::ClickOptativos(bool marcado) {
    chkOptativos = marcado;
    TipoHabilitado = !marcado;
    PlantillasHabilitadas = !marcado;
    paneles.FondoGrafica = !marcado;
    paneles.Tablas = false;
    paneles.Optativos = marcado;
    if (marcado) {
        Pestana = kPestanaFuncion;
    } else if (Tipo != kTipoNinguno) {
        ClickTipo(Tipo);
    }
}

} // namespace vadro
