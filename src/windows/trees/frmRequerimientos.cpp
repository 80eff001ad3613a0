#include "windows/trees/frmRequerimientos.h"

#include "core/core/sesion.h"
#include "core/shell/flujo_trabajo.h"
#include "core/trees/edicion_etapas.h"
#include "windows/core/conectar.h"
#include "windows/core/controles.h"
#include "windows/core/modal.h"
#include "windows/core/texto.h"
#include "windows/functions/frmFuncionValor.h"
#include "windows/trees/modelo_arbol.h"
#include "windows/trees/selector_nivel.h"
#include "windows/trees/vista_arbol.h"

#include <QDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace vadro {

namespace {

constexpr const char* kNiveles[] = {"Requerimientos", "Criterios", "Subcriterios", "Indicadores"};

} // namespace

frmRequerimientos::frmRequerimientos(QWidget* padre)
    : VentanaDiseno(Hija::Requerimientos, "Arbol de requerimientos", padre),
      ed_(std::make_unique<EdicionRequerimientos>(SesionActual())),
      modelo_(std::make_unique<ModeloArbol>(ed_->tvwArbol)) {
    CrearControles();
    ConectarArbol();
    for (int i = 1; i <= 4; ++i) {
        ConectarSelector(i);
    }
    AjustarControles();
    modelo_->Recargar([this] { ed_->Abrir(); });
    Refrescar();
    Aceptado = true;
}

frmRequerimientos::~frmRequerimientos() {
    tvwArbol->setModel(nullptr);
}

void frmRequerimientos::CrearControles() {
    auto* contenido = new QWidget(this);
    tvwArbol = new VistaArbol(contenido);
    tvwArbol->setObjectName(Q("tvwArbol"));
    tvwArbol->setModel(modelo_.get());

    fmeDescripcion = new QWidget(contenido);
    fmeDescripcion->setObjectName(Q("fmeDescripcion"));
    lblDescripcion = new QLabel(Q("Descripción"), fmeDescripcion);
    lblDescripcion->setObjectName(Q("lblDescripcion"));
    txtDescripcion = new QPlainTextEdit(fmeDescripcion);
    txtDescripcion->setObjectName(Q("txtDescripcion"));
    auto* descripcion = new QVBoxLayout(fmeDescripcion);
    descripcion->setContentsMargins(0, 0, 0, 0);
    descripcion->addWidget(lblDescripcion);
    descripcion->addWidget(txtDescripcion);

    auto* derecha = new QVBoxLayout;
    derecha->addWidget(fmeDescripcion, 1);
    for (int i = 1; i <= 4; ++i) {
        fmeNodos[static_cast<std::size_t>(i - 1)] = new MarcoNivel(i, kNiveles[i - 1], contenido);
        derecha->addWidget(fmeNodos[static_cast<std::size_t>(i - 1)]);
    }
    cmdFuncion = Boton(fmeNodos[3], "cmdFuncion", "Función de valor / Indicadores optativos");
    static_cast<QGridLayout*>(fmeNodos[3]->layout())->addWidget(cmdFuncion, 2, 0, 1, 4);

    auto* fila = new QHBoxLayout(contenido);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->addWidget(tvwArbol, 3);
    fila->addLayout(derecha, 2);
    PonerContenido(contenido);
}

void frmRequerimientos::ConectarArbol() {
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
    Conectar(txtDescripcion, &QPlainTextEdit::textChanged, this,
             [this] { ed_->CambiarDescripcion(ACadena(txtDescripcion->toPlainText())); });
    Conectar(cmdFuncion, &QPushButton::clicked, this, [this] { cmdFuncion_Click(); });
}

void frmRequerimientos::ConectarSelector(int i) {
    MarcoNivel* marco = fmeNodos[static_cast<std::size_t>(i - 1)];
    Conectar(marco, &MarcoNivel::Subir, this, [this, i] {
        Operar([&] { ed_->SubirContador(i); });
        EnfocarArbol();
    });
    Conectar(marco, &MarcoNivel::Bajar, this, [this, i] {
        Operar([&] { ed_->BajarContador(i); });
        EnfocarArbol();
    });
    Conectar(marco, &MarcoNivel::AbreLista, this, [this, i] { ed_->AbrirLista(i); });
    Conectar(marco, &MarcoNivel::Enfocada, this, [this, i] { ed_->EnfocarLista(i); });
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

void frmRequerimientos::Operar(const std::function<void()>& operacion) {
    try {
        operacion();
    } catch (...) {
        Refrescar();
        throw;
    }
    Refrescar();
}

void frmRequerimientos::Refrescar() {
    for (int i = 1; i <= 4; ++i) {
        fmeNodos[static_cast<std::size_t>(i - 1)]->Mostrar(
            ed_->Selector(i), ed_->TitulosMarcos[static_cast<std::size_t>(i - 1)]);
    }
    const QString descripcion = Q(ed_->Descripcion);
    if (txtDescripcion->toPlainText() != descripcion) {
        const QSignalBlocker bloqueo(txtDescripcion);
        txtDescripcion->setPlainText(descripcion);
    }
    cmdFuncion->setEnabled(ed_->FuncionHabilitada);
    modelo_->Sincronizar(*tvwArbol);
}

void frmRequerimientos::EnfocarArbol() {
    tvwArbol->setFocus();
}

void frmRequerimientos::SeleccionarNodo(NodoArbol* nodo) {
    if (nodo != nullptr) {
        Operar([&] {
            ed_->SoltarRaton(nodo);
            ed_->tvwArbol.AsegurarVisible(nodo);
        });
    }
    EnfocarArbol();
}

void frmRequerimientos::EditarEtiqueta() {
    const QModelIndex indice = modelo_->Indice(ed_->tvwArbol.Seleccionado());
    if (indice.isValid()) {
        tvwArbol->setCurrentIndex(indice);
        tvwArbol->edit(indice);
    }
}

// ---- the tree menu ----

void frmRequerimientos::MostrarMenu(NodoArbol* nodo, const QPoint& global) {
    MenuArbol m;
    Operar([&] { m = ed_->MenuContextual(nodo); });
    QMenu* menu = MenuEmergente("mnuArbolR");
    if (menu == nullptr) {
        return;
    }
    ConectarMenu(*menu);
    const auto entrada = [menu](const char* nombre) {
        return menu->findChild<QAction*>(Q(nombre));
    };
    entrada("mnuInsertarAntes")->setVisible(m.InsertarVisible);
    entrada("mnuInsertarDespues")->setVisible(m.InsertarVisible);
    entrada("sepArbolR1")->setVisible(m.Separador1Visible);
    entrada("mnuEliminar")->setVisible(m.EliminarVisible);
    if (m.EliminarVisible) {
        entrada("mnuEliminar")->setText(Q(m.EliminarTitulo));
    }
    entrada("mnuAñadirR")->setVisible(m.AñadirRVisible);
    entrada("mnuAñadirC")->setVisible(m.AñadirCVisible);
    entrada("mnuAñadirS")->setVisible(m.AñadirSVisible);
    entrada("mnuAñadirI")->setVisible(m.AñadirIVisible);
    entrada("mnuCopiar")->setVisible(m.CopiarVisible);
    entrada("mnuRenombrar")->setVisible(m.RenombrarVisible);
    entrada("sepArbolR2")->setVisible(m.Separadores23Visible);
    entrada("sepArbolR3")->setVisible(m.Separadores23Visible);
    entrada("mnuPegar")->setVisible(m.PegarVisible);
    entrada("mnuPegar")->setEnabled(m.PegarHabilitado);
    menu->popup(global);
}

void frmRequerimientos::ConectarMenu(QMenu& menu) {
    if (menuConectado_) {
        return;
    }
    menuConectado_ = true;
    const auto orden = [&](const char* nombre, std::function<void()> operacion) {
        Conectar(menu.findChild<QAction*>(Q(nombre)), &QAction::triggered, this,
                 [this, operacion] { Operar(operacion); });
    };
    orden("mnuAñadirR", [this] { ed_->AñadirRequerimiento("Requerimiento"); });
    orden("mnuAñadirC", [this] { ed_->AñadirCriterio("Criterio"); });
    orden("mnuAñadirS", [this] { ed_->AñadirSubcriterio("Subcriterio"); });
    orden("mnuAñadirI", [this] { ed_->AñadirIndicador("Indicador"); });
    orden("mnuInsertarAntes", [this] { ed_->InsertarAntes(); });
    orden("mnuInsertarDespues", [this] { ed_->InsertarDespues(); });
    orden("mnuEliminar", [this] { ed_->Eliminar(); });
    orden("mnuCopiar", [this] { ed_->Copiar(); });
    orden("mnuPegar", [this] { ed_->Pegar(); });
    orden("mnuRenombrar", [this] { EditarEtiqueta(); });
}

// ---- the function editor ----

void frmRequerimientos::cmdFuncion_Click() {
    std::optional<std::string> indicador;
    Operar([&] { indicador = ed_->ClicFuncion(); });
    if (indicador) {
        EditarFuncion(SesionActual().NodoEdicionActual, *indicador, this);
    }
}

// ---- writing back and closing ----

void frmRequerimientos::cmdAceptar_Click() {
    emit MarcaPaso(EtqRequerimientos, ed_->tvwArbol.Cuenta() >= 2);
    ed_->LlamaLlenarRequerimientos();
    Aceptado = true;
    emit ModeloAceptado(ParteModelo::Requerimientos);
    Descargar();
}

void frmRequerimientos::LlamaLlenarRequerimientos() {
    ed_->LlamaLlenarRequerimientos();
}

void frmRequerimientos::GuardarArbol() {
    if (ed_->GuardarArbol()) {
        emit MarcaPaso(EtqRequerimientos, true);
    }
}

void frmRequerimientos::ActualizarCombos(NodoArbol* nodo) {
    Operar([&] { ed_->ActualizarCombos(nodo); });
}

void frmRequerimientos::EliminarSubcriteriosDelNodo(NodoArbol* nodo) {
    Operar([&] { ed_->EliminarSubcriteriosDelNodo(nodo); });
}

void frmRequerimientos::AjustarControles() {
    VentanaDiseno::AjustarControles();
    // The subcriteria frame stands only while the model allows them; the others close up.
    fmeNodos[2]->setVisible(SesionActual().modelo.ConSubcriterios);
}

bool frmRequerimientos::PuedeDescargarse() {
    const bool puede = PuedeCerrarRequerimientos(Aceptado);
    emit MarcaPaso(EtqRequerimientos, ed_->tvwArbol.Cuenta() >= 2);
    return puede;
}

void frmRequerimientos::showEvent(QShowEvent* evento) {
    VentanaDiseno::showEvent(evento);
    EnfocarArbol();
}

// A tree replaced from outside (an opening, an import) is shown afresh.
void frmRequerimientos::ModeloCambiado(ParteModelo parte) {
    if (parte == ParteModelo::Requerimientos) {
        modelo_->Recargar([this] { ed_->Abrir(); });
        Refrescar();
    }
}

void frmRequerimientos::PermisoSubcriterios(bool permitidos) {
    if (!permitidos) {
        EliminarSubcriteriosDelNodo(ed_->tvwArbol.PrimeraRaiz());
    }
    AjustarControles();
}

} // namespace vadro
