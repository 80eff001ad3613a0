#include "ventana_arbol.h"

#include "core/trees/edicion_requerimientos.h"
#include "soporte/modelo_sano.h"
#include "windows/trees/modelo_arbol.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTreeView>

#include <gtest/gtest.h>

namespace vadro {
namespace {

using namespace pruebas;

// The item model over a working tree that every operation changes, checked at each notice by
// Qt's own tester, with a view attached that follows it.
class ModeloArbolPrueba : public PruebaSesion {
protected:
    ModeloArbolPrueba() {
        sesion().modelo = ModeloCorrecto();
        sesion().modelo.ConSubcriterios = true;
        modelo.Recargar([this] { ed.Abrir(); });
        vista.setModel(&modelo);
        modelo.Sincronizar(vista);
    }
    NodoArbol* N(const std::string& clave) { return ed.tvwArbol.NodoPorClave(clave); }
    void Sel(const std::string& clave) { ed.tvwArbol.Seleccionar(N(clave)); }
    EdicionRequerimientos ed{SesionActual()};
    ModeloArbol modelo{ed.tvwArbol};
    QAbstractItemModelTester tester{&modelo, QAbstractItemModelTester::FailureReportingMode::Fatal};
    QTreeView vista;
};

TEST_F(ModeloArbolPrueba, EveryOperationReachesTheViewThroughValidNotices) {
    const std::string inicial =
        "Modelo [Económico[Inversión[Coste,Plazo],Explotación[Coste,Plazo]],"
        "Social[Empleo[Coste,Plazo],Seguridad[Coste,Plazo]]]";
    EXPECT_EQ(Filas(modelo), inicial);
    EXPECT_TRUE(vista.isExpanded(modelo.Indice(N("C2R2")))) << "loaded nodes come expanded";
    EXPECT_EQ(ModeloArbol::Nodo(vista.currentIndex()), N("M")) << "the first node is current";

    Sel("C1R1");
    ed.AñadirSubcriterio("Sub"); // moves both indicators under the new node
    Sel("I2C2R1");
    ed.InsertarAntes();
    Sel("R2");
    ed.Copiar();
    Sel("M");
    ed.Pegar(); // 7 nodes, the keys renumbered
    modelo.Sincronizar(vista);
    EXPECT_EQ(Filas(modelo),
              "Modelo [Económico[Inversión[Sub[Coste,Plazo]],Explotación[Coste,Indicador,"
              "Plazo]],Social[Empleo[Coste,Plazo],Seguridad[Coste,Plazo]],Social[Empleo["
              "Coste,Plazo],Seguridad[Coste,Plazo]]]");
    EXPECT_EQ(ModeloArbol::Nodo(vista.currentIndex()), N("M 1"));
}

TEST_F(ModeloArbolPrueba, MovesIncludingALastChildToTheEndOfItsOwnParent) {
    QSignalSpy movidas(&modelo, &QAbstractItemModel::rowsMoved);
    // The last criterion dropped on its own requirement stays where it is: no move for a view.
    ed.tvwArbol.Mover(N("C2R1"), N("R1"));
    EXPECT_EQ(movidas.count(), 0);
    ed.tvwArbol.Mover(N("C1R1"), N("R1"));
    ed.tvwArbol.Mover(N("I1C1R2"), N("C2R1"));
    ed.tvwArbol.Mover(N("R1"), N("M")); // the last requirement but one, to the end
    EXPECT_EQ(movidas.count(), 3);
    EXPECT_EQ(Filas(modelo), "Modelo [Social[Empleo[Plazo],Seguridad[Coste,Plazo]],Económico["
                             "Explotación[Coste,Plazo,Coste],Inversión[Coste,Plazo]]]");
}

TEST_F(ModeloArbolPrueba, RemovalRenamingAndTheDropHighlightReachTheRows) {
    QSignalSpy cambios(&modelo, &QAbstractItemModel::dataChanged);
    mensajes.Esperar(kEliminarNodo, kPreguntaEliminar, Respuesta::Si);
    Sel("R1");
    ed.Eliminar();
    EXPECT_EQ(Filas(modelo), "Modelo [Social[Empleo[Coste,Plazo],Seguridad[Coste,Plazo]]]");
    cambios.clear();
    ed.Reordenar();
    EXPECT_EQ(cambios.count(), 0) << "keys are not shown: renumbering costs the view nothing";
    Sel("C 3");
    ed.Renombrar("Trabajo");
    EXPECT_EQ(modelo.Indice(N("C 3")).data().toString().toStdString(), "Trabajo");
    ed.PulsarRaton(N("I 4"));
    ed.MoverRaton(true);
    ed.ArrastrarSobre(N("C 6"));
    EXPECT_TRUE(modelo.Indice(N("C 6")).data(Qt::BackgroundRole).isValid());
    ed.ArrastrarSobre(N("R 2"));
    EXPECT_FALSE(modelo.Indice(N("C 6")).data(Qt::BackgroundRole).isValid());
    ed.tvwArbol.Vaciar();
    EXPECT_EQ(modelo.rowCount(), 0);
    modelo.Sincronizar(vista);
    EXPECT_FALSE(vista.currentIndex().isValid());
}

TEST_F(ModeloArbolPrueba, AnEditedLabelGoesThroughTheWindowsRule) {
    std::vector<std::string> pedidos;
    modelo.AlRenombrar = [&](NodoArbol* nodo, const std::string& texto) {
        pedidos.push_back(nodo->Key() + "=" + texto);
        return texto != "no";
    };
    EXPECT_TRUE(modelo.flags(modelo.Indice(N("R1"))) & Qt::ItemIsEditable);
    EXPECT_TRUE(modelo.setData(modelo.Indice(N("R1")), QStringLiteral("Nuevo")));
    EXPECT_FALSE(modelo.setData(modelo.Indice(N("R2")), QStringLiteral("no")));
    EXPECT_FALSE(modelo.setData(modelo.Indice(N("R2")), QStringLiteral("x"), Qt::DisplayRole));
    EXPECT_EQ(pedidos, (std::vector<std::string>{"R1=Nuevo", "R2=no"}));
}

} // namespace
} // namespace vadro
