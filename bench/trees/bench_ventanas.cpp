// The requirements window over a large tree, with the widget brought up to date after each
// edit: the time a user waits between a gesture and the tree drawn again.
#include "core/core/mensajes.h"
#include "core/core/sesion.h"
#include "soporte/modelo_sano.h"
#include "windows/shell/frmPrincipal.h"
#include "windows/trees/frmRequerimientos.h"
#include "windows/trees/modelo_arbol.h"
#include "windows/trees/selector_nivel.h"
#include "windows/trees/vista_arbol.h"

#include <QApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QTest>
#include <QToolButton>

#include <benchmark/benchmark.h>

#include <memory>

namespace vadro {
namespace {

// The pending layout and painting of the window, as the event loop would run them.
void Pintar(QWidget& ventana) {
    QApplication::processEvents();
    ventana.repaint();
}

// A main window holding the requirements window on a generated model: a first criterion of
// `primerConjunto` indicators, and sets of ten after it.
struct Banco {
    explicit Banco(int indicadores, int primerConjunto = 0) {
        ReiniciarSesion();
        InstalarMensajes([](const Mensaje&) { return Respuesta::Si; });
        SesionActual().modelo = pruebas::ModeloGenerado(indicadores, primerConjunto);
        principal = std::make_unique<frmPrincipal>();
        principal->resize(1400, 1100);
        principal->show();
        ventana = dynamic_cast<frmRequerimientos*>(&principal->Cargar(Hija::Requerimientos));
        ventana->parentWidget()->resize(1200, 1000);
        Pintar(*principal);
    }
    EdicionRequerimientos& ed() { return ventana->Edicion(); }
    ModeloArbol& modelo() { return *dynamic_cast<ModeloArbol*>(ventana->tvwArbol->model()); }
    NodoArbol* N(int indice) { return ed().tvwArbol.Nodo(indice); }
    QPoint Centro(NodoArbol* nodo) {
        return ventana->tvwArbol->visualRect(modelo().Indice(nodo)).center();
    }
    void Seleccionar(NodoArbol* nodo) {
        ed().tvwArbol.Seleccionar(nodo);
        ventana->ActualizarCombos(nodo); // the selectors shown as well
    }

    std::unique_ptr<frmPrincipal> principal;
    frmRequerimientos* ventana = nullptr;
};

// An indicator in the middle of the tree.
NodoArbol* Indicador(Banco& b) {
    NodoArbol* nodo = b.N(b.ed().tvwArbol.Cuenta() / 2);
    while (NivelNodo(nodo) != NivelIndicador) {
        nodo = b.N(nodo->Index() + 1);
    }
    return nodo;
}

void BM_VentanaAñadir(benchmark::State& state) {
    Banco b(1800);
    QToolButton* arriba = b.ventana->fmeNodos[3]->updNodos->Arriba();
    NodoArbol* indicador = Indicador(b);
    for (auto _ : state) {
        state.PauseTiming();
        b.Seleccionar(indicador);
        Pintar(*b.principal);
        state.ResumeTiming();
        arriba->click(); // the up arrow of the indicators' selector
        Pintar(*b.principal);
        state.PauseTiming();
        if (b.ed().tvwArbol.Seleccionado() == indicador) {
            state.SkipWithError("the up arrow added nothing");
            break;
        }
        b.ed().tvwArbol.Quitar(b.ed().tvwArbol.Seleccionado());
        state.ResumeTiming();
    }
    state.counters["nodos"] = b.ed().tvwArbol.Cuenta();
}
BENCHMARK(BM_VentanaAñadir)->Iterations(200)->Unit(benchmark::kMillisecond);

void BM_VentanaEliminar(benchmark::State& state) {
    Banco b(1800);
    for (auto _ : state) {
        state.PauseTiming();
        b.Seleccionar(Indicador(b));
        b.ed().AñadirIndicador("Indicador");
        b.modelo().Sincronizar(*b.ventana->tvwArbol);
        Pintar(*b.principal);
        state.ResumeTiming();
        QTest::keyClick(b.ventana->tvwArbol, Qt::Key_Delete); // and the keys renumbered
        Pintar(*b.principal);
    }
    state.counters["nodos"] = b.ed().tvwArbol.Cuenta();
}
BENCHMARK(BM_VentanaEliminar)->Iterations(200)->Unit(benchmark::kMillisecond);

void BM_VentanaPegar201(benchmark::State& state) {
    Banco b(1800, 200); // the first criterion holds 200 indicators: a branch of 201 nodes
    NodoArbol* criterio = b.N(1)->Hijo(1)->Hijo(1);
    b.Seleccionar(criterio);
    QTest::keyClick(b.ventana->tvwArbol, Qt::Key_C, Qt::ControlModifier);
    // The menu is set up once by a right click on the second requirement.
    QWidget* area = b.ventana->tvwArbol->viewport();
    QTest::mouseClick(area, Qt::RightButton, {}, b.Centro(b.N(1)->Hijo(1)));
    auto* menu = b.principal->findChild<QMenu*>(QStringLiteral("mnuArbolR"));
    menu->hide();
    QAction* pegar = menu->findChild<QAction*>(QStringLiteral("mnuPegar"));
    for (auto _ : state) {
        state.PauseTiming();
        NodoArbol* requerimiento = b.N(1)->Hijo(2);
        b.Seleccionar(requerimiento);
        Pintar(*b.principal);
        state.ResumeTiming();
        pegar->trigger();
        Pintar(*b.principal);
        state.PauseTiming();
        b.ed().tvwArbol.Quitar(b.N(1)->Hijo(2)->UltimoHijo());
        state.ResumeTiming();
    }
    state.counters["nodos"] = b.ed().tvwArbol.Cuenta();
}
BENCHMARK(BM_VentanaPegar201)->Iterations(50)->Unit(benchmark::kMillisecond);

void BM_VentanaArrastrar(benchmark::State& state) {
    Banco b(1800);
    // Two criteria that hold indicators, side by side in the middle of the tree.
    NodoArbol* uno = Indicador(b)->Padre();
    NodoArbol* otro = uno->Siguiente();
    while (otro == nullptr || !TieneIndicadores(otro)) {
        uno = Indicador(b)->Padre()->Padre()->Siguiente()->PrimerHijo();
        otro = uno->Siguiente();
    }
    QWidget* area = b.ventana->tvwArbol->viewport();
    const auto mover = [area](QPoint punto) {
        QMouseEvent movimiento(QEvent::MouseMove, punto, area->mapToGlobal(punto), Qt::NoButton,
                               Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(area, &movimiento);
    };
    bool ida = true;
    for (auto _ : state) {
        state.PauseTiming();
        NodoArbol* desde = ida ? uno : otro;
        NodoArbol* hasta = ida ? otro : uno;
        b.ventana->tvwArbol->scrollTo(b.modelo().Indice(desde->UltimoHijo()),
                                      QAbstractItemView::PositionAtCenter);
        Pintar(*b.principal);
        const QPoint inicio = b.Centro(desde->UltimoHijo());
        const QPoint fin = b.Centro(hasta);
        state.ResumeTiming();
        QTest::mousePress(area, Qt::LeftButton, {}, inicio);
        mover(inicio + QPoint(0, 12));
        mover(fin);
        QTest::mouseRelease(area, Qt::LeftButton, {}, fin); // the question answered Yes
        Pintar(*b.principal);
        ida = !ida;
    }
    state.counters["nodos"] = b.ed().tvwArbol.Cuenta();
}
BENCHMARK(BM_VentanaArrastrar)->Iterations(200)->Unit(benchmark::kMillisecond);

void BM_VentanaAbrir16000(benchmark::State& state) {
    ReiniciarSesion();
    InstalarMensajes([](const Mensaje&) { return Respuesta::Si; });
    const Modelo modelo = pruebas::ModeloGenerado(16000);
    for (auto _ : state) {
        state.PauseTiming();
        SesionActual().modelo = modelo;
        state.ResumeTiming();
        frmRequerimientos ventana;
        ventana.resize(1000, 800);
        ventana.show();
        Pintar(ventana);
        state.counters["nodos"] = ventana.Edicion().tvwArbol.Cuenta();
        state.PauseTiming();
        ventana.close();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_VentanaAbrir16000)->Iterations(5)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vadro
