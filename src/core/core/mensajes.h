#pragma once

#include <functional>
#include <string>

namespace vadro {

// The button sets, icons and answers of the message box: the only way the logic talks to the
// user.
enum class Botones { Aceptar, AceptarCancelar, SiNo, SiNoCancelar, ReintentarCancelar };
enum class Icono { Ninguno, Critico, Pregunta, Exclamacion, Informacion };
enum class Respuesta { Aceptar, Cancelar, Si, No, Reintentar };

struct Mensaje {
    std::string texto;
    Botones botones = Botones::Aceptar;
    Icono icono = Icono::Ninguno;
    std::string titulo;
};

using FuncionMensajes = std::function<Respuesta(const Mensaje&)>;

// Shows a message box through the function installed in the session and returns the answer.
Respuesta MsgBox(const std::string& texto, Botones botones, Icono icono, const std::string& titulo);

// Installs the function that shows message boxes and returns the one it replaces. Without
// one, a message goes to the standard error stream and takes the first button.
FuncionMensajes InstalarMensajes(FuncionMensajes funcion);

// The answer of the first button of a set, the one a box without a user gives.
Respuesta PrimerBoton(Botones botones);

} // namespace vadro
