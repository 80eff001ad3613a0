#include "windows/core/servicios_qt.h"

#include "core/core/dialogos.h"
#include "core/core/mensajes.h"
#include "windows/core/texto.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

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

std::optional<std::string> MostrarDialogoQt(const PeticionDialogo& peticion) {
    QFileDialog dialogo(QApplication::activeWindow(), Q(peticion.titulo),
                        Q(peticion.directorioInicial));
    const bool guardar = peticion.tipo == TipoDialogo::Guardar;
    dialogo.setAcceptMode(guardar ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialogo.setFileMode(guardar ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialogo.setOption(QFileDialog::DontConfirmOverwrite,
                      (peticion.flags & DlgPreguntarSobrescribir) == 0);
    const QStringList filtros = FiltrosQt(Q(peticion.filtro));
    if (!filtros.isEmpty()) {
        dialogo.setNameFilters(filtros);
        dialogo.selectNameFilter(
            filtros.value(std::max(0, peticion.indiceFiltro - 1), filtros.front()));
    }
    if (!peticion.nombreArchivo.empty()) {
        dialogo.selectFile(Q(peticion.nombreArchivo));
    }
    if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return ACadena(dialogo.selectedFiles().front());
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

void InstalarServiciosQt() {
    InstalarMensajes(MostrarMensajeQt);
    InstalarDialogos(MostrarDialogoQt);
}

} // namespace vadro
