// The companion given unlucky and hostile input, run as a user runs it: every case ends in a
// Spanish message within seconds and never damages a file. Files that are no models, outputs
// that cannot be written and failing saves are in the table of orders.
#include "core/core/archivos.h"
#include "core/files/modelo_archivo.h"
#include "core/files/proteccion.h"
#include "programa_herramientas.h"
#include "soporte/modelo_sano.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace vadro {
namespace {

using pruebas::Salida;

class HerramientasHostiles : public pruebas::ProgramaHerramientas {
protected:
    // A sound model whose first indicator's function is replaced by these lines, in plain text.
    void ModeloConFuncion(const std::string& ruta, const std::vector<std::string>& lineas) {
        Modelo m = pruebas::ModeloCon({pruebas::Requerimiento(
            "R", {pruebas::Criterio("C", {pruebas::Indicador("A"), pruebas::Indicador("B")})})});
        GuardarModelo(m, Ruta("base.vdm"), false);
        std::vector<std::string> texto;
        bool dentro = false;
        for (const auto& linea : LineasPlanas(Contenido(Ruta("base.vdm")))) {
            if (linea == "*****FUNCION VALOR I1C1R1*****") {
                dentro = true;
                texto.push_back(linea);
                texto.insert(texto.end(), lineas.begin(), lineas.end());
                continue;
            }
            dentro = dentro && linea.rfind("FUN_I1C1R1_", 0) == 0;
            if (!dentro) {
                texto.push_back(linea);
            }
        }
        Escribir(ruta, UnirLineas(texto));
    }
};

// Each fails the check, once, and nothing is written: a scoring function whose count of
// scores is none or not a count, and a limit whose sign is a word.
TEST_F(HerramientasHostiles, FunctionsThatOnceLoopedFailOnce) {
    const std::vector<std::string> puntuacion = {
        "FUN_I1C1R1_IND = I1C1R1",      "FUN_I1C1R1_XMN =  0 ",      "FUN_I1C1R1_XMX =  100000000 ",
        "FUN_I1C1R1_XMXS = igual",      "FUN_I1C1R1_RMN =  0 ",      "FUN_I1C1R1_RMX =  100000000 ",
        "FUN_I1C1R1_TIP = fPuntuacion", "FUN_I1C1R1_C =  50000000 ", "FUN_I1C1R1_K =  500000 ",
        "FUN_I1C1R1_P =  2000000 "};
    std::vector<std::vector<std::string>> casos;
    for (const char* cuenta : {"0", "-1", ".4", ""}) {
        casos.push_back(puntuacion);
        casos.back().push_back(std::string("FUN_I1C1R1_PTN_NUM = ") + cuenta);
    }
    casos.push_back(puntuacion);
    casos.back().insert(casos.back().begin() + 2, "FUN_I1C1R1_XMNS = palabra");
    for (const auto& lineas : casos) {
        ModeloConFuncion(Ruta("m.vdm"), lineas);
        Escribir(Ruta("c.vdc"), "antes");
        const Salida r = Programa("compilar m.vdm c.vdc");
        EXPECT_LE(std::count(r.error.begin(), r.error.end(), '\n'), 2) << r.error;
        EXPECT_EQ(r.estado, 1) << lineas.back() << "\n" << r.error << " (124 is a hang)";
        EXPECT_EQ(Contenido(Ruta("c.vdc")), "antes") << "the previous file stays";
    }
}

TEST_F(HerramientasHostiles, PesosRefusesAMatrixNoSiblingSetCanBe) {
    std::string unos;
    for (int i = 0; i < 50000; ++i) {
        unos += "1\n";
    }
    std::string pocas;
    for (int i = 0; i < 2000; ++i) {
        pocas += "1 1\n";
    }
    for (const auto& [entrada, mensaje] :
         {std::pair(unos, "La matriz tiene 50000 filas, y un conjunto de hermanos tiene como "
                          "mucho 32767."),
          std::pair(pocas, "La matriz tiene 2000 filas pero solo 4000 celdas escritas; una "
                           "matriz de 2000 filas tiene 4000000.")}) {
        const Salida r = Programa("pesos", entrada);
        EXPECT_EQ(r.estado, 2);
        EXPECT_EQ(r.error, std::string("vadro-herramientas: ") + mensaje +
                               "\nPruebe «vadro-herramientas --help».\n");
    }
}

} // namespace
} // namespace vadro
