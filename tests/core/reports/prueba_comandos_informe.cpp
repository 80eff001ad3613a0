// What the report's commands decide: the printer dialog, the PDF file dialog and the messages
// of a failure; and the summary's trees and list.

#include "core/core/error_ejecucion.h"
#include "core/reports/comandos_informe.h"
#include "core/reports/resumen.h"
#include "core/shell/comandos_modelo.h"
#include "modelos_informe.h"
#include "soporte/acta.h"
#include "soporte/componentes_etapas.h"
#include "soporte/datos.h"
#include "soporte/guion_dialogos.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <tuple>

namespace vadro {
namespace {

TEST(TwipsAPuntos, AnInchIs1440Twips) {
    const std::tuple<int, double, double> casos[] = {
        {1440, 96, 96},     {2000, 96, 133.333333}, {350, 96, 23.333333}, {0, 1200, 0},
        {1440, 1200, 1200}, {1000, 72, 50},         {2880, 120, 240},
    };
    for (const auto& [twips, dpi, puntos] : casos) {
        EXPECT_NEAR(TwipsAPuntos(twips, dpi), puntos, 1e-6) << twips;
    }
}

TEST(ComandosInforme, ThePrinterDialogLeavesOutTheFilePageNumbersAndSelection) {
    EXPECT_EQ(PeticionImprimirModelo().flags, 0x106);
}

// Each case: the command and the error's number, with what the error says for the export.
TEST(ComandosInforme, MessagesOfAFailure) {
    pruebas::Acta acta;
    acta.iconos = true;
    for (const pruebas::Caso& caso : pruebas::Casos("informe/mensajes_fallo.txt")) {
        const int numero = std::stoi(caso.campos.at(1));
        const Mensaje m = caso.campos[0] == "imprimir"
                              ? MensajeFalloImprimirModelo(numero)
                              : MensajeFalloExportarPdf(numero, caso.campos.at(2));
        MsgBox(m.texto, m.botones, m.icono, m.titulo);
        acta.Fila(caso.texto, "shown");
    }
    acta.Comparar("informe/mensajes_fallo.txt");
}

class ExportarPdf : public pruebas::PruebaSesion {};

// Each case: the model's file and the folder of models; the dialog's folder and file name.
TEST_F(ExportarPdf, TheDialogStartsBesideTheModelOrInTheFolderOfModels) {
    pruebas::Acta acta;
    acta.sustituciones = {{sesion().DirectorioPrograma, "<programa>"}};
    PeticionDialogo peticion;
    for (const pruebas::Caso& caso : pruebas::Casos("informe/dialogo_pdf.txt")) {
        sesion().modelo.Archivo = caso.campos.at(0);
        sesion().configuracion.DirModelos = caso.campos.at(1);
        peticion = PeticionExportarPdf(sesion());
        acta.Fila(caso.texto,
                  "'" + peticion.directorioInicial + "' '" + peticion.nombreArchivo + "'");
    }
    acta.Comparar("informe/dialogo_pdf.txt");
    EXPECT_EQ(peticion.tipo, TipoDialogo::Guardar);
    EXPECT_EQ(peticion.titulo, "Exportar informe a PDF");
    EXPECT_EQ(peticion.filtro, "Documentos PDF (*.pdf)|*.pdf");
    EXPECT_EQ(ExtensionDelFiltro(peticion.filtro, peticion.indiceFiltro), ".pdf");
    EXPECT_NE(peticion.flags & DlgPreguntarSobrescribir, 0);
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

// The summary of a full model: its trees keyed, with their images, every node expanded, the
// model's name in lower case at the root, no weights; then its stages. The same trees filled
// from an empty model hold its root alone.
TEST(ResumenModelo, TreesAndStagesOfAFullModelAndOfAnEmptyOne) {
    Arbol requerimientos, componentes;
    componentes.Añadir(nullptr, Relacion::UltimoHijo, "viejo", "lo de antes", 1);
    const Modelo modelo = pruebas::ModeloCompleto();
    LlenarResumenRequerimientos(requerimientos, modelo);
    LlenarResumenComponentes(componentes, modelo);
    std::string texto = Texto(requerimientos) + "--\n" + Texto(componentes) + "--\n";
    for (const std::string& etapa : LineasResumenEtapas(modelo)) {
        texto += etapa + "\n";
    }
    EXPECT_EQ(texto, pruebas::Datos("resumen/arboles.txt", texto));

    Modelo vacio;
    InicializarModelo(vacio);
    vacio.Nombre = "Presa del Ebro";
    LlenarResumenRequerimientos(requerimientos, vacio);
    LlenarResumenComponentes(componentes, vacio);
    EXPECT_EQ(Texto(requerimientos), "M Modelo presa del ebro 5 +\n");
    EXPECT_TRUE(componentes.Vacio());
    EXPECT_TRUE(LineasResumenEtapas(vacio).empty());
}

} // namespace
} // namespace vadro
