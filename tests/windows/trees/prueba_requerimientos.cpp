#include "ventana_arbol.h"

#include "core/shell/herramientas.h"
#include "soporte/datos.h"
#include "soporte/modelo_sano.h"
#include "soporte/volcado_ventana.h"
#include "windows/core/texto.h"
#include "windows/trees/frmRequerimientos.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include <sstream>

namespace vadro {
namespace {

using namespace pruebas;
using Requerimientos = VentanaArbol;
using Strings = std::vector<std::string>;

void Teclear(QLineEdit* campo, const char* texto) {
    campo->selectAll();
    VentanaArbol::Teclas(campo, QString::fromUtf8(texto));
}

// A model built by hand through the three windows, accepted, saved, and read back as plain text.
TEST_F(Requerimientos, AModelBuiltThroughTheWindowsIsWhatTheFileHolds) {
    NuevoModelo();
    sesion().modelo.ConSubcriterios = true; // the permission, as its menu entry gives it
    QWidget* r = AbrirPaso(1, "frmRequerimientos");
    EXPECT_EQ(Mostrado(r), "Modelo ");

    // Each node added from the menu over another and named.
    const auto añadir = [&](std::initializer_list<std::array<const char*, 3>> pasos) {
        for (const auto& [nodo, entrada, nombre] : pasos) {
            Elegir(*MenuSobre(r, nodo, "mnuArbolR"), entrada);
            Renombrar(r, nombre);
        }
    };
    Flecha(r, 1, true);
    Renombrar(r, "Seguridad");
    añadir({{"R 2", "mnuAñadirC", "Estructura"}, {"C 3", "mnuAñadirI", "Resistencia"}});
    Teclas(Hijo<QPlainTextEdit>(*r, "txtDescripcion"), QStringLiteral("MPa a compresión"));
    EXPECT_EQ(Mostrado(r), "Modelo [Seguridad[Estructura[Resistencia]]]");
    auto* cmdFuncion = Hijo<QPushButton>(*r, "cmdFuncion");
    ASSERT_TRUE(cmdFuncion->isEnabled());
    sesion().MostrarAvisoFuncionValor = false; // the notice before the first drawing
    mensajes.Esperar("VADRO",
                     "Se perderán los últimos valores introducidos. Está seguro que quiere "
                     "cerrar la ventana?",
                     Respuesta::Si);
    modales.Esperar(QStringLiteral("frmFuncionValor"), [](QDialog& editor) {
        EXPECT_EQ(editor.windowTitle().toStdString(),
                  "Definición de la función de valor - [Resistencia]");
        Hijo<QPushButton>(editor, "cmdCancelar")->click();
    });
    cmdFuncion->click();
    Flecha(r, 4, true); // a second indicator beside the first
    Teclear(Marco(r, 4)->cbbNodos->lineEdit(), "Flecha");
    EXPECT_EQ(Marco(r, 4)->lblNumNodos->text().toStdString(), "2");

    añadir({{"M", "mnuAñadirR", "Coste"},
            {"R 6", "mnuAñadirC", "Inversión"},
            {"C 7", "mnuAñadirS", "Obra"},
            {"S 8", "mnuAñadirI", "Precio"},
            {"R 6", "mnuAñadirC", "Mantenimiento"},
            {"C 10", "mnuAñadirI", "Anual"}});
    EXPECT_EQ(Mostrado(r), "Modelo [Seguridad[Estructura[Resistencia,Flecha]],Coste[Inversión["
                           "Obra[Precio]],Mantenimiento[Anual]]]");
    Hijo<QPushButton>(*r, "cmdAceptar")->click();
    EXPECT_EQ(Hijas(), (Strings{"frmEjes"}));
    EsperarNormal(1);

    QWidget* c = AbrirPaso(2, "frmComponentes");
    QMenu* menu = MenuSobre(c, "", "mnuArbolC");
    EXPECT_EQ(Entradas(*menu), "mnuAñadirComp ~mnuPegarC");
    Elegir(*menu, "mnuAñadirComp");
    Renombrar(c, "Bombas");
    Elegir(*MenuSobre(c, "Co 1", "mnuArbolC"), "mnuAñadirSc");
    Renombrar(c, "Eléctrica");
    Flecha(c, 2, true);
    Teclear(Marco(c, 2)->cbbNodos->lineEdit(), "Diésel");
    EXPECT_EQ(Mostrado(c), "Bombas[Eléctrica,Diésel]");
    Hijo<QPushButton>(*c, "cmdAceptar")->click();
    EsperarNormal(2);

    QWidget* e = AbrirPaso(3, "frmEtapas");
    for (const char* etapa : {"Diseño", "Obra", " obra ", "Uso"}) {
        modales.Esperar(QStringLiteral("frmNuevaEtapa"), [etapa](QDialog& d) {
            auto* campo = Hijo<QLineEdit>(d, "txtDenominacion");
            Teclas(campo, QString::fromUtf8(etapa));
            QTest::keyClick(campo, Qt::Key_Return);
            if (d.isVisible()) { // refused: the dialog stays until cancelled
                Hijo<QPushButton>(d, "cmdCancelar")->click();
            }
        });
        if (std::string(etapa) == " obra ") {
            mensajes.Esperar("VADRO PROGRAMADOR: error",
                             "No es posible repetir etapas del ciclo de vida.");
        }
        Hijo<QPushButton>(*e, "cmdAgregar")->click();
    }
    Hijo<QPushButton>(*e, "cmdAceptar")->click();
    EsperarNormal(3);

    sesion().modelo.Archivo = Ruta("propio.vdm");
    PulsarBoton("Guardar");
    std::istringstream entrada;
    std::ostringstream texto, error;
    ASSERT_EQ(EjecutarHerramientas({"texto", Ruta("propio.vdm")}, entrada, texto, error), 0)
        << error.str();
    EXPECT_EQ(texto.str(), Datos("arboles/modelo_propio.txt", texto.str()));
}

TEST_F(Requerimientos, DraggingACriterionToAnotherRequirementAsksAndLosesTheWeights) {
    NuevoModelo();
    sesion().modelo = ModeloCorrecto();
    QWidget* r = AbrirPaso(1, "frmRequerimientos");
    const std::string pregunta = PreguntaMover("Económico", "Social");
    mensajes.Esperar(kMoverNodo, pregunta, Respuesta::No);
    Arrastrar(r, "C1R1", "R2");
    const std::string antes = "Modelo [Económico[Inversión[Coste,Plazo],Explotación[Coste,Plazo]],"
                              "Social[Empleo[Coste,Plazo],Seguridad[Coste,Plazo]]]";
    EXPECT_EQ(Mostrado(r), antes);
    Arrastrar(r, "I1C1R1", "R2"); // no highlight on a requirement: nothing is asked
    EXPECT_EQ(Mostrado(r), antes);
    EXPECT_EQ(Arbol(r)->viewport()->cursor().shape(), Qt::ArrowCursor) << "the drag icon goes";

    mensajes.Esperar(kMoverNodo, pregunta, Respuesta::Si);
    Arrastrar(r, "C1R1", "R2");
    EXPECT_EQ(Mostrado(r), "Modelo [Económico[Explotación[Coste,Plazo]],Social[Empleo[Coste,"
                           "Plazo],Seguridad[Coste,Plazo],Inversión[Coste,Plazo]]]");
    Hijo<QPushButton>(*r, "cmdAceptar")->click();
    const Modelo& m = sesion().modelo;
    ASSERT_EQ(m.Requerimientos(2).NumCriterios.Cuenta(), 3);
    for (int c = 1; c <= 3; ++c) {
        EXPECT_TRUE(m.Requerimientos(2).Criterios(c).Peso.EsVacio()) << c;
        EXPECT_EQ(m.Requerimientos(2).Criterios(c).Saaty.Cota(), 3) << c;
    }
    EXPECT_TRUE(m.Requerimientos(1).Criterios(1).Peso.EsVacio()) << "the old set loses them too";
    EXPECT_FALSE(m.Requerimientos(2).Criterios(3).Indicadores(1).Peso.EsVacio())
        << "the moved criterion's own indicators keep theirs";
}

TEST_F(Requerimientos, ClosingDiscardsWithoutAQuestionAndTheDumpShowsTheWindow) {
    NuevoModelo();
    sesion().modelo = ModeloCorrecto();
    QWidget* r = AbrirPaso(1, "frmRequerimientos");
    Clic(r, "I2C1R1");
    CompararVolcado(*r, "frmRequerimientos");
    const Modelo antes = sesion().modelo;
    Elegir(*MenuSobre(r, "M", "mnuArbolR"), "mnuAñadirR");
    principal.Abierta<frmRequerimientos>()->Descargar();
    EXPECT_EQ(Hijas(), (Strings{"frmEjes"}));
    EXPECT_EQ(sesion().modelo, antes) << "the working copy is gone";
    EsperarNormal(1);
}

} // namespace
} // namespace vadro
