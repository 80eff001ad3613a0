// The commands of the main window on the model as a whole: new, open, save, save as,
// compile, print, the subcriteria permission and the template entries. The decisions are the
// core's; here they meet the windows.
#include "core/core/error_ejecucion.h"
#include "core/core/mensajes.h"
#include "core/core/sesion.h"
#include "core/files/modelo_archivo.h"
#include "core/reports/comandos_informe.h"
#include "core/reports/informe_modelo.h"
#include "core/shell/comandos_modelo.h"
#include "windows/compilation/frmCompilacion.h"
#include "windows/core/conectar.h"
#include "windows/core/frmInicio.h"
#include "windows/core/modal.h"
#include "windows/core/texto.h"
#include "windows/reports/frmInforme.h"
#include "windows/reports/impresion.h"
#include "windows/shell/frmConfigEjes.h"
#include "windows/shell/frmEjes.h"
#include "windows/shell/frmPrincipal.h"
#include "windows/shell/frmPropiedades.h"
#include "windows/trees/frmComponentes.h"
#include "windows/trees/frmEtapas.h"
#include "windows/trees/frmRequerimientos.h"

#include <QMenu>

namespace vadro {

namespace {

constexpr ParteModelo kPartes[] = {ParteModelo::Requerimientos, ParteModelo::Componentes,
                                   ParteModelo::Etapas};

// Where a model stands once it is open: the panel, the model menu, the design group, and
// "Ejes" with its window.
Transicion TransicionModeloAbierto() {
    Transicion abrir;
    abrir.ajuste.panel = true;
    abrir.ajuste.menuModelo = true;
    abrir.ajuste.botonContinuar = true;
    abrir.ajuste.grupoDiseno = true;
    abrir.cargar = {Hija::Ejes};
    abrir.destino = Posicion::Ejes;
    return abrir;
}

} // namespace

void frmPrincipal::Nuevo() {
    Modelo& modelo = SesionActual().modelo;
    if (!GuardarAntesDeNuevo(modelo)) {
        return;
    }
    InicializarModelo(modelo);
    for (int i : {EtqRequerimientos, EtqComponentes, EtqCicloVida}) {
        MarcarPaso(i, false);
    }
    setWindowTitle(Q(kTituloPrincipal) + Q(" - [...]"));
    DescargarTodas();
    pctPrincipal->show();
    Propiedades();
    Transicion abrir = TransicionModeloAbierto();
    abrir.ajuste.botonRetroceder = false;
    Aplicar(abrir);
}

void frmPrincipal::Abrir() {
    if (frmInicio* inicio = frmInicio::Abierto()) {
        inicio->close();
    }
    if (AbrirModelo(SesionActual())) {
        MostrarModeloAbierto();
    }
}

// The windows after a model was read: the caption, the permission, no design window with the
// old model, the summary refilled, the step labels by the content, and "Ejes" if it was not
// open.
void frmPrincipal::MostrarModeloAbierto() {
    const Modelo& modelo = SesionActual().modelo;
    TituloConArchivo(modelo.Archivo);
    mnuPermitirSubcriterios->setChecked(modelo.ConSubcriterios);
    for (Hija diseno : {Hija::Requerimientos, Hija::Componentes, Hija::Etapas}) {
        Descargar(diseno);
    }
    for (ParteModelo parte : kPartes) {
        AvisarResumen(parte);
    }
    for (const auto& [etiqueta, satisfecha] : EtiquetasTrasAbrir(modelo)) {
        MarcarPaso(etiqueta, satisfecha);
    }
    if (Abierta(Hija::Ejes) == nullptr) {
        Aplicar(TransicionModeloAbierto());
        // The opening leaves the background hidden, after the axes window has shown it.
        pctFondo->hide();
    }
}

void frmPrincipal::AvisarResumen(ParteModelo parte) {
    if (VentanaHija* resumen = Abierta(Hija::Resumen)) {
        resumen->ModeloCambiado(parte);
    }
}

void frmPrincipal::AvisarAceptacion(ParteModelo parte, const VentanaHija& origen) {
    for (Hija hija : {Hija::Resumen, Hija::Ponderacion, Hija::Informe}) {
        VentanaHija* abierta = Abierta(hija);
        if (abierta != nullptr && abierta != &origen) {
            abierta->ModeloCambiado(parte);
        }
    }
}

void frmPrincipal::Guardar() {
    Sesion& sesion = SesionActual();
    Modelo& modelo = sesion.modelo;
    if (NecesitaNombre(modelo.Archivo) &&
        !ElegirArchivoModelo(modelo, sesion.DirectorioPrograma, false)) {
        return;
    }
    // A save takes what stands in the open design windows, without accepting them.
    if (frmRequerimientos* requerimientos = Abierta<frmRequerimientos>()) {
        requerimientos->LlamaLlenarRequerimientos();
    }
    if (frmComponentes* componentes = Abierta<frmComponentes>()) {
        componentes->LlamaLlenarComponentes();
    }
    if (frmEtapas* etapas = Abierta<frmEtapas>()) {
        etapas->LlamaLlenarEtapas();
    }
    GuardarModelo(modelo, modelo.Archivo, false);
    TituloConArchivo(modelo.Archivo);
}

void frmPrincipal::GuardarComo() {
    Sesion& sesion = SesionActual();
    if (vadro::GuardarComo(sesion.modelo, sesion.DirectorioPrograma)) {
        TituloConArchivo(sesion.modelo.Archivo);
    }
}

void frmPrincipal::Compilar() {
    if (!ModeloCompilable(SesionActual().modelo)) {
        return;
    }
    PintarEtiqueta(EtqCompilacion, QColor(0, 0, 0), false);
    Descargar(Hija::Compilacion);
    auto& compilacion = dynamic_cast<frmCompilacion&>(Cargar(Hija::Compilacion));
    Conectar(&compilacion, &frmCompilacion::IrAError, this,
             [this](const QString& clave) { IrAError(clave); });
}

void frmPrincipal::Imprimir() {
    // The report is printed from its window: one loaded only for this goes again, and the
    // background stands as it stood.
    const bool deMomento = Abierta(Hija::Informe) == nullptr;
    const bool conFondo = pctFondo->isVisibleTo(this);
    try {
        auto& informe = dynamic_cast<frmInforme&>(Cargar(Hija::Informe));
        ImprimirInforme(informe);
    } catch (const ErrorEjecucion& error) {
        if (error.Numero() != ErrCancelar) {
            const Mensaje fallo = MensajeFalloImprimirModelo(error.Numero());
            MsgBox(fallo.texto, fallo.botones, fallo.icono, fallo.titulo);
        }
    }
    if (deMomento) {
        Descargar(Hija::Informe);
        pctFondo->setVisible(conFondo);
    }
}

// The preview and the PDF read the report of the model as it stands, with or without its
// window.
void frmPrincipal::VistaPreliminar() {
    VistaPreliminarInforme(GenerarInforme(SesionActual().modelo), this);
}

void frmPrincipal::ExportarPdf() {
    const Sesion& sesion = SesionActual();
    ExportarInformePdf(sesion, [&sesion](const std::string& ruta) {
        EscribirInformePdf(GenerarInforme(sesion.modelo), ruta);
    });
}

void frmPrincipal::TituloConArchivo(const std::string& archivo) {
    setWindowTitle(Q(kTituloPrincipal) + Q(" - [") + Q(archivo) + Q("]"));
}

void frmPrincipal::mnuPermitirSubcriterios_Click() {
    // The click has turned the check over already; the command decides where it stands.
    const bool marcado = !mnuPermitirSubcriterios->isChecked();
    mnuPermitirSubcriterios->setChecked(marcado);
    const CambioSubcriterios cambio = CambiarPermisoSubcriterios(SesionActual().modelo, marcado);
    if (cambio == CambioSubcriterios::Ninguno) {
        return;
    }
    const bool permitidos = cambio == CambioSubcriterios::Permitidos;
    mnuPermitirSubcriterios->setChecked(permitidos);
    if (!permitidos) {
        AvisarResumen(ParteModelo::Requerimientos);
    }
    if (VentanaHija* requerimientos = Abierta(Hija::Requerimientos)) {
        requerimientos->PermisoSubcriterios(permitidos);
    }
}

void frmPrincipal::Plantilla(const EntradaPlantilla& entrada) {
    Sesion& sesion = SesionActual();
    if (!EjecutarPlantilla(sesion, entrada) || !entrada.importar) {
        return;
    }
    const Hija diseno = HijaDeParte(entrada.parte);
    const EfectoImportacion efecto = EfectoTrasImportar(
        entrada.parte, Abierta(Hija::Resumen) != nullptr, Abierta(diseno) != nullptr);
    if (efecto.seguirPermiso) {
        mnuPermitirSubcriterios->setChecked(sesion.modelo.ConSubcriterios);
    }
    MarcarPaso(efecto.etiqueta, true);
    if (efecto.rellenarResumen) {
        AvisarResumen(entrada.parte);
    }
    if (efecto.rellenarDiseno) {
        Abierta(diseno)->ModeloCambiado(entrada.parte);
    }
    if (efecto.cargarDiseno) {
        Cargar(diseno);
    }
}

void frmPrincipal::ConfigurarEjes() {
    frmConfigEjes configuracion(this);
    if (MostrarModal(configuracion) == QDialog::Accepted) {
        if (frmEjes* ejes = Abierta<frmEjes>()) {
            ejes->MostrarEjes();
        }
    }
}

void frmPrincipal::Propiedades() {
    frmPropiedades propiedades(this);
    MostrarModal(propiedades);
}

} // namespace vadro
