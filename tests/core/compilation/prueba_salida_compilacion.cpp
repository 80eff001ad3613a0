// What follows a shown report: the outcome with the compiled file, and the printing of the
// report with its printer dialog.

#include "core/compilation/compilacion.h"
#include "core/compilation/informe_compilacion.h"
#include "core/core/error_ejecucion.h"
#include "core/files/modelo_archivo.h"
#include "soporte/acta.h"
#include "soporte/errores.h"
#include "soporte/guion_dialogos.h"
#include "soporte/modelo_sano.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>

namespace vadro {
namespace {

namespace fs = std::filesystem;

const std::string kTituloVdc = "Guardar modelo compilado como...";

// A sound model whose only findings are warnings: it has no life-cycle stages.
Modelo ConAvisos() {
    Modelo modelo = pruebas::ModeloCorrecto();
    modelo.Nombre = "Depuradora";
    modelo.NumEtapas = "";
    return modelo;
}

class SalidaCompilacion : public pruebas::PruebaSesion {
protected:
    bool Concluir() { return ConcluirCompilacion(sesion(), ComprobarModelo(sesion().modelo)); }

    pruebas::GuionDialogos dialogos;
};

// The outcome of a check: errors are told and offered no file; a sound model is offered the
// compiled file, which No, a cancelled dialog or a failing dialog leave unwritten.
TEST_F(SalidaCompilacion, TheOutcomeAndTheCompiledFile) {
    EXPECT_EQ(Desenlace(ComprobarModelo(pruebas::ModeloCorrecto())),
              DesenlaceCompilacion::Correcta);
    EXPECT_EQ(Desenlace(ComprobarModelo(ConAvisos())), DesenlaceCompilacion::CorrectaConAvisos);
    Modelo conErrores = pruebas::ModeloCorrecto();
    conErrores.Requerimientos(1).Peso = "";
    EXPECT_EQ(Desenlace(ComprobarModelo(conErrores)), DesenlaceCompilacion::Incorrecta);
    const std::string ruta = Ruta("depuradora.vdc");
    pruebas::Acta acta;
    acta.iconos = true;
    for (const pruebas::Caso& caso : pruebas::Casos("compilacion/conclusion.txt")) {
        const std::vector<std::string>& c = caso.campos; // findings, answer, dialog
        sesion().modelo = c.at(0) == "errors" ? conErrores : ConAvisos();
        pruebas::GuionDialogos guion;
        const std::string dialogo = c.size() > 2 ? c[2] : "";
        if (dialogo == "chosen") {
            guion.Elegir(kTituloVdc, ruta);
        } else if (dialogo == "cancelled") {
            guion.Cancelar(kTituloVdc);
        } else if (dialogo == "failing") {
            InstalarDialogos([](const PeticionDialogo&) -> std::optional<std::string> {
                throw ErrorEjecucion(ErrPermiso);
            });
        }
        if (c.size() > 1) {
            acta.respuestas = {c[1] == "Yes" ? Respuesta::Si : Respuesta::No};
        }
        const bool concluida = Concluir();
        acta.Fila(caso.texto, std::string(concluida ? "done" : "not done") +
                                  (sesion().modelo.Compilado ? ", compiled" : "") +
                                  (fs::is_empty(Directorio()) ? "" : ", a file written"));
    }
    acta.sustituciones = {{Directorio(), "<programa>"}};
    acta.Comparar("compilacion/conclusion.txt");
    Modelo leido;
    CargarModelo(leido, ruta);
    EXPECT_EQ(leido.Nombre, "Depuradora");
    EXPECT_EQ(ComprobarModelo(leido).Lineas(), ComprobarModelo(sesion().modelo).Lineas());
}
// ---- Printing the report

class ImpresionInforme : public pruebas::PruebaSesion {
protected:
    pruebas::GuionImpresoras impresoras;
    int impresiones = 0;
};

// A cancelled printer dialog prints nothing and says nothing; the chosen printer goes to the
// printing as it was chosen; every failure of the printing but a cancel ends in the critical
// error message. The dialog hides printing to file, page numbers and the selection.
TEST_F(ImpresionInforme, EachAnswerOfTheDialogAndEachFailureOfThePrinting) {
    ImpresoraElegida elegida{"Oficina", "", 3, true};
    impresoras.Cancelar().Elegir(elegida);
    for (int k = 0; k < 4; ++k) {
        impresoras.ElegirArchivo(Ruta("informe.pdf"));
    }
    const std::pair<const char*, std::function<void()>> casos[] = {
        {"dialog cancelled", [] {}},
        {"a printer chosen", [] {}},
        {"printer error", [] { throw ErrorEjecucion(ErrImpresora); }},
        {"a file error", [] { throw ErrorEjecucion(ErrDiscoLleno); }},
        {"a failure below the logic", [] { throw std::runtime_error("papel"); }},
        {"a cancel inside the printing", [] { throw ErrorEjecucion(ErrCancelar); }},
    };
    pruebas::Acta acta;
    acta.iconos = true;
    for (const auto& [nombre, fallo] : casos) {
        std::optional<ImpresoraElegida> recibida;
        const bool impreso = ImprimirInformeCompilacion([&](const ImpresoraElegida& i) {
            recibida = i;
            fallo();
        });
        acta.Fila(nombre, std::string(impreso ? "printed" : "not printed") +
                              (recibida == elegida ? " as chosen" : "") +
                              (recibida ? ", handed to the printing" : ""));
    }
    acta.Comparar("compilacion/impresion.txt");
    for (const PeticionImpresora& peticion : impresoras.Peticiones()) {
        EXPECT_EQ(peticion.flags, 0x106);
    }
}

TEST_F(ImpresionInforme, WithoutAPrinterDialogThereIsNobodyToChooseAndThatIsACancel) {
    const FuncionImpresora guion = InstalarImpresora(nullptr);
    EXPECT_EQ(pruebas::NumeroDeError([] { MostrarDialogoImpresora({}); }), ErrCancelar);
    EXPECT_FALSE(ImprimirInformeCompilacion([&](const ImpresoraElegida&) { ++impresiones; }));
    InstalarImpresora(guion);
    EXPECT_EQ(impresiones, 0);
}

} // namespace
} // namespace vadro
