// What follows a shown report: the outcome with the compiled file, and the printing of the
// report with its printer dialog.

#include "core/compilation/compilacion.h"
#include "core/compilation/informe_compilacion.h"
#include "core/core/error_ejecucion.h"
#include "core/files/modelo_archivo.h"
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

const std::string kCorrecta = "VADRO PROGRAMADOR: compilación correcta";
const std::string kPregunta =
    "El modelo no contiene errores.\n"
    "Desea crear el archivo compilado (*.vdc) utilizable por el módulo VADRO USUARIO?";
const std::string kIncorrecta = "VADRO PROGRAMADOR: compilación incorrecta";
const std::string kErrores = "El modelo contiene errores.\nCorríjalos para poder crear el "
                             "archivo utilizable por el módulo VADRO USUARIO.";
const std::string kTituloVdc = "Guardar modelo compilado como...";

std::string Anuncio(const std::string& ruta) {
    return "Se ha creado el archivo compilado " + ruta +
           "\nEste archivo será utilizable por el módulo VADRO USUARIO.";
}

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
    bool DirectorioVacio() const { return fs::is_empty(Directorio()); }

    pruebas::GuionDialogos dialogos;
};

TEST_F(SalidaCompilacion, AModelWithErrorsHearsSoAndIsOfferedNoFile) {
    sesion().modelo = pruebas::ModeloCorrecto();
    sesion().modelo.Requerimientos(1).Peso = "";
    mensajes.Esperar(kIncorrecta, kErrores);
    EXPECT_EQ(Desenlace(ComprobarModelo(sesion().modelo)), DesenlaceCompilacion::Incorrecta);
    EXPECT_FALSE(Concluir());
    EXPECT_EQ(mensajes.Vistos().at(0).icono, Icono::Informacion);
    EXPECT_EQ(mensajes.Vistos().at(0).botones, Botones::Aceptar);
    EXPECT_TRUE(DirectorioVacio());
    EXPECT_FALSE(sesion().modelo.Compilado);
}

TEST_F(SalidaCompilacion, WarningsOnlyLeadToTheCompiledFileWhichHoldsTheModel) {
    EXPECT_EQ(Desenlace(ComprobarModelo(pruebas::ModeloCorrecto())),
              DesenlaceCompilacion::Correcta);
    sesion().modelo = ConAvisos();
    EXPECT_EQ(Desenlace(ComprobarModelo(sesion().modelo)), DesenlaceCompilacion::CorrectaConAvisos);
    const std::string ruta = Ruta("depuradora.vdc");
    mensajes.Esperar(kCorrecta, kPregunta, Respuesta::Si).Esperar(kCorrecta, Anuncio(ruta));
    dialogos.Elegir(kTituloVdc, ruta);
    EXPECT_TRUE(Concluir());
    EXPECT_EQ(mensajes.Vistos().at(0).botones, Botones::SiNo);
    EXPECT_EQ(mensajes.Vistos().at(0).icono, Icono::Pregunta);
    EXPECT_EQ(mensajes.Vistos().at(1).icono, Icono::Informacion);
    EXPECT_TRUE(sesion().modelo.Compilado);
    Modelo leido;
    CargarModelo(leido, ruta);
    EXPECT_EQ(leido.Nombre, "Depuradora");
    EXPECT_EQ(ComprobarModelo(leido).Lineas(), ComprobarModelo(sesion().modelo).Lineas());
}

TEST_F(SalidaCompilacion, NoAndACancelledDialogBothEndInSilenceWithoutAFile) {
    sesion().modelo = ConAvisos();
    mensajes.Esperar(kCorrecta, kPregunta, Respuesta::No);
    EXPECT_FALSE(Concluir());
    EXPECT_TRUE(dialogos.Peticiones().empty());

    mensajes.Esperar(kCorrecta, kPregunta, Respuesta::Si);
    dialogos.Cancelar(kTituloVdc);
    EXPECT_FALSE(Concluir());
    EXPECT_TRUE(DirectorioVacio());
    EXPECT_FALSE(sesion().modelo.Compilado);
}

TEST_F(SalidaCompilacion, AFailureOfTheWritingIsToldPlainlyAsNumberAndDescription) {
    sesion().modelo = ConAvisos();
    const FuncionDialogos guion =
        InstalarDialogos([](const PeticionDialogo&) -> std::optional<std::string> {
            throw ErrorEjecucion(ErrPermiso);
        });
    mensajes.Esperar(kCorrecta, kPregunta, Respuesta::Si)
        .Esperar("VADRO PROGRAMADOR", "70: Permiso denegado");
    EXPECT_FALSE(Concluir());
    InstalarDialogos(guion);
    EXPECT_EQ(mensajes.Vistos().at(1).icono, Icono::Ninguno);
    EXPECT_EQ(mensajes.Vistos().at(1).botones, Botones::Aceptar);
    EXPECT_FALSE(sesion().modelo.Compilado);
}

// ---- Printing the report

class ImpresionInforme : public pruebas::PruebaSesion {
protected:
    const std::string kTitulo = "VADRO PROGRAMADOR: imprimir modelo";
    const std::string kFallo =
        "Ha ocurrido un error crítico. No ha sido posible realizar la impresión.";
    pruebas::GuionImpresoras impresoras;
    int impresiones = 0;
};

TEST_F(ImpresionInforme, TheDialogHidesPrintingToFilePageNumbersAndTheSelection) {
    impresoras.Cancelar();
    EXPECT_FALSE(ImprimirInformeCompilacion([&](const ImpresoraElegida&) { ++impresiones; }));
    ASSERT_EQ(impresoras.Peticiones().size(), 1U);
    EXPECT_EQ(impresoras.Peticiones()[0].flags, 0x106);
    EXPECT_EQ(impresiones, 0) << "a cancel prints nothing and says nothing";
}

TEST_F(ImpresionInforme, TheChosenPrinterGoesToThePrintingAsItWasChosen) {
    ImpresoraElegida elegida;
    elegida.nombre = "Oficina";
    elegida.copias = 3;
    elegida.apaisado = true;
    impresoras.Elegir(elegida);
    ImpresoraElegida recibida;
    EXPECT_TRUE(ImprimirInformeCompilacion([&](const ImpresoraElegida& i) { recibida = i; }));
    EXPECT_EQ(recibida, elegida);
}

TEST_F(ImpresionInforme, EveryFailureButACancelEndsInTheCriticalErrorMessage) {
    struct Caso {
        const char* nombre;
        std::function<void()> fallo;
        bool mensaje;
    };
    const Caso casos[] = {
        {"printer error", [] { throw ErrorEjecucion(ErrImpresora); }, true},
        {"a file error", [] { throw ErrorEjecucion(ErrDiscoLleno); }, true},
        {"a failure below the logic", [] { throw std::runtime_error("papel"); }, true},
        {"a cancel inside the printing", [] { throw ErrorEjecucion(ErrCancelar); }, false},
    };
    for (const Caso& caso : casos) {
        SCOPED_TRACE(caso.nombre);
        impresoras.ElegirArchivo(Ruta("informe.pdf"));
        if (caso.mensaje) {
            mensajes.Esperar(kTitulo, kFallo);
        }
        const std::size_t antes = mensajes.Vistos().size();
        EXPECT_FALSE(ImprimirInformeCompilacion([&](const ImpresoraElegida&) { caso.fallo(); }));
        EXPECT_EQ(mensajes.Vistos().size(), antes + (caso.mensaje ? 1 : 0));
        if (caso.mensaje) {
            EXPECT_EQ(mensajes.Vistos().back().icono, Icono::Informacion);
        }
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
