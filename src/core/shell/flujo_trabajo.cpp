#include "core/shell/flujo_trabajo.h"

#include "core/core/comunes.h"

#include "core/core/mensajes.h"

namespace vadro {

namespace {

constexpr const char* kTituloFinal = "VADRO PROGRAMADOR: final de modelo";
constexpr const char* kQueHacerAhora =
    "Guarde el modelo y cierre la aplicación, cree un modelo nuevo o abra uno existente.";

} // namespace

std::string TextoPosicion(const std::string& posicion) {
    return "Posición: " + MinusculasAscii(posicion);
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
