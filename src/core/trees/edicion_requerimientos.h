#pragma once

#include "core/core/sesion.h"
#include "core/trees/arbol.h"
#include "core/trees/edicion_arbol.h"
#include "core/trees/niveles.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace vadro {

// What the tree menu shows for the node it was opened on.
struct MenuArbol {
    bool InsertarVisible = false; // mnuInsertarAntes, mnuInsertarDespues
    bool Separador1Visible = false;
    bool EliminarVisible = false;
    std::string EliminarTitulo;
    bool AñadirRVisible = false;
    bool AñadirCVisible = false;
    bool AñadirSVisible = false;
    bool AñadirIVisible = false;
    bool CopiarVisible = false;
    bool RenombrarVisible = false;
    bool Separadores23Visible = false;
    bool PegarVisible = false;
    bool PegarHabilitado = false;
};

// The logic of the requirements window: the working tree of five levels under the model's root,
// with what only this tree has: the working table, weights, descriptions and the function
// button. The working table `NodosEdicion` and `NodoEdicionActual` are in the session. Nothing
// here writes to the model but `LlenarRequerimientos`, and no edit marks it as modified.
class EdicionRequerimientos : public EdicionArbol<4> {
public:
    explicit EdicionRequerimientos(Sesion& sesion);

    int16_t SiguienteNodoEdicion = 0; // the next free row of the working table
    std::array<int, 4> UltimasPosiciones{};
    std::string Descripcion;        // the text shown in txtDescripcion
    bool FuncionHabilitada = false; // cmdFuncion

    // ---- opening and writing back ----

    // The load of the window: the tree and the working table from the model, the counter at
    // the node count, the first node selected and shown in the selectors.
    void Abrir();
    void LlenarNodosEdicion(const Modelo& modelo, Arreglo<NodoEdicion>& tabla);
    void LlenarRequerimientos(Modelo& modelo);
    void LlamaLlenarRequerimientos();
    // Writes the tree to the model. True when the tree has a node, which is when the first
    // step label of the main window gets its normal look back.
    bool GuardarArbol();
    void EliminarSubcriteriosDelNodo(NodoArbol* nodo);

    // ---- operations ----

    void AñadirRequerimiento(const std::string& texto);
    void AñadirCriterio(const std::string& texto);
    void AñadirSubcriterio(const std::string& texto);
    void AñadirIndicador(const std::string& texto);
    using EdicionArbol::CopiaNodo;
    // The copy as the window names it, with the source tree it never reads.
    void CopiaNodo(const Arbol& arbolOrigen, const NodoArbol* nodo, Arbol& arbolDestino,
                   NodoArbol* padreDestino);
    void Reordenar() override;
    void MoverHijos(NodoArbol* nodo, NodoArbol* nuevoPadre, int nivel);
    void CrearNodoEdicion(NodoArbol* nodo);
    void ReiniciarPesos(NodoArbol* padre);

    // ---- selectors, menu, labels and the other controls ----

    void ActualizarCombos(NodoArbol* nodo) override;
    // The menu of a right-button release on the tree, after its selection.
    MenuArbol MenuContextual(NodoArbol* nodo);
    // As in any tree, but a node keyed "P" asks first and takes the text in lower case.
    bool Renombrar(const std::string& texto) override;
    void CambiarDescripcion(const std::string& texto);
    // The function button: gives the indicator's name for the function editor, or nothing
    // without a selected node.
    std::optional<std::string> ClicFuncion();

private:
    void AñadirNivel(int nivel, const std::string& texto) override;
    void NodoCreado(NodoArbol* nodo) override;
    bool AntesDeEliminar(NodoArbol* nodo) override;
    void MoverArrastrado(NodoArbol* destino) override;
    void RecordarPosicion(int i) override;

    void FijarContadorClaves(int cuenta);
    void NuevoRegistro(NodoArbol* nodo);
    NodoEdicion& Registro(const NodoArbol* nodo);
    void FijarHabilitados(const NodoArbol* nodo);
    void FijarTitulos(const NodoArbol* nodo);
    void EscribirRequerimiento(Modelo& modelo, NodoRequerimiento& requerimiento, NodoArbol* nodo,
                               int r);
    void EscribirCriterio(NodoRequerimiento& requerimiento, NodoCriterio& criterio, NodoArbol* nodo,
                          const std::string& clave);
    bool EscribirCabecera(CabeceraNodo& destino, NodoArbol* nodo, const std::string& clave,
                          const NodoArbol* filaDePrueba, int cuentaDePrueba);
};

} // namespace vadro
