// The report window: its five panes read as the core writes the report, its pictures drawn
// from the functions, its rebuilding when a design window is accepted, and the user's
// clipboard left alone.

#include "core/reports/comandos_informe.h"
#include "core/reports/modelos_informe.h"
#include "core/shell/comandos_modelo.h"
#include "soporte/volcado_ventana.h"
#include "windows/core/texto.h"
#include "windows/reports/documento_informe.h"
#include "windows/reports/frmInforme.h"
#include "windows/shell/ventana_principal.h"
#include "windows/trees/frmComponentes.h"
#include "windows/trees/frmEtapas.h"
#include "windows/trees/frmRequerimientos.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QClipboard>
#include <QFontInfo>
#include <QImage>
#include <QMimeData>
#include <QPainter>
#include <QPushButton>
#include <QTabWidget>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextEdit>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace vadro {
namespace {

int GraficasDe(const Informe& informe) {
    int cuenta = 0;
    for (const LineaInforme& linea : informe.Lineas()) {
        for (const PiezaInforme& pieza : linea.Piezas) {
            cuenta += pieza.Tipo == TipoPieza::Grafica ? 1 : 0;
        }
    }
    return cuenta;
}

class Informe_ : public pruebas::PruebaSesion {
protected:
    frmInforme& Abrir(const Modelo& modelo) {
        sesion().modelo = modelo;
        ventana = std::make_unique<frmInforme>();
        ventana->resize(900, 700);
        ventana->show();
        return *ventana;
    }
    std::unique_ptr<frmInforme> ventana;
};

TEST_F(Informe_, EveryPaneReadsAsTheCoreWritesItsPart) {
    Modelo vacio;
    InicializarModelo(vacio);
    const std::pair<const char*, Modelo> modelos[] = {
        {"completo", pruebas::ModeloCompleto()},
        {"sin nombre ni pesos", pruebas::ModeloSinNombreNiPesos()},
        {"vacío", vacio},
        {"generado", pruebas::ModeloGenerado(100)},
    };
    for (const auto& [nombre, modelo] : modelos) {
        SCOPED_TRACE(nombre);
        frmInforme& informe = Abrir(modelo);
        const PanelesInforme esperado = ActualizarPaneles(modelo);
        const std::pair<QTextEdit*, const Informe*> panes[] = {
            {informe.rtfInforme, &esperado.Completo},
            {informe.rtfPropiedades, &esperado.Propiedades},
            {informe.rtfRequerimientos, &esperado.Requerimientos},
            {informe.rtfComponentes, &esperado.Componentes},
            {informe.rtfEtapas, &esperado.Etapas},
        };
        for (const auto& [panel, parte] : panes) {
            SCOPED_TRACE(ACadena(panel->objectName()));
            EXPECT_EQ(TextoDocumento(*panel->document()), TextoPlano(*parte));
            EXPECT_EQ(ContarGraficas(*panel->document()), GraficasDe(*parte));
        }
    }
}

// Paints a report's document on a white image as the pane shows it.
QImage Pintar(const Informe& informe) {
    QTextDocument documento;
    LlenarDocumento(documento, informe);
    documento.setTextWidth(800);
    const QSizeF tamano = documento.documentLayout()->documentSize();
    QImage imagen(tamano.toSize(), QImage::Format_RGB32);
    imagen.fill(Qt::white);
    QPainter pintor(&imagen);
    documento.drawContents(&pintor);
    return imagen;
}

int Pixeles(const QImage& imagen, const std::function<bool(QColor)>& condicion) {
    int cuenta = 0;
    for (int y = 0; y < imagen.height(); ++y) {
        for (int x = 0; x < imagen.width(); ++x) {
            cuenta += condicion(imagen.pixelColor(x, y)) ? 1 : 0;
        }
    }
    return cuenta;
}

bool Rojo(QColor c) {
    return c.red() > 200 && c.green() < 80 && c.blue() < 80;
}

TEST_F(Informe_, APictureIsDrawnFromItsFunctionWhenTheDocumentIsPainted) {
    // A model whose only picture is the crossed box: red diagonals appear where it stands;
    // with a drawable function instead, none.
    const QImage imagenTachada = Pintar(GenerarInforme(pruebas::ModeloCon({pruebas::Requerimiento(
        "R", {pruebas::Criterio("C", {pruebas::Indicador("I", FuncionValor())})})})));
    const QImage imagenContinua = Pintar(GenerarInforme(pruebas::ModeloCon(
        {pruebas::Requerimiento("R", {pruebas::Criterio("C", {pruebas::Indicador("I")})})})));
    const double ancho = TwipsAPuntos(kAnchoGraficaInforme, DpiTexto());
    // Two diagonals of about the picture's width each.
    EXPECT_GT(Pixeles(imagenTachada, Rojo), ancho);
    EXPECT_EQ(Pixeles(imagenContinua, Rojo), 0);
    // The continuous picture draws its curve: more than the text alone.
    const auto oscuro = [](QColor c) { return c.lightness() < 128; };
    EXPECT_GT(Pixeles(imagenContinua, oscuro), Pixeles(imagenTachada, oscuro));
}

TEST_F(Informe_, RunsTakeTheReportFontAndLinesTheIndentOfTheirLevel) {
    frmInforme& informe = Abrir(pruebas::ModeloCompleto());
    pruebas::CompararVolcado(informe, "frmInforme");
    QTextDocument& documento = *informe.rtfInforme->document();
    const QTextBlock titulo = documento.begin();
    const QTextCharFormat letraTitulo = titulo.begin().fragment().charFormat();
    EXPECT_EQ(titulo.text(), Q("PUENTE DE ALCÁNTARA (V.2.1)"));
    EXPECT_EQ(letraTitulo.fontWeight(), QFont::Bold);
    EXPECT_EQ(letraTitulo.fontPointSize(), 11);
    const QString familia = QFontInfo(letraTitulo.font()).family();
    EXPECT_TRUE(familia == Q("Verdana") || familia == Q("DejaVu Sans")) << ACadena(familia);

    // The levels of the requirements tree, each in its twips, and a heading in bold.
    const std::tuple<const char*, int, bool> casos[] = {
        {"(R1) ", 0, false},
        {"(C1R1) ", 350, false},
        {"(I1C1R1) ", 700, false},
        {"(I1S1C2R1) ", 1050, false},
        {"INDICADORES OPTATIVOS", 1290, false},
        {"Arbol de requerimientos", 0, true},
    };
    for (const auto& [comienzo, twips, negrita] : casos) {
        SCOPED_TRACE(comienzo);
        const QTextCursor encontrado = documento.find(Q(comienzo));
        ASSERT_TRUE(encontrado.block().isValid());
        const QTextBlockFormat formato = encontrado.block().blockFormat();
        EXPECT_NEAR(formato.leftMargin(), TwipsAPuntos(twips, DpiTexto()), 1e-9);
        EXPECT_NEAR(formato.rightMargin(), TwipsAPuntos(negrita ? 0 : 50, DpiTexto()), 1e-9);
        EXPECT_EQ(encontrado.charFormat().fontWeight(), negrita ? QFont::Bold : QFont::Normal);
    }
    // An entry of a tree opens with its icon: an image before the key.
    const QTextBlock requerimiento = documento.find(Q("(R1) ")).block();
    EXPECT_TRUE(requerimiento.begin().fragment().charFormat().isImageFormat());
}

} // namespace
} // namespace vadro
