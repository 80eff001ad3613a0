#pragma once

#include "core/functions/editor_funcion.h"
#include "windows/core/ventana.h"

#include <QDialog>

#include <array>
#include <functional>
#include <string>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTabBar;
class QTableView;

namespace vadro {

class ArribaAbajo;
class LienzoGrafica;
class ModeloTabla;
class PanelOptativos;
class PanelPuntuacion;

// The modal window in which one value function is edited: its limits, its kind, the shape
// of a continuous function or the intervals of a step function, and its picture. The rules
// live in `EditorFuncion`; the window shows its state, hands it what the user does and
// shows the state again. It reads the record on opening and writes it only on acceptance.
class frmFuncionValor : public QDialog, public Ventana {
    Q_OBJECT
public:
    // An indicator's function, shown with the indicator's name in the caption.
    frmFuncionValor(FuncionValor& registro, const std::string& nombre, QWidget* padre = nullptr);
    // The function of an optional indicator: the kinds "Continua" and "Escalón" only, without
    // the tab strip and the optional indicators.
    frmFuncionValor(FuncionOptativo& registro, const std::string& caption,
                    QWidget* padre = nullptr);

    ~frmFuncionValor() override;

    void AjustarControles() override;

    // Opens the second window, modally, on the function of the optional indicator of row
    // `fila`, and draws that function again when it closes.
    void EditarOptativo(int fila);

    EditorFuncion editor;

    QComboBox* cbbTipoFuncionPrimaria;
    QCheckBox* chkOptativos;
    QTabBar* tspSeleccion;
    QPushButton* cmdAceptar;
    QPushButton* cmdCancelar;
    QPushButton* cmdCargar;
    QPushButton* cmdGuardar;

    QWidget* pctFondoGrafica;
    QGroupBox* fmeContinua;
    QGroupBox* fmeEscalon;
    PanelPuntuacion* pctTablas;
    QWidget* pctError;
    PanelOptativos* pctOptativos;

    // The inputs in the order of `Campo`.
    std::array<QLineEdit*, kCampos> entradas{};
    QCheckBox* chkMinUsuario;
    QCheckBox* chkMaxUsuario;
    QCheckBox* chkAjustarMinRef;
    QCheckBox* chkAjustarMaxRef;
    QCheckBox* chkMinRefUsuario;
    QCheckBox* chkMaxRefUsuario;
    QLabel* lblMinRef;
    QLabel* lblMaxRef;
    QLabel* lblLimitesC;
    QLabel* lblLimitesK;
    QLabel* lblLimitesP;
    std::array<ArribaAbajo*, 3> upd{}; // updC, updK, updP
    std::array<QPushButton*, 4> cmdFuncion{};

    LienzoGrafica* pctGrafica;
    QLabel* lblEjeX;
    QLabel* lblEjeY;
    QLabel* lblMinimo;
    QLabel* lblMaximo;
    QLabel* lblMinPorcentaje;
    QLabel* lblMaxPorcentaje;

    QLabel* lblIntervalos;
    ArribaAbajo* updIntervalos;
    QTableView* grdIntervalos;
    QLineEdit* txtValor;
    ModeloTabla* modeloIntervalos;

protected:
    void done(int resultado) override;
    void reject() override;
    void showEvent(QShowEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void Construir();
    QWidget* ConstruirLimites();
    QWidget* ConstruirContinua();
    QWidget* ConstruirEscalon();
    QWidget* ConstruirGrafica();
    void Conectar();
    void Cargar();

    // Runs a handler of the editor and shows what it left.
    template <typename Accion> void Manejar(Accion accion);
    void ManejarAccion(const std::function<void()>& accion);
    void Mostrar();
    void MostrarRejilla();
    bool FiltrarEntrada(Campo campo, QEvent* evento);
    bool FiltrarValor(QEvent* evento);
    bool FiltrarRejilla(QEvent* evento);
    void AbrirCelda(int tecla);

    bool mostrando_ = false;
    bool activado_ = false;
};

// Opens the editor modally on the function of row `fila` of the working table
// `NodosEdicion`, the indicator's name in the caption; `NodoEdicionActual` becomes that row.
// True when the function was accepted (and written to the row).
bool EditarFuncion(int fila, const std::string& nombre, QWidget* padre);

} // namespace vadro
