#include "core/core/archivos.h"
#include "core/core/error_ejecucion.h"
#include "core/files/modelo_archivo.h"
#include "core/files/proteccion.h"
#include "funciones_prueba.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace vadro {
namespace {

using namespace pruebas;
using Lineas = std::vector<std::string>;

void Cabeza(CabeceraNodo& nodo, const std::string& nombre, ValorLibre peso,
            std::vector<ValorLibre> saaty, int32_t calculo = CalculoSaaty) {
    nodo.Nombre = nombre;
    nodo.Descripcion = "de " + nombre;
    nodo.Peso = std::move(peso);
    nodo.Calculo = calculo;
    nodo.Saaty.Redimensionar(static_cast<int>(saaty.size()));
    for (int j = 1; j <= nodo.Saaty.Cota(); ++j) {
        nodo.Saaty(j) = saaty[static_cast<std::size_t>(j - 1)];
    }
}

// Two requirements. The first has a criterion with two direct indicators (continuous and
// step) beside a subcriterion with a scoring and an optional-indicators function, and a second
// criterion without children; the second requirement has no criteria at all. Weights are
// defined, zero and undefined, and one set is weighted directly.
Modelo ModeloCompleto() {
    Modelo m;
    m.Nombre = "Planta";
    m.NumRequerimientos = 2;
    m.Requerimientos.Redimensionar(2);
    NodoRequerimiento& r1 = m.Requerimientos(1);
    Cabeza(r1, "Ambiental", 80.0, {1.0, 4.0}, 3);
    Cabeza(m.Requerimientos(2), "Social", 20.0, {0.25, 1.0});
    m.Requerimientos(2).NumCriterios = ValorLibre();

    r1.NumCriterios = 2;
    r1.Criterios.Redimensionar(2);
    NodoCriterio& c1 = r1.Criterios(1);
    Cabeza(c1, "Ruido", 100.0, {ValorLibre(), ValorLibre()}, CalculoDirecto);
    c1.Directo = 10.0;
    Cabeza(r1.Criterios(2), "Olor", 0.0, {ValorLibre(), ValorLibre()}, CalculoDirecto);
    r1.Criterios(2).Directo = 0.0;
    r1.Criterios(2).NumIndicadores = 0;
    r1.Criterios(2).NumSubcriterios = 0;

    c1.NumIndicadores = 2;
    c1.Indicadores.Redimensionar(2);
    Cabeza(c1.Indicadores(1), "Diurno", 50.0, {1.0, 1.0});
    c1.Indicadores(1).Funcion = Continua();
    Cabeza(c1.Indicadores(2), "Nocturno", 50.0, {1.0, 1.0});
    c1.Indicadores(2).Funcion = DeEscalones();

    c1.NumSubcriterios = 1;
    c1.Subcriterios.Redimensionar(1);
    NodoSubcriterio& s1 = c1.Subcriterios(1);
    Cabeza(s1, "Molestias", ValorLibre(), {ValorLibre()});
    s1.NumIndicadores = 3;
    s1.Indicadores.Redimensionar(3);
    Cabeza(s1.Indicadores(1), "Quejas", 20.5, {1.0, 0.5, 2.0});
    s1.Indicadores(1).Funcion = DePuntuacion();
    Cabeza(s1.Indicadores(2), "Medidas", 40.25, {2.0, 1.0, 4.0});
    s1.Indicadores(2).Funcion = DeOptativos();
    Cabeza(s1.Indicadores(3), "Sin función", 39.25, {0.5, 0.25, 1.0});
    return m;
}

// What a load gives back from a saved model: every key rebuilt from the positions.
Modelo ComoCargado(Modelo m) {
    m.ConSubcriterios = HaySubcriterios(m);
    m.Modificado = false;
    for (int r = 1; r <= m.NumRequerimientos.Cuenta(); ++r) {
        NodoRequerimiento& req = m.Requerimientos(r);
        req.Clave = "R" + std::to_string(r);
        for (int c = 1; c <= req.NumCriterios.Cuenta(); ++c) {
            NodoCriterio& cri = req.Criterios(c);
            cri.Clave = "C" + std::to_string(c) + req.Clave;
            for (int i = 1; i <= cri.NumIndicadores.Cuenta(); ++i) {
                cri.Indicadores(i).Clave = "I" + std::to_string(i) + cri.Clave;
            }
            for (int s = 1; s <= cri.NumSubcriterios.Cuenta(); ++s) {
                NodoSubcriterio& sub = cri.Subcriterios(s);
                sub.Clave = "S" + std::to_string(s) + cri.Clave;
                for (int i = 1; i <= sub.NumIndicadores.Cuenta(); ++i) {
                    sub.Indicadores(i).Clave = "I" + std::to_string(i) + sub.Clave;
                }
            }
        }
    }
    return m;
}

class ModeloConRequerimientos : public PruebaSesion {
protected:
    std::string ruta = Ruta("planta.vdm");

    Lineas LineasDelArchivo() { return LineasPlanas(Contenido(ruta)); }
};

TEST_F(ModeloConRequerimientos, TheRequirementsFollowTheHeader) {
    Modelo m = ModeloCompleto();
    GuardarModelo(m, ruta, false);
    const Lineas lineas = LineasDelArchivo();
    const auto marcador = std::find(lineas.begin(), lineas.end(), "*****REQUERIMIENTOS*****");
    ASSERT_NE(marcador, lineas.end());
    EXPECT_EQ(*(marcador - 1), "MOD_PERM_USU_VER = Falso");
    EXPECT_EQ(*(marcador + 1), "REQ_NUMR =  2 ");
    EXPECT_EQ(*(marcador + 8), "REQ_R1_CAL =  0 ") << "Calculo 3 goes out as 0";
    EXPECT_EQ(m.Requerimientos(1).Calculo, CalculoSaaty);
    EXPECT_EQ(lineas.back(), "REQ_R2_NUMC = ");
}

TEST_F(ModeloConRequerimientos, AModelWithEveryKindOfFunctionRoundTrips) {
    Modelo m = ModeloCompleto();
    m.Modificado = true;
    GuardarModelo(m, ruta, false);
    EXPECT_FALSE(m.Modificado);
    const std::string primera = Contenido(ruta);

    Modelo leido;
    leido.ConSubcriterios = false;
    CargarModelo(leido, ruta);
    Modelo esperado = ComoCargado(m);
    EXPECT_TRUE(esperado.ConSubcriterios);
    EXPECT_EQ(leido, esperado);

    GuardarModelo(leido, ruta, false);
    EXPECT_EQ(Contenido(ruta), primera) << "a second save gives the same text";
}

TEST_F(ModeloConRequerimientos, TheDriftOfTheLastUnitIsTheOnlyChangeOnASecondSave) {
    Modelo m = ModeloCompleto();
    // 249.0000001 millionths are written as 249; read back, 249 / 1000000 times 1000000 falls
    // just under 249 and is cut to 248.
    m.Requerimientos(1).Peso = 0.0002490000001;
    GuardarModelo(m, ruta, false);
    Modelo leido;
    CargarModelo(leido, ruta);
    const Lineas primera = LineasDelArchivo();
    GuardarModelo(leido, ruta, false);
    const Lineas segunda = LineasDelArchivo();
    ASSERT_EQ(primera.size(), segunda.size());
    Lineas distintas;
    for (std::size_t n = 0; n < primera.size(); ++n) {
        if (primera[n] != segunda[n]) {
            distintas.push_back(primera[n] + "/" + segunda[n]);
        }
    }
    EXPECT_EQ(distintas, Lineas{"REQ_R1_PSO =  249 /REQ_R1_PSO =  248 "});
}

TEST_F(ModeloConRequerimientos, AHandMadeFileLoadsAsTheFormatSays) {
    const Lineas lineas = {
        "*****MODELO*****",
        "MOD_NOM = A mano",
        "*****REQUERIMIENTOS*****",
        "REQ_NUMR =  1 ",
        "REQ_R1_NOM = Calidad",
        "REQ_R1_PSO =  100000000 ",
        "REQ_R1_STY1 =  1000000 ",
        "REQ_R1_CAL =  3 ",
        "REQ_R1_NUMC =  1 ",
        "REQ_C1R1_NOM = Ruido",
        "REQ_C1R1_CAL = 1",
        "REQ_C1R1_NUMI =  2 ",
        "REQ_I1C1R1_NOM = D\xED"
        "a",
        "*****FUNCION VALOR I1C1R1*****",
        "FUN_I1C1R1_IND = I1C1R1",
        "FUN_I1C1R1_UNI = dB",
        "FUN_I1C1R1_XMN =  0 ",
        "FUN_I1C1R1_XMX =  90000000 ",
        "FUN_I1C1R1_RMN =  90000000 ",
        "FUN_I1C1R1_RMX =  0 ",
        "FUN_I1C1R1_TIP = fContinua",
        "FUN_I1C1R1_C =  45000000 ",
        "FUN_I1C1R1_K =  500000 ",
        "FUN_I1C1R1_P =  2000000 ",
        "REQ_I2C1R1_NOM = Noche",
        "*****FUNCION VALOR I2C1R1*****",
        "FUN_I2C1R1_IND = I2C1R1",
        "FUN_I2C1R1_XMN =  0 ",
        "FUN_I2C1R1_TIP = fEscalon",
        "FUN_I2C1R1_ESC_NUM =  2 ",
        "FUN_I2C1R1_ESC1_VINI =  0 ",
        "FUN_I2C1R1_ESC1_VFIN =  40000000 ",
        "FUN_I2C1R1_ESC1_SFIN = <",
        "FUN_I2C1R1_ESC1_VAL =  1000000 ",
        "FUN_I2C1R1_ESC2_VINI =  40000000 ",
        "FUN_I2C1R1_ESC2_SINI = igual",
        "FUN_I2C1R1_ESC2_VFIN =  90000000 ",
        "FUN_I2C1R1_ESC2_SFIN = igual",
        "FUN_I2C1R1_ESC2_VAL =  0 ",
        "OTRA_SECCION = sin leer",
    };
    Escribir(ruta, UnirLineas(lineas));
    Modelo m;
    m.ConSubcriterios = true;
    CargarModelo(m, ruta);

    EXPECT_EQ(m.Nombre, "A mano");
    EXPECT_FALSE(m.ConSubcriterios);
    const NodoRequerimiento& r = m.Requerimientos(1);
    EXPECT_EQ(r.Calculo, 3);
    EXPECT_TRUE(r.Descripcion.empty());
    EXPECT_TRUE(r.Directo.EsVacio());
    const NodoCriterio& c = r.Criterios(1);
    EXPECT_EQ(c.Clave, "C1R1");
    EXPECT_EQ(c.Calculo, CalculoDirecto);
    EXPECT_TRUE(c.Peso.EsVacio());
    EXPECT_TRUE(c.NumSubcriterios.EsVacio()) << "a missing count is the empty text";
    EXPECT_FALSE(c.Subcriterios.Presente());
    ASSERT_EQ(c.Indicadores.Tamano(), 2);
    EXPECT_EQ(c.Indicadores(1).Nombre, "Día");
    EXPECT_EQ(c.Indicadores(1).Saaty.Tamano(), 2);

    const FuncionValor& continua = c.Indicadores(1).Funcion;
    EXPECT_EQ(continua.Tipo, FuncionContinua);
    EXPECT_EQ(continua.XMin, ValorLibre("<0")) << "a missing sign line is an open limit";
    EXPECT_EQ(continua.XMax, ValorLibre(">90"));
    EXPECT_EQ(continua.RMin, ValorLibre(90.0));
    EXPECT_EQ(continua.RMax, ValorLibre(0.0));
    EXPECT_EQ(continua.K, ValorLibre(0.5));

    const FuncionValor& escalon = c.Indicadores(2).Funcion;
    EXPECT_EQ(escalon.Tipo, FuncionEscalon);
    EXPECT_TRUE(escalon.Unidades.empty());
    ASSERT_EQ(escalon.Escalones.Tamano(), 2);
    EXPECT_EQ(escalon.Escalones(1).ValorInicial, ValorLibre("0"))
        << "a step's missing sign leaves the number bare";
    EXPECT_EQ(escalon.Escalones(1).ValorFinal, ValorLibre("<40"));
    EXPECT_EQ(escalon.Escalones(2).ValorInicial, ValorLibre("=40"));
    EXPECT_EQ(escalon.Escalones(2).Valor, ValorLibre(0.0));
    EXPECT_EQ(escalon.XMin, ValorLibre("<"))
        << "the bare step's only digit was taken for its symbol";
    EXPECT_TRUE(escalon.XMax.EsVacio());

    GuardarModelo(m, ruta, false);
    Modelo otra;
    CargarModelo(otra, ruta);
    EXPECT_EQ(otra.Requerimientos(1).Calculo, CalculoSaaty) << "the next save writes 0";
}

TEST_F(ModeloConRequerimientos, ARequirementsFailureStillSavesTheModel) {
    Modelo m = ModeloCompleto();
    m.Modificado = true;
    m.Requerimientos(2).Saaty.Borrar();
    mensajes.Esperar("VADRO: Error ", "Error al guardar el árbol de requerimientos.");
    GuardarModelo(m, ruta, false);
    EXPECT_FALSE(m.Modificado) << "the requirements handled their own failure";
    const Lineas lineas = LineasDelArchivo();
    EXPECT_EQ(lineas.front(), "*****MODELO*****");
    EXPECT_EQ(lineas.back(), "REQ_R2_PSO =  20000000 ");
    Modelo leido;
    CargarModelo(leido, ruta);
    EXPECT_EQ(leido.Nombre, "Planta");
    EXPECT_EQ(leido.Requerimientos(1).Criterios(1).Subcriterios(1).Indicadores(2).Funcion,
              ComoCargado(m).Requerimientos(1).Criterios(1).Subcriterios(1).Indicadores(2).Funcion);
}

TEST_F(ModeloConRequerimientos, TwoModelsShareAFileUnderTheirPrefixes) {
    Modelo a = ModeloCompleto();
    Modelo b = ModeloCompleto();
    b.Nombre = "Otra";
    b.Requerimientos(1).Criterios(1).Indicadores(1).Funcion.K = 0.75;
    b.Requerimientos(2).Nombre = "Económico";
    GuardarModelo(a, ruta, true, "A");
    GuardarModelo(b, ruta, true, "B");
    ArchivoEntrada archivo(DividirLineas(Contenido(ruta)));
    Modelo leidoA;
    Modelo leidoB;
    CargarModelo(leidoA, archivo, "A");
    CargarModelo(leidoB, archivo, "B");
    EXPECT_EQ(leidoA, ComoCargado(a));
    EXPECT_EQ(leidoB, ComoCargado(b));
}

TEST_F(ModeloConRequerimientos, ABrokenCountStopsTheLoadWithItsError) {
    Modelo m = ModeloCompleto();
    GuardarModelo(m, ruta, false);
    Lineas lineas = LineasDelArchivo();
    const auto numi = std::find(lineas.begin(), lineas.end(), "REQ_S1C1R1_NUMI =  3 ");
    ASSERT_NE(numi, lineas.end());
    *numi = "REQ_S1C1R1_NUMI = tres";
    Escribir(ruta, UnirLineas(lineas));
    Modelo leido;
    try {
        CargarModelo(leido, ruta);
        ADD_FAILURE() << "a count that is no number must fail";
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.Numero(), ErrTipos);
    }
    EXPECT_EQ(leido.Nombre, "Planta") << "what came before the failure stays read";
}

} // namespace
} // namespace vadro
