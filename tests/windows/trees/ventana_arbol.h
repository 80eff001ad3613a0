#pragma once

#include "../shell/ventana_principal.h"
#include "mensajes_arbol.h"

#include "windows/trees/selector_nivel.h"
#include "windows/trees/vista_arbol.h"

#include <QMenu>

#include <string>

namespace vadro::pruebas {

// The rows of an item model under a parent, each as its text, children in brackets, siblings
// apart by commas.
std::string Filas(const QAbstractItemModel& modelo, const QModelIndex& padre = {});

// A main window with a model, and the means to work a tree window as a user does: point at a
// node by its key, click, right-click, drag, press keys, work the popup menu and the selectors.
class VentanaArbol : public VentanaPrincipal {
public:
    // Typing into a widget, any character of the text as its own key.
    static void Teclas(QWidget* destino, const QString& texto);

protected:
    // Opens the design window of that step label and returns it.
    QWidget* AbrirPaso(int etiqueta, const char* nombre);

    // The tree of a window and the centre of the row of the node with that key.
    static VistaArbol* Arbol(QWidget* ventana);
    QPoint Centro(QWidget* ventana, const std::string& clave) const;
    // A point of the tree below every row.
    static QPoint Vacio(QWidget* ventana);
    void Clic(QWidget* ventana, const std::string& clave);
    // A right click on the node (empty: below the rows); the menu of that name comes up.
    QMenu* MenuSobre(QWidget* ventana, const std::string& clave, const char* menu);
    // The entries of a shown menu: visible ones, "~" before a disabled one.
    static std::string Entradas(const QMenu& menu);
    static void Elegir(QMenu& menu, const char* entrada);
    // A drag with the left button from one node to another, and the drop.
    void Arrastrar(QWidget* ventana, const std::string& desde, const std::string& hasta);
    // F2, the text typed into the label editor, and Return.
    void Renombrar(QWidget* ventana, const std::string& texto);
    // The tree as the view shows it: texts, children in brackets, siblings apart by commas.
    static std::string Mostrado(QWidget* ventana);

    static MarcoNivel* Marco(QWidget* ventana, int i);
    static void Flecha(QWidget* ventana, int i, bool arriba);
};

} // namespace vadro::pruebas
