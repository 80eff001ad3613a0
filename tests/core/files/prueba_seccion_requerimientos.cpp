#include "core/core/archivos.h"
#include "core/core/error_ejecucion.h"
#include "core/files/proteccion.h"
#include "core/files/seccion_requerimientos.h"
#include "soporte/errores.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <tuple>

namespace vadro {
namespace {

using Lineas = std::vector<std::string>;

void Nodo(CabeceraNodo& nodo, const std::string& nombre, ValorLibre peso, int hermanos) {
    nodo.Nombre = nombre;
    nodo.Peso = std::move(peso);
    nodo.Saaty.Redimensionar(hermanos);
    for (int j = 1; j <= hermanos; ++j) {
        nodo.Saaty(j) = j == 2 ? 1.5 : 1.0;
    }
}

// Two requirements weighted 60 % and 40 %; the second has a criterion that holds a direct
// indicator beside a subcriterion with an indicator of its own.
Modelo Arbol() {
    Modelo m;
    m.NumRequerimientos = 2;
    m.Requerimientos.Redimensionar(2);
    Nodo(m.Requerimientos(1), "Funcional", 60.0, 2);
    m.Requerimientos(1).NumCriterios = 0;
    NodoRequerimiento& r = m.Requerimientos(2);
    Nodo(r, "Econ\xC3\xB3mico", 40.0, 2);
    r.NumCriterios = 1;
    r.Criterios.Redimensionar(1);
    NodoCriterio& c = r.Criterios(1);
    Nodo(c, "C", 100.0, 1);
    c.NumIndicadores = 1;
    c.Indicadores.Redimensionar(1);
    c.NumSubcriterios = 1;
    c.Subcriterios.Redimensionar(1);
    Nodo(c.Indicadores(1), "directo", {}, 1);
    Nodo(c.Subcriterios(1), "S", 0.0, 1);
    c.Subcriterios(1).NumIndicadores = 1;
    c.Subcriterios(1).Indicadores.Redimensionar(1);
    Nodo(c.Subcriterios(1).Indicadores(1), "bajo S", 100.0, 1);
    return m;
}

Lineas LineasDe(Modelo& m) {
    ArchivoSalida salida;
    EXPECT_TRUE(GuardarRequerimientos(m, salida));
    return salida.Lineas();
}

class SeccionRequerimientos : public pruebas::PruebaSesion {
protected:
    std::string ruta = Ruta("arbol.req");

    Modelo leido;

    // Reads the lines into `leido`; the number of the error that went up, or 0.
    int ErrorAlLeer(const Lineas& lineas) {
        Escribir(ruta, UnirLineas(lineas));
        return pruebas::NumeroDeError([&] { CargarRequerimientos(leido, ruta); });
    }
};

// The whole section stands in the data file of a whole model; here the example's matrix row,
// the rounding down, an empty count, and the counts that govern over the arrays.
TEST_F(SeccionRequerimientos, TheExampleLinesAndTheCountsThatGovern) {
    Modelo m = Arbol();
    const Lineas lineas = LineasDe(m);
    EXPECT_EQ(
        Lineas(lineas.begin() + 4, lineas.begin() + 7),
        (Lineas{"REQ_R1_PSO =  60000000 ", "REQ_R1_STY1 =  1000000 ", "REQ_R1_STY2 =  1500000 "}));
    GuardarRequerimientos(m, ruta, false);
    EXPECT_EQ(LineasPlanas(Contenido(ruta)), lineas) << "a template holds the same lines";
    m.Requerimientos(1).Peso = -0.0000015;
    EXPECT_EQ(LineasDe(m)[4], "REQ_R1_PSO = -2 ") << "scaled numbers are cut downwards";
    NodoCriterio& c = m.Requerimientos(2).Criterios(1);
    c.Indicadores(1).Funcion.Clave = "viejo";
    c.Indicadores.RedimensionarConservando(4);
    EXPECT_EQ(LineasDe(m).back(), "FUN_I1S1C1R2_TIP = ninguna") << "the count governs";
    EXPECT_EQ(c.Indicadores(1).Funcion.Clave, "I1C1R2") << "the key follows the position";
    m.NumRequerimientos = ValorLibre();
    EXPECT_EQ(LineasDe(m), (Lineas{"*****REQUERIMIENTOS*****", "REQ_NUMR = 0"}));
}

TEST_F(SeccionRequerimientos, AFailureShowsOneMessageAndAFunctionsFailureIsItsOwn) {
    Modelo m = Arbol();
    m.Requerimientos(2).Saaty.Borrar();
    mensajes.Esperar("VADRO: Error ", "Error al guardar el árbol de requerimientos.");
    GuardarRequerimientos(m, ruta, false);
    EXPECT_EQ(LineasPlanas(Contenido(ruta)).back(), "REQ_R2_PSO =  40000000 ")
        << "as far as it got";
    Modelo otro = Arbol();
    FuncionValor& f = otro.Requerimientos(2).Criterios(1).Indicadores(1).Funcion;
    f.RMax = "mucho";
    mensajes.Esperar("VADRO: Error ",
                     "Error 13 al guardar la función de valor.\n\r" + DescripcionError(13),
                     Respuesta::Reintentar, [&] { f.RMax = {}; });
    EXPECT_EQ(LineasDe(otro).back(), "FUN_I1S1C1R2_TIP = ninguna") << "the tree goes on";
}

TEST_F(SeccionRequerimientos, ReadingMirrorsWritingRebuildsKeysAndSetsTheSubcriteriaFlag) {
    Modelo m = Arbol();
    GuardarRequerimientos(m, ruta, false);
    CargarRequerimientos(leido, ruta);
    m.ConSubcriterios = true;
    m.Requerimientos(1).Clave = "R1";
    m.Requerimientos(2).Clave = "R2";
    NodoCriterio& c = m.Requerimientos(2).Criterios(1);
    c.Clave = "C1R2";
    c.Indicadores(1).Clave = "I1C1R2";
    c.Subcriterios(1).Clave = "S1C1R2";
    c.Subcriterios(1).Indicadores(1).Clave = "I1S1C1R2";
    EXPECT_EQ(leido, m);
    EXPECT_EQ(ErrorAlLeer({"*****", "REQ_NUMR = 1", "REQ_R1_CAL = 3", "REQ_R1_NUMC =  2.5 ",
                           "REQ_C2R1_NOM = c2", "REQ_C2R1_NUMS = -1", "FIN = "}),
              0);
    EXPECT_FALSE(leido.ConSubcriterios) << "loading resets the flag";
    const NodoRequerimiento& r = leido.Requerimientos(1);
    EXPECT_EQ(r.Calculo, 3) << "only writing turns it into 0";
    ASSERT_EQ(r.Criterios.Tamano(), 2) << "2.5 rounds to the even 2";
    EXPECT_EQ(std::tuple(r.Criterios(2).Nombre, r.Criterios(2).Saaty.Tamano()),
              std::tuple("c2", 2));
    EXPECT_TRUE(r.Criterios(1).NumIndicadores.EsVacio());
    EXPECT_FALSE(r.Criterios(2).Subcriterios.Presente());
    EXPECT_EQ(ErrorAlLeer({"*****", "OTRA = 1"}), 0);
    EXPECT_TRUE(leido.NumRequerimientos.EsVacio());
    EXPECT_EQ(leido.Requerimientos.Tamano(), 1) << "no count: the array is left alone";
}

TEST_F(SeccionRequerimientos, BadInputGoesUpAndCannotFloodMemory) {
    EXPECT_EQ(ErrorAlLeer({"*****", "REQ_NUMR = dos"}), ErrTipos);
    EXPECT_EQ(ErrorAlLeer({"*****", "REQ_NUMR = 1", "REQ_R1_STY1 = uno", "FIN = "}), ErrTipos);
    EXPECT_EQ(ErrorAlLeer({"*****", "REQ_NUMR = 1", "REQ_R1_CAL = saaty", "FIN = "}), ErrTipos);
    leido = Arbol();
    EXPECT_EQ(ErrorAlLeer({"*****", "REQ_NUMR =  32768 ", "FIN = "}), ErrDesbordamiento);
    EXPECT_EQ(leido.Requerimientos(1).Nombre, "Funcional") << "nothing was allocated";
    const auto inicio = std::chrono::steady_clock::now();
    EXPECT_EQ(ErrorAlLeer({"*****", "REQ_NUMR =  32767 ", "FIN = "}), ErrMemoria);
    EXPECT_LT(std::chrono::steady_clock::now() - inicio, std::chrono::seconds(20));
    EXPECT_EQ(ErrorAlLeer({"*****", "REQ_NUMR =  200 ", "FIN = "}), 0) << "within the margin";
    Modelo entero = Arbol();
    const Lineas lineas = LineasDe(entero);
    for (std::size_t corte = 1; corte <= lineas.size(); ++corte) {
        Lineas parte(lineas.begin(), lineas.begin() + static_cast<long>(corte));
        parte.back().resize(parte.back().size() / 2 + 1);
        leido = Modelo(); // absent arrays, the harder case for a reader
        EXPECT_EQ(ErrorAlLeer(parte), 0) << "a truncated file loads what it holds: " << corte;
    }
}

} // namespace
} // namespace vadro
