#pragma once

#include "core/core/sesion.h"

#include <string>

namespace vadro {

// Sections and keys of "Config.ini".
inline const std::string kSeccionDirectorios = "DIRECTORIOS";
inline const std::string kSeccionGeneral = "GENERAL";
inline const std::string kClaveProyectos = "PROYECTOS";
inline const std::string kClaveModelos = "MODELOS";
inline const std::string kClaveRequerimientos = "REQUERIMIENTOS";
inline const std::string kClaveComponentes = "COMPONENTES";
inline const std::string kClaveEtapas = "ETAPAS";
inline const std::string kClaveFuncionValor = "FUNCION_VALOR";
inline const std::string kClaveMostrarInicio = "MOSTRAR_INICIO";
inline const std::string kClaveMostrarAvisoBeta = "MOSTRAR_AVISO_BETA";
inline const std::string kClaveTamanoFuente = "TAMAÑO_FUENTE";

// The full name of "Config.ini" in the program directory.
std::string RutaConfiguracion(const Sesion& sesion);

// A boolean as the configuration stores it, and as it reads: only "False" and "Falso" are
// false.
std::string TextoBooleano(bool valor);
bool BooleanoConfiguracion(const std::string& texto);

// Reads the configuration into the session. A first start writes the two display keys and
// the font size back, so that a fresh file holds them. A font size that is no number is a
// type mismatch for the caller.
void CargarConfiguracion(Sesion& sesion);

// Writes one key of the configuration at once, as every change does.
void EscribirConfiguracion(const Sesion& sesion, const std::string& seccion,
                           const std::string& clave, const std::string& valor);

// The three values of the preferences, each written through.
void GuardarMostrarInicio(Sesion& sesion, bool mostrar);
void GuardarMostrarAvisoBeta(Sesion& sesion, bool mostrar);
void GuardarTamanoFuente(Sesion& sesion, int32_t tamano);

} // namespace vadro
