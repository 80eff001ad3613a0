#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace vadro {

// The errors of a keyed tree, with the numbers and texts of the classic tree control.
enum ErrorArbol : int {
    ErrIndiceArbol = 35600,      // an index out of the collection, or a key scan that ran off it
    ErrNodoNoEncontrado = 35601, // a key that no node bears
    ErrClaveRepetida = 35602,    // a key already in use
    ErrCicloArbol = 35614,       // a node moved below itself
};

class Arbol;

// A node of a keyed tree. The tree owns it; the tree changes it, so that an observer hears of
// every change.
class NodoArbol {
public:
    NodoArbol(const NodoArbol&) = delete;
    NodoArbol& operator=(const NodoArbol&) = delete;

    const std::string& Key() const { return key_; }
    const std::string& Text() const { return text_; }
    // Empty, or the index of the node's row in the working table.
    const std::optional<int>& Tag() const { return tag_; }
    int Image() const { return image_; }
    int SelectedImage() const { return image_; }
    // The 1-based position in the tree's collection: the order of creation.
    int Index() const { return index_; }
    bool Expandido() const { return expandido_; }

    NodoArbol* Padre() const { return padre_; }
    int NumHijos() const { return static_cast<int>(hijos_.size()); }
    // The i-th child, from 1.
    NodoArbol* Hijo(int i) const;
    NodoArbol* PrimerHijo() const { return hijos_.empty() ? nullptr : hijos_.front(); }
    NodoArbol* UltimoHijo() const { return hijos_.empty() ? nullptr : hijos_.back(); }
    const std::vector<NodoArbol*>& Hijos() const { return hijos_; }

    // Siblings, among the top-level nodes for a node without parent.
    NodoArbol* Siguiente() const;
    NodoArbol* Anterior() const;
    NodoArbol* PrimerHermano() const;
    NodoArbol* UltimoHermano() const;
    // The position among the siblings, from 0 as a view counts rows.
    int Fila() const { return fila_; }

    // True if this node is `otro` or lies below it.
    bool DentroDe(const NodoArbol* otro) const;

private:
    friend class Arbol;
    NodoArbol(Arbol& arbol, std::string key, std::string text, int image);

    Arbol& arbol_;
    std::string key_;
    std::string text_;
    std::optional<int> tag_;
    int image_ = 0;
    int index_ = 0;
    int fila_ = 0;
    bool expandido_ = false;
    NodoArbol* padre_ = nullptr;
    std::vector<NodoArbol*> hijos_;
};

// What a view of the tree needs to follow it. Rows count from 0; a parent of none is the top
// level. Every structural change comes as a pair, before and after.
class ObservadorArbol {
public:
    virtual ~ObservadorArbol() = default;
    virtual void AntesDeAñadir(const NodoArbol* /*padre*/, int /*fila*/) {}
    virtual void DespuesDeAñadir(const NodoArbol* /*nodo*/) {}
    // The node and its whole subtree are about to go.
    virtual void AntesDeQuitar(const NodoArbol* /*nodo*/) {}
    virtual void DespuesDeQuitar(const NodoArbol* /*padre*/, int /*fila*/) {}
    // `fila` is the row in the new parent before the move, as a view's move expects it.
    virtual void AntesDeMover(const NodoArbol* /*nodo*/, const NodoArbol* /*nuevoPadre*/,
                              int /*fila*/) {}
    virtual void DespuesDeMover(const NodoArbol* /*nodo*/) {}
    virtual void AntesDeVaciar() {}
    virtual void DespuesDeVaciar() {}
    // Key, text, tag, image or expansion of a node changed.
    virtual void NodoCambiado(const NodoArbol* /*nodo*/) {}
    // Only the key changed, which a view need not show; by default a change like any other.
    virtual void ClaveCambiada(const NodoArbol* nodo) { NodoCambiado(nodo); }
    virtual void SeleccionCambiada(const NodoArbol* /*nodo*/) {}
    virtual void ResaltadoCambiado(const NodoArbol* /*nodo*/) {}
    // The node is to be scrolled into view.
    virtual void NodoMostrado(const NodoArbol* /*nodo*/) {}
};

// Where a new node goes, relative to another.
enum class Relacion {
    UltimoHijo, // last child of the relative; with no relative, last at the top level
    Anterior,   // just before the relative, as its sibling
    Siguiente,  // just after the relative, as its sibling
};

// A keyed, ordered tree: unique keys, ordered children, and a collection of all nodes in order
// of creation whose positions close up when nodes go. It also holds the selection and the drop
// highlight, as the tree control does.
class Arbol {
public:
    Arbol() = default;
    Arbol(const Arbol&) = delete;
    Arbol& operator=(const Arbol&) = delete;
    ~Arbol();

    // Adds a node; a key already in use is the duplicate-key error and changes nothing.
    NodoArbol* Añadir(NodoArbol* relativo, Relacion relacion, const std::string& key,
                      const std::string& text, int image);
    // Removes the node with its subtree; the later positions of the collection close up.
    void Quitar(NodoArbol* nodo);
    // Makes the node the last child of the new parent (none: last at the top level), with its
    // subtree. A node moved below itself is the cycle error.
    void Mover(NodoArbol* nodo, NodoArbol* nuevoPadre);
    void Vaciar();

    void CambiarClave(NodoArbol* nodo, const std::string& key);
    void CambiarTexto(NodoArbol* nodo, const std::string& text);
    void CambiarTag(NodoArbol* nodo, std::optional<int> tag);
    void CambiarImagen(NodoArbol* nodo, int image);
    void Expandir(NodoArbol* nodo);

    int Cuenta() const { return static_cast<int>(coleccion_.size()); }
    bool Vacio() const { return coleccion_.empty(); }
    // The node at a position of the collection; outside it is the tree's index error.
    NodoArbol* Nodo(int index) const;
    // The node with the key, or none.
    NodoArbol* BuscarClave(const std::string& key) const;
    // The node with the key; a key that no node bears ends in the tree's index error, as a
    // scan of the collection from position 1 would.
    NodoArbol* NodoPorClave(const std::string& key) const;
    const std::vector<NodoArbol*>& Raices() const { return raices_; }
    NodoArbol* PrimeraRaiz() const { return raices_.empty() ? nullptr : raices_.front(); }

    NodoArbol* Seleccionado() const { return seleccionado_; }
    void Seleccionar(NodoArbol* nodo);
    NodoArbol* ResaltadoDestino() const { return resaltado_; }
    void Resaltar(NodoArbol* nodo);
    // Expands the ancestors of the node and asks the views to scroll to it.
    void AsegurarVisible(NodoArbol* nodo);

    void Observar(ObservadorArbol* observador);
    void DejarDeObservar(ObservadorArbol* observador);

private:
    friend class NodoArbol;
    std::vector<NodoArbol*>& Hermanos(NodoArbol* padre);
    const std::vector<NodoArbol*>& Hermanos(const NodoArbol* padre) const;
    static void NumerarFilas(std::vector<NodoArbol*>& hermanos, std::size_t desde);
    void NumerarColeccion(std::size_t desde);
    template <typename Aviso> void Avisar(Aviso aviso);

    std::vector<std::unique_ptr<NodoArbol>> coleccion_;
    std::vector<NodoArbol*> raices_;
    std::unordered_map<std::string, NodoArbol*> porClave_;
    NodoArbol* seleccionado_ = nullptr;
    NodoArbol* resaltado_ = nullptr;
    std::vector<ObservadorArbol*> observadores_;
};

// The level of a tree node read from the first letter of its key; no node gives 0.
int NivelNodo(const NodoArbol* nodo);

// Gives every node of the tree its key prefix (the first `letras` characters of its key), a
// blank and its position, in two passes so that no key ever meets another on the way: first
// the prefix, " ORL " and the position, then the final form. Returns the node count.
int RenumerarClaves(Arbol& arbol, int letras);

// Copies a node with its subtree, depth first, as the last child of `padre` in `destino` (none:
// the top level). Only key, text, image and structure travel: the tag stays empty. Each copy
// asks `nuevaClave` for its key, and asks again while the key is already in use. Returns the
// copy of `nodo`.
NodoArbol* CopiarRama(const NodoArbol& nodo, Arbol& destino, NodoArbol* padre,
                      const std::function<std::string(const NodoArbol&)>& nuevaClave,
                      const std::function<int(const NodoArbol&)>& imagen);

} // namespace vadro
