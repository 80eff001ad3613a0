#include "windows/reports/impresion.h"

#include "core/core/mensajes.h"

namespace vadro {

void ImprimirInforme(frmInforme& /*informe*/) {
    MsgBox("La impresión del informe todavía no está disponible: no se ha impreso nada.",
           Botones::Aceptar, Icono::Informacion, "VADRO PROGRAMADOR: imprimir modelo");
}

} // namespace vadro
