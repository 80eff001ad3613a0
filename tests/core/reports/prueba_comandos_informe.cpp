// What the report's commands decide: the printer dialog, the PDF file dialog and the messages
// of a failure; and the summary's trees and list.

#include "core/core/error_ejecucion.h"
#include "core/reports/comandos_informe.h"
#include "core/reports/resumen.h"
#include "modelos_informe.h"
#include "soporte/componentes_etapas.h"
#include "soporte/guion_dialogos.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace vadro {
namespace {

TEST(TwipsAPuntos, AnInchIs1440Twips) {
    const struct {
        int twips;
        double dpi;
        double puntos;
    } casos[] = {
        {1440, 96, 96},     {2000, 96, 133.333333}, {350, 96, 23.333333}, {0, 1200, 0},
        {1440, 1200, 1200}, {1000, 72, 50},         {2880, 120, 240},
    };
    for (const auto& caso : casos) {
        EXPECT_NEAR(TwipsAPuntos(caso.twips, caso.dpi), caso.puntos, 1e-6) << caso.twips;
    }
}

TEST(ComandosInforme, ThePrinterDialogLeavesOutTheFilePageNumbersAndSelection) {
    EXPECT_EQ(PeticionImprimirModelo().flags, 0x106);
}

TEST(ComandosInforme, MessagesOfAFailure) {
    const struct {
        Mensaje mensaje;
        const char* texto;
        const char* titulo;
    } casos[] = {
        {MensajeFalloImprimirModelo(482), "Error 482 al realizar la impresión.",
         "VADRO PROGRAMADOR: imprimir modelo"},
        {MensajeFalloImprimirModelo(5), "Error 5 al realizar la impresión.",
         "VADRO PROGRAMADOR: imprimir modelo"},
        {MensajeFalloExportarPdf(75, "Error de acceso"),
         "Error 75 al exportar el informe a PDF: Error de acceso.",
         "VADRO PROGRAMADOR: exportar a PDF"},
        {MensajeFalloExportarPdf(61, ""), "Error 61 al exportar el informe a PDF.",
         "VADRO PROGRAMADOR: exportar a PDF"},
    };
    for (const auto& caso : casos) {
        EXPECT_EQ(caso.mensaje.texto, caso.texto);
        EXPECT_EQ(caso.mensaje.titulo, caso.titulo);
        EXPECT_EQ(caso.mensaje.botones, Botones::Aceptar);
        EXPECT_EQ(caso.mensaje.icono, Icono::Critico);
    }
}

class ExportarPdf : public pruebas::PruebaSesion {};

TEST_F(ExportarPdf, TheDialogStartsBesideTheModelOrInTheFolderOfModels) {
    const struct {
        const char* archivo;
        const char* dirModelos;
        std::string directorio;
        const char* nombre;
    } casos[] = {
        {"/modelos/puente.vdm", "/otros", "/modelos", "puente.pdf"},
        {"/modelos/puente.v1.vdc", "", "/modelos", "puente.v1.pdf"},
        {"", "/otros", "/otros", ""},
        {"", "", "", ""},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.archivo);
        sesion().modelo.Archivo = caso.archivo;
        sesion().configuracion.DirModelos = caso.dirModelos;
        const PeticionDialogo peticion = PeticionExportarPdf(sesion());
        const std::string directorio =
            caso.directorio.empty() ? sesion().DirectorioPrograma : caso.directorio;
        EXPECT_EQ(peticion.directorioInicial, directorio);
        EXPECT_EQ(peticion.nombreArchivo, caso.nombre);
        EXPECT_EQ(peticion.tipo, TipoDialogo::Guardar);
        EXPECT_EQ(peticion.titulo, "Exportar informe a PDF");
        EXPECT_EQ(peticion.filtro, "Documentos PDF (*.pdf)|*.pdf");
        EXPECT_EQ(ExtensionDelFiltro(peticion.filtro, peticion.indiceFiltro), ".pdf");
        EXPECT_NE(peticion.flags & DlgPreguntarSobrescribir, 0);
    }
}

TEST_F(ExportarPdf, TheCommandWritesWhatTheUserChoseOrSaysWhyItCouldNot) {
    pruebas::GuionDialogos dialogos;
    std::vector<std::string> escritas;
    const auto escribir = [&escritas](const std::string& ruta) { escritas.push_back(ruta); };

    dialogos.Cancelar("Exportar informe a PDF");
    EXPECT_FALSE(ExportarInformePdf(sesion(), escribir));
    EXPECT_TRUE(escritas.empty());

    // A name typed without extension gets ".pdf"; one with it stays.
    dialogos.Elegir("Exportar informe a PDF", "/tmp/informe");
    dialogos.Elegir("Exportar informe a PDF", "/tmp/otro.PDF");
    EXPECT_TRUE(ExportarInformePdf(sesion(), escribir));
    EXPECT_TRUE(ExportarInformePdf(sesion(), escribir));
    EXPECT_EQ(escritas, (std::vector<std::string>{"/tmp/informe.pdf", "/tmp/otro.PDF"}));

    // A failure of the writing: its number and what it says, or a printer error for a
    // failure without a number.
    dialogos.Elegir("Exportar informe a PDF", "/tmp/a.pdf");
    mensajes.Esperar("VADRO PROGRAMADOR: exportar a PDF",
                     "Error 75 al exportar el informe a PDF: " + DescripcionError(75) + ".");
    EXPECT_FALSE(ExportarInformePdf(
        sesion(), [](const std::string&) { throw ErrorEjecucion(ErrAccesoRuta); }));
    dialogos.Elegir("Exportar informe a PDF", "/tmp/b.pdf");
    mensajes.Esperar("VADRO PROGRAMADOR: exportar a PDF",
                     "Error 482 al exportar el informe a PDF: sin papel.");
    EXPECT_FALSE(ExportarInformePdf(
        sesion(), [](const std::string&) { throw std::runtime_error("sin papel"); }));
}

// A tree as text: two blanks a level, the key, the text and the image; "+" when expanded.
std::string Texto(const Arbol& arbol) {
    std::string texto;
    std::function<void(const NodoArbol*, int)> escribir = [&](const NodoArbol* nodo, int nivel) {
        texto += std::string(static_cast<std::size_t>(2 * nivel), ' ') + nodo->Key() + " " +
                 nodo->Text() + " " + std::to_string(nodo->Image()) +
                 (nodo->Expandido() ? " +" : "") + "\n";
        for (const NodoArbol* hijo : nodo->Hijos()) {
            escribir(hijo, nivel + 1);
        }
    };
    for (const NodoArbol* raiz : arbol.Raices()) {
        escribir(raiz, 0);
    }
    return texto;
}

TEST(ResumenModelo, ComponentsKeyedInBracketsWithTheirImagesAllExpanded) {
    Modelo modelo = pruebas::ModeloCompleto();
    Arbol arbol;
    arbol.Añadir(nullptr, Relacion::UltimoHijo, "viejo", "lo de antes", 1);
    LlenarResumenComponentes(arbol, modelo);
    EXPECT_EQ(Texto(arbol), "Co1 (Co1) Estructura 7 +\n"
                            "  Sc1Co1 (Sc1Co1) Hormigón 8 +\n"
                            "  Sc2Co1 (Sc2Co1) Acero 8 +\n"
                            "Co2 (Co2) Accesos 7 +\n");
    pruebas::PonerComponentes(modelo, {});
    LlenarResumenComponentes(arbol, modelo);
    EXPECT_TRUE(arbol.Vacio());
}

TEST(ResumenModelo, RequirementsUnderTheModelWithKeysAndNoWeights) {
    Modelo modelo = pruebas::ModeloSinNombreNiPesos();
    modelo.Nombre = "ÉBANO Y Cía";
    modelo.Requerimientos(1).Peso = 40;
    Arbol arbol;
    LlenarResumenRequerimientos(arbol, modelo);
    const std::string texto = Texto(arbol);
    EXPECT_EQ(texto.substr(0, texto.find('\n')), "M Modelo ébano y cía 5 +");
    EXPECT_NE(texto.find("R1 (R1) Ambiental 1 +"), std::string::npos) << texto;
    EXPECT_NE(texto.find("I1S1C1R1 (I1S1C1R1) Horas 4"), std::string::npos) << texto;
    EXPECT_EQ(texto.find('%'), std::string::npos);
}

TEST(ResumenModelo, StagesOneLineEach) {
    Modelo modelo = pruebas::ModeloCompleto();
    EXPECT_EQ(LineasResumenEtapas(modelo),
              (std::vector<std::string>{"Proyecto", "Construcción", "Explotación"}));
    pruebas::PonerEtapas(modelo, {});
    EXPECT_TRUE(LineasResumenEtapas(modelo).empty());
}

} // namespace
} // namespace vadro
