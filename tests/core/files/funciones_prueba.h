#pragma once

#include "core/core/registros.h"

// Value functions of every kind for the file tests. Their limits already follow their steps,
// so that a save and a load give the same records back.

namespace vadro::pruebas {

inline Escalon Paso(ValorLibre inicio, ValorLibre fin, ValorLibre valor) {
    return {std::move(inicio), std::move(fin), std::move(valor)};
}

inline FuncionValor Continua() {
    FuncionValor f;
    f.Clave = "I1C1R1";
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

// Limits that already follow the steps, so that a load gives the same record back.
inline FuncionValor DeEscalones() {
    FuncionValor f;
    f.Clave = "I2C1R1";
    f.Tipo = FuncionEscalon;
    f.Unidades = "dB";
    f.XMin = "<0";
    f.XMax = ">90";
    f.RMin = 0.0;
    f.RMax = 90.0;
    f.Escalones.Redimensionar(3);
    f.Escalones(1) = Paso("=0", "<30", 0.0);
    f.Escalones(2) = Paso("=30", "=60", 0.5);
    f.Escalones(3) = Paso(">60", "=90", 1.0);
    return f;
}

inline FuncionValor DePuntuacion() {
    FuncionValor f;
    f.Clave = "I3C1R1";
    f.Tipo = FuncionPuntuacion;
    f.RMin = 0.0;
    f.RMax = 10.0;
    f.C = 5.0;
    f.K = 0.25;
    f.P = 1.0;
    f.Puntuaciones.Redimensionar(2);
    f.Puntuaciones(1) = {PuntuacionBooleana, "¿Tiene licencia?", {}, {}, 0.0, 2.0};
    f.Puntuaciones(2) = {PuntuacionNumerica, "Años", 1.0, 20.0, 0.5, 8.0};
    return f;
}

inline FuncionValor DeOptativos() {
    FuncionValor f;
    f.Clave = "I1S1C1R1";
    f.Tipo = FuncionOptativos;
    f.OptativoSeleccionado = 1;
    f.Optativos.Redimensionar(2);
    f.Optativos(1).Nombre = "Caudal";
    f.Optativos(1).Funcion.Tipo = FuncionContinua;
    f.Optativos(1).Funcion.Unidades = "l/s";
    f.Optativos(1).Funcion.RMin = 10.0;
    f.Optativos(1).Funcion.RMax = 0.0;
    f.Optativos(1).Funcion.C = 5.0;
    f.Optativos(1).Funcion.K = 0.5;
    f.Optativos(1).Funcion.P = 1.5;
    f.Optativos(2).Nombre = "Presión";
    FuncionOptativo& escalon = f.Optativos(2).Funcion;
    escalon.Tipo = FuncionEscalon;
    escalon.XMin = "=1";
    escalon.XMax = ">3";
    escalon.Escalones.Redimensionar(1);
    escalon.Escalones(1) = Paso(">1", "=3", 1.0);
    return f;
}

} // namespace vadro::pruebas
