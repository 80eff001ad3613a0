#include "volcado.h"

#include <gtest/gtest.h>

#include <vector>

namespace vadro {
namespace {

using namespace pruebas;

TEST(Arbol, AMoveGoesLastAndNeverBelowItself) {
    Arbol a;
    Construir(a, "M[R1[C1,C2],R2[C3]]");
    a.Mover(a.NodoPorClave("C1"), a.NodoPorClave("R2"));
    a.Mover(a.NodoPorClave("R1"), a.NodoPorClave("M"));
    EXPECT_EQ(Forma(a), "M[R2[C3,C1],R1[C2]]");
    EXPECT_EQ(ClavesPorIndice(a), "M|R1|C1|C2|R2|C3");
    EXPECT_EQ(NumeroDeError([&] { a.Mover(a.NodoPorClave("R2"), a.NodoPorClave("C1")); }),
              ErrCicloArbol);
    EXPECT_EQ(Forma(a), "M[R2[C3,C1],R1[C2]]");
}

// Records what an observer hears, one line per notice.
class Oyente : public ObservadorArbol {
public:
    std::vector<std::string> oido;
    static std::string K(const NodoArbol* n) { return n != nullptr ? n->Key() : "top"; }
    void AntesDeAñadir(const NodoArbol* p, int f) override { Oir("+", K(p), f); }
    void AntesDeQuitar(const NodoArbol* n) override { Oir("-", n->Key(), n->Fila()); }
    void DespuesDeQuitar(const NodoArbol* p, int f) override { Oir("-done ", K(p), f); }
    void AntesDeMover(const NodoArbol* n, const NodoArbol* p, int f) override {
        Oir(">" + n->Key() + " ", K(p), f);
    }
    void NodoCambiado(const NodoArbol* n) override { oido.push_back("~" + n->Key()); }

private:
    void Oir(const std::string& que, const std::string& k, int f) {
        oido.push_back(que + k + "@" + std::to_string(f));
    }
};

TEST(Arbol, ObserversHearEveryChangeWithTheRowsAViewNeeds) {
    Arbol a;
    Oyente oyente;
    a.Observar(&oyente);
    Construir(a, "M[R1,R2]");
    a.Añadir(a.NodoPorClave("R2"), Relacion::Anterior, "R3", "", 0);
    a.Mover(a.NodoPorClave("R1"), a.NodoPorClave("M"));
    a.CambiarTexto(a.NodoPorClave("R2"), "otro");
    a.Quitar(a.NodoPorClave("R2"));
    a.DejarDeObservar(&oyente);
    a.Quitar(a.NodoPorClave("R1"));
    const std::vector<std::string> esperado = {"+top@0",  "+M@0", "+M@1",  "+M@1",
                                               ">R1 M@3", "~R2",  "-R2@1", "-done M@1"};
    EXPECT_EQ(oyente.oido, esperado);
}

TEST(Arbol, RenumberingPassesThroughTheOrlFormSoNoKeysMeet) {
    Arbol a;
    Construir(a, "M[R 3,R 2,T]"); // one pass would give the second node a key still in use
    Oyente oyente;
    a.Observar(&oyente);
    EXPECT_EQ(RenumerarClaves(a, 1), 4);
    EXPECT_EQ(ClavesPorIndice(a), "M 1|R 2|R 3|T 4");
    EXPECT_EQ(oyente.oido[3], "~T ORL 4");
    Arbol componentes;
    Construir(componentes, "Co1[Sc1Co1];Co 7");
    RenumerarClaves(componentes, 2);
    EXPECT_EQ(ClavesPorIndice(componentes), "Co 1|Sc 2|Co 3");
}

} // namespace
} // namespace vadro
