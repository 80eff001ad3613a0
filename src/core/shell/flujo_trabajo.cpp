#include "core/shell/flujo_trabajo.h"

#include "core/core/comunes.h"
#include "core/core/mensajes.h"

#include <algorithm>
#include <array>
#include <utility>

namespace vadro {

namespace {

constexpr const char* kTituloFinal = "VADRO PROGRAMADOR: final de modelo";
constexpr const char* kQueHacerAhora =
    "Guarde el modelo y cierre la aplicación, cree un modelo nuevo o abra uno existente.";

constexpr std::array<const char*, kNumEtiquetas> kEtiquetas = {"Definición del sistema",
                                                               "Requerimientos",
                                                               "Componentes",
                                                               "Ciclo de vida",
                                                               "Resumen",
                                                               "Ponderación de elementos del árbol",
                                                               "Pesos",
                                                               "Control",
                                                               "Compilación"};

// The three design windows, in the order in which leaving "Ejes" accepts them.
const std::vector<Hija> kDiseno = {Hija::Componentes, Hija::Requerimientos, Hija::Etapas};

Transicion Hacia(Ajuste ajuste, std::vector<Hija> descargar, Hija cargar, Posicion destino) {
    Transicion t;
    t.ajuste = std::move(ajuste);
    t.descargar = std::move(descargar);
    t.cargar = {cargar};
    t.destino = destino;
    return t;
}

} // namespace

std::string NombrePosicion(Posicion posicion) {
    switch (posicion) {
    case Posicion::Ejes:
        return "Ejes";
    case Posicion::Resumen:
        return "Resumen";
    case Posicion::Ponderacion:
        return "Ponderacion";
    case Posicion::Informe:
        return "Informe";
    case Posicion::Ninguna:
        break;
    }
    return "";
}

std::string TextoPosicion(Posicion posicion) {
    return "Posición: " + MinusculasAscii(NombrePosicion(posicion));
}

const char* NombreHija(Hija hija) {
    switch (hija) {
    case Hija::Ejes:
        return "frmEjes";
    case Hija::Requerimientos:
        return "frmRequerimientos";
    case Hija::Componentes:
        return "frmComponentes";
    case Hija::Etapas:
        return "frmEtapas";
    case Hija::Resumen:
        return "frmResumen";
    case Hija::Ponderacion:
        return "frmPonderacion";
    case Hija::Informe:
        return "frmInforme";
    case Hija::Compilacion:
        break;
    }
    return "frmCompilacion";
}

const char* TextoEtiqueta(int indice) {
    return kEtiquetas.at(static_cast<std::size_t>(indice));
}

bool EsEncabezado(int indice) {
    return indice == EtqDefinicion || indice == EtqPonderacion || indice == EtqControl;
}

Comando ComandoDeBoton(std::string_view clave) {
    static constexpr std::array<std::pair<std::string_view, Comando>, 10> kBotones = {{
        {"Nuevo", Comando::Nuevo},
        {"Abrir", Comando::Abrir},
        {"Guardar", Comando::Guardar},
        {"Imprimir", Comando::Imprimir},
        {"Retroceder", Comando::Retroceder},
        {"Continuar", Comando::Continuar},
        {"Requerimientos", Comando::Requerimientos},
        {"Alternativas", Comando::Componentes},
        {"Tiempo", Comando::Etapas},
        {"Compilar", Comando::Compilar},
    }};
    const auto* it = std::find_if(kBotones.begin(), kBotones.end(),
                                  [clave](const auto& boton) { return boton.first == clave; });
    return it != kBotones.end() ? it->second : Comando::Ninguno;
}

Comando ComandoDeEtiqueta(int indice) {
    switch (indice) {
    case EtqRequerimientos:
        return Comando::Requerimientos;
    case EtqComponentes:
        return Comando::Componentes;
    case EtqCicloVida:
        return Comando::Etapas;
    case EtqResumen:
        return Comando::SaltarAResumen;
    case EtqPesos:
        return Comando::SaltarAPonderacion;
    case EtqCompilacion:
        return Comando::Compilar;
    default:
        return Comando::Ninguno;
    }
}

Ajuste AjusteDiseno() {
    Ajuste a;
    a.entradasDiseno = true;
    a.cmdRetroceder = a.botonRetroceder = false;
    a.cmdContinuar = a.botonContinuar = true;
    a.grupoDiseno = true;
    return a;
}

Ajuste AjusteRevision() {
    Ajuste a;
    a.entradasDiseno = false;
    a.cmdRetroceder = a.botonRetroceder = true;
    a.cmdContinuar = a.botonContinuar = true;
    a.grupoDiseno = false;
    return a;
}

Transicion TransicionContinuar(Posicion posicion) {
    switch (posicion) {
    case Posicion::Ejes: {
        Transicion t = Hacia(AjusteRevision(), {Hija::Ejes}, Hija::Resumen, Posicion::Resumen);
        t.aceptar = kDiseno;
        return t;
    }
    case Posicion::Resumen: {
        Transicion t;
        t.ajuste = AjusteRevision();
        t.ajuste.importar = false;
        t.preguntarPermisos = true;
        return t;
    }
    case Posicion::Ponderacion:
        return Hacia(AjusteRevision(), {Hija::Ponderacion}, Hija::Informe, Posicion::Informe);
    case Posicion::Informe: {
        Transicion t;
        t.finalDeLinea = true;
        return t;
    }
    case Posicion::Ninguna:
        break;
    }
    return {};
}

Transicion TransicionRetroceder(Posicion posicion, const Modelo& modelo) {
    switch (posicion) {
    case Posicion::Informe:
        // A model without requirements has nothing to weigh: the line skips the weights.
        return HayElementos(modelo.NumRequerimientos)
                   ? Hacia(AjusteRevision(), {Hija::Informe}, Hija::Ponderacion,
                           Posicion::Ponderacion)
                   : Hacia(AjusteRevision(), {Hija::Informe}, Hija::Resumen, Posicion::Resumen);
    case Posicion::Ponderacion: {
        Transicion t =
            Hacia(AjusteRevision(), {Hija::Ponderacion}, Hija::Resumen, Posicion::Resumen);
        t.ajuste.importar = true;
        return t;
    }
    case Posicion::Resumen:
        return Hacia(AjusteDiseno(), {Hija::Resumen}, Hija::Ejes, Posicion::Ejes);
    case Posicion::Ejes: {
        // Back to the empty desk: the design windows go unaccepted and the position stays.
        Transicion t;
        t.ajuste.entradasDiseno = false;
        t.ajuste.cmdRetroceder = t.ajuste.botonRetroceder = false;
        t.ajuste.cmdContinuar = t.ajuste.botonContinuar = false;
        t.ajuste.panel = false;
        t.descargar = kDiseno;
        t.descargar.push_back(Hija::Ejes);
        return t;
    }
    case Posicion::Ninguna:
        break;
    }
    return {};
}

Transicion TransicionTrasPermisos() {
    return Hacia({}, {Hija::Resumen}, Hija::Ponderacion, Posicion::Ponderacion);
}

Transicion TransicionSaltoResumen() {
    Ajuste a;
    a.entradasDiseno = false;
    a.botonRetroceder = a.botonContinuar = true;
    a.grupoDiseno = false;
    a.fondo = false;
    Transicion t = Hacia(a, {Hija::Ponderacion, Hija::Ejes}, Hija::Resumen, Posicion::Resumen);
    t.aceptar = kDiseno;
    return t;
}

Transicion TransicionSaltoPonderacion() {
    Transicion t =
        Hacia(AjusteRevision(), {Hija::Resumen}, Hija::Ponderacion, Posicion::Ponderacion);
    t.ajuste.importar = false;
    return t;
}

Transicion TransicionCompilarAlFinal() {
    Transicion t;
    t.ajuste = AjusteRevision();
    t.ajuste.cmdContinuar = t.ajuste.botonContinuar = false;
    return t;
}

EfectoHija EfectoAlCargar(Hija hija) {
    switch (hija) {
    case Hija::Ejes:
        return {true, -1, {}};
    case Hija::Requerimientos:
        return {false, EtqRequerimientos, {}};
    case Hija::Resumen:
        return {false, EtqResumen, {}};
    case Hija::Informe:
        return {false, -1, {}};
    case Hija::Compilacion:
        return {{}, -1, true};
    default:
        return {};
    }
}

EfectoHija EfectoAlDescargar(Hija hija) {
    switch (hija) {
    case Hija::Ejes:
        return {false, -1, {}};
    case Hija::Resumen:
        return {true, EtqResumen, {}};
    case Hija::Informe:
        return {true, -1, {}};
    default:
        return {};
    }
}

std::vector<Hija> VentanasARecargar(Posicion posicion, const std::vector<Hija>& abiertas) {
    const auto abierta = [&abiertas](Hija hija) {
        return std::find(abiertas.begin(), abiertas.end(), hija) != abiertas.end();
    };
    std::vector<Hija> recargar;
    const auto siAbierta = [&](Hija hija) {
        if (abierta(hija)) {
            recargar.push_back(hija);
        }
    };
    switch (posicion) {
    case Posicion::Ejes:
        siAbierta(Hija::Ejes);
        for (Hija diseno : kDiseno) {
            siAbierta(diseno);
        }
        break;
    case Posicion::Resumen:
        siAbierta(Hija::Resumen);
        break;
    case Posicion::Ponderacion:
        siAbierta(Hija::Ponderacion);
        break;
    default:
        break;
    }
    return recargar;
}

bool PreguntarCompilarAlFinal(const Modelo& modelo) {
    const std::string inicio = "Ya ha completado el diseño del modelo.\n\r";
    if (modelo.Compilado) {
        MsgBox(inicio + kQueHacerAhora, Botones::Aceptar, Icono::Informacion, kTituloFinal);
        return false;
    }
    if (MsgBox(inicio + "Desea compilarlo para detectar posibles errores?", Botones::SiNo,
               Icono::Pregunta, kTituloFinal) == Respuesta::Si) {
        return true;
    }
    MsgBox(kQueHacerAhora, Botones::Aceptar, Icono::Informacion, kTituloFinal);
    return false;
}

bool ModeloCompilable(const Modelo& modelo) {
    if (HayElementos(modelo.NumRequerimientos)) {
        return true;
    }
    MsgBox("Imposible compilar. El modelo está vacío.", Botones::Aceptar, Icono::Critico,
           "VADRO PROGRAMADOR: Compilar modelo");
    return false;
}

} // namespace vadro
