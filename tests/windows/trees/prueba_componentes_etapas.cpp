#include "ventana_arbol.h"

#include "soporte/componentes_etapas.h"
#include "soporte/volcado_ventana.h"
#include "windows/trees/frmComponentes.h"
#include "windows/trees/frmEtapas.h"
#include "windows/trees/frmNuevaEtapa.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

namespace vadro {
namespace {

using namespace pruebas;
using Strings = std::vector<std::string>;
using Componentes = VentanaArbol;
using Etapas = VentanaArbol;

const std::string kCerrar = "VADRO PROGRAMADOR: cerrar componentes";
const std::string kPreguntaCerrar =
    "Está seguro que quiere descartar los cambios realizados en el árbol de componentes?";

TEST_F(Componentes, ClosingAsksEvenWhenNothingWasEdited) {
    NuevoModelo();
    PonerComponentes(sesion().modelo, {{"Bombas", {"Motor", "Carcasa"}}, {"Tuberías", {}}});
    AbrirPaso(2, "frmComponentes");
    mensajes.Esperar(kCerrar, kPreguntaCerrar, Respuesta::No);
    principal.Abierta<frmComponentes>()->Descargar();
    EXPECT_EQ(Hijas(), (Strings{"frmEjes", "frmComponentes"})) << "a No keeps it open";
    mensajes.Esperar(kCerrar, kPreguntaCerrar, Respuesta::Si);
    principal.Abierta<frmComponentes>()->Descargar();
    EXPECT_EQ(Hijas(), (Strings{"frmEjes"}));
    EXPECT_FALSE(sesion().modelo.Modificado);
}

TEST_F(Componentes, DragCopyAndPasteMoveOptionsBetweenComponentsAndMarkTheModel) {
    NuevoModelo();
    PonerComponentes(sesion().modelo, {{"Bombas", {"Motor", "Carcasa"}}, {"Tuberías", {}}});
    sesion().modelo.Modificado = false;
    QWidget* c = AbrirPaso(2, "frmComponentes");
    Arrastrar(c, "Sc1Co1", "Co2"); // no question: no weights hang on components
    EXPECT_EQ(Mostrado(c), "Bombas[Carcasa],Tuberías[Motor]");
    EXPECT_TRUE(sesion().modelo.Modificado);
    CompararVolcado(*c, "frmComponentes");

    Clic(c, "Sc2Co1");
    QTest::keyClick(Arbol(c), Qt::Key_C, Qt::ControlModifier);
    QMenu* menu = MenuSobre(c, "Sc2Co1", "mnuArbolC");
    EXPECT_EQ(Entradas(*menu), "| mnuInsertarAntesC mnuInsertarDespuesC mnuEliminarC | "
                               "mnuCopiarC ~mnuPegarC | mnuRenombrarC")
        << "an option takes no paste";
    EXPECT_EQ(Hijo<QAction>(*menu, "mnuEliminarC")->text().toStdString(),
              "&Eliminar subcomponente");
    menu->hide();
    Elegir(*MenuSobre(c, "Co2", "mnuArbolC"), "mnuPegarC");
    EXPECT_EQ(Mostrado(c), "Bombas[Carcasa],Tuberías[Motor,Carcasa]");
    Hijo<QPushButton>(*c, "cmdAceptar")->click();
    EXPECT_EQ(sesion().modelo.Componentes(2).NumSubcomponentes, 2);
    EXPECT_EQ(sesion().modelo.Componentes(2).Subcomponentes(2).Clave, "Sc2Co2");
}

TEST_F(Etapas, TheButtonsFollowTheSelectionAndTheListIsWrittenOnAcceptance) {
    NuevoModelo();
    PonerEtapas(sesion().modelo, {"Diseño", "Obra", "Uso"});
    QWidget* e = AbrirPaso(3, "frmEtapas");
    auto* lista = Hijo<QListWidget>(*e, "lstEtapas");
    const auto boton = [e](const char* nombre) { return Hijo<QPushButton>(*e, nombre); };
    const auto estado = [&] {
        std::string texto;
        for (const char* nombre : {"cmdEliminar", "cmdSubir", "cmdBajar"}) {
            texto += boton(nombre)->isEnabled() ? "+" : "-";
        }
        return texto;
    };
    EXPECT_EQ(estado(), "---");
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {},
                      lista->visualItemRect(lista->item(2)).center());
    EXPECT_EQ(estado(), "++-");
    boton("cmdSubir")->click();
    boton("cmdSubir")->click();
    EXPECT_EQ(lista->currentItem()->text().toStdString(), "Uso");
    CompararVolcado(*e, "frmEtapas"); // the list's order and the buttons' states at the top
    boton("cmdEliminar")->click();
    EXPECT_EQ(estado(), "---");
    EXPECT_EQ(lista->count(), 2);
    boton("cmdAceptar")->click();
    EXPECT_EQ(sesion().modelo.NumEtapas.Cuenta(), 2);
    EXPECT_EQ(sesion().modelo.Etapas(1), "Diseño");
    EXPECT_TRUE(sesion().modelo.Modificado);
}

TEST_F(Etapas, TheNewStageDialogSelectsItsTextAndAddsOnReturn) {
    NuevoModelo();
    EdicionEtapas etapas(sesion());
    frmNuevaEtapa dialogo(etapas);
    CompararVolcado(dialogo, "frmNuevaEtapa");
    dialogo.show();
    auto* campo = Hijo<QLineEdit>(dialogo, "txtDenominacion");
    campo->setText(QStringLiteral("Uso"));
    QTest::keyClick(campo, Qt::Key_Return);
    EXPECT_EQ(etapas.lstEtapas, Strings{"Uso"});
    EXPECT_EQ(dialogo.result(), QDialog::Accepted);
}

} // namespace
} // namespace vadro
