#pragma once

#include "core/core/sesion.h"

#include <string>
#include <vector>

namespace vadro {

// The logic of the stages window: a working list of names, its selection and the state of
// its four buttons. Only `LlamaLlenarEtapas` writes to the model; every edit marks it as
// modified.
class EdicionEtapas {
public:
    explicit EdicionEtapas(Sesion& sesion) : sesion_(sesion) {}

    std::vector<std::string> lstEtapas;
    int Posicion = -1; // the selected entry, from 0; -1 for none
    bool EliminarHabilitado = false;
    bool SubirHabilitado = false;
    bool BajarHabilitado = false;

    // The load: the list from the model's stages, nothing selected.
    void Abrir();
    // The user selects the entry at the position, from 0.
    void Seleccionar(int posicion);
    void AgregarEtapa(const std::string& nombre);
    void Eliminar();
    void Subir();
    void Bajar();
    void LlamaLlenarEtapas();

    // The acceptance of the new-stage dialog: false when it must stay open (an empty name,
    // or a name already in the list, which is told).
    bool AceptarNuevaEtapa(const std::string& nombre);

private:
    void Mover(int desplazamiento);
    void FijarBotones();

    Sesion& sesion_;
};

// Whether a name is in the list already, both sides trimmed and in upper case.
bool EtapaRepetida(const std::vector<std::string>& etapas, const std::string& nombre);

// The closing rule of a design window: true when it may close. One that was not accepted
// asks first, with the question of its tree.
bool PuedeCerrarRequerimientos(bool aceptado);
bool PuedeCerrarComponentes(bool aceptado);

} // namespace vadro
