#pragma once

#include "core/core/sesion.h"
#include "core/trees/arbol.h"
#include "core/trees/edicion_arbol.h"

#include <string>

namespace vadro {

// The two levels of the components tree, read from the first two letters of a key.
enum NivelComponentes : int {
    NivelComponente = 1,    // "Co"
    NivelSubcomponente = 2, // "Sc"
};

// "Co" gives 1, "Sc" gives 2, anything else 0.
int NivelComponentesDe(const NodoArbol* nodo);
// The key prefix of a level: "Co" or "Sc"; empty for another level.
std::string PrefijoComponentes(int nivel);
// "Componente" or "Subcomponente".
std::string TextoComponentes(int nivel);
// The image of a level's nodes in the image list the two trees share.
int ImagenComponentes(int nivel);
// Whether a clipboard or a dragged node of the level may go under `destino`: only one level
// below it, and with no target only a component.
bool DestinoComponentesPermitido(int nivel, const NodoArbol* destino);

// What the components menu shows for the node it was opened on.
struct MenuArbolComponentes {
    bool InsertarVisible = false; // mnuInsertarAntesC, mnuInsertarDespuesC
    bool EliminarVisible = false;
    std::string EliminarTitulo;
    bool AñadirCompVisible = false;
    bool AñadirScVisible = false;
    bool CopiarVisible = false;
    bool RenombrarVisible = false;
    bool PegarVisible = false;
    bool PegarHabilitado = false;
};

// The logic of the components window: a tree of two levels without root, working table,
// weights or descriptions, and with the same selectors, clipboard and drag as the
// requirements tree. Every edit marks the model as modified; only `LlenarComponentes` writes
// to it.
class EdicionComponentes : public EdicionArbol<2> {
public:
    explicit EdicionComponentes(Sesion& sesion);

    // The load: the tree from the model, the counter at the node count, the first node
    // selected and shown in the selectors.
    void Abrir();
    void LlenarComponentes(Modelo& modelo);
    void LlamaLlenarComponentes();
    // Writes the tree to the model; true when the tree has a node.
    bool GuardarArbol();

    void AñadirComponente(const std::string& texto);
    void AñadirSubcomponente(const std::string& texto);
    void Reordenar() override;
    void ActualizarCombos(NodoArbol* nodo) override;
    MenuArbolComponentes MenuContextual(NodoArbol* nodo);

private:
    void AñadirNivel(int nivel, const std::string& texto) override;
};

} // namespace vadro
