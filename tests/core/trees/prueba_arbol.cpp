#include "volcado.h"

#include "core/trees/arbol.h"

#include <gtest/gtest.h>

#include <vector>

namespace vadro {
namespace {

using pruebas::ClavesPorIndice;
using pruebas::Forma;
using pruebas::NumeroDeError;

NodoArbol* Hijo(Arbol& a, NodoArbol* padre, const std::string& clave) {
    return a.Añadir(padre, Relacion::UltimoHijo, clave, clave, 0);
}

// Records what an observer hears, one line per notice.
class Oyente : public ObservadorArbol {
public:
    std::vector<std::string> oido;
    void AntesDeAñadir(const NodoArbol* p, int fila) override {
        oido.push_back("+" + Nombre(p) + "@" + std::to_string(fila));
    }
    void AntesDeQuitar(const NodoArbol* n) override {
        oido.push_back("-" + n->Key() + "@" + std::to_string(n->Fila()));
    }
    void DespuesDeQuitar(const NodoArbol* p, int fila) override {
        oido.push_back("-" + Nombre(p) + "@" + std::to_string(fila) + " done");
    }
    void AntesDeMover(const NodoArbol* n, const NodoArbol* p, int fila) override {
        oido.push_back(">" + n->Key() + " to " + Nombre(p) + "@" + std::to_string(fila));
    }
    void NodoCambiado(const NodoArbol* n) override { oido.push_back("~" + n->Key()); }

private:
    static std::string Nombre(const NodoArbol* p) { return p != nullptr ? p->Key() : "top"; }
};

TEST(ArbolIndices, FollowCreationNotPlaceAndCloseUpOnRemoval) {
    Arbol a;
    NodoArbol* m = Hijo(a, nullptr, "M");
    NodoArbol* r1 = Hijo(a, m, "R1");
    NodoArbol* r2 = Hijo(a, m, "R2");
    Hijo(a, r1, "C1");
    a.Añadir(r1, Relacion::Anterior, "R0", "R0", 0);
    Hijo(a, r2, "C2");
    EXPECT_EQ(Forma(a), "M[R0,R1[C1],R2[C2]]");
    EXPECT_EQ(ClavesPorIndice(a), "M|R1|R2|C1|R0|C2");

    a.Quitar(r1);
    EXPECT_EQ(Forma(a), "M[R0,R2[C2]]");
    EXPECT_EQ(ClavesPorIndice(a), "M|R2|R0|C2");
    EXPECT_EQ(r2->Index(), 2);
    EXPECT_EQ(a.BuscarClave("C2")->Index(), 4);
    EXPECT_EQ(a.BuscarClave("C1"), nullptr) << "the subtree goes with its node";
}

TEST(ArbolIndices, PlacesBesideARelativeAndKeepsRowsInStep) {
    Arbol a;
    NodoArbol* m = Hijo(a, nullptr, "M");
    NodoArbol* b = Hijo(a, m, "B");
    a.Añadir(b, Relacion::Siguiente, "C", "C", 0);
    a.Añadir(b, Relacion::Anterior, "A", "A", 0);
    EXPECT_EQ(Forma(a), "M[A,B,C]");
    EXPECT_EQ(b->Fila(), 1);
    EXPECT_EQ(b->Anterior()->Key(), "A");
    EXPECT_EQ(b->Siguiente()->Key(), "C");
    EXPECT_EQ(b->PrimerHermano()->Key(), "A");
    EXPECT_EQ(b->UltimoHermano()->Key(), "C");
    a.Añadir(m, Relacion::Siguiente, "M2", "M2", 0);
    EXPECT_EQ(Forma(a), "M[A,B,C] M2") << "a sibling of a top node is a top node";
    EXPECT_EQ(m->Siguiente()->Key(), "M2");
}

TEST(ArbolClaves, ARepeatedKeyIsRefusedAndChangesNothing) {
    Arbol a;
    Oyente oyente;
    NodoArbol* m = Hijo(a, nullptr, "M");
    Hijo(a, m, "R 1");
    a.Observar(&oyente);
    EXPECT_EQ(NumeroDeError([&] { Hijo(a, m, "R 1"); }), ErrClaveRepetida);
    EXPECT_EQ(a.Cuenta(), 2);
    EXPECT_TRUE(oyente.oido.empty());
    EXPECT_EQ(NumeroDeError([&] { a.CambiarClave(m, "R 1"); }), ErrClaveRepetida);
    EXPECT_EQ(m->Key(), "M");
}

TEST(ArbolClaves, AMissingKeyOrIndexIsTheIndexError) {
    Arbol a;
    NodoArbol* m = Hijo(a, nullptr, "M");
    EXPECT_EQ(a.BuscarClave("R 9"), nullptr);
    EXPECT_EQ(NumeroDeError([&] { a.NodoPorClave("R 9"); }), ErrIndiceArbol);
    EXPECT_EQ(NumeroDeError([&] { a.NodoPorClave(""); }), ErrIndiceArbol);
    EXPECT_EQ(NumeroDeError([&] { a.Nodo(0); }), ErrIndiceArbol);
    EXPECT_EQ(NumeroDeError([&] { a.Nodo(2); }), ErrIndiceArbol);
    a.CambiarClave(m, "M 1");
    EXPECT_EQ(a.NodoPorClave("M 1"), m);
    EXPECT_EQ(a.BuscarClave("M"), nullptr) << "the old key is free again";
}

TEST(ArbolMover, GoesLastUnderTheNewParentAndNeverBelowItself) {
    Arbol a;
    NodoArbol* m = Hijo(a, nullptr, "M");
    NodoArbol* r1 = Hijo(a, m, "R1");
    NodoArbol* r2 = Hijo(a, m, "R2");
    NodoArbol* c1 = Hijo(a, r1, "C1");
    Hijo(a, r1, "C2");
    Hijo(a, r2, "C3");
    a.Mover(c1, r2);
    EXPECT_EQ(Forma(a), "M[R1[C2],R2[C3,C1]]");
    a.Mover(r1, m);
    EXPECT_EQ(Forma(a), "M[R2[C3,C1],R1[C2]]") << "a move under the same parent goes last";
    EXPECT_EQ(ClavesPorIndice(a), "M|R1|R2|C1|C2|C3") << "a move keeps the positions";
    EXPECT_EQ(NumeroDeError([&] { a.Mover(r2, c1); }), ErrCicloArbol);
    EXPECT_EQ(NumeroDeError([&] { a.Mover(r2, r2); }), ErrCicloArbol);
    EXPECT_EQ(Forma(a), "M[R2[C3,C1],R1[C2]]");
}

TEST(ArbolSeleccion, ANodeThatGoesTakesSelectionAndHighlightWithIt) {
    Arbol a;
    NodoArbol* m = Hijo(a, nullptr, "M");
    NodoArbol* r1 = Hijo(a, m, "R1");
    NodoArbol* c1 = Hijo(a, r1, "C1");
    a.Seleccionar(c1);
    a.Resaltar(r1);
    a.Quitar(r1);
    EXPECT_EQ(a.Seleccionado(), nullptr);
    EXPECT_EQ(a.ResaltadoDestino(), nullptr);
    NodoArbol* r2 = Hijo(a, m, "R2");
    NodoArbol* c2 = Hijo(a, r2, "C2");
    a.AsegurarVisible(c2);
    EXPECT_TRUE(r2->Expandido());
    EXPECT_TRUE(m->Expandido());
    EXPECT_FALSE(c2->Expandido());
}

TEST(ArbolObservador, HearsEveryChangeWithTheRowsAViewNeeds) {
    Arbol a;
    Oyente oyente;
    a.Observar(&oyente);
    NodoArbol* m = Hijo(a, nullptr, "M");
    NodoArbol* r1 = Hijo(a, m, "R1");
    NodoArbol* r2 = Hijo(a, m, "R2");
    a.Añadir(r2, Relacion::Anterior, "R3", "R3", 0);
    a.Mover(r1, m);
    a.CambiarTexto(r2, "otro");
    a.Quitar(r2);
    a.DejarDeObservar(&oyente);
    Hijo(a, m, "R4");
    const std::vector<std::string> esperado = {"+top@0",     "+M@0", "+M@1",  "+M@1",
                                               ">R1 to M@3", "~R2",  "-R2@1", "-M@1 done"};
    EXPECT_EQ(oyente.oido, esperado);
}

TEST(ArbolRenumerar, TwoPassesLetNoKeyMeetAnother) {
    Arbol a;
    NodoArbol* m = Hijo(a, nullptr, "M");
    // The keys stand crosswise to the positions: a one-pass renumbering would collide.
    Hijo(a, m, "R 3");
    Hijo(a, m, "R 2");
    NodoArbol* t = Hijo(a, m, "T");
    Oyente oyente;
    a.Observar(&oyente);
    EXPECT_EQ(RenumerarClaves(a, 1), 4);
    EXPECT_EQ(ClavesPorIndice(a), "M 1|R 2|R 3|T 4");
    EXPECT_EQ(oyente.oido[3], "~T ORL 4") << "every key passes through the ORL form first";
    a.Quitar(t);

    Arbol componentes;
    NodoArbol* co = Hijo(componentes, nullptr, "Co1");
    Hijo(componentes, co, "Sc1Co1");
    Hijo(componentes, nullptr, "Co 7");
    EXPECT_EQ(RenumerarClaves(componentes, 2), 3);
    EXPECT_EQ(ClavesPorIndice(componentes), "Co 1|Sc 2|Co 3");
}

TEST(ArbolCopiar, CopiesShapeTextAndImageButNoTagAndRetriesATakenKey) {
    Arbol origen;
    NodoArbol* r = origen.Añadir(nullptr, Relacion::UltimoHijo, "R1", "uno", 1);
    origen.CambiarTag(r, 7);
    origen.Añadir(r, Relacion::UltimoHijo, "C1R1", "dos", 2);
    Arbol destino;
    NodoArbol* m = Hijo(destino, nullptr, "M");
    Hijo(destino, m, "C 2");
    int contador = 0;
    const auto clave = [&](const NodoArbol& n) {
        return n.Key().substr(0, 1) + " " + std::to_string(++contador);
    };
    NodoArbol* copia = CopiarRama(*r, destino, m, clave, [](const NodoArbol&) { return 9; });
    EXPECT_EQ(Forma(destino), "M[C 2,R 1[C 3]]") << "C 2 was taken, so the copy drew again";
    EXPECT_EQ(Forma(destino, [](const NodoArbol& n) { return n.Text(); }), "M[C 2,uno[dos]]");
    EXPECT_FALSE(copia->Tag());
    EXPECT_EQ(copia->Image(), 9);
    EXPECT_TRUE(copia->Expandido()) << "its child was scrolled into view";

    const auto rota = [](const NodoArbol&) -> std::string { throw ErrorEjecucion(6); };
    EXPECT_EQ(NumeroDeError([&] { CopiarRama(*r, destino, m, rota, [](auto&) { return 0; }); }), 6);
}

} // namespace
} // namespace vadro
