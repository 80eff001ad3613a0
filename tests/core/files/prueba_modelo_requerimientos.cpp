#include "core/core/archivos.h"
#include "core/core/error_ejecucion.h"
#include "core/files/modelo_archivo.h"
#include "core/files/proteccion.h"
#include "soporte/datos.h"
#include "soporte/modelo_sano.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <random>
#include <regex>

namespace vadro {
namespace {

using namespace pruebas;
using Lineas = std::vector<std::string>;

template <typename Nodo> Nodo Cabeza(const std::string& clave, ValorLibre peso, int hermanos) {
    Nodo nodo;
    nodo.Clave = clave;
    nodo.Nombre = "Nodo " + clave;
    nodo.Peso = std::move(peso);
    nodo.Saaty.Redimensionar(hermanos);
    nodo.Saaty(1) = 0.25;
    return nodo;
}

NodoIndicador Indicador(const std::string& clave, ValorLibre peso, FuncionValor funcion) {
    auto nodo = Cabeza<NodoIndicador>(clave, std::move(peso), 2);
    nodo.Funcion = std::move(funcion);
    nodo.Funcion.Clave = clave;
    return nodo;
}

// Every header field, every kind of function, direct indicators beside a subcriterion,
// weights defined, zero and undefined, a directly weighted set and a Calculo of 3, components
// with and without options, stages; keys as a load rebuilds them.
Modelo ModeloCompleto() {
    Modelo m;
    PonerIdentidad(m);
    PonerComponentes(m, {{"Bombas", {"Motor"}}, {"Tuberías", {}}});
    PonerEtapas(m, {"Diseño", "Obra"});
    m.NumRequerimientos = 1;
    m.Requerimientos.Redimensionar(1);
    NodoRequerimiento& r = m.Requerimientos(1) = Cabeza<NodoRequerimiento>("R1", 100.0, 1);
    r.Calculo = 3;
    r.NumCriterios = 1;
    r.Criterios.Redimensionar(1);
    NodoCriterio& c = r.Criterios(1) = Cabeza<NodoCriterio>("C1R1", {}, 1);
    c.Calculo = CalculoDirecto;
    c.Directo = 0.0;
    c.NumIndicadores = 2;
    c.Indicadores.Redimensionar(2);
    c.Indicadores(1) = Indicador("I1C1R1", 50.5, Continua());
    c.Indicadores(2) = Indicador("I2C1R1", 0.0, DeEscalones<FuncionValor>());
    c.NumSubcriterios = 1;
    c.Subcriterios.Redimensionar(1);
    NodoSubcriterio& s = c.Subcriterios(1) = Cabeza<NodoSubcriterio>("S1C1R1", 1.0, 1);
    s.NumIndicadores = 2;
    s.Indicadores.Redimensionar(2);
    s.Indicadores(1) = Indicador("I1S1C1R1", {}, DePuntuacion());
    s.Indicadores(2) = Indicador("I2S1C1R1", 12.25, DeOptativos("I2S1C1R1"));
    return m;
}

class ModeloConRequerimientos : public PruebaSesion {
protected:
    std::string ruta = Ruta("planta.vdm");
    Lineas LineasDelArchivo() { return LineasPlanas(Contenido(ruta)); }
};

TEST_F(ModeloConRequerimientos, AModelRoundTripsAndASecondSaveGivesTheSameText) {
    Modelo m = ModeloCompleto();
    m.Modificado = true;
    GuardarModelo(m, ruta, false);
    EXPECT_FALSE(m.Modificado);
    EXPECT_NE(Contenido(ruta).substr(0, 5), "*****") << "a saved model is scrambled";
    EXPECT_FALSE(std::filesystem::exists(Ruta("planta.$$$"))) << "the temporary file goes";
    const std::string texto = UnirLineas(LineasDelArchivo());
    EXPECT_EQ(texto, Datos("archivos/modelo_completo.txt", texto)) << "8-bit plain text";
    Modelo leido;
    CargarModelo(leido, ruta);
    Modelo esperado = ModeloCompleto();
    esperado.Requerimientos(1).Calculo = CalculoSaaty;
    esperado.ConSubcriterios = true;
    EXPECT_EQ(leido, esperado);
    GuardarModelo(leido, ruta, false);
    EXPECT_EQ(UnirLineas(LineasDelArchivo()), texto);
    // 249.0000001 millionths are written as 249; read back, 249 / 1000000 times 1000000 falls
    // just under 249 and the next save cuts it to 248.
    leido.Requerimientos(1).Peso = 0.0002490000001;
    GuardarModelo(leido, ruta, false);
    CargarModelo(leido, ruta);
    GuardarModelo(leido, ruta, false);
    EXPECT_EQ(LineasDelArchivo()[18], "REQ_R1_PSO =  248 ");
}

TEST_F(ModeloConRequerimientos, AHandMadeFileLoadsAsTheFormatSays) {
    Escribir(ruta, LeerDatos("archivos/hecho_a_mano.vdm").value());
    Modelo m;
    m.ConSubcriterios = true;
    CargarModelo(m, ruta);
    EXPECT_FALSE(m.ConSubcriterios);
    EXPECT_EQ(m.Requerimientos(1).Calculo, 3);
    const NodoCriterio& c = m.Requerimientos(1).Criterios(1);
    EXPECT_TRUE(c.NumSubcriterios.EsVacio()) << "a missing count is the empty text";
    EXPECT_EQ(c.Indicadores(2).Saaty.Tamano(), 2);
    EXPECT_EQ(c.Indicadores(1).Funcion.XMin, ValorLibre("<0")) << "no sign line: open limits";
    EXPECT_EQ(c.Indicadores(1).Funcion.XMax, ValorLibre(">90"));
    const FuncionValor& escalon = c.Indicadores(2).Funcion;
    EXPECT_EQ(escalon.Escalones(1).ValorInicial, ValorLibre("25")) << "a step's bare number";
    EXPECT_EQ(escalon.Escalones(1).ValorFinal, ValorLibre("=40"));
    EXPECT_EQ(escalon.XMin, ValorLibre("<5")) << "its first digit taken for the symbol";
    GuardarModelo(m, ruta, false);
    CargarModelo(m, ruta);
    EXPECT_EQ(m.Requerimientos(1).Calculo, CalculoSaaty) << "the next save writes 0";
}

TEST_F(ModeloConRequerimientos, ARequirementsFailureStillSavesTheModel) {
    Modelo m = ModeloCompleto();
    m.Modificado = true;
    m.Requerimientos(1).Criterios(1).Saaty.Borrar();
    mensajes.Esperar("VADRO: Error ", "Error al guardar el árbol de requerimientos.");
    GuardarModelo(m, ruta, false);
    EXPECT_FALSE(m.Modificado);
    const Lineas lineas = LineasDelArchivo();
    const auto componentes = std::find(lineas.begin(), lineas.end(), "*****COMPONENTES*****");
    ASSERT_NE(componentes, lineas.end()) << "the sections after the requirements are written";
    EXPECT_EQ(*(componentes - 1), "REQ_C1R1_PSO = ") << "the requirements stop where they failed";
}

TEST_F(ModeloConRequerimientos, TwoModelsShareAFileUnderTheirPrefixes) {
    Modelo a = ModeloCompleto();
    Modelo b = ModeloCompleto();
    b.Requerimientos(1).Criterios(1).Indicadores(1).Funcion.K = 0.75;
    GuardarModelo(a, ruta, true, "A");
    GuardarModelo(b, ruta, true, "B");
    ArchivoEntrada archivo(DividirLineas(Contenido(ruta)));
    EXPECT_EQ(archivo.Lineas().at(archivo.NumLineas() / 2), "B*****MODELO*****")
        << "the prefix stands before the marker too";
    Modelo leidoA;
    Modelo leidoB;
    CargarModelo(leidoA, archivo, "A");
    CargarModelo(leidoB, archivo, "B");
    EXPECT_EQ(leidoA.Requerimientos(1).Criterios(1).Indicadores(1).Funcion.K, ValorLibre(0.5));
    EXPECT_EQ(leidoB.Requerimientos(1).Criterios(1), b.Requerimientos(1).Criterios(1));
}

// The components and stages readers trap a count that is no number (a missing "CMP_C1_NUM"
// converts the empty text): their message, and an empty list, is how such a file loads.
class SinLineas : public ModeloConRequerimientos {
protected:
    SinLineas() {
        anterior_ = InstalarMensajes([this](const Mensaje& mensaje) {
            const bool trampa = mensaje.titulo == "VADRO: Error." &&
                                mensaje.texto.rfind("Fichero no válido", 0) == 0;
            EXPECT_TRUE(trampa) << mensaje.texto;
            trampas += trampa ? 1 : 0;
            return PrimerBoton(mensaje.botones);
        });
    }
    ~SinLineas() override { InstalarMensajes(anterior_); }

    int trampas = 0;

private:
    FuncionMensajes anterior_;
};

TEST_F(SinLineas, AFileWithAnyOneLineRemovedLoadsWithThatValueEmpty) {
    Modelo m = ModeloCompleto();
    GuardarModelo(m, ruta, false);
    const Lineas completo = LineasDelArchivo();
    // Lines whose loss leaves only their own value empty: texts and scaled numbers. ("_P" is not
    // one: its key is the start of "_PTN_NUM", whose value it then reads.)
    const std::regex propio("(MOD_(APL|NOM|DAT|POR|VER|LOC|REF|DSC|FCP|EJX|EJY|EJZ)|.*_(NOM|DSC|"
                            "UNI|PSO|STY[0-9]+|DIR|RMN|RMX|C|K|VAL|VLN|VLS|MIN|MAX)|ETA_NOM[0-9]+)"
                            " = .*");
    int propias = 0;
    for (std::size_t i = 0; i < completo.size(); ++i) {
        Lineas sin = completo;
        sin.erase(sin.begin() + static_cast<long>(i));
        Escribir(ruta, TextoProtegido(sin));
        Modelo leido;
        const int antes = trampas;
        ASSERT_NO_THROW(CargarModelo(leido, ruta)) << completo[i];
        const bool cuenta = std::regex_match(completo[i], std::regex("CMP_C[0-9]_NUM = .*"));
        EXPECT_EQ(trampas - antes, cuenta ? 1 : 0) << completo[i];
        GuardarModelo(leido, ruta, false);
        if (completo[i].rfind("*****", 0) == 0) {
            EXPECT_EQ(LineasDelArchivo(), completo) << "markers are never looked for";
        } else if (std::regex_match(completo[i], propio)) {
            Lineas esperado = completo;
            esperado[i] = completo[i].substr(0, completo[i].find(" = ") + 3);
            EXPECT_EQ(LineasDelArchivo(), esperado) << completo[i];
            ++propias;
        }
    }
    EXPECT_GT(propias, 60) << "most lines of a model are texts and numbers";
}

TEST_F(SinLineas, AFileWithAnySetOfLinesRemovedLoads) {
    Modelo m = ModeloCompleto();
    GuardarModelo(m, ruta, false);
    const Lineas completo = LineasDelArchivo();
    std::mt19937 azar(5);
    for (const unsigned porCiento : {5u, 30u, 70u, 95u}) {
        for (int vuelta = 0; vuelta < 25; ++vuelta) {
            Lineas sin;
            std::copy_if(completo.begin(), completo.end(), std::back_inserter(sin),
                         [&](const std::string&) { return azar() % 100 >= porCiento; });
            Escribir(ruta, TextoProtegido(sin));
            Modelo leido;
            EXPECT_NO_THROW(CargarModelo(leido, ruta)) << porCiento << "% removed";
        }
    }
}

TEST_F(ModeloConRequerimientos, ANumberTheReaderCannotReadIsRefusedAtTheSave) {
    Escribir(ruta, "antes");
    Modelo m = ModeloCompleto();
    m.Modificado = true;
    m.Requerimientos(1).Peso = 1e303; // a million times it is no finite number
    mensajes.Esperar("VADRO: Error ", "Error 6 al guardar el modelo.\n\rDesbordamiento");
    EXPECT_FALSE(GuardarModelo(m, ruta, false));
    EXPECT_TRUE(m.Modificado);
    EXPECT_EQ(Contenido(ruta), "antes");
}

TEST_F(ModeloConRequerimientos, TheTemporaryFileIsNeverTheFileRead) {
    const std::string propio = Ruta("m.$$$"); // the program directory holds it
    Modelo m = ModeloCompleto();
    GuardarModelo(m, propio, false);
    const std::string bytes = Contenido(propio);
    EXPECT_NE(RutaTemporal(propio), propio);
    Modelo leido;
    CargarModelo(leido, propio);
    EXPECT_EQ(leido.Requerimientos(1).Nombre, "Nodo R1");
    EXPECT_EQ(Contenido(propio), bytes) << "read, not overwritten nor deleted";
}

// Truncated at any byte, or bytes of no model at all: the load ends, with the model or with a
// runtime error that names the file; never another failure.
TEST_F(SinLineas, TruncatedBinaryAndHugeCountFilesLoadOrFailWithARuntimeError) {
    Modelo m = ModeloCompleto();
    GuardarModelo(m, ruta, false);
    const std::string completo = Contenido(ruta);
    std::mt19937 azar(9);
    std::vector<std::string> entradas;
    for (std::size_t corte = 0; corte < completo.size(); corte += 1 + azar() % 97) {
        entradas.push_back(completo.substr(0, corte));
    }
    for (int i = 0; i < 20; ++i) {
        std::string binario(azar() % 5000, '\0');
        for (char& b : binario) {
            b = static_cast<char>(azar());
        }
        entradas.push_back(binario);
    }
    entradas.push_back(UnirLineas({"*****MODELO*****", "REQ_NUMR =  30000 "}));
    entradas.push_back(UnirLineas({"*****MODELO*****", "REQ_NUMR =  1 ", "REQ_R1_NUMC =  1 ",
                                   "REQ_C1R1_NUMI =  1 ", "FUN_I1C1R1_TIP = fEscalon",
                                   "FUN_I1C1R1_ESC_NUM =  32767 "}));
    int errores = 0;
    for (const std::string& bytes : entradas) {
        Escribir(ruta, bytes);
        Modelo leido;
        try {
            CargarModelo(leido, ruta);
        } catch (const ErrorEjecucion& error) {
            ++errores;
            EXPECT_NE(error.Descripcion().find(ruta), std::string::npos) << error.Descripcion();
        }
    }
    EXPECT_GE(errores, 1) << "30000 requirements at least (32767 steps fit the margin)";
}

} // namespace
} // namespace vadro
