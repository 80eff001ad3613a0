#pragma once

#include "core/core/registros.h"

// Value functions of every kind for the file tests, with limits that already follow their
// steps, so that a save and a load give the same records back.

namespace vadro::pruebas {

inline FuncionValor Continua(const std::string& clave = "I1C1R1") {
    FuncionValor f;
    f.Clave = clave;
    f.Tipo = FuncionContinua;
    f.Unidades = "m";
    f.XMin = "<0";
    f.XMax = "=100";
    f.RMin = 0.0;
    f.RMax = 100.0;
    f.C = 50.0;
    f.K = 0.5;
    f.P = 2.0;
    return f;
}

template <typename Funcion> Funcion DeEscalones() {
    Funcion f;
    f.Tipo = FuncionEscalon;
    f.XMin = "<0";
    f.XMax = ">90";
    f.Escalones.Redimensionar(3);
    f.Escalones(1) = {"=0", "<30", 0.0};
    f.Escalones(2) = {"=30", "=60", 0.5};
    f.Escalones(3) = {">60", "=90", 1.0};
    return f;
}

inline FuncionValor DePuntuacion() {
    FuncionValor f = Continua();
    f.Tipo = FuncionPuntuacion;
    f.Puntuaciones.Redimensionar(2);
    f.Puntuaciones(1) = {PuntuacionBooleana, "¿Licencia?", {}, {}, 0.0, 2.0};
    f.Puntuaciones(2) = {PuntuacionNumerica, "Años", 1.0, 20.0, 0.5, 8.0};
    return f;
}

// The options' keys are set, as writing sets them.
inline FuncionValor DeOptativos(const std::string& clave) {
    FuncionValor f;
    f.Clave = clave;
    f.Tipo = FuncionOptativos;
    f.OptativoSeleccionado = 1;
    f.Optativos.Redimensionar(2);
    f.Optativos(1).Nombre = "Caudal";
    f.Optativos(1).Funcion.Tipo = FuncionContinua;
    f.Optativos(1).Funcion.K = 0.25;
    f.Optativos(2) = {"Presión", DeEscalones<FuncionOptativo>()};
    f.Optativos(1).Funcion.Clave = std::string("O1") + clave;
    f.Optativos(2).Funcion.Clave = std::string("O2") + clave;
    return f;
}

} // namespace vadro::pruebas
