#include "core/core/error_ejecucion.h"
#include "soporte/errores.h"
#include "soporte/guion_modales.h"
#include "soporte/prueba_sesion.h"
#include "windows/core/frmInicio.h"
#include "windows/core/frmSplash.h"
#include "windows/core/inicio.h"
#include "windows/shell/frmPrincipal.h"

#include <QCheckBox>
#include <QDir>
#include <QLockFile>
#include <QProcess>
#include <QPushButton>

#include <gtest/gtest.h>

namespace vadro {
namespace {

class Arranque_ : public pruebas::PruebaSesion {
protected:
    Arranque_() {
        arranque.esperar = [this](int segundos) {
            pasos.push_back("esperar " + std::to_string(segundos));
            EXPECT_TRUE(arranque.Splash()->isVisible()) << "the splash shows while the start waits";
            EXPECT_FALSE(arranque.Principal()->isVisible()) << "the main window is loaded hidden";
        };
    }
    Arranque arranque;
    std::vector<std::string> pasos;
    pruebas::GuionModales modales;
};

TEST_F(Arranque_, AFirstStartRunsEveryStepInItsOrder) {
    modales.Esperar(QStringLiteral("frmAvisoVersionBeta"), [this](QDialog& aviso) {
        pasos.push_back("aviso");
        EXPECT_TRUE(arranque.Splash()->isVisible());
        EXPECT_FALSE(arranque.Principal()->isVisible()) << "full screen comes after the notice";
        pruebas::Hijo<QPushButton>(aviso, "cmdAceptar")->click();
    });
    modales.Esperar(QStringLiteral("frmInicio"), [this](QDialog& inicio) {
        pasos.push_back("inicio");
        EXPECT_TRUE(arranque.Principal()->isVisible());
        EXPECT_FALSE(arranque.Splash()->isVisible())
            << "the splash is hidden before the start screen";
        EXPECT_EQ(inicio.parent(), arranque.Principal());
        inicio.reject();
    });
    ASSERT_TRUE(arranque.Iniciar());
    EXPECT_EQ(pasos, (std::vector<std::string>{"esperar 3", "aviso", "inicio"}));
    EXPECT_EQ(arranque.Splash(), nullptr) << "the splash is unloaded at the end";
    EXPECT_EQ(arranque.Principal()->windowTitle(), QStringLiteral("VADRO PROGRAMADOR"));
    EXPECT_FALSE(sesion().configuracion.ModoLineaComandos);
}

TEST_F(Arranque_, TheNoticeAndTheStartScreenFollowTheirKeys) {
    Escribir(Ruta("Config.ini"),
             "[GENERAL]\r\nMOSTRAR_INICIO=Falso\r\nMOSTRAR_AVISO_BETA=False\r\n");
    ASSERT_TRUE(arranque.Iniciar());
    EXPECT_TRUE(modales.Vistas().empty());
    EXPECT_TRUE(arranque.Principal()->isVisible());
}

TEST_F(Arranque_, TheStartScreenLeadsToNuevoWhichClosesIt) {
    Escribir(Ruta("Config.ini"), "[GENERAL]\r\nMOSTRAR_AVISO_BETA=Falso\r\n");
    modales.Esperar(QStringLiteral("frmInicio"), [](QDialog& inicio) {
        EXPECT_EQ(frmInicio::Abierto(), &inicio);
        pruebas::Hijo<QPushButton>(inicio, "cmdNuevo")->click();
        EXPECT_FALSE(inicio.isVisible());
        EXPECT_EQ(frmInicio::Abierto(), nullptr);
    });
    // Nuevo shows the properties of the new model.
    modales.Esperar(QStringLiteral("frmPropiedades"), [](QDialog& d) { d.accept(); });
    ASSERT_TRUE(arranque.Iniciar());
    EXPECT_EQ(NombrePosicion(arranque.Principal()->Posicion()), "Ejes");
}

TEST_F(Arranque_, ASecondInstanceIsOnlyAQuestion) {
    QLockFile primera(QDir(QString::fromStdString(Directorio()))
                          .filePath(QStringLiteral("vadro-programador.lock")));
    ASSERT_TRUE(primera.tryLock(0));
    const std::string pregunta =
        "Ya existe una instancia abierta de la aplicación. Desea iniciar una instancia nueva?";
    mensajes.Esperar("Proyecto VADRO", pregunta, Respuesta::No);
    EXPECT_FALSE(arranque.Iniciar());
    EXPECT_EQ(Contenido(Ruta("Config.ini")), "") << "the configuration is not even read";

    mensajes.Esperar("Proyecto VADRO", pregunta, Respuesta::Si);
    modales.Esperar(QStringLiteral("frmAvisoVersionBeta"), [](QDialog& d) { d.accept(); });
    modales.Esperar(QStringLiteral("frmInicio"), [](QDialog& d) { d.reject(); });
    Arranque segunda;
    segunda.esperar = [](int) {};
    EXPECT_TRUE(segunda.Iniciar());
}

TEST_F(Arranque_, AFontSizeThatIsNoNumberStopsTheStart) {
    Escribir(Ruta("Config.ini"), "[GENERAL]\r\nTAMA\xD1O_FUENTE=grande\r\n");
    EXPECT_EQ(pruebas::NumeroDeError([&] { arranque.Iniciar(); }), ErrTipos);
    EXPECT_EQ(arranque.Principal(), nullptr);
}

TEST_F(Arranque_, AnyCommandLineEndsTheProgramSilently) {
    for (const QString& argumento :
         {QStringLiteral("x"), QStringLiteral("modelo.vdm"), QStringLiteral("--help")}) {
        QProcess programa;
        QProcessEnvironment entorno = QProcessEnvironment::systemEnvironment();
        entorno.insert(QStringLiteral("VADRO_DIR"), QString::fromStdString(Directorio()));
        programa.setProcessEnvironment(entorno);
        programa.start(QStringLiteral(VADRO_PROGRAMA), {argumento});
        ASSERT_TRUE(programa.waitForFinished(20000));
        EXPECT_EQ(programa.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(programa.exitCode(), 0);
        EXPECT_TRUE(programa.readAll().isEmpty());
        EXPECT_TRUE(QDir(QString::fromStdString(Directorio())).isEmpty()) << "no file is written";
    }
}

} // namespace
} // namespace vadro
