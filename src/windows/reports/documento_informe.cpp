#include "windows/reports/documento_informe.h"

#include "core/functions/graficos.h"
#include "core/reports/comandos_informe.h"
#include "windows/core/texto.h"
#include "windows/functions/pintar_grafica.h"
#include "windows/trees/imagenes_arbol.h"

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QPaintDevice>
#include <QPainter>
#include <QScreen>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QUrl>

namespace vadro {

namespace {

// What a picture's format carries: which drawing, and the function it draws.
constexpr int kPropDibujo = QTextFormat::UserProperty + 1;
constexpr int kPropFuncion = QTextFormat::UserProperty + 2;
// The level of a paragraph, for reading the document back.
constexpr int kPropNivel = QTextFormat::UserProperty + 3;
// The number of a picture in its document. Formats are told apart by a hash of their
// properties, which sees only the type of a function: without a number of their own all the
// pictures would share one hash, and each new one would be compared with all before it.
constexpr int kPropNumero = QTextFormat::UserProperty + 4;

// How often a long build reports its progress, in lines.
constexpr int kLineasPorAviso = 500;

QStringList Familias(std::string_view preferida) {
    QStringList familias{Q(std::string(preferida))};
    // Verdana's wide, open letters have their closest kin in the Vera family.
    for (const char* parecida : {"DejaVu Sans", "Bitstream Vera Sans", "Tahoma", "Arial",
                                 "Liberation Sans", "Helvetica"}) {
        if (!familias.contains(Q(parecida))) {
            familias << Q(parecida);
        }
    }
    return familias;
}

QTextCharFormat FormatoTexto(const FormatoLetra& letra) {
    QTextCharFormat formato;
    formato.setFontFamilies(Familias(letra.Fuente));
    formato.setFontStyleHint(QFont::SansSerif);
    formato.setFontPointSize(letra.Tamano);
    formato.setFontWeight(letra.Negrita ? QFont::Bold : QFont::Normal);
    formato.setFontItalic(letra.Cursiva);
    formato.setFontUnderline(letra.Subrayado);
    return formato;
}

QTextBlockFormat FormatoLinea(const LineaInforme& linea) {
    QTextBlockFormat formato;
    formato.setLeftMargin(TwipsAPuntos(linea.Sangria, DpiTexto()));
    formato.setRightMargin(TwipsAPuntos(linea.SangriaDerecha, DpiTexto()));
    formato.setProperty(kPropNivel, linea.Nivel);
    return formato;
}

// The images of the tree icons: the four node levels of the requirements tree, then the
// component, the subcomponent and the stage.
int ImagenDeIcono(IconoInforme icono) {
    switch (icono) {
    case IconoInforme::Componente:
        return 7;
    case IconoInforme::Subcomponente:
        return 8;
    case IconoInforme::Etapa:
        return 6;
    default:
        return static_cast<int>(icono);
    }
}

QUrl NombreIcono(IconoInforme icono) {
    return QUrl(QStringLiteral("vadro-icono:%1").arg(static_cast<int>(icono)));
}

// The icon drawn large enough for print, with a gap after it before the text.
QImage ImagenIcono(IconoInforme icono) {
    constexpr int kLado = 32; // the size the icons are drawn at
    QImage imagen(kLado * 13 / 10, kLado, QImage::Format_ARGB32_Premultiplied);
    imagen.fill(Qt::transparent);
    QPainter pintor(&imagen);
    pintor.setRenderHint(QPainter::SmoothPixmapTransform);
    pintor.drawPixmap(QRect(0, 0, kLado, kLado), ImagenNodo(ImagenDeIcono(icono)).pixmap(kLado));
    return imagen;
}

void PonerIconos(QTextDocument& documento) {
    for (int i = 1; i <= 7; ++i) {
        const auto icono = static_cast<IconoInforme>(i);
        documento.addResource(QTextDocument::ImageResource, NombreIcono(icono), ImagenIcono(icono));
    }
}

QTextImageFormat FormatoIcono(IconoInforme icono) {
    QTextImageFormat formato;
    formato.setName(NombreIcono(icono).toString());
    const double lado = TwipsAPuntos(kLadoIconoInforme, DpiTexto());
    formato.setWidth(lado * 13 / 10);
    formato.setHeight(lado);
    formato.setVerticalAlignment(QTextCharFormat::AlignMiddle);
    return formato;
}

QTextCharFormat FormatoGrafica(const PiezaInforme& pieza, int numero) {
    QTextCharFormat formato;
    formato.setObjectType(ObjetoGrafica::kTipo);
    formato.setProperty(kPropNumero, numero);
    formato.setProperty(kPropDibujo, static_cast<int>(pieza.Dibujo));
    if (pieza.Funcion) {
        formato.setProperty(kPropFuncion, QVariant::fromValue(pieza.Funcion));
    }
    return formato;
}

// The drawing of a picture, computed when it is painted: the document keeps only the function.
Grafica DibujoDe(const QTextFormat& formato) {
    const auto dibujo = static_cast<DibujoInforme>(formato.intProperty(kPropDibujo));
    const auto funcion =
        formato.property(kPropFuncion).value<std::shared_ptr<const FuncionValor>>();
    Grafica grafica;
    if (dibujo == DibujoInforme::Tachada || !funcion) {
        GraficarCajaCruzada(grafica);
    } else if (dibujo == DibujoInforme::Escalon) {
        GraficarInformeEscalon(*funcion, grafica);
    } else {
        GraficarInforme(*funcion, grafica);
    }
    return grafica;
}

void EscribirPieza(QTextCursor& cursor, const PiezaInforme& pieza, int& graficas) {
    switch (pieza.Tipo) {
    case TipoPieza::Texto:
        cursor.insertText(Q(pieza.Texto), FormatoTexto(pieza.Letra));
        break;
    case TipoPieza::Icono:
        cursor.insertImage(FormatoIcono(pieza.Icono));
        break;
    case TipoPieza::Grafica:
        cursor.insertText(QString(QChar::ObjectReplacementCharacter),
                          FormatoGrafica(pieza, ++graficas));
        break;
    }
}

} // namespace

double DpiTexto() {
    // What the text layout takes for a document that has no device of its own.
    if (const QScreen* pantalla = QGuiApplication::primaryScreen()) {
        return pantalla->logicalDotsPerInchY();
    }
    return 96;
}

QFont FuenteInforme() {
    QFont fuente;
    fuente.setFamilies(Familias(kFuenteInforme));
    fuente.setStyleHint(QFont::SansSerif);
    fuente.setPointSize(kTamanoInforme);
    return fuente;
}

void LlenarDocumento(QTextDocument& documento, const Informe& informe,
                     const AvanceInforme& avance) {
    documento.setUndoRedoEnabled(false);
    documento.clear();
    documento.setDefaultFont(FuenteInforme());
    PonerIconos(documento);
    const QTextCharFormat normal = FormatoTexto(FormatoLetra{});
    const auto& lineas = informe.Lineas();
    const int total = static_cast<int>(lineas.size());
    QTextCursor cursor(&documento);
    int graficas = 0;
    cursor.beginEditBlock();
    for (int k = 0; k < total; ++k) {
        const LineaInforme& linea = lineas[static_cast<std::size_t>(k)];
        if (k == 0) {
            cursor.setBlockFormat(FormatoLinea(linea));
            cursor.setBlockCharFormat(normal);
        } else {
            cursor.insertBlock(FormatoLinea(linea), normal);
        }
        for (const PiezaInforme& pieza : linea.Piezas) {
            EscribirPieza(cursor, pieza, graficas);
        }
        if (avance && k % kLineasPorAviso == 0) {
            avance(k, total);
        }
    }
    cursor.endEditBlock();
    // The layout comes last, once the text is whole: one that stood from the start would
    // follow every insertion.
    if (documento.findChild<ObjetoGrafica*>() == nullptr) {
        documento.documentLayout()->registerHandler(ObjetoGrafica::kTipo,
                                                    new ObjetoGrafica(&documento));
        documento.markContentsDirty(0, documento.characterCount());
    }
}

std::string TextoDocumento(const QTextDocument& documento) {
    std::string texto;
    for (QTextBlock bloque = documento.begin(); bloque.isValid(); bloque = bloque.next()) {
        std::string contenido;
        for (auto trozo = bloque.begin(); !trozo.atEnd(); ++trozo) {
            const QTextFragment fragmento = trozo.fragment();
            const QTextCharFormat formato = fragmento.charFormat();
            if (formato.isImageFormat()) {
                continue;
            }
            if (formato.objectType() == ObjetoGrafica::kTipo) {
                const bool tachada = static_cast<DibujoInforme>(formato.intProperty(kPropDibujo)) ==
                                     DibujoInforme::Tachada;
                for (int i = 0; i < fragmento.length(); ++i) {
                    contenido += tachada ? "[gráfica tachada]" : "[gráfica]";
                }
                continue;
            }
            contenido += ACadena(fragmento.text());
        }
        const bool ultima = !bloque.next().isValid();
        if (contenido.empty() && ultima) {
            break;
        }
        if (!contenido.empty()) {
            texto += BlancosNivel(bloque.blockFormat().intProperty(kPropNivel));
            texto += contenido;
        }
        texto += '\n';
    }
    return texto;
}

int ContarGraficas(const QTextDocument& documento) {
    int cuenta = 0;
    for (QTextBlock bloque = documento.begin(); bloque.isValid(); bloque = bloque.next()) {
        for (auto trozo = bloque.begin(); !trozo.atEnd(); ++trozo) {
            if (trozo.fragment().charFormat().objectType() == ObjetoGrafica::kTipo) {
                cuenta += trozo.fragment().length();
            }
        }
    }
    return cuenta;
}

QSizeF ObjetoGrafica::intrinsicSize(QTextDocument* documento, int /*posicion*/,
                                    const QTextFormat& /*formato*/) {
    // Laid out for a device the picture keeps its size on paper.
    double dpi = DpiTexto();
    if (const QPaintDevice* dispositivo = documento->documentLayout()->paintDevice()) {
        dpi = dispositivo->logicalDpiY();
    }
    return {TwipsAPuntos(kAnchoGraficaInforme, dpi), TwipsAPuntos(kAltoGraficaInforme, dpi)};
}

void ObjetoGrafica::drawObject(QPainter* pintor, const QRectF& rectangulo,
                               QTextDocument* /*documento*/, int /*posicion*/,
                               const QTextFormat& formato) {
    // A picture that a page does not show is not drawn on it: the drawing sets a clip of its
    // own, which would let it out over the margin.
    if (pintor->hasClipping() && !pintor->clipBoundingRect().intersects(rectangulo)) {
        return;
    }
    // Drawn in the device's own coordinates, so that the lines keep their width in pixels of
    // a normal screen whatever scale the page is painted at.
    pintor->save();
    const QRectF area = pintor->transform().mapRect(rectangulo);
    pintor->resetTransform();
    PintarGrafica(*pintor, DibujoDe(formato), area, Qt::white);
    pintor->restore();
}

} // namespace vadro
