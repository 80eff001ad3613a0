#include "windows/core/inicio.h"

#include "core/core/archivos.h"
#include "core/core/configuracion.h"
#include "core/core/directorio_programa.h"
#include "core/core/error_ejecucion.h"
#include "core/core/mensajes.h"
#include "windows/core/esperar.h"
#include "windows/core/frmAvisoVersionBeta.h"
#include "windows/core/frmInicio.h"
#include "windows/core/frmSplash.h"
#include "windows/core/modal.h"
#include "windows/core/servicios_qt.h"
#include "windows/core/texto.h"
#include "windows/shell/frmPrincipal.h"

#include <QApplication>
#include <QScreen>

namespace vadro {

Arranque::Arranque() : esperar(Esperar) {}

Arranque::~Arranque() = default;

bool Arranque::PreguntarSiHayOtraInstancia() {
    const std::string ruta = UnirRuta(SesionActual().DirectorioPrograma, "vadro-programador.lock");
    cerrojo_ = std::make_unique<QLockFile>(Q(ruta));
    cerrojo_->setStaleLockTime(0);
    // Only a lock held by a live process is another instance; a folder that cannot be written
    // holds no lock at all.
    if (cerrojo_->tryLock(0) || cerrojo_->error() != QLockFile::LockFailedError) {
        return true;
    }
    // Another instance holds it: the user may still start a second one, side by side.
    return MsgBox("Ya existe una instancia abierta de la aplicación. Desea iniciar una instancia "
                  "nueva?",
                  Botones::SiNo, Icono::Pregunta, "Proyecto VADRO") == Respuesta::Si;
}

bool Arranque::Iniciar() {
    Sesion& sesion = SesionActual();
    sesion.configuracion.ModoLineaComandos = false;
    if (!PreguntarSiHayOtraInstancia()) {
        return false;
    }
    CargarConfiguracion(sesion);

    splash_ = std::make_unique<frmSplash>();
    splash_->show();
    principal_ = std::make_unique<frmPrincipal>();
    esperar(3);

    if (sesion.configuracion.MostrarAvisoBeta) {
        frmAvisoVersionBeta aviso;
        MostrarModal(aviso);
    }
    if (const QScreen* pantalla = QGuiApplication::primaryScreen()) {
        principal_->setGeometry(pantalla->availableGeometry());
    }
    principal_->show();
    splash_->hide();
    if (sesion.configuracion.MostrarInicio) {
        frmInicio inicio([this] { principal_->Nuevo(); }, [this] { principal_->Abrir(); },
                         principal_.get());
        MostrarModal(inicio);
    }
    splash_.reset();
    return true;
}

int Main(int argc, char* argv[]) {
    if (argc > 1) {
        SesionActual().configuracion.ModoLineaComandos = true;
        return 0;
    }
    QApplication aplicacion(argc, argv);
    SesionActual().DirectorioPrograma =
        ResolverDirectorioPrograma(ACadena(QCoreApplication::applicationDirPath()));
    InstalarServiciosQt();
    CargarTraduccionQt();
    Arranque arranque;
    try {
        if (!arranque.Iniciar()) {
            return 0;
        }
    } catch (const ErrorEjecucion& error) {
        MsgBox(TextoErrorEjecucion(error), Botones::Aceptar, Icono::Critico, "VADRO PROGRAMADOR");
        return 1;
    }
    return QApplication::exec();
}

} // namespace vadro
