#include "windows/core/servicios_qt.h"

#include "core/core/dialogos.h"
#include "core/core/mensajes.h"
#include "windows/core/conectar.h"
#include "windows/core/texto.h"

#include <QApplication>
#include <QFileDialog>
#include <QHeaderView>
#include <QLibraryInfo>
#include <QMessageBox>
#include <QPageLayout>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QTranslator>
#include <QTreeView>

namespace vadro {

namespace {

QMessageBox::Icon IconoQt(Icono icono) {
    switch (icono) {
    case Icono::Critico:
        return QMessageBox::Critical;
    case Icono::Pregunta:
        return QMessageBox::Question;
    case Icono::Exclamacion:
        return QMessageBox::Warning;
    case Icono::Informacion:
        return QMessageBox::Information;
    case Icono::Ninguno:
        break;
    }
    return QMessageBox::NoIcon;
}

struct BotonMensaje {
    const char* texto;
    QMessageBox::ButtonRole papel;
    Respuesta respuesta;
};

std::vector<BotonMensaje> BotonesDe(Botones botones) {
    const BotonMensaje aceptar{"Aceptar", QMessageBox::AcceptRole, Respuesta::Aceptar};
    const BotonMensaje cancelar{"Cancelar", QMessageBox::RejectRole, Respuesta::Cancelar};
    const BotonMensaje si{"Sí", QMessageBox::YesRole, Respuesta::Si};
    const BotonMensaje no{"No", QMessageBox::NoRole, Respuesta::No};
    switch (botones) {
    case Botones::AceptarCancelar:
        return {aceptar, cancelar};
    case Botones::SiNo:
        return {si, no};
    case Botones::SiNoCancelar:
        return {si, no, cancelar};
    case Botones::ReintentarCancelar:
        return {{"Reintentar", QMessageBox::AcceptRole, Respuesta::Reintentar}, cancelar};
    case Botones::Aceptar:
        break;
    }
    return {aceptar};
}

Respuesta MostrarMensajeQt(const Mensaje& mensaje) {
    QMessageBox caja(IconoQt(mensaje.icono), Q(mensaje.titulo), Q(mensaje.texto),
                     QMessageBox::NoButton, QApplication::activeWindow());
    const auto botones = BotonesDe(mensaje.botones);
    std::vector<std::pair<QAbstractButton*, Respuesta>> respuestas;
    for (const auto& boton : botones) {
        respuestas.emplace_back(caja.addButton(Q(boton.texto), boton.papel), boton.respuesta);
    }
    caja.setDefaultButton(qobject_cast<QPushButton*>(respuestas.front().first));
    caja.exec();
    for (const auto& [boton, respuesta] : respuestas) {
        if (caja.clickedButton() == boton) {
            return respuesta;
        }
    }
    // Closed with Escape or the window's button: the answer of the cancelling button.
    return botones.size() == 1
               ? botones.front().respuesta
               : (mensaje.botones == Botones::SiNo ? Respuesta::No : Respuesta::Cancelar);
}

// Where the dialog shows its files in columns, each is wide enough to be read.
void AnchoColumnas(QFileDialog& dialogo) {
    for (QTreeView* lista : dialogo.findChildren<QTreeView*>()) {
        QHeaderView* cabecera = lista->header();
        cabecera->setMinimumSectionSize(
            dialogo.fontMetrics().horizontalAdvance(QStringLiteral("MMMMMMMM")));
        cabecera->setSectionResizeMode(0, QHeaderView::Stretch);
        for (int columna = 1; columna < cabecera->count(); ++columna) {
            cabecera->setSectionResizeMode(columna, QHeaderView::ResizeToContents);
        }
    }
}

std::optional<RespuestaDialogo> MostrarDialogoQt(const PeticionDialogo& peticion) {
    QFileDialog dialogo(QApplication::activeWindow(), Q(peticion.titulo),
                        Q(peticion.directorioInicial));
    const bool guardar = peticion.tipo == TipoDialogo::Guardar;
    dialogo.setAcceptMode(guardar ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialogo.setFileMode(guardar ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialogo.setOption(QFileDialog::DontConfirmOverwrite,
                      (peticion.flags & DlgPreguntarSobrescribir) == 0);
    const QStringList filtros = FiltrosQt(Q(peticion.filtro));
    // A name typed without extension gets the chosen filter's, before the dialog asks about
    // overwriting, so that it asks about the file that will be written.
    const auto sufijo = [&](const QString& filtro) {
        const std::string extension =
            ExtensionDelFiltro(peticion.filtro, static_cast<int>(filtros.indexOf(filtro)) + 1);
        dialogo.setDefaultSuffix(extension.empty() ? QString() : Q(extension.substr(1)));
    };
    if (!filtros.isEmpty()) {
        dialogo.setNameFilters(filtros);
        dialogo.selectNameFilter(
            filtros.value(std::max(0, peticion.indiceFiltro - 1), filtros.front()));
        if (guardar) {
            sufijo(dialogo.selectedNameFilter());
            Conectar(&dialogo, &QFileDialog::filterSelected, &dialogo, sufijo);
        }
    }
    if (!peticion.nombreArchivo.empty()) {
        dialogo.selectFile(Q(peticion.nombreArchivo));
    }
    AnchoColumnas(dialogo);
    if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return RespuestaDialogo(ACadena(dialogo.selectedFiles().front()),
                            static_cast<int>(filtros.indexOf(dialogo.selectedNameFilter())) + 1);
}

std::optional<ImpresoraElegida> MostrarImpresoraQt(const PeticionImpresora& peticion) {
    QPrinter impresora;
    QPrintDialog dialogo(&impresora, QApplication::activeWindow());
    dialogo.setOption(QAbstractPrintDialog::PrintToFile, (peticion.flags & ImpOcultarArchivo) == 0);
    dialogo.setOption(QAbstractPrintDialog::PrintPageRange,
                      (peticion.flags & ImpSinNumerosPagina) == 0);
    dialogo.setOption(QAbstractPrintDialog::PrintSelection,
                      (peticion.flags & ImpSinSeleccion) == 0);
    if (dialogo.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    ImpresoraElegida elegida;
    elegida.nombre = ACadena(impresora.printerName());
    elegida.archivo = ACadena(impresora.outputFileName());
    elegida.copias = impresora.copyCount();
    const QPageLayout pagina = impresora.pageLayout();
    elegida.apaisado = pagina.orientation() == QPageLayout::Landscape;
    const QSizeF papel = pagina.pageSize().size(QPageSize::Point);
    elegida.anchoPapel = papel.width();
    elegida.altoPapel = papel.height();
    return elegida;
}

} // namespace

QStringList FiltrosQt(const QString& filtro) {
    const QStringList partes = filtro.split(QLatin1Char('|'));
    QStringList filtros;
    for (qsizetype i = 0; i + 1 < partes.size(); i += 2) {
        QString patrones = partes[i + 1];
        patrones.replace(QLatin1Char(';'), QLatin1Char(' '));
        // Qt reads the patterns from the parentheses that end a filter.
        const QString final = QLatin1Char('(') + patrones + QLatin1Char(')');
        filtros << (partes[i].endsWith(final) ? partes[i] : partes[i] + QLatin1Char(' ') + final);
    }
    return filtros;
}

bool CargarTraduccionQt() {
    static QTranslator traduccion;
    const QStringList carpetas = {QCoreApplication::applicationDirPath() +
                                      QStringLiteral("/translations"),
                                  QLibraryInfo::path(QLibraryInfo::TranslationsPath)};
    for (const QString& carpeta : carpetas) {
        if (traduccion.load(QStringLiteral("qtbase_es"), carpeta)) {
            QCoreApplication::installTranslator(&traduccion);
            return true;
        }
    }
    return false;
}

void InstalarServiciosQt() {
    InstalarMensajes(MostrarMensajeQt);
    InstalarDialogos(MostrarDialogoQt);
    InstalarImpresora(MostrarImpresoraQt);
}

} // namespace vadro
