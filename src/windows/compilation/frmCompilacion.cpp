#include "windows/compilation/frmCompilacion.h"

#include "core/compilation/compilacion.h"
#include "core/compilation/informe_compilacion.h"
#include "core/core/fuente.h"
#include "core/core/limite_fallos.h"
#include "core/core/sesion.h"
#include "windows/core/ajustar_fuente.h"
#include "windows/core/conectar.h"
#include "windows/core/controles.h"
#include "windows/core/texto.h"
#include "windows/reports/impresion.h"
#include "windows/trees/frmComponentes.h"
#include "windows/trees/frmRequerimientos.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPrinter>
#include <QPushButton>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

namespace vadro {

namespace {

// The open design window of that kind beside this one in the client area, if any.
template <typename Ventana> Ventana* Vecina(const QWidget& ventana) {
    const auto* marco = qobject_cast<const QMdiSubWindow*>(ventana.parentWidget());
    if (marco == nullptr || marco->mdiArea() == nullptr) {
        return nullptr;
    }
    for (QMdiSubWindow* otro : marco->mdiArea()->subWindowList()) {
        if (auto* vecina = qobject_cast<Ventana*>(otro->widget());
            vecina != nullptr && vecina->Cargado) {
            return vecina;
        }
    }
    return nullptr;
}

QIcon IconoQt(IconoLinea icono, const QStyle& estilo) {
    switch (icono) {
    case IconoLinea::Error:
        return estilo.standardIcon(QStyle::SP_MessageBoxCritical);
    case IconoLinea::Aviso:
        return estilo.standardIcon(QStyle::SP_MessageBoxWarning);
    case IconoLinea::Ninguno:
        break;
    }
    return {};
}

// Every line keeps the room of an icon, so that the blanks that indent the findings line up
// whether a line bears its icon or not.
class DelegadoInforme : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* opcion, const QModelIndex& indice) const override {
        QStyledItemDelegate::initStyleOption(opcion, indice);
        const auto* lista = qobject_cast<const QAbstractItemView*>(opcion->widget);
        if (opcion->icon.isNull() && lista != nullptr) {
            opcion->decorationSize = lista->iconSize();
            QPixmap vacio(opcion->decorationSize);
            vacio.fill(Qt::transparent);
            opcion->icon = QIcon(vacio);
            opcion->features |= QStyleOptionViewItem::HasDecoration;
        }
    }
};

} // namespace

frmCompilacion::frmCompilacion(QWidget* padre)
    : VentanaHija(Hija::Compilacion, "Compilación", padre) {
    lstErrores = new QListWidget(this);
    lstErrores->setObjectName(Q("lstErrores"));
    lstErrores->setSelectionMode(QAbstractItemView::SingleSelection);
    lstErrores->setEditTriggers(QAbstractItemView::NoEditTriggers);
    lstErrores->setItemDelegate(new DelegadoInforme(lstErrores));
    lstClaves = new QListWidget(this);
    lstClaves->setObjectName(Q("lstClaves"));
    lstClaves->hide();
    cmdGuardar = Boton(this, "cmdGuardar", "Guardar");
    cmdImprimir = Boton(this, "cmdImprimir", "Imprimir");
    cmdCerrar = Boton(this, "cmdCerrar", "Cerrar");

    auto* columna = new QVBoxLayout(this);
    columna->addWidget(lstErrores, 1);
    columna->addLayout(FilaBotones({cmdGuardar, cmdImprimir, cmdCerrar}));

    Conectar(cmdGuardar, &QPushButton::clicked, this, [this] { cmdGuardar_Click(); });
    Conectar(cmdImprimir, &QPushButton::clicked, this, [this] { cmdImprimir_Click(); });
    Conectar(cmdCerrar, &QPushButton::clicked, this, [this] { cmdCerrar_Click(); });
    Conectar(lstErrores, &QListWidget::itemDoubleClicked, this, [this] { lstErrores_DblClick(); });
    AjustarControles();
}

void frmCompilacion::Colocar(QMdiSubWindow& marco, const QRect& cliente) {
    // Over the right side of the window of the position, which stays in view.
    const int ancho = cliente.width() * 3 / 5;
    marco.setGeometry(QRect(cliente.right() - ancho, cliente.top(), ancho, cliente.height()));
}

void frmCompilacion::AjustarControles() {
    AjustarFuente(*this);
    // The report reads like the trees of the program, in their size.
    const MedidaFuente medida =
        MedidasFuente(ClaseControl::Arbol, SesionActual().configuracion.TamanoFuente);
    QFont fuente = lstErrores->font();
    fuente.setFamily(Q(kNombreFuente));
    if (medida.puntos) {
        fuente.setPointSize(*medida.puntos);
    }
    lstErrores->setFont(fuente);
    const int lado = QFontMetrics(fuente).height();
    lstErrores->setIconSize(QSize(lado, lado));
}

void frmCompilacion::showEvent(QShowEvent* evento) {
    VentanaHija::showEvent(evento);
    if (!abierta_) {
        abierta_ = true;
        EjecutarProtegido([this] { Abrir(); });
    }
}

void frmCompilacion::Abrir() {
    Compilar();
    ConcluirCompilacion(SesionActual(), informe_);
}

void frmCompilacion::Compilar() {
    informe_ = vadro::Compilar(SesionActual().modelo, [this](Modelo&) {
        if (auto* requerimientos = Vecina<frmRequerimientos>(*this)) {
            requerimientos->LlamaLlenarRequerimientos();
        }
        if (auto* componentes = Vecina<frmComponentes>(*this)) {
            componentes->LlamaLlenarComponentes();
        }
    });
    MostrarInforme();
}

void frmCompilacion::MostrarInforme() {
    lstErrores->clear();
    lstClaves->clear();
    const auto& lineas = informe_.Lineas();
    for (std::size_t i = 0; i < lineas.size(); ++i) {
        auto* linea = new QListWidgetItem(IconoQt(informe_.Iconos()[i], *style()), Q(lineas[i]));
        lstErrores->addItem(linea);
        lstClaves->addItem(Q(informe_.Claves()[i]));
    }
}

void frmCompilacion::cmdGuardar_Click() {
    std::vector<std::string> lineas;
    for (int i = 0; i < lstErrores->count(); ++i) {
        lineas.push_back(ACadena(lstErrores->item(i)->text()));
    }
    GuardarInformeCompilacion(SesionActual(), lineas);
}

void frmCompilacion::cmdImprimir_Click() {
    ImprimirInformeCompilacion([this](const ImpresoraElegida& elegida) {
        const auto impresora = CrearImpresora(elegida);
        ImprimirLista(*lstErrores, *impresora);
    });
}

void frmCompilacion::cmdCerrar_Click() {
    Descargar();
}

void frmCompilacion::lstErrores_DblClick() {
    const int fila = lstErrores->currentRow();
    if (fila < 0 || fila >= lstClaves->count()) {
        return;
    }
    const QString clave = lstClaves->item(fila)->text();
    if (!clave.isEmpty()) {
        emit IrAError(clave);
    }
}

} // namespace vadro
