#include "windows/weighting/frmPesos.h"

#include "core/core/comunes.h"
#include "core/core/limite_fallos.h"
#include "core/core/sesion.h"
#include "windows/core/ajustar_fuente.h"
#include "windows/core/conectar.h"
#include "windows/core/controles.h"
#include "windows/core/editar_celda.h"
#include "windows/core/modal.h"
#include "windows/core/texto.h"
#include "windows/weighting/formato_rejilla.h"
#include "windows/weighting/frmConsistencia.h"
#include "windows/weighting/frmSaaty.h"
#include "windows/weighting/rejillas_pesos.h"

#include <QApplication>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QTime>
#include <QTimer>
#include <QVBoxLayout>

namespace vadro {

namespace {

// The key of the floating input as its table knows it.
TeclaEntrada ClaseTecla(int tecla, const QString& texto) {
    switch (tecla) {
    case Qt::Key_Escape:
        return TeclaEntrada::Escape;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return TeclaEntrada::Retorno;
    case Qt::Key_Left:
        return TeclaEntrada::Izquierda;
    case Qt::Key_Up:
        return TeclaEntrada::Arriba;
    case Qt::Key_Right:
        return TeclaEntrada::Derecha;
    case Qt::Key_Down:
        return TeclaEntrada::Abajo;
    default:
        break;
    }
    if (texto.size() == 1 && texto.at(0).isDigit()) {
        return TeclaEntrada::Digito;
    }
    if (texto == Q(SeparadorDecimal())) {
        return TeclaEntrada::Separador;
    }
    return TeclaEntrada::Otra;
}

} // namespace

frmPesos::frmPesos(const DireccionConjunto& direccion, QWidget* padre)
    : QDialog(padre), saaty_(new AdaptadorRejilla(this)), directo_(new AdaptadorRejilla(this)) {
    setObjectName(Q("frmPesos"));
    setWindowTitle(Q("Matriz de pesos"));
    grdSaaty = RejillaPesos(this, "grdSaaty", *saaty_);
    grdDirecto = RejillaPesos(this, "grdDirecto", *directo_);
    fmePonderado = new QGroupBox(Q("Método de ponderado"), this);
    fmePonderado->setObjectName(Q("fmePonderado"));
    optSaaty = Opcion(fmePonderado, "optSaaty", "AHP (SAATY)");
    optDirecto = Opcion(fmePonderado, "optDirecto", "Directo");
    auto* metodos = new QVBoxLayout(fmePonderado);
    metodos->addWidget(optSaaty);
    metodos->addWidget(optDirecto);
    cmdConsistencia = Boton(this, "cmdConsistencia", "Consistencia perfecta");
    lblConsistencia =
        Etiqueta(this, "lblConsistencia", "Indice de consistencia...................");
    lblCR = Etiqueta(this, "lblCR", "");
    lblCR->setAlignment(Qt::AlignCenter);
    lblCR->setMinimumWidth(80);
    lblCR->setFrameShape(QFrame::Panel);
    lblCR->setFrameShadow(QFrame::Sunken);
    lblCR->setAutoFillBackground(true);
    chkPermitirCambios = new QCheckBox(Q("Permitir cambios al usuario"), this);
    chkPermitirCambios->setObjectName(Q("chkPermitirCambios"));
    cmdAceptar = BotonAceptar(this);
    cmdCancelar = Boton(this, "cmdCancelar", "Cancelar");
    txtValor = new QLineEdit(grdSaaty->viewport());
    txtValor->setObjectName(Q("txtValor"));
    txtValor->hide();
    tmrIntermitencia = new QTimer(this);
    tmrIntermitencia->setObjectName(Q("tmrIntermitencia"));
    tmrIntermitencia->setInterval(50);

    auto* pie = new QGridLayout;
    pie->addWidget(fmePonderado, 0, 0, 2, 1);
    pie->addWidget(cmdConsistencia, 0, 1);
    pie->addWidget(lblConsistencia, 0, 2, Qt::AlignRight);
    pie->addWidget(lblCR, 0, 3);
    pie->addWidget(chkPermitirCambios, 1, 1, 1, 3);
    pie->setColumnStretch(2, 1);
    auto* columna = new QVBoxLayout(this);
    columna->addWidget(grdSaaty, 1);
    columna->addWidget(grdDirecto, 1);
    columna->addLayout(pie);
    columna->addLayout(FilaBotones({cmdAceptar, cmdCancelar}));
    resize(658, 485);

    for (QObject* objeto : {static_cast<QObject*>(grdSaaty), static_cast<QObject*>(grdDirecto),
                            static_cast<QObject*>(txtValor)}) {
        objeto->installEventFilter(this);
    }
    Conectar(optSaaty, &QRadioButton::clicked, this, [this] { MostrarMetodo(CalculoSaaty); });
    Conectar(optDirecto, &QRadioButton::clicked, this, [this] { MostrarMetodo(CalculoDirecto); });
    Conectar(grdDirecto, &QTableView::clicked, this, [this] { Editar(*grdDirecto, 32); });
    Conectar(grdSaaty, &QTableView::doubleClicked, this, [this] { grdSaaty_DblClick(); });
    for (QTableView* rejilla : {grdSaaty, grdDirecto}) {
        Conectar(rejilla->selectionModel(), &QItemSelectionModel::currentChanged, this,
                 [this] { Confirmar(); });
    }
    Conectar(cmdConsistencia, &QPushButton::clicked, this, [this] { cmdConsistencia_Click(); });
    Conectar(cmdAceptar, &QPushButton::clicked, this, [this] { cmdAceptar_Click(); });
    Conectar(cmdCancelar, &QPushButton::clicked, this, [this] { cmdCancelar_Click(); });
    Conectar(tmrIntermitencia, &QTimer::timeout, this,
             [this] { Parpadear(QTime::currentTime().second()); });

    // The set both ways: the scores and their percentages, then the matrix with its weights.
    Sesion& sesion = SesionActual();
    edicion_.Direccion = direccion;
    InicializarRejillaDirecto(sesion.modelo, edicion_, *directo_);
    LlenarPorcentajesDirecto(edicion_.PuntuacionesDirecto, edicion_.PorcentajesDirecto, *directo_);
    MostrarConsistencia(InicializarRejillaSaaty(sesion, edicion_, *saaty_));
    IrA({1, 2});
    MostrarMetodo(CalculoDirecto);
    MostrarMetodo(CalculoSaaty);
    Cargado = true;
    AjustarControles();
}

void frmPesos::AjustarControles() {
    AjustarFuente(*this);
    FormatearRejilla(*grdSaaty);
    FormatearRejilla(*grdDirecto);
}

void frmPesos::MostrarMetodo(MetodoCalculo metodo) {
    const bool pareado = metodo == CalculoSaaty;
    optSaaty->setChecked(pareado);
    optDirecto->setChecked(!pareado);
    grdSaaty->setVisible(pareado);
    grdDirecto->setVisible(!pareado);
    for (QWidget* control :
         {static_cast<QWidget*>(cmdConsistencia), static_cast<QWidget*>(lblConsistencia),
          static_cast<QWidget*>(lblCR)}) {
        control->setVisible(pareado);
    }
    txtValor->hide();
    txtValor->setParent(Visible().viewport());
    FormatearRejilla(Visible());
}

MetodoCalculo frmPesos::Metodo() const {
    return optDirecto->isChecked() ? CalculoDirecto : CalculoSaaty;
}

QTableView& frmPesos::Visible() const {
    return Metodo() == CalculoSaaty ? *grdSaaty : *grdDirecto;
}

AdaptadorRejilla& frmPesos::RejillaVisible() const {
    return Metodo() == CalculoSaaty ? *saaty_ : *directo_;
}

Celda frmPesos::Actual() const {
    const QModelIndex actual = grdSaaty->currentIndex();
    return {actual.row(), actual.column()};
}

void frmPesos::IrA(Celda celda) {
    grdSaaty->setCurrentIndex(saaty_->index(celda.Fila, celda.Columna));
}

void frmPesos::MostrarConsistencia(const AspectoConsistencia& aspecto) {
    lblCR->setText(Q(aspecto.Leyenda));
    QPalette colores = lblCR->palette();
    colores.setColor(QPalette::Window, QColorDe(aspecto.Fondo));
    lblCR->setPalette(colores);
}

void frmPesos::Editar(QTableView& rejilla, int tecla) {
    const auto& modelo = static_cast<const AdaptadorRejilla&>(*rejilla.model());
    const QModelIndex actual = rejilla.currentIndex();
    const Celda celda{actual.row(), actual.column()};
    const bool editable =
        &rejilla == grdSaaty
            ? CeldaEditableSaaty(modelo.Filas(), modelo.Columnas(), celda.Fila, celda.Columna)
            : CeldaEditableDirecto(modelo.Filas(), modelo.Columnas(), celda.Fila, celda.Columna);
    if (!actual.isValid() || !editable) {
        return;
    }
    if (txtValor->parentWidget() != rejilla.viewport()) {
        txtValor->setParent(rejilla.viewport());
    }
    celdaEdicion_ = celda;
    ::vadro::Editar(rejilla, *txtValor, tecla);
}

void frmPesos::Confirmar() {
    if (confirmando_ || txtValor->isHidden()) {
        return;
    }
    // A message box takes the focus away from the input: that is no second commit.
    confirmando_ = true;
    const struct Fin {
        bool& bandera;
        ~Fin() { bandera = false; }
    } fin{confirmando_};
    const std::string texto = ACadena(txtValor->text());
    const Celda celda = celdaEdicion_;
    if (Metodo() == CalculoDirecto) {
        txtValor->hide();
        if (celda.Fila >= 1 && celda.Fila < directo_->Filas() - 1) {
            ConfirmarDirecto(edicion_, celda, texto, *directo_);
        }
        return;
    }
    if (celda.Fila < 1 || celda.Columna >= saaty_->Columnas() - 1) {
        txtValor->hide();
        return;
    }
    switch (ConfirmarSaaty(SesionActual(), edicion_, celda, texto, *saaty_)) {
    case Confirmacion::Introducida:
        txtValor->hide();
        MostrarConsistencia(ColorConsistencia(edicion_.Consistencia));
        IrA(celda);
        break;
    case Confirmacion::Blanqueada:
        // The blanking passes through the mirror cell, and the grid stays there.
        txtValor->hide();
        IrA({celda.Columna, celda.Fila});
        break;
    case Confirmacion::Rechazada:
        txtValor->clear();
        txtValor->setFocus();
        break;
    case Confirmacion::Descartada:
        txtValor->hide();
        break;
    }
}

void frmPesos::grdSaaty_DblClick() {
    const Celda celda = Actual();
    if (!CeldaConEscala(saaty_->Columnas(), celda.Fila, celda.Columna)) {
        return;
    }
    frmSaaty escala(
        celda, *saaty_,
        [this] {
            tmrIntermitencia->stop();
            saaty_->PonerColorFondo(Actual().Fila, Actual().Columna, ColorBlanco);
        },
        this);
    intermitencia_ = {};
    tmrIntermitencia->start();
    MostrarModal(escala);
    MostrarConsistencia(RecalcularSaaty(SesionActual(), edicion_, *saaty_));
}

void frmPesos::cmdConsistencia_Click() {
    const Celda actual = Actual();
    if (!ConsistenciaPerfectaPosible(SesionActual().MatrizSaaty)) {
        return;
    }
    frmConsistencia perfecta(*saaty_, *lblCR, this);
    MostrarModal(perfecta);
    MostrarConsistencia(RecalcularSaaty(SesionActual(), edicion_, *saaty_));
    IrA(actual);
}

void frmPesos::cmdAceptar_Click() {
    if (AceptarPesos(SesionActual(), edicion_, Metodo(), *directo_)) {
        accept();
    }
}

void frmPesos::cmdCancelar_Click() {
    if (ConfirmarCancelacion()) {
        reject();
    }
}

void frmPesos::Parpadear(int segundo) {
    if (intermitencia_.Tic(segundo)) {
        const Celda celda = Actual();
        saaty_->PonerColorFondo(celda.Fila, celda.Columna,
                                ColorParpadeo(saaty_->ColorFondo(celda.Fila, celda.Columna)));
    }
}

bool frmPesos::TeclaEnEntrada(int tecla, const QString& texto) {
    const TeclaEntrada clase = ClaseTecla(tecla, texto);
    QTableView& rejilla = Visible();
    switch (AccionDeTecla(clase)) {
    case AccionTecla::Ocultar:
        txtValor->hide();
        rejilla.setFocus();
        return true;
    case AccionTecla::Confirmar:
        rejilla.setFocus();
        Confirmar();
        return true;
    case AccionTecla::Mover: {
        rejilla.setFocus();
        Confirmar();
        const QModelIndex actual = rejilla.currentIndex();
        const Celda destino =
            CeldaTrasFlecha(clase, {actual.row(), actual.column()}, RejillaVisible().Filas(),
                            RejillaVisible().Columnas());
        rejilla.setCurrentIndex(RejillaVisible().index(destino.Fila, destino.Columna));
        return true;
    }
    case AccionTecla::Escribir:
    case AccionTecla::Descartar:
        break;
    }
    if (tecla == Qt::Key_Backspace) {
        return false;
    }
    if (texto.isEmpty()) {
        return true; // a key that types nothing is dropped
    }
    const TeclaFiltrada filtrada =
        FiltrarTeclaNumero(ACadena(txtValor->text()), static_cast<int>(texto.at(0).unicode()));
    if (filtrada.tecla == 0 && filtrada.pitido) {
        QApplication::beep();
    }
    return filtrada.tecla == 0;
}

void frmPesos::TeclaEnRejilla(QTableView& rejilla, int tecla, const QString& texto) {
    if (tecla == Qt::Key_Return || tecla == Qt::Key_Enter) {
        Editar(rejilla, 13);
    } else if (!texto.isEmpty()) {
        Editar(rejilla, static_cast<int>(texto.at(0).unicode()));
    }
}

bool frmPesos::eventFilter(QObject* objeto, QEvent* evento) {
    bool tomado = false;
    EjecutarProtegido([&] {
        const auto tipo = evento->type();
        if (objeto == txtValor && tipo == QEvent::KeyPress) {
            const auto* tecla = static_cast<QKeyEvent*>(evento);
            tomado = TeclaEnEntrada(tecla->key(), tecla->text());
        } else if (objeto == txtValor && tipo == QEvent::FocusOut) {
            Confirmar();
        } else if ((objeto == grdSaaty || objeto == grdDirecto) && tipo == QEvent::KeyPress) {
            const auto* tecla = static_cast<QKeyEvent*>(evento);
            if (!tecla->text().isEmpty()) {
                TeclaEnRejilla(*static_cast<QTableView*>(objeto), tecla->key(), tecla->text());
                tomado = true;
            }
        } else if ((objeto == grdSaaty || objeto == grdDirecto) && tipo == QEvent::FocusIn) {
            Confirmar();
        }
    });
    return tomado || QDialog::eventFilter(objeto, evento);
}

void frmPesos::done(int resultado) {
    bool puede = false;
    EjecutarProtegido([&] { puede = PuedeDescargarPesos(edicion_, Metodo()); });
    if (!puede) {
        return;
    }
    tmrIntermitencia->stop();
    Cargado = false;
    QDialog::done(resultado);
}

void frmPesos::resizeEvent(QResizeEvent* evento) {
    QDialog::resizeEvent(evento);
    FormatearRejilla(*grdSaaty);
    FormatearRejilla(*grdDirecto);
}

} // namespace vadro
