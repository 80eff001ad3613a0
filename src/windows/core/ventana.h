#pragma once

namespace vadro {

// What every window of the program offers: the flag that it is loaded, and the routine that
// applies the font size of the preferences to it (and may redo its layout).
class Ventana {
public:
    virtual ~Ventana() = default;
    virtual void AjustarControles() = 0;

    bool Cargado = false;
};

// Calls AjustarControles on every open window, as a change of the font size requires.
void AjustarVentanasAbiertas();

} // namespace vadro
