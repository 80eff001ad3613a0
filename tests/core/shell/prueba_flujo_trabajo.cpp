#include "core/core/comunes.h"
#include "core/shell/flujo_trabajo.h"
#include "soporte/acta.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace vadro {
namespace {

// The questions at the end of the line, answered each way, are checked by the walks of the
// main window.
class FlujoTrabajo : public pruebas::PruebaSesion {};

std::string Lista(const std::vector<Hija>& hijas) {
    std::string texto;
    for (Hija hija : hijas) {
        texto += std::string(texto.empty() ? "" : ",") + NombreHija(hija);
    }
    return texto;
}

std::string Marca(const char* nombre, const std::optional<bool>& valor) {
    return valor ? std::string(" ") + nombre + (*valor ? "+" : "-") : "";
}

std::string Describir(const Transicion& t) {
    const Ajuste& a = t.ajuste;
    std::string texto = Unir({"[", Marca("entradas", a.entradasDiseno),
                              Marca("retroceder", a.cmdRetroceder), Marca("b8", a.botonRetroceder),
                              Marca("continuar", a.cmdContinuar), Marca("b9", a.botonContinuar),
                              Marca("grupo", a.grupoDiseno), Marca("importar", a.importar),
                              Marca("panel", a.panel), Marca("fondo", a.fondo), " ]"});
    texto += Unir({" aceptar:", Lista(t.aceptar), " descargar:", Lista(t.descargar),
                   " cargar:", Lista(t.cargar)});
    texto += Unir({" -> ", t.destino ? NombrePosicion(*t.destino) : std::string("=")});
    texto += t.preguntarPermisos ? " permisos" : "";
    texto += t.finalDeLinea ? " final" : "";
    return texto;
}

// Each step written out in the order the main window applies it, kept as data: the settings,
// the windows accepted, unloaded and loaded, and where the line goes.
TEST_F(FlujoTrabajo, EveryStepOfTheLineOpensClosesAndEnablesWhatItMust) {
    Modelo conRequerimientos;
    conRequerimientos.NumRequerimientos = 2;
    const Modelo vacio;
    const std::pair<const char*, Transicion> casos[] = {
        {"Continuar at Ejes", TransicionContinuar(Posicion::Ejes)},
        {"Continuar at Resumen", TransicionContinuar(Posicion::Resumen)},
        {"after the permissions", TransicionTrasPermisos()},
        {"Continuar at Ponderacion", TransicionContinuar(Posicion::Ponderacion)},
        {"Continuar at Informe", TransicionContinuar(Posicion::Informe)},
        {"compiling at the end", TransicionCompilarAlFinal()},
        {"Retroceder at Informe, requirements",
         TransicionRetroceder(Posicion::Informe, conRequerimientos)},
        {"Retroceder at Informe", TransicionRetroceder(Posicion::Informe, vacio)},
        {"Retroceder at Ponderacion", TransicionRetroceder(Posicion::Ponderacion, vacio)},
        {"Retroceder at Resumen", TransicionRetroceder(Posicion::Resumen, vacio)},
        {"Retroceder at Ejes", TransicionRetroceder(Posicion::Ejes, vacio)},
        {"the jump to Resumen", TransicionSaltoResumen()},
        {"the jump to Ponderacion", TransicionSaltoPonderacion()},
    };
    pruebas::Acta acta;
    for (const auto& [paso, transicion] : casos) {
        acta.Fila(paso, Describir(transicion));
    }
    acta.Comparar("comandos/transiciones.txt");
}

TEST_F(FlujoTrabajo, ButtonsAndLabelsNameTheirCommands) {
    EXPECT_EQ(ComandoDeBoton("Alternativas"), Comando::Componentes);
    EXPECT_EQ(ComandoDeBoton("Tiempo"), Comando::Etapas);
    EXPECT_EQ(ComandoDeBoton("Requerimientos"), Comando::Requerimientos);
    EXPECT_EQ(ComandoDeBoton("Componentes"), Comando::Ninguno) << "the key, not the caption";
    using enum Comando;
    const Comando porEtiqueta[kNumEtiquetas] = {
        Ninguno, Requerimientos,     Componentes, Etapas,  SaltarAResumen,
        Ninguno, SaltarAPonderacion, Ninguno,     Compilar};
    for (int i = 0; i < kNumEtiquetas; ++i) {
        EXPECT_EQ(ComandoDeEtiqueta(i), porEtiqueta[i]) << i;
        EXPECT_EQ(EsEncabezado(i), porEtiqueta[i] == Comando::Ninguno) << i;
    }
}

TEST_F(FlujoTrabajo, OnlyTheCompilationWindowPutsThePrintingButtonOnAndNoUnloadTakesItOff) {
    for (Hija hija : {Hija::Ejes, Hija::Requerimientos, Hija::Componentes, Hija::Etapas,
                      Hija::Resumen, Hija::Ponderacion, Hija::Informe, Hija::Compilacion}) {
        SCOPED_TRACE(NombreHija(hija));
        const EfectoHija carga = EfectoAlCargar(hija);
        EXPECT_EQ(carga.botonImprimir,
                  hija == Hija::Compilacion ? std::optional<bool>(true) : std::nullopt);
        EXPECT_EQ(EfectoAlDescargar(hija).botonImprimir, std::nullopt);
    }
    const EfectoHija compilacion = EfectoAlCargar(Hija::Compilacion);
    EXPECT_EQ(compilacion.fondo, std::nullopt) << "it opens over the window of the position";
    EXPECT_EQ(compilacion.etiquetaEnCurso, -1);
}

TEST_F(FlujoTrabajo, ARefusedCloseReloadsOnlyTheWindowsOfThePosition) {
    const std::vector<Hija> abiertas = {Hija::Etapas, Hija::Ejes, Hija::Requerimientos,
                                        Hija::Compilacion};
    EXPECT_EQ(Lista(VentanasARecargar(Posicion::Ejes, abiertas)),
              "frmEjes,frmRequerimientos,frmEtapas");
    EXPECT_EQ(Lista(VentanasARecargar(Posicion::Resumen, abiertas)), "");
    EXPECT_EQ(Lista(VentanasARecargar(Posicion::Ponderacion, {Hija::Ponderacion})),
              "frmPonderacion");
    EXPECT_EQ(Lista(VentanasARecargar(Posicion::Informe, {Hija::Informe})), "")
        << "the report is not brought back";
}

TEST_F(FlujoTrabajo, ThePositionReadsInLowerCaseInTheStatusBar) {
    EXPECT_EQ(TextoPosicion(Posicion::Ponderacion), "Posición: ponderacion");
    EXPECT_EQ(TextoPosicion(Posicion::Ninguna), "Posición: ");
}

TEST_F(FlujoTrabajo, AnEmptyCountAndZeroBothMeanNone) {
    EXPECT_FALSE(HayElementos(ValorLibre()));
    EXPECT_FALSE(HayElementos(0));
    EXPECT_FALSE(HayElementos("0"));
    EXPECT_TRUE(HayElementos(1));
    EXPECT_TRUE(HayElementos(" 3 ")) << "a count read from a file as text";
}

// A compiled model is not offered a compilation at the end of the line; one without
// requirements cannot be compiled.
TEST_F(FlujoTrabajo, WhenAModelIsNotCompiled) {
    pruebas::Acta acta;
    acta.iconos = true;
    sesion().modelo.Compilado = true;
    acta.Fila("compiled, at the end", PreguntarCompilarAlFinal(sesion().modelo) ? "compile" : "no");
    for (const ValorLibre& cuenta : {ValorLibre(), ValorLibre(0), ValorLibre(2)}) {
        sesion().modelo.NumRequerimientos = cuenta;
        acta.Fila("requirements '" + cuenta.Texto() + "'",
                  ModeloCompilable(sesion().modelo) ? "compilable" : "not compilable");
    }
    acta.Comparar("comandos/no_compilar.txt");
}

} // namespace
} // namespace vadro
