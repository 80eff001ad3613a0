#include "windows/functions/frmFuncionValor.h"

#include "core/core/limite_fallos.h"
#include "core/core/sesion.h"
#include "windows/core/ajustar_fuente.h"
#include "windows/core/conectar.h"
#include "windows/core/editar_celda.h"
#include "windows/core/frmAvisoFuncionValor.h"
#include "windows/core/frmConfirmacion.h"
#include "windows/core/modal.h"
#include "windows/core/texto.h"
#include "windows/functions/arriba_abajo.h"
#include "windows/functions/modelo_tabla.h"
#include "windows/functions/panel_optativos.h"
#include "windows/functions/panel_puntuacion.h"
#include "windows/functions/pintar_grafica.h"
#include "windows/functions/rejilla_tabla.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTableView>
#include <QTimer>

namespace vadro {

namespace {

void Visible(QWidget* control, bool visible) {
    if (control->isVisibleTo(control->parentWidget()) != visible) {
        control->setVisible(visible);
    }
}

} // namespace

frmFuncionValor::frmFuncionValor(FuncionValor& registro, const std::string& nombre, QWidget* padre)
    : QDialog(padre) {
    setObjectName(Q("frmFuncionValor"));
    editor.Nombre = nombre;
    Construir();
    Conectar();
    setWindowTitle(Q(editor.Titulo()));
    editor.Cargar(registro);
    Cargar();
}

frmFuncionValor::frmFuncionValor(FuncionOptativo& registro, const std::string& caption,
                                 QWidget* padre)
    : QDialog(padre) {
    setObjectName(Q("frmFuncionValor"));
    editor.EdicionOptativo = true;
    Construir();
    Conectar();
    setWindowTitle(Q(caption));
    cbbTipoFuncionPrimaria->removeItem(kTipoPuntuacion);
    chkOptativos->hide();
    tspSeleccion->hide();
    pctGrafica->setMinimumSize(200, 200);
    editor.Cargar(registro);
    Cargar();
    resize(792, 578); // the compact layout, without the optional indicators and the tabs
}

frmFuncionValor::~frmFuncionValor() {
    // The grids read the editor's cells while they hide: they hide before the editor goes.
    hide();
}

void frmFuncionValor::Cargar() {
    resize(980, 660);
    Mostrar();
    Cargado = true;
    AjustarControles();
}

void frmFuncionValor::AjustarControles() {
    AjustarFuente(*this);
}

template <typename Accion> void frmFuncionValor::Manejar(Accion accion) {
    EjecutarProtegido([&] {
        accion();
        Mostrar();
    });
}

void frmFuncionValor::ManejarAccion(const std::function<void()>& accion) {
    Manejar(accion);
}

void frmFuncionValor::EditarOptativo(int fila) {
    const std::string titulo = editor.TituloOptativo(ACadena(windowTitle()), fila);
    frmFuncionValor segunda(SesionActual().FuncionesEdicion(fila), titulo, this);
    MostrarModal(segunda);
    Manejar([&] { editor.DibujarOptativo(); });
}

void frmFuncionValor::Conectar() {
    vadro::Conectar(pctOptativos, &PanelOptativos::EditarFila, this,
                    [this](int fila) { EditarOptativo(fila); });
    editor.MostrarAviso = [this] {
        frmAvisoFuncionValor aviso(SesionActual().MostrarAvisoFuncionValor, this);
        MostrarModal(aviso);
    };
    editor.ConfirmarReduccion = [this] {
        frmConfirmacion confirmacion(editor.Aviso, this);
        return MostrarModal(confirmacion) == QDialog::Accepted;
    };
    for (std::size_t i = 0; i < entradas.size(); ++i) {
        const auto campo = static_cast<Campo>(i);
        entradas[i]->installEventFilter(this);
        vadro::Conectar(entradas[i], &QLineEdit::textEdited, this, [this, campo](const QString& t) {
            Manejar([&] { editor.Cambio(campo, ACadena(t)); });
        });
    }
    for (std::size_t i = 0; i < upd.size(); ++i) {
        const auto campo = static_cast<Campo>(static_cast<int>(Campo::C) + static_cast<int>(i));
        vadro::Conectar(upd[i], &ArribaAbajo::Subir, this,
                        [this, campo] { Manejar([&] { editor.Subir(campo); }); });
        vadro::Conectar(upd[i], &ArribaAbajo::Bajar, this,
                        [this, campo] { Manejar([&] { editor.Bajar(campo); }); });
    }
    for (std::size_t i = 0; i < cmdFuncion.size(); ++i) {
        const int indice = static_cast<int>(i);
        vadro::Conectar(cmdFuncion[i], &QPushButton::pressed, this,
                        [this, indice] { editor.PulsarForma(indice); });
        vadro::Conectar(cmdFuncion[i], &QPushButton::clicked, this,
                        [this, indice] { Manejar([&] { editor.ClickForma(indice); }); });
    }
    for (const bool maximo : {false, true}) {
        vadro::Conectar(maximo ? chkAjustarMaxRef : chkAjustarMinRef, &QCheckBox::clicked, this,
                        [this, maximo](bool marcado) {
                            Manejar([&] { editor.ClickAjustar(maximo, marcado); });
                        });
        vadro::Conectar(maximo ? chkMaxRefUsuario : chkMinRefUsuario, &QCheckBox::clicked, this,
                        [this, maximo](bool marcado) {
                            Manejar([&] { editor.ClickUsuarioRef(maximo, marcado); });
                        });
        vadro::Conectar(maximo ? chkMaxUsuario : chkMinUsuario, &QCheckBox::clicked, this,
                        [this, maximo](bool marcado) {
                            (maximo ? editor.chkMaxUsuario : editor.chkMinUsuario) = marcado;
                        });
        (maximo ? lblMaxRef : lblMinRef)->installEventFilter(this);
    }
    vadro::Conectar(cbbTipoFuncionPrimaria, &QComboBox::activated, this,
                    [this](int indice) { Manejar([&] { editor.ClickTipo(indice); }); });
    vadro::Conectar(tspSeleccion, &QTabBar::tabBarClicked, this, [this](int indice) {
        if (indice >= 0) {
            Manejar([&] { editor.ClickPestana(indice + 1); });
        }
    });
    vadro::Conectar(chkOptativos, &QCheckBox::clicked, this,
                    [this](bool marcado) { Manejar([&] { editor.ClickOptativos(marcado); }); });
    vadro::Conectar(cmdCargar, &QPushButton::clicked, this,
                    [this] { Manejar([&] { editor.CargarPlantilla(); }); });
    vadro::Conectar(cmdGuardar, &QPushButton::clicked, this,
                    [this] { Manejar([&] { editor.GuardarPlantilla(); }); });
    vadro::Conectar(cmdAceptar, &QPushButton::clicked, this, [this] {
        bool aceptado = false;
        Manejar([&] { aceptado = editor.Aceptar(); });
        if (aceptado) {
            accept();
        }
    });
    vadro::Conectar(cmdCancelar, &QPushButton::clicked, this, [this] {
        editor.Cancelar();
        reject();
    });

    vadro::Conectar(updIntervalos, &ArribaAbajo::Subir, this, [this] {
        if (editor.Intervalos < 1000) {
            Manejar([&] { editor.CambiarIntervalos(editor.Intervalos + 1); });
        }
    });
    vadro::Conectar(updIntervalos, &ArribaAbajo::Bajar, this, [this] {
        if (editor.Intervalos > 0) {
            Manejar([&] { editor.CambiarIntervalos(editor.Intervalos - 1); });
        }
    });
    vadro::Conectar(grdIntervalos, &QTableView::doubleClicked, this, [this] { AbrirCelda(0); });
    vadro::Conectar(grdIntervalos->selectionModel(), &QItemSelectionModel::currentChanged, this,
                    [this](const QModelIndex& actual, const QModelIndex& /*anterior*/) {
                        if (!mostrando_ && actual.isValid()) {
                            editor.FilaActual = actual.row() + 1;
                            editor.ColumnaActual = actual.column();
                        }
                    });
    grdIntervalos->installEventFilter(this);
    txtValor->installEventFilter(this);
}

void frmFuncionValor::Mostrar() {
    mostrando_ = true;
    for (std::size_t i = 0; i < entradas.size(); ++i) {
        const QString texto = Q(editor.Textos[i]);
        if (entradas[i]->text() != texto) {
            entradas[i]->setText(texto);
        }
    }
    const std::pair<QCheckBox*, bool> casillas[] = {
        {chkMinUsuario, editor.chkMinUsuario},       {chkMaxUsuario, editor.chkMaxUsuario},
        {chkAjustarMinRef, editor.chkAjustarMinRef}, {chkAjustarMaxRef, editor.chkAjustarMaxRef},
        {chkMinRefUsuario, editor.chkMinRefUsuario}, {chkMaxRefUsuario, editor.chkMaxRefUsuario},
        {chkOptativos, editor.chkOptativos}};
    for (const auto& [casilla, marcada] : casillas) {
        casilla->setChecked(marcada);
    }
    entradas[static_cast<std::size_t>(Campo::MinRef)]->setEnabled(editor.MinRefHabilitado);
    entradas[static_cast<std::size_t>(Campo::MaxRef)]->setEnabled(editor.MaxRefHabilitado);
    cbbTipoFuncionPrimaria->setCurrentIndex(editor.Tipo);
    cbbTipoFuncionPrimaria->setEnabled(editor.TipoHabilitado);
    cmdCargar->setEnabled(editor.PlantillasHabilitadas);
    cmdGuardar->setEnabled(editor.PlantillasHabilitadas);
    tspSeleccion->setCurrentIndex(editor.Pestana - 1);

    const Paneles& p = editor.paneles;
    Visible(pctFondoGrafica, p.FondoGrafica);
    Visible(fmeContinua, p.Continua);
    Visible(fmeEscalon, p.Escalon);
    Visible(pctTablas, p.Tablas);
    Visible(pctError, p.Error);
    Visible(pctOptativos, p.Optativos);
    Visible(entradas[static_cast<std::size_t>(Campo::MinRef)], p.Referencias);
    Visible(entradas[static_cast<std::size_t>(Campo::MaxRef)], p.Referencias);
    Visible(lblMinRef, !p.Referencias);
    Visible(lblMaxRef, !p.Referencias);

    lblMinRef->setText(Q(editor.lblMinRef));
    lblMaxRef->setText(Q(editor.lblMaxRef));
    lblLimitesC->setText(Q(editor.lblLimitesC));
    lblLimitesK->setText(Q(editor.lblLimitesK));
    lblLimitesP->setText(Q(editor.lblLimitesP));
    lblMinimo->setText(Q(editor.lblMinimo));
    lblMaximo->setText(Q(editor.lblMaximo));
    lblEjeX->setText(Q(editor.Texto(Campo::Unidades)));
    MostrarRejilla();
    pctOptativos->Mostrar();
    pctTablas->Mostrar();
    pctGrafica->update();

    if (editor.foco) {
        QLineEdit* entrada = entradas[static_cast<std::size_t>(editor.foco->campo)];
        editor.foco.reset();
        entrada->setFocus();
        entrada->selectAll();
    }
    mostrando_ = false;
}

void frmFuncionValor::MostrarRejilla() {
    lblIntervalos->setText(QString::number(editor.Intervalos));
    grdIntervalos->setEnabled(editor.RejillaHabilitada);
    modeloIntervalos->Refrescar();
    const QModelIndex actual = modeloIntervalos->index(editor.FilaActual - 1, editor.ColumnaActual);
    if (actual.isValid() && grdIntervalos->currentIndex() != actual) {
        grdIntervalos->setCurrentIndex(actual);
    }
    if (!editor.EntradaAbierta && txtValor->isVisible()) {
        // The grid takes the focus before the input goes: a focused input that is hidden
        // hands the focus on, and the grid would take that as a move to the next cell.
        if (txtValor->hasFocus()) {
            grdIntervalos->setFocus();
        }
        txtValor->hide();
    }
}

void frmFuncionValor::AbrirCelda(int tecla) {
    Manejar([&] {
        if (editor.AbrirCelda()) {
            Editar(*grdIntervalos, *txtValor, tecla);
        }
    });
}

bool frmFuncionValor::eventFilter(QObject* objeto, QEvent* evento) {
    bool usado = false;
    EjecutarProtegido([&] {
        for (std::size_t i = 0; i < entradas.size(); ++i) {
            if (objeto == entradas[i]) {
                usado = FiltrarEntrada(static_cast<Campo>(i), evento);
                return;
            }
        }
        if (objeto == txtValor) {
            usado = FiltrarValor(evento);
        } else if (objeto == grdIntervalos) {
            usado = FiltrarRejilla(evento);
        } else if ((objeto == lblMinRef || objeto == lblMaxRef) &&
                   evento->type() == QEvent::MouseButtonRelease) {
            Manejar([&] { editor.ClickEtiquetaRef(objeto == lblMaxRef); });
        }
    });
    if (usado) {
        // A used key stops here: it must not reach the grid or the dialog's default button.
        evento->accept();
        return true;
    }
    return QDialog::eventFilter(objeto, evento);
}

bool frmFuncionValor::FiltrarEntrada(Campo campo, QEvent* evento) {
    const bool limite = campo == Campo::Min || campo == Campo::Max || campo == Campo::MinRef ||
                        campo == Campo::MaxRef;
    if (evento->type() == QEvent::FocusIn && limite) {
        auto* entrada = entradas[static_cast<std::size_t>(campo)];
        QTimer::singleShot(0, entrada, [entrada] { entrada->selectAll(); });
    } else if (evento->type() == QEvent::FocusOut && !mostrando_ && SalidaReal(evento)) {
        Manejar([&] { editor.Salir(campo); });
    } else if (evento->type() == QEvent::KeyPress) {
        const int tecla = CodigoTecla(static_cast<QKeyEvent*>(evento)->key());
        bool usada = false;
        if (tecla != 0) {
            Manejar([&] { usada = editor.Tecla(campo, tecla); });
        }
        return usada;
    }
    return false;
}

bool frmFuncionValor::FiltrarValor(QEvent* evento) {
    if (evento->type() == QEvent::KeyPress) {
        const int tecla = CodigoTecla(static_cast<QKeyEvent*>(evento)->key());
        if (tecla == 0) {
            return false;
        }
        const QString texto = txtValor->text();
        Manejar([&] { editor.TeclaEntrada(tecla, ACadena(texto)); });
        return true;
    }
    if (evento->type() == QEvent::FocusOut && !mostrando_ && SalidaReal(evento) &&
        editor.EntradaAbierta) {
        const QString texto = txtValor->text();
        Manejar([&] { editor.SalirCelda(ACadena(texto)); });
    }
    return false;
}

bool frmFuncionValor::FiltrarRejilla(QEvent* evento) {
    if (evento->type() != QEvent::KeyPress || editor.EntradaAbierta) {
        return false;
    }
    const auto* tecla = static_cast<QKeyEvent*>(evento);
    if (tecla->key() == Qt::Key_Return || tecla->key() == Qt::Key_Enter) {
        AbrirCelda(13);
        return true;
    }
    const QString texto = tecla->text();
    if (texto.isEmpty() || texto.front().unicode() < 32 || texto.front() == QChar(127)) {
        return false;
    }
    AbrirCelda(static_cast<int>(texto.toUcs4().front()));
    return true;
}

void frmFuncionValor::showEvent(QShowEvent* evento) {
    QDialog::showEvent(evento);
    if (!activado_) {
        activado_ = true;
        Manejar([&] { editor.Activar(); });
    }
}

void frmFuncionValor::reject() {
    EjecutarProtegido([&] {
        if (editor.PuedeCerrar()) {
            QDialog::reject();
        }
    });
}

void frmFuncionValor::done(int resultado) {
    Cargado = false;
    QDialog::done(resultado);
}

bool EditarFuncion(int fila, const std::string& nombre, QWidget* padre) {
    Sesion& sesion = SesionActual();
    sesion.NodoEdicionActual = static_cast<int16_t>(fila);
    frmFuncionValor ventana(sesion.NodosEdicion(fila).Funcion, nombre, padre);
    return MostrarModal(ventana) == QDialog::Accepted;
}

} // namespace vadro
