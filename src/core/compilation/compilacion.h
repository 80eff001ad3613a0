#pragma once

#include "core/compilation/informe_errores.h"
#include "core/core/mensajes.h"
#include "core/core/registros.h"
#include "core/core/sesion.h"

#include <functional>

namespace vadro {

// Stores what stands in the open design windows (the requirements tree, the components tree)
// into the model before it is checked. The window layer gives it; the core knows no window.
using GuardarVentanasAbiertas = std::function<void(Modelo& modelo)>;

// Runs the nine checks over the model, in their order, into a fresh report, and puts the
// totals at its top. The model is not changed.
InformeErrores ComprobarModelo(const Modelo& modelo);

// The compilation: first the open design windows store themselves into the model, when the
// window layer says how; then the checks run over what the model then holds.
InformeErrores Compilar(Modelo& modelo, const GuardarVentanasAbiertas& guardarVentanas = {});

// How a compilation ended. A model with warnings only is correct and may be written as a
// compiled file; one with any error may not.
enum class DesenlaceCompilacion { Incorrecta, CorrectaConAvisos, Correcta };

DesenlaceCompilacion Desenlace(const InformeErrores& informe);
bool PermiteCompilado(DesenlaceCompilacion desenlace);

// The message that follows the report: on errors an information box that says the compiled
// file cannot be made, otherwise the question whether to make it.
Mensaje MensajeDesenlace(DesenlaceCompilacion desenlace);

// Shows that message; true only when the model is correct and the user wants the compiled
// file.
bool PreguntarCrearCompilado(const InformeErrores& informe);

// What follows the shown report: that message and, when the user wants it, the writing of the
// compiled file with its announcement. A failure of the writing is told in a plain box as its
// number, ": " and its description; a cancelled dialog says nothing. True when the compiled
// file was written.
bool ConcluirCompilacion(Sesion& sesion, const InformeErrores& informe);

// The plain box of a failure that ends the compilation's writing.
Mensaje MensajeFalloCompilado(int numero, const std::string& descripcion);

} // namespace vadro
