// The summary window: the requirements tree keyed and expanded, the components tree, the
// stages, each in its frame; refilled when a part of the model changes.

#include "core/reports/modelos_informe.h"
#include "core/shell/comandos_modelo.h"
#include "soporte/datos.h"
#include "soporte/prueba_sesion.h"
#include "soporte/volcado_ventana.h"
#include "windows/core/texto.h"
#include "windows/reports/frmResumen.h"

#include <QApplication>
#include <QGroupBox>
#include <QIcon>
#include <QListWidget>
#include <QTreeView>

#include <gtest/gtest.h>

#include <memory>

namespace vadro {
namespace {

class Resumen : public pruebas::PruebaSesion {
protected:
    frmResumen& Abrir(const Modelo& modelo) {
        sesion().modelo = modelo;
        ventana = std::make_unique<frmResumen>();
        ventana->resize(900, 600);
        ventana->show();
        return *ventana;
    }
    std::unique_ptr<frmResumen> ventana;
};

// A tree as it shows: two blanks a level, "+" before an expanded parent, "-" before a
// collapsed one, "*" for a node with an icon.
std::string Arbol(const QTreeView& vista, const QModelIndex& padre = {}, int nivel = 0) {
    std::string texto;
    const QAbstractItemModel& modelo = *vista.model();
    for (int f = 0; f < modelo.rowCount(padre); ++f) {
        const QModelIndex nodo = modelo.index(f, 0, padre);
        texto += std::string(static_cast<std::size_t>(2 * nivel), ' ');
        if (modelo.hasChildren(nodo)) {
            texto += vista.isExpanded(nodo) ? "+ " : "- ";
        }
        texto += qvariant_cast<QIcon>(nodo.data(Qt::DecorationRole)).isNull() ? "" : "* ";
        texto += ACadena(nodo.data().toString()) + "\n";
        texto += Arbol(vista, nodo, nivel + 1);
    }
    return texto;
}

std::string Lista(const QListWidget& lista) {
    std::string texto;
    for (int i = 0; i < lista.count(); ++i) {
        texto += ACadena(lista.item(i)->text()) + "\n";
    }
    return texto;
}

std::string Todo(const frmResumen& resumen) {
    return "[" + ACadena(resumen.fmeRequerimientos->title()) + "]\n" +
           Arbol(*resumen.tvwRequerimientos) + "[" + ACadena(resumen.fmeComponentes->title()) +
           "]\n" + Arbol(*resumen.tvwComponentes) + "[" + ACadena(resumen.fmeEtapas->title()) +
           "]\n" + Lista(*resumen.lstEtapas);
}

TEST_F(Resumen, AFullModelKeyedExpandedWithIconsAndNoWeights) {
    frmResumen& resumen = Abrir(pruebas::ModeloCompleto());
    pruebas::CompararVolcado(resumen, "frmResumen");
    const std::string texto = Todo(resumen);
    EXPECT_EQ(texto, pruebas::Datos("resumen/completo.txt", texto));
    EXPECT_EQ(texto.find('%'), std::string::npos);
}

TEST_F(Resumen, APaneIsRefilledWhenItsPartChanges) {
    frmResumen& resumen = Abrir(pruebas::ModeloCompleto());
    const std::string antes = Todo(resumen);
    Modelo& modelo = sesion().modelo;
    modelo.Etapas(1) = "Estudio previo";
    modelo.Componentes(2).Nombre = "Rampas";
    modelo.Requerimientos(2).Nombre = "Comunidad";
    // Only the pane of the part named follows the model.
    resumen.ModeloCambiado(ParteModelo::Etapas);
    EXPECT_EQ(Lista(*resumen.lstEtapas), "Estudio previo\nConstrucción\nExplotación\n");
    EXPECT_EQ(Arbol(*resumen.tvwComponentes).find("Rampas"), std::string::npos);
    resumen.ModeloCambiado(ParteModelo::Componentes);
    EXPECT_NE(Arbol(*resumen.tvwComponentes).find("* (Co2) Rampas\n"), std::string::npos);
    EXPECT_EQ(Arbol(*resumen.tvwRequerimientos).find("Comunidad"), std::string::npos);
    resumen.ModeloCambiado(ParteModelo::Requerimientos);
    EXPECT_NE(Arbol(*resumen.tvwRequerimientos).find("* (R2) Comunidad\n"), std::string::npos);
    EXPECT_NE(Todo(resumen), antes);
}

TEST_F(Resumen, TheFramesShareTheWindowAndFollowItsSize) {
    frmResumen& resumen = Abrir(pruebas::ModeloCompleto());
    for (const QSize tamano : {QSize(900, 600), QSize(500, 400)}) {
        resumen.resize(tamano);
        QApplication::processEvents();
        const QRect r = resumen.fmeRequerimientos->geometry();
        const QRect c = resumen.fmeComponentes->geometry();
        const QRect e = resumen.fmeEtapas->geometry();
        EXPECT_LT(r.right(), c.left());
        EXPECT_LT(c.bottom(), e.top());
        EXPECT_EQ(c.left(), e.left());
        EXPECT_GT(r.height(), c.height());
        EXPECT_LE(e.bottom(), tamano.height());
        EXPECT_LE(c.right(), tamano.width());
        EXPECT_GT(r.width(), tamano.width() / 3);
    }
}

} // namespace
} // namespace vadro
