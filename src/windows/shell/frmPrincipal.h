#pragma once

#include "core/shell/flujo_trabajo.h"
#include "core/shell/plantillas_menu.h"
#include "windows/core/ventana.h"
#include "windows/shell/ventana_hija.h"

#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>

#include <array>
#include <optional>
#include <string>
#include <vector>

class QAction;
class QFrame;
class QLabel;
class QMenu;
class QPushButton;
class QStatusBar;
class QTimer;
class QToolBar;

namespace vadro {

class EtiquetaPaso;
struct DestinoError;

inline constexpr const char* kTituloPrincipal = "VADRO PROGRAMADOR";

// The one multiple-document window of the program. It owns the position of the workflow,
// the step panel, the menus, the toolbar and the status bar; every other window is its child
// or a modal dialog.
class frmPrincipal : public QMainWindow, public Ventana {
    Q_OBJECT
public:
    explicit frmPrincipal(QWidget* padre = nullptr);
    void AjustarControles() override;

    // The commands on the model as a whole.
    void Nuevo();
    void Abrir();
    void Guardar();
    void GuardarComo();
    void Compilar();
    void Imprimir();
    // The report as a print preview, and as a PDF file.
    void VistaPreliminar();
    void ExportarPdf();
    // The model menu: the subcriteria permission, a template entry, the axes, the properties.
    void mnuPermitirSubcriterios_Click();
    void Plantilla(const EntradaPlantilla& entrada);
    void ConfigurarEjes();
    void Propiedades();

    // The walk along the line of positions.
    void Continuar();
    void Retroceder();
    void lblMenu_Click(int indice);
    void tlbPrincipal_ButtonClick(const QString& clave);
    void Ejecutar(Comando comando);

    // The doors to the three design windows.
    void AbrirRequerimientos();
    void AbrirComponentes();
    void AbrirEtapas();

    // A double click on a finding of the report: the way to its place in the model.
    void IrAError(const QString& clave);

    // Ventana › Organizar: the child windows in cascade.
    void Organizar();

    // The position of the workflow; `Ninguna` before a model is open.
    vadro::Posicion Posicion() const { return posicion_; }

    // Panel 1 of the status bar: the position, or a hint.
    void EscribirPosicion();
    void EscribirEstado(const QString& texto);
    QString TextoEstado() const;

    // Step labels: the normal look when the step is satisfied, red and bold when it is not.
    void MarcarPaso(int indice, bool satisfecho);
    QColor ColorNormal() const;

    // A toolbar button by its place, from 1, separators counted.
    QAction* Boton(int indice) const;

    // The child windows. A window is open while it is loaded: its `Cargado` flag says so.
    VentanaHija* Abierta(Hija hija) const;
    template <typename T> T* Abierta() const {
        for (QMdiSubWindow* marco : mdiCliente->subWindowList()) {
            if (auto* ventana = dynamic_cast<T*>(marco->widget());
                ventana != nullptr && ventana->Cargado) {
                return ventana;
            }
        }
        return nullptr;
    }
    // Loads a window, or brings it to the front when it is open already.
    VentanaHija& Cargar(Hija hija);
    // Unloads a window if it is open.
    void Descargar(Hija hija);

    QMdiArea* mdiCliente;
    QWidget* pctFondo;
    QFrame* pctPrincipal;
    std::array<EtiquetaPaso*, 9> lblMenu{};
    QPushButton* cmdRetroceder;
    QPushButton* cmdContinuar;
    QStatusBar* stbEstado;
    QToolBar* tlbPrincipal;
    QTimer* tmrAutoguardado;

    QMenu* mnuArchivo;
    QAction* mnuNuevo;
    QAction* mnuAbrir;
    QAction* mnuGuardar;
    QAction* mnuGuardarComo;
    QAction* mnuVista;
    QAction* mnuImprimir;
    QAction* mnuExportarPDF;
    QAction* mnuPreferencias;
    QAction* mnuSalir;
    QMenu* mnuModelo;
    QMenu* mnuImportar;
    QAction* mnuImportarR;
    QAction* mnuImportarComp;
    QAction* mnuImportarEtapas;
    QMenu* mnuExportar;
    QAction* mnuExportarR;
    QAction* mnuExportarComp;
    QAction* mnuExportarEtapas;
    QAction* mnuPermitirSubcriterios;
    QAction* mnuConfiguracionEjes;
    QAction* mnuRequerimientos;
    QAction* mnuComponentes;
    QAction* mnuEtapas;
    QAction* mnuCompilar;
    QAction* mnuPropiedades;
    QMenu* mnuArbolR;
    QMenu* mnuArbolC;
    QMenu* mnuVentana;
    QAction* mnuOrganizar;
    QMenu* mnuAyuda;
    QAction* mnuManual;
    QAction* mnuAcercaDe;

protected:
    void closeEvent(QCloseEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void CrearPanelPasos();
    void CrearBarraHerramientas();
    void CrearMenus();
    void CrearMenusArbol();
    void ConectarMenus();

    // Applies one step of the workflow, in the order the step gives.
    void Aplicar(const Transicion& transicion);
    void AplicarPaso(const Transicion& transicion);
    void AplicarAjuste(const Ajuste& ajuste);
    void AplicarEfecto(const EfectoHija& efecto, bool alCargar);
    void PreguntarPermisos();
    void FinalDeLinea();
    void Alojar(VentanaHija& ventana);
    void AceptarDiseno(Hija hija);
    void DescargarTodas();
    void PintarEtiqueta(int indice, const QColor& color, bool negrita);
    void EtiquetaNegrita(int indice, bool negrita);
    void TituloConArchivo(const std::string& archivo);
    void MostrarModeloAbierto();
    void AvisarResumen(ParteModelo parte);
    void LlegarAError(const DestinoError& destino);
    // A design window wrote its part into the model: the other open windows follow it.
    void AvisarAceptacion(ParteModelo parte, const VentanaHija& origen);
    bool CerrarHijas();
    std::vector<Hija> HijasAbiertas() const;
    // A step that a child window asks for while the main window is loading it waits for the
    // step in hand to finish.
    void PedirTransicion(const Transicion& transicion);
    void AplicarPendiente();

    vadro::Posicion posicion_ = vadro::Posicion::Ninguna;
    QLabel* panelEstado_;
    std::vector<QAction*> botones_;
    int pasosEnCurso_ = 0;
    std::optional<Transicion> pendiente_;
};

} // namespace vadro
