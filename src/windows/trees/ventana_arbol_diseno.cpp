#include "windows/trees/ventana_arbol_diseno.h"

#include "core/core/sesion.h"
#include "core/trees/edicion_componentes.h"
#include "core/trees/edicion_requerimientos.h"
#include "windows/core/conectar.h"
#include "windows/core/texto.h"
#include "windows/trees/modelo_arbol.h"
#include "windows/trees/selector_nivel.h"
#include "windows/trees/vista_arbol.h"

#include <QMenu>

namespace vadro {

template <class TEdicion>
VentanaArbolDiseno<TEdicion>::VentanaArbolDiseno(Hija hija, const char* titulo, QWidget* padre,
                                                 const char* menu, const char* sufijo)
    : VentanaDiseno(hija, titulo, padre), ed_(std::make_unique<TEdicion>(SesionActual())),
      modelo_(std::make_unique<ModeloArbol>(ed_->tvwArbol)), menu_(menu), sufijo_(sufijo) {}

template <class TEdicion> VentanaArbolDiseno<TEdicion>::~VentanaArbolDiseno() {
    if (tvwArbol != nullptr) {
        tvwArbol->setModel(nullptr);
    }
}

template <class TEdicion> void VentanaArbolDiseno<TEdicion>::CrearArbol(QWidget* contenido) {
    tvwArbol = new VistaArbol(contenido);
    tvwArbol->setObjectName(Q("tvwArbol"));
    tvwArbol->setModel(modelo_.get());
}

template <class TEdicion> void VentanaArbolDiseno<TEdicion>::ConectarArbol() {
    modelo_->AlRenombrar = [this](NodoArbol* nodo, const std::string& texto) {
        bool hecho = false;
        Operar([&] {
            if (ed_->tvwArbol.Seleccionado() != nodo) {
                ed_->tvwArbol.Seleccionar(nodo);
            }
            hecho = ed_->Renombrar(texto);
        });
        EnfocarArbol();
        return hecho;
    };
    Conectar(tvwArbol, &VistaArbol::NodoActual, this,
             [this](NodoArbol* nodo) { ed_->tvwArbol.Seleccionar(nodo); });
    Conectar(tvwArbol, &VistaArbol::Pulsado, this,
             [this](NodoArbol* nodo) { ed_->PulsarRaton(nodo); });
    Conectar(tvwArbol, &VistaArbol::Arrastrado, this, [this](NodoArbol* nodo) {
        Operar([&] {
            ed_->MoverRaton(true);
            ed_->ArrastrarSobre(nodo);
        });
    });
    Conectar(tvwArbol, &VistaArbol::Soltado, this, [this] { Operar([this] { ed_->Soltar(); }); });
    Conectar(tvwArbol, &VistaArbol::Liberado, this,
             [this](NodoArbol* nodo, Qt::MouseButton boton, const QPoint& global) {
                 if (boton == Qt::RightButton) {
                     MostrarMenu(nodo, global);
                 } else {
                     Operar([&] { ed_->SoltarRaton(nodo); });
                 }
             });
    Conectar(tvwArbol, &VistaArbol::Tecla, this, [this](int codigo) {
        PeticionTecla peticion = PeticionTecla::Ninguna;
        Operar([&] { peticion = ed_->Tecla(codigo); });
        if (peticion == PeticionTecla::EditarEtiqueta) {
            EditarEtiqueta();
        }
    });
    Conectar(tvwArbol, &VistaArbol::Caracter, this,
             [this](int caracter) { Operar([&] { ed_->Caracter(caracter); }); });
}

template <class TEdicion>
void VentanaArbolDiseno<TEdicion>::ConectarSelector(MarcoNivel* marco, int i) {
    Conectar(marco, &MarcoNivel::Subir, this, [this, i] {
        Operar([&] { ed_->SubirContador(i); });
        EnfocarArbol();
    });
    Conectar(marco, &MarcoNivel::Bajar, this, [this, i] {
        Operar([&] { ed_->BajarContador(i); });
        EnfocarArbol();
    });
    Conectar(marco, &MarcoNivel::AbreLista, this, [this, i] { ed_->AbrirLista(i); });
    Conectar(marco, &MarcoNivel::Elegida, this, [this, i](int posicion) {
        Operar([&] { ed_->ElegirEnLista(i, posicion); });
        EnfocarArbol();
    });
    // Typing renames the node the list shows; the list keeps the text as it is typed.
    Conectar(marco, &MarcoNivel::Escrito, this, [this, i](const QString& texto) {
        ed_->EscribirEnLista(i, ACadena(texto));
        modelo_->Sincronizar(*tvwArbol);
    });
    Conectar(marco, &MarcoNivel::Retorno, this, [this] { EnfocarArbol(); });
}

template <class TEdicion>
void VentanaArbolDiseno<TEdicion>::MostrarSelector(MarcoNivel* marco, int i) {
    marco->Mostrar(ed_->Selector(i), ed_->TitulosMarcos[static_cast<std::size_t>(i - 1)]);
}

template <class TEdicion>
void VentanaArbolDiseno<TEdicion>::Operar(const std::function<void()>& operacion) {
    try {
        operacion();
    } catch (...) {
        Refrescar();
        throw;
    }
    Refrescar();
}

template <class TEdicion> void VentanaArbolDiseno<TEdicion>::Refrescar() {
    RefrescarControles();
    modelo_->Sincronizar(*tvwArbol);
}

template <class TEdicion> void VentanaArbolDiseno<TEdicion>::Recargar() {
    modelo_->Recargar([this] { ed_->Abrir(); });
    Refrescar();
}

template <class TEdicion> void VentanaArbolDiseno<TEdicion>::EnfocarArbol() {
    tvwArbol->setFocus();
}

template <class TEdicion> void VentanaArbolDiseno<TEdicion>::showEvent(QShowEvent* evento) {
    VentanaDiseno::showEvent(evento);
    EnfocarArbol();
}

template <class TEdicion> void VentanaArbolDiseno<TEdicion>::SeleccionarNodo(NodoArbol* nodo) {
    if (nodo != nullptr) {
        Operar([&] {
            ed_->SoltarRaton(nodo);
            ed_->tvwArbol.AsegurarVisible(nodo);
        });
    }
    EnfocarArbol();
}

template <class TEdicion> void VentanaArbolDiseno<TEdicion>::EditarEtiqueta() {
    const QModelIndex indice = modelo_->Indice(ed_->tvwArbol.Seleccionado());
    if (indice.isValid()) {
        tvwArbol->setCurrentIndex(indice);
        tvwArbol->edit(indice);
    }
}

// ---- the tree menu ----

template <class TEdicion>
QAction* VentanaArbolDiseno<TEdicion>::Entrada(QMenu& menu, const std::string& nombre) {
    return menu.findChild<QAction*>(Q(nombre));
}

template <class TEdicion>
void VentanaArbolDiseno<TEdicion>::Orden(QMenu& menu, const std::string& nombre,
                                         std::function<void()> operacion) {
    Conectar(Entrada(menu, nombre), &QAction::triggered, this,
             [this, operacion] { Operar(operacion); });
}

template <class TEdicion>
void VentanaArbolDiseno<TEdicion>::MostrarMenu(NodoArbol* nodo, const QPoint& global) {
    Menu m;
    Operar([&] { m = ed_->MenuContextual(nodo); });
    QMenu* menu = MenuEmergente(menu_);
    if (menu == nullptr) {
        return;
    }
    if (!menuConectado_) {
        menuConectado_ = true;
        Orden(*menu, ConSufijo("mnuInsertarAntes"), [this] { ed_->InsertarAntes(); });
        Orden(*menu, ConSufijo("mnuInsertarDespues"), [this] { ed_->InsertarDespues(); });
        Orden(*menu, ConSufijo("mnuEliminar"), [this] { ed_->Eliminar(); });
        Orden(*menu, ConSufijo("mnuCopiar"), [this] { ed_->Copiar(); });
        Orden(*menu, ConSufijo("mnuPegar"), [this] { ed_->Pegar(); });
        Orden(*menu, ConSufijo("mnuRenombrar"), [this] { EditarEtiqueta(); });
        ConectarMenu(*menu);
    }
    const auto entrada = [&](const char* nombre) { return Entrada(*menu, ConSufijo(nombre)); };
    entrada("mnuInsertarAntes")->setVisible(m.InsertarVisible);
    entrada("mnuInsertarDespues")->setVisible(m.InsertarVisible);
    entrada("mnuEliminar")->setVisible(m.EliminarVisible);
    entrada("mnuCopiar")->setVisible(m.CopiarVisible);
    entrada("mnuRenombrar")->setVisible(m.RenombrarVisible);
    entrada("mnuPegar")->setVisible(m.PegarVisible);
    entrada("mnuPegar")->setEnabled(m.PegarHabilitado);
    AjustarMenu(*menu, m);
    menu->popup(global);
}

template class VentanaArbolDiseno<EdicionComponentes>;
template class VentanaArbolDiseno<EdicionRequerimientos>;

} // namespace vadro
