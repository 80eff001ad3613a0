#include "core/core/codigo_pagina.h"
#include "core/core/configuracion.h"
#include "soporte/prueba_sesion.h"
#include "tabla_funciones.h"

#include <gtest/gtest.h>

namespace vadro {
namespace {

using namespace pruebas;

class Configuracion_ : public PruebaSesion {
protected:
    std::string ini = Ruta("Config.ini");

    // The settings read, then the settings file as it stands (its 8-bit text shown in UTF-8).
    std::string Estado() {
        const Configuracion& c = sesion().configuracion;
        return "start " + SiNo(c.MostrarInicio) + ", beta notice " + SiNo(c.MostrarAvisoBeta) +
               ", font " + std::to_string(c.TamanoFuente) + ", folders '" + c.DirProyectos + "' '" +
               c.DirModelos + "' '" + c.DirRequerimientos + "' '" + c.DirComponentes + "' '" +
               c.DirEtapas + "' '" + c.DirFuncionValor + "' | " + DesdeOchoBits(Contenido(ini));
    }
    // Works the steps of a data file: "Cargar" writes the settings file it gives, if any, and
    // loads the settings; the others keep a preference.
    void Pasos(const std::string& datos) {
        const auto si = [](const Argumentos& a) { return a.at(0) == "yes"; };
        Tabular(datos, {{"Cargar",
                         [this](const Argumentos& a) {
                             if (!a.empty()) {
                                 Escribir(ini, AOchoBits(a.at(0)));
                             }
                             CargarConfiguracion(sesion());
                             return Estado();
                         }},
                        {"GuardarMostrarInicio",
                         [&](const Argumentos& a) {
                             GuardarMostrarInicio(sesion(), si(a));
                             return Estado();
                         }},
                        {"GuardarMostrarAvisoBeta",
                         [&](const Argumentos& a) {
                             GuardarMostrarAvisoBeta(sesion(), si(a));
                             return Estado();
                         }},
                        {"GuardarTamanoFuente", [this](const Argumentos& a) {
                             GuardarTamanoFuente(sesion(), std::stoi(a.at(0)));
                             return Estado();
                         }}});
    }
};

// A first start writes the two display keys and the font size. Only "False" and "Falso" mean
// false (the comparison is exact), and what means true is written back. Directories are read
// in, and -1 is empty. A font size out of range is taken; one that is no number is a
// conversion error that stops the start.
TEST_F(Configuracion_, TheSettingsFileIsReadAndCompletedOnLoading) {
    Pasos("nucleo/configuracion.txt");
}

TEST_F(Configuracion_, PreferencesAreWrittenThroughAtOnce) {
    Pasos("nucleo/preferencias.txt");
}

} // namespace
} // namespace vadro
