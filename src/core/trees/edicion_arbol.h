#pragma once

#include "core/core/sesion.h"
#include "core/trees/arbol.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace vadro {

class ErrorEjecucion;

// One level selector of a design tree: the list of names with free text (`cbbNodos`), the
// hidden parallel list of keys (`cbbNodosAux`), the spin counter (`updNodos`) and its label
// (`lblNumNodos`).
struct SelectorNivel {
    std::vector<std::string> Nombres;
    std::vector<std::string> Claves;
    int Seleccion = 0;      // chosen entry of the names, from 1; 0 for none
    int SeleccionClave = 0; // chosen entry of the keys
    std::string Texto;      // the text shown in the list
    bool Bloqueada = true;  // locked against typing
    bool ListaHabilitada = false;
    int Contador = 0;
    bool ContadorHabilitado = false;
    std::string Etiqueta = "0";
    std::string Marca; // "Usuario" once the user opened the list, "Auto" once a click acted

    // The text of the key list: the chosen key, or empty.
    std::string ClaveElegida() const;
};

// What a key on the tree asks of the window beyond the logic.
enum class PeticionTecla { Ninguna, EditarEtiqueta };

// The counters of the design windows are 16-bit: passing their bound is an overflow, and the
// counter keeps its old value.
int16_t Sumar16(int16_t valor, int suma);

// What sets one design tree apart in the editing both trees share: how its keys name a level,
// what a new or copied node looks like, where a node may go, what a failed copy says, and
// whether its edits count as changes of the model.
struct ReglasArbol {
    // The characters at the head of a key that name its level.
    int letrasClave;
    // The level of a node; 0 for none or for a key of no level.
    int (*nivel)(const NodoArbol* nodo);
    // The head of a new node's key, its image, and the text of a default node.
    std::string (*prefijo)(int nivel);
    int (*imagen)(int nivel);
    std::string (*textoNuevo)(int nivel, const Modelo& modelo);
    // The image of a copied node.
    int (*imagenCopia)(const NodoArbol& origen);
    // Whether a pasted or dropped node of the level may go under `destino`.
    bool (*destinoPermitido)(int nivel, const NodoArbol* destino);
    // The message of a failed copy.
    std::string (*falloCopia)(const ErrorEjecucion& error);
    // Whether every edit sets the model's `Modificado`.
    bool marcaModificado;
};

// The logic both design trees share: the working tree and its clipboard, the node in hand,
// the drag, and `Niveles` level selectors, one a level. What differs comes from the rules and
// from the hooks each tree overrides.
template <std::size_t Niveles> class EdicionArbol : private ObservadorArbol {
public:
    EdicionArbol(Sesion& sesion, const ReglasArbol& reglas);
    ~EdicionArbol() override;
    EdicionArbol(const EdicionArbol&) = delete;
    EdicionArbol& operator=(const EdicionArbol&) = delete;

    Arbol tvwArbol;
    Arbol tvwCopia; // the clipboard, never shown

    int16_t ContadorClaves = 0; // the last number used in a new key
    NodoArbol* NodoActual = nullptr;
    int NivelArrastre = 0;
    NodoArbol* NodoDestino = nullptr;
    int NivelCopia = 0;
    bool Arrastrando = false;
    bool PegarHabilitado = false; // the paste entry, as the last menu left it

    std::array<SelectorNivel, Niveles> Selectores;
    std::array<std::string, Niveles> TitulosMarcos; // captions of fmeNodos(1) onwards

    // Selector i, from 1; another number is a subscript error.
    SelectorNivel& Selector(int i);
    const SelectorNivel& Selector(int i) const;

    // ---- operations ----

    void InsertarAntes();
    void InsertarDespues();
    void Eliminar();
    void Copiar();
    void Pegar();
    // Copies a node with its subtree under `padreDestino`, each copy with a new key; a failure
    // is told in a message, not passed on.
    void CopiaNodo(const NodoArbol* nodo, Arbol& arbolDestino, NodoArbol* padreDestino);
    // Gives every node its final key and the counter the node count.
    virtual void Reordenar() = 0;

    // ---- selectors ----

    // Shows the node in the selectors, with the enabled states and captions of its level.
    virtual void ActualizarCombos(NodoArbol* nodo) = 0;
    // Fills the selectors from the node up through its ancestors, each with its siblings.
    void LlenarCombos(NodoArbol* nodo);
    // The spin counter of selector i: up adds a node of level i, down removes the node the
    // selector shows.
    void SubirContador(int i);
    void BajarContador(int i);
    void AbrirLista(int i);                                // the drop-down opens
    void ElegirEnLista(int i, int posicion);               // the user clicks an entry
    void EnfocarLista(int i);                              // the list gets the focus
    void EscribirEnLista(int i, const std::string& texto); // the user types in the list

    // ---- pointer, keys and labels ----

    void PulsarRaton(NodoArbol* nodo);    // mouse down on the tree
    void MoverRaton(bool botonIzquierdo); // mouse move on the tree
    void ArrastrarSobre(NodoArbol* nodo); // the node under the pointer during a drag
    void Soltar();                        // the drop
    void SoltarRaton(NodoArbol* nodo);    // mouse up on the tree
    PeticionTecla Tecla(int codigo);
    void Caracter(int caracter);
    // The end of an in-place edit of the selected node's label; false when the new text is
    // refused and the label keeps the old one.
    virtual bool Renombrar(const std::string& texto);

protected:
    // ---- what each tree adds ----

    // A node of the level with the text, as the up arrow of its selector asks.
    virtual void AñadirNivel(int nivel, const std::string& texto) = 0;
    // A node the user added, before it is shown.
    virtual void NodoCreado(NodoArbol* /*nodo*/) {}
    // The node is about to be removed; false keeps it and ends the removal.
    virtual bool AntesDeEliminar(NodoArbol* /*nodo*/) { return true; }
    // A drop on an allowed target: the node in hand becomes its last child.
    virtual void MoverArrastrado(NodoArbol* destino);
    // The selector's position as the list last had it; only the requirements tree keeps it.
    virtual void RecordarPosicion(int /*i*/) {}

    // ---- shared steps ----

    // The state a load starts from: nothing in hand, no drag, an empty clipboard, fresh
    // selectors.
    void Reiniciar();
    // Every selector empty, locked and at 0, before a node fills them.
    void VaciarSelectores();
    void Modificar();
    void SubirContadorClaves();
    NodoArbol* AñadirNodo(NodoArbol* relativo, Relacion relacion, int nivel,
                          const std::string& texto);
    // A new last child of `padre` (none: the top level), set up by the tree, shown and selected.
    NodoArbol* AñadirHijo(NodoArbol* padre, int nivel, const std::string& texto);
    // Whether the clipboard may go under the node in hand; the paste entry keeps the answer.
    bool PermitirPegar();
    int Nivel(const NodoArbol* nodo) const { return reglas_.nivel(nodo); }

    Sesion& sesion_;

private:
    // A removed node can no longer be the node in hand nor the drop target.
    void AntesDeQuitar(const NodoArbol* nodo) override;
    void AntesDeVaciar() override;
    void InsertarJunto(Relacion lado);
    void MostrarYSeleccionar(NodoArbol* nodo);
    void PonerContador(int i, int valor);
    void ClicLista(int i);

    const ReglasArbol& reglas_;
};

extern template class EdicionArbol<2>;
extern template class EdicionArbol<4>;

} // namespace vadro
