#pragma once

#include "soporte/guion_modales.h"
#include "soporte/prueba_sesion.h"
#include "windows/shell/etiqueta_paso.h"
#include "windows/shell/frmPrincipal.h"

#include <QColor>
#include <QPushButton>

#include <string>
#include <vector>

namespace vadro::pruebas {

// A shown main window in a fresh session, with strict scripts of messages and modal windows,
// and the means to work it as a user does: its buttons, its toolbar, its step labels.
class VentanaPrincipal : public PruebaSesion {
protected:
    VentanaPrincipal();

    // A click on the toolbar button of that key.
    void PulsarBoton(const char* clave);
    // A click with the mouse on a step label.
    void PulsarEtiqueta(int indice);
    // A new model from the toolbar, accepting its properties.
    void NuevoModelo();
    // Continuar at "Resumen", accepting the question of the users' permission.
    void ContinuarAceptandoPermisos();
    // One requirement in the model, so that the weights have a tree to show; and none again.
    void UnRequerimiento();
    void SinRequerimientos();

    // The loaded child windows, by name, in the order they were loaded.
    std::vector<std::string> Hijas() const;
    // The loaded child window of that name; fails the test when there is none.
    QWidget* Hija(const char* nombre) const;
    std::string Estado() const;
    // Where the line stands, what the status bar says and the loaded child windows, as
    // "Resumen | Posición: resumen | frmResumen".
    std::string Situacion() const;
    bool Visible(int boton) const;
    bool Habilitado(int boton) const;

    // The two settings of the controls.
    void EsperarAjusteA() const { EsperarAjuste(true); }
    void EsperarAjusteB() const { EsperarAjuste(false); }
    void EsperarAjuste(bool a) const;
    // A compilation that finds no error, its question of the compiled file answered No.
    void EsperarCompilacionCorrecta();

    // The look of a step label.
    QColor Color(int indice) const;
    bool Negrita(int indice) const;
    void EsperarPendiente(int indice) const;
    void EsperarNormal(int indice) const;

    frmPrincipal principal;
    GuionModales modales;
    QColor rojo{255, 0, 0};
};

} // namespace vadro::pruebas
