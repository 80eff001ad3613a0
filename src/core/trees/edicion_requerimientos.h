#pragma once

#include "core/core/sesion.h"
#include "core/trees/arbol.h"
#include "core/trees/niveles.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vadro {

// One level selector of the requirements window: the list of names with free text
// (`cbbNodos`), the hidden parallel list of keys (`cbbNodosAux`), the spin counter
// (`updNodos`) and its label (`lblNumNodos`).
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

// What a key on the tree asks of the window beyond the logic.
enum class PeticionTecla { Ninguna, EditarEtiqueta };

// The logic of the requirements window: the working tree and its clipboard, the window's state
// and every operation on them. The working table `NodosEdicion` and `NodoEdicionActual` are in
// the session. Nothing here writes to the model but `LlenarRequerimientos`.
class EdicionRequerimientos : private ObservadorArbol {
public:
    explicit EdicionRequerimientos(Sesion& sesion);
    ~EdicionRequerimientos() override;
    EdicionRequerimientos(const EdicionRequerimientos&) = delete;
    EdicionRequerimientos& operator=(const EdicionRequerimientos&) = delete;

    Arbol tvwArbol;
    Arbol tvwCopia; // the clipboard, never shown

    int16_t ContadorClaves = 0;       // the last number used in a new key
    int16_t SiguienteNodoEdicion = 0; // the next free row of the working table
    NodoArbol* NodoActual = nullptr;
    int NivelArrastre = 0;
    NodoArbol* NodoDestino = nullptr;
    int NivelCopia = 0;
    bool Arrastrando = false;

    std::array<SelectorNivel, 4> Selectores;
    std::array<int, 4> UltimasPosiciones{};
    std::array<std::string, 4> TitulosMarcos; // captions of fmeNodos(1) to fmeNodos(4)
    std::string Descripcion;                  // the text shown in txtDescripcion
    bool FuncionHabilitada = false;           // cmdFuncion
    bool PegarHabilitado = false;             // mnuPegar, as the last copy left it

    // Selector i, from 1 to 4; another number is a subscript error.
    SelectorNivel& Selector(int i);
    const SelectorNivel& Selector(int i) const;

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
    void InsertarAntes();
    void InsertarDespues();
    void Eliminar();
    void Copiar();
    void Pegar();
    void CopiaNodo(const Arbol& arbolOrigen, const NodoArbol* nodo, Arbol& arbolDestino,
                   NodoArbol* padreDestino);
    void Reordenar();
    void MoverHijos(NodoArbol* nodo, NodoArbol* nuevoPadre, int nivel);
    void CrearNodoEdicion(NodoArbol* nodo);
    void ReiniciarPesos(NodoArbol* padre);

    // ---- selectors ----

    void ActualizarCombos(NodoArbol* nodo);
    void LlenarCombos(NodoArbol* nodo);
    // The spin counter of selector i: up adds a node of level i, down removes the node the
    // selector shows.
    void SubirContador(int i);
    void BajarContador(int i);
    void AbrirLista(int i);                                // the drop-down opens
    void ElegirEnLista(int i, int posicion);               // the user clicks an entry
    void EnfocarLista(int i);                              // the list gets the focus
    void EscribirEnLista(int i, const std::string& texto); // the user types in the list

    // ---- pointer, keys, labels and the other controls ----

    void PulsarRaton(NodoArbol* nodo);    // mouse down on the tree
    void MoverRaton(bool botonIzquierdo); // mouse move on the tree
    void ArrastrarSobre(NodoArbol* nodo); // the node under the pointer during a drag
    void Soltar();                        // the drop
    void SoltarRaton(NodoArbol* nodo);    // mouse up on the tree
    // The menu of a right-button release on the tree, after its selection.
    MenuArbol MenuContextual(NodoArbol* nodo);
    PeticionTecla Tecla(int codigo);
    void Caracter(int caracter);
    // The end of an in-place edit of the selected node's label; false when the new text is
    // refused and the label keeps the old one.
    bool Renombrar(const std::string& texto);
    void CambiarDescripcion(const std::string& texto);
    // The function button: gives the indicator's name for the function editor, or nothing
    // without a selected node.
    std::optional<std::string> ClicFuncion();

private:
    void InsertarJunto(Relacion lado);
    void AntesDeQuitar(const NodoArbol* nodo) override;
    void AntesDeVaciar() override;

    int16_t SubirContadorClaves();
    void FijarContadorClaves(int cuenta);
    std::string ClaveNueva(int nivel) const;
    NodoArbol* AñadirNodo(NodoArbol* relativo, Relacion relacion, int nivel,
                          const std::string& texto);
    void MostrarYSeleccionar(NodoArbol* nodo);
    void NuevoRegistro(NodoArbol* nodo);
    NodoEdicion& Registro(const NodoArbol* nodo);
    void PonerContador(int i, int valor);
    void ClicLista(int i);
    void FijarHabilitados(const NodoArbol* nodo);
    void FijarTitulos(const NodoArbol* nodo);
    void EscribirRequerimiento(Modelo& modelo, NodoRequerimiento& requerimiento, NodoArbol* nodo,
                               int r);
    void EscribirCriterio(NodoRequerimiento& requerimiento, NodoCriterio& criterio, NodoArbol* nodo,
                          const std::string& clave);
    bool EscribirCabecera(CabeceraNodo& destino, NodoArbol* nodo, const std::string& clave,
                          const NodoArbol* filaDePrueba, int cuentaDePrueba);

    Sesion& sesion_;
};

} // namespace vadro
