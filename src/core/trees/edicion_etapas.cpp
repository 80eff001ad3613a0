#include "core/trees/edicion_etapas.h"

#include "core/core/codigo_pagina.h"
#include "core/core/mensajes.h"

#include <algorithm>

namespace vadro {

namespace {

// Blanks off both ends; only the blank counts, as the comparison of stage names wants it.
std::string SinBlancos(const std::string& texto) {
    const auto primero = texto.find_first_not_of(' ');
    if (primero == std::string::npos) {
        return "";
    }
    return texto.substr(primero, texto.find_last_not_of(' ') - primero + 1);
}

const char* const kCerrarRequerimientos =
    "Está seguro que quiere descartar los cambios realizados en el árbol de requerimientos?";
const char* const kCerrarComponentes =
    "Está seguro que quiere descartar los cambios realizados en el árbol de componentes?";

bool PuedeCerrar(bool aceptado, const char* texto, const char* titulo) {
    return aceptado || MsgBox(texto, Botones::SiNo, Icono::Pregunta, titulo) == Respuesta::Si;
}

} // namespace

bool EtapaRepetida(const std::vector<std::string>& etapas, const std::string& nombre) {
    const std::string buscado = EnMayusculas(SinBlancos(nombre));
    return std::any_of(etapas.begin(), etapas.end(), [&buscado](const std::string& etapa) {
        return EnMayusculas(SinBlancos(etapa)) == buscado;
    });
}

bool PuedeCerrarRequerimientos(bool aceptado) {
    return PuedeCerrar(aceptado, kCerrarRequerimientos, "VADRO PROGRAMADOR: cerrar requerimientos");
}

bool PuedeCerrarComponentes(bool aceptado) {
    return PuedeCerrar(aceptado, kCerrarComponentes, "VADRO PROGRAMADOR: cerrar componentes");
}

void EdicionEtapas::Abrir() {
    lstEtapas.clear();
    const int cuenta = sesion_.modelo.NumEtapas.Cuenta();
    for (int n = 1; n <= cuenta; ++n) {
        lstEtapas.push_back(sesion_.modelo.Etapas(n));
    }
    Posicion = -1;
    EliminarHabilitado = SubirHabilitado = BajarHabilitado = false;
}

void EdicionEtapas::Seleccionar(int posicion) {
    Posicion = posicion;
    FijarBotones();
}

// The buttons by the selected entry: removal with any entry, the arrows only with two
// entries or more and room to move.
void EdicionEtapas::FijarBotones() {
    const int cuenta = static_cast<int>(lstEtapas.size());
    EliminarHabilitado = Posicion >= 0;
    const bool flechas = Posicion >= 0 && cuenta >= 2;
    SubirHabilitado = flechas && Posicion >= 1;
    BajarHabilitado = flechas && Posicion != cuenta - 1;
}

void EdicionEtapas::AgregarEtapa(const std::string& nombre) {
    lstEtapas.push_back(nombre); // as typed: the comparison trims, the list does not
    FijarBotones();
    sesion_.modelo.Modificado = true;
}

void EdicionEtapas::Eliminar() {
    if (Posicion < 0 || Posicion >= static_cast<int>(lstEtapas.size())) {
        return;
    }
    lstEtapas.erase(lstEtapas.begin() + Posicion);
    Posicion = -1;
    EliminarHabilitado = SubirHabilitado = BajarHabilitado = false;
    sesion_.modelo.Modificado = true;
}

void EdicionEtapas::Subir() {
    Mover(-1);
}

void EdicionEtapas::Bajar() {
    Mover(1);
}

void EdicionEtapas::Mover(int desplazamiento) {
    const int destino = Posicion + desplazamiento;
    if (Posicion < 0 || destino < 0 || destino >= static_cast<int>(lstEtapas.size())) {
        return;
    }
    std::swap(lstEtapas[static_cast<std::size_t>(Posicion)],
              lstEtapas[static_cast<std::size_t>(destino)]);
    Seleccionar(destino);
    sesion_.modelo.Modificado = true;
}

void EdicionEtapas::LlamaLlenarEtapas() {
    Modelo& modelo = sesion_.modelo;
    if (lstEtapas.empty()) {
        modelo.NumEtapas = 0;
        modelo.Etapas.Redimensionar(1);
        return;
    }
    const int cuenta = static_cast<int>(lstEtapas.size());
    modelo.NumEtapas = cuenta;
    modelo.Etapas.Redimensionar(cuenta);
    for (int n = 1; n <= cuenta; ++n) {
        modelo.Etapas(n) = lstEtapas[static_cast<std::size_t>(n - 1)];
    }
}

bool EdicionEtapas::AceptarNuevaEtapa(const std::string& nombre) {
    if (nombre.empty()) {
        return false;
    }
    if (EtapaRepetida(lstEtapas, nombre)) {
        MsgBox("No es posible repetir etapas del ciclo de vida.", Botones::Aceptar, Icono::Critico,
               "VADRO PROGRAMADOR: error");
        return false;
    }
    AgregarEtapa(nombre);
    return true;
}

} // namespace vadro
