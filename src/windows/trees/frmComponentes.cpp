#include "windows/trees/frmComponentes.h"

#include "core/core/sesion.h"
#include "core/shell/flujo_trabajo.h"
#include "core/trees/edicion_etapas.h"
#include "windows/core/conectar.h"
#include "windows/core/texto.h"
#include "windows/trees/modelo_arbol.h"
#include "windows/trees/selector_nivel.h"
#include "windows/trees/vista_arbol.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QVBoxLayout>

namespace vadro {

frmComponentes::frmComponentes(QWidget* padre)
    : VentanaDiseno(Hija::Componentes, "Arbol de componentes", padre),
      ed_(std::make_unique<EdicionComponentes>(SesionActual())),
      modelo_(std::make_unique<ModeloArbol>(ed_->tvwArbol)) {
    CrearControles();
    ConectarArbol();
    ConectarSelector(1);
    ConectarSelector(2);
    AjustarControles();
    // The load leaves the window unaccepted: closing it always asks.
    modelo_->Recargar([this] { ed_->Abrir(); });
    Refrescar();
}

frmComponentes::~frmComponentes() {
    tvwArbol->setModel(nullptr);
}

void frmComponentes::CrearControles() {
    auto* contenido = new QWidget(this);
    tvwArbol = new VistaArbol(contenido);
    tvwArbol->setObjectName(Q("tvwArbol"));
    tvwArbol->setModel(modelo_.get());
    auto* derecha = new QVBoxLayout;
    fmeNodos[0] = new MarcoNivel(1, "Componentes", contenido);
    fmeNodos[1] = new MarcoNivel(2, "Subcomponentes", contenido);
    derecha->addWidget(fmeNodos[0]);
    derecha->addWidget(fmeNodos[1]);
    derecha->addStretch();
    auto* fila = new QHBoxLayout(contenido);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->addWidget(tvwArbol, 3);
    fila->addLayout(derecha, 2);
    PonerContenido(contenido);
}

void frmComponentes::ConectarArbol() {
    modelo_->AlRenombrar = [this](NodoArbol* nodo, const std::string& texto) {
        bool hecho = false;
        Operar([&] {
            if (ed_->tvwArbol.Seleccionado() != nodo) {
                ed_->tvwArbol.Seleccionar(nodo);
            }
            hecho = ed_->Renombrar(texto);
        });
        tvwArbol->setFocus();
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

void frmComponentes::ConectarSelector(int i) {
    MarcoNivel* marco = fmeNodos[static_cast<std::size_t>(i - 1)];
    Conectar(marco, &MarcoNivel::Subir, this, [this, i] {
        Operar([&] { ed_->SubirContador(i); });
        tvwArbol->setFocus();
    });
    Conectar(marco, &MarcoNivel::Bajar, this, [this, i] {
        Operar([&] { ed_->BajarContador(i); });
        tvwArbol->setFocus();
    });
    Conectar(marco, &MarcoNivel::AbreLista, this, [this, i] { ed_->AbrirLista(i); });
    Conectar(marco, &MarcoNivel::Elegida, this, [this, i](int posicion) {
        Operar([&] { ed_->ElegirEnLista(i, posicion); });
        tvwArbol->setFocus();
    });
    Conectar(marco, &MarcoNivel::Escrito, this, [this, i](const QString& texto) {
        ed_->EscribirEnLista(i, ACadena(texto));
        modelo_->Sincronizar(*tvwArbol);
    });
    Conectar(marco, &MarcoNivel::Retorno, this, [this] { tvwArbol->setFocus(); });
}

void frmComponentes::Operar(const std::function<void()>& operacion) {
    try {
        operacion();
    } catch (...) {
        Refrescar();
        throw;
    }
    Refrescar();
}

void frmComponentes::Refrescar() {
    for (int i = 1; i <= 2; ++i) {
        fmeNodos[static_cast<std::size_t>(i - 1)]->Mostrar(
            ed_->Selector(i), ed_->TitulosMarcos[static_cast<std::size_t>(i - 1)]);
    }
    modelo_->Sincronizar(*tvwArbol);
}

void frmComponentes::SeleccionarNodo(NodoArbol* nodo) {
    if (nodo != nullptr) {
        Operar([&] {
            ed_->SoltarRaton(nodo);
            ed_->tvwArbol.AsegurarVisible(nodo);
        });
    }
    tvwArbol->setFocus();
}

void frmComponentes::EditarEtiqueta() {
    const QModelIndex indice = modelo_->Indice(ed_->tvwArbol.Seleccionado());
    if (indice.isValid()) {
        tvwArbol->setCurrentIndex(indice);
        tvwArbol->edit(indice);
    }
}

void frmComponentes::MostrarMenu(NodoArbol* nodo, const QPoint& global) {
    MenuArbolComponentes m;
    Operar([&] { m = ed_->MenuContextual(nodo); });
    QMenu* menu = MenuEmergente("mnuArbolC");
    if (menu == nullptr) {
        return;
    }
    ConectarMenu(*menu);
    const auto entrada = [menu](const char* nombre) {
        return menu->findChild<QAction*>(Q(nombre));
    };
    entrada("mnuInsertarAntesC")->setVisible(m.InsertarVisible);
    entrada("mnuInsertarDespuesC")->setVisible(m.InsertarVisible);
    entrada("mnuEliminarC")->setVisible(m.EliminarVisible);
    entrada("mnuEliminarC")->setText(Q(m.EliminarTitulo));
    entrada("mnuAñadirComp")->setVisible(m.AñadirCompVisible);
    entrada("mnuAñadirSc")->setVisible(m.AñadirScVisible);
    entrada("mnuCopiarC")->setVisible(m.CopiarVisible);
    entrada("mnuRenombrarC")->setVisible(m.RenombrarVisible);
    entrada("mnuPegarC")->setVisible(m.PegarVisible);
    entrada("mnuPegarC")->setEnabled(m.PegarHabilitado);
    // The separators stand between the groups, which with no node are two single entries.
    for (QAction* accion : menu->actions()) {
        if (accion->isSeparator()) {
            accion->setVisible(m.CopiarVisible);
        }
    }
    menu->popup(global);
}

void frmComponentes::ConectarMenu(QMenu& menu) {
    if (menuConectado_) {
        return;
    }
    menuConectado_ = true;
    const auto orden = [&](const char* nombre, std::function<void()> operacion) {
        Conectar(menu.findChild<QAction*>(Q(nombre)), &QAction::triggered, this,
                 [this, operacion] { Operar(operacion); });
    };
    orden("mnuAñadirComp", [this] { ed_->AñadirComponente("Componente"); });
    orden("mnuAñadirSc", [this] { ed_->AñadirSubcomponente("Subcomponente"); });
    orden("mnuInsertarAntesC", [this] { ed_->InsertarAntes(); });
    orden("mnuInsertarDespuesC", [this] { ed_->InsertarDespues(); });
    orden("mnuEliminarC", [this] { ed_->Eliminar(); });
    orden("mnuCopiarC", [this] { ed_->Copiar(); });
    orden("mnuPegarC", [this] { ed_->Pegar(); });
    orden("mnuRenombrarC", [this] { EditarEtiqueta(); });
}

void frmComponentes::cmdAceptar_Click() {
    emit MarcaPaso(EtqComponentes, !ed_->tvwArbol.Vacio());
    ed_->LlamaLlenarComponentes();
    Aceptado = true;
    emit ModeloAceptado(ParteModelo::Componentes);
    Descargar();
}

void frmComponentes::LlamaLlenarComponentes() {
    ed_->LlamaLlenarComponentes();
}

void frmComponentes::GuardarArbol() {
    ed_->GuardarArbol();
}

bool frmComponentes::PuedeDescargarse() {
    return PuedeCerrarComponentes(Aceptado);
}

void frmComponentes::showEvent(QShowEvent* evento) {
    VentanaDiseno::showEvent(evento);
    tvwArbol->setFocus();
}

void frmComponentes::ModeloCambiado(ParteModelo parte) {
    if (parte == ParteModelo::Componentes) {
        modelo_->Recargar([this] { ed_->Abrir(); });
        Refrescar();
    }
}

} // namespace vadro
