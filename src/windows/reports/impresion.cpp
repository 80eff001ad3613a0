#include "windows/reports/impresion.h"

#include "core/core/error_ejecucion.h"
#include "core/core/mensajes.h"
#include "core/core/sesion.h"
#include "core/reports/comandos_informe.h"
#include "windows/core/conectar.h"
#include "windows/core/modal.h"
#include "windows/core/texto.h"
#include "windows/reports/documento_informe.h"
#include "windows/reports/frmInforme.h"

#include <QAbstractItemView>
#include <QAbstractTextDocumentLayout>
#include <QHeaderView>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QTableView>
#include <QTextDocument>
#include <QTreeView>

#include <algorithm>
#include <cmath>

namespace vadro {

namespace {

// The texts of one printed line of the list: its column headings or one of its rows.
using Fila = QStringList;

// The headings of the columns, when the view shows them; a plain list has none.
Fila Cabeceras(const QAbstractItemView& lista) {
    const QHeaderView* cabecera = nullptr;
    if (const auto* arbol = qobject_cast<const QTreeView*>(&lista)) {
        cabecera = arbol->isHeaderHidden() ? nullptr : arbol->header();
    } else if (const auto* tabla = qobject_cast<const QTableView*>(&lista)) {
        cabecera = tabla->horizontalHeader()->isHidden() ? nullptr : tabla->horizontalHeader();
    }
    Fila textos;
    if (cabecera != nullptr && lista.model() != nullptr) {
        for (int c = 0; c < lista.model()->columnCount(); ++c) {
            textos << lista.model()->headerData(c, Qt::Horizontal).toString();
        }
    }
    return textos;
}

std::vector<Fila> Filas(const QAbstractItemModel& modelo) {
    std::vector<Fila> filas;
    for (int f = 0; f < modelo.rowCount(); ++f) {
        Fila fila;
        for (int c = 0; c < modelo.columnCount(); ++c) {
            fila << modelo.index(f, c).data().toString();
        }
        filas.push_back(fila);
    }
    return filas;
}

// Where the columns stand: the width shared out evenly among them.
struct Hoja {
    QRectF area;
    int columnas = 1;
    double linea = 0;

    QRectF Celda(int columna, double y, int lineas) const {
        const double ancho = area.width() / columnas;
        return {area.left() + ancho * columna, y, ancho, linea * lineas};
    }
};

constexpr int kBanderasTexto = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;

int AlturaFila(const Fila& fila, const Hoja& hoja, const QFontMetricsF& metricas) {
    double alto = hoja.linea;
    for (int c = 0; c < fila.size(); ++c) {
        const QRectF celda = hoja.Celda(c, 0, 1000);
        alto = std::max(alto, metricas.boundingRect(celda, kBanderasTexto, fila[c]).height());
    }
    return std::max(1, static_cast<int>(std::ceil(alto / hoja.linea - 1e-6)));
}

double PintarFila(QPainter& pintor, const Fila& fila, const Hoja& hoja, double y, int lineas) {
    for (int c = 0; c < fila.size(); ++c) {
        pintor.drawText(hoja.Celda(c, y, lineas), kBanderasTexto, fila[c]);
    }
    return y + hoja.linea * lineas;
}

void PrepararPagina(QPagedPaintDevice& impresora, const MargenesImpresion& m = kMargenesInforme) {
    impresora.setPageMargins(QMarginsF(TwipsAMilimetros(m.izquierdo), TwipsAMilimetros(m.superior),
                                       TwipsAMilimetros(m.derecho), TwipsAMilimetros(m.inferior)),
                             QPageLayout::Millimeter);
}

} // namespace

std::unique_ptr<QPrinter> CrearImpresora(const ImpresoraElegida& elegida) {
    auto impresora = std::make_unique<QPrinter>(QPrinter::HighResolution);
    if (!elegida.archivo.empty()) {
        impresora->setOutputFormat(QPrinter::PdfFormat);
        impresora->setOutputFileName(Q(elegida.archivo));
    } else if (!elegida.nombre.empty()) {
        impresora->setPrinterName(Q(elegida.nombre));
    }
    impresora->setCopyCount(std::max(1, elegida.copias));
    if (elegida.anchoPapel > 0 && elegida.altoPapel > 0) {
        impresora->setPageSize(
            QPageSize(QSizeF(elegida.anchoPapel, elegida.altoPapel), QPageSize::Point));
    }
    impresora->setPageOrientation(elegida.apaisado ? QPageLayout::Landscape
                                                   : QPageLayout::Portrait);
    return impresora;
}

QFont FuenteLista() {
    QFont fuente;
    fuente.setPointSizeF(10);
    return fuente;
}

int LineasPorPagina(QPagedPaintDevice& impresora) {
    PrepararPagina(impresora);
    const QFontMetricsF metricas(FuenteLista(), &impresora);
    // The device measures the paint area within the margins just set.
    const double alto = impresora.height();
    return std::max(1, static_cast<int>(alto / metricas.lineSpacing()));
}

void ImprimirLista(const QAbstractItemView& lista, QPagedPaintDevice& impresora) {
    const int lineas = LineasPorPagina(impresora);
    const Fila cabeceras = Cabeceras(lista);
    const std::vector<Fila> filas =
        lista.model() != nullptr ? Filas(*lista.model()) : std::vector<Fila>{};

    QPainter pintor;
    if (!pintor.begin(&impresora)) {
        throw ErrorEjecucion(ErrImpresora);
    }
    pintor.setFont(FuenteLista());
    const QFontMetricsF metricas(pintor.font(), &impresora);
    Hoja hoja;
    hoja.area = QRectF(QPointF(0, 0), QSizeF(impresora.width(), impresora.height()));
    hoja.columnas = std::max<int>(1, lista.model() != nullptr ? lista.model()->columnCount() : 1);
    hoja.linea = metricas.lineSpacing();

    std::vector<int> alturas;
    for (const Fila& fila : filas) {
        alturas.push_back(AlturaFila(fila, hoja, metricas));
    }
    bool primera = true;
    for (const PaginaLista& pagina : PaginarLista(alturas, lineas, !cabeceras.isEmpty())) {
        if (!primera && !impresora.newPage()) {
            throw ErrorEjecucion(ErrImpresora);
        }
        primera = false;
        double y = 0;
        if (!cabeceras.isEmpty()) {
            y = PintarFila(pintor, cabeceras, hoja, y, 1);
        }
        for (int f = pagina.primera; f < pagina.primera + pagina.filas; ++f) {
            const auto i = static_cast<std::size_t>(f);
            y = PintarFila(pintor, filas[i], hoja, y, alturas[i]);
        }
    }
    if (!pintor.end()) {
        throw ErrorEjecucion(ErrImpresora);
    }
}

int ImprimirRTF(const Informe& informe, QPagedPaintDevice& impresora,
                const MargenesImpresion& margenes) {
    PrepararPagina(impresora, margenes);
    // The text is laid out as on the screen, over a page of the printable size, and each
    // page is painted at the scale of the device: the layout breaks lines and pages, no line
    // and no picture is cut between two pages.
    const double escalaX = impresora.logicalDpiX() / DpiTexto();
    const double escalaY = impresora.logicalDpiY() / DpiTexto();
    QTextDocument documento;
    LlenarDocumento(documento, informe);
    documento.setDocumentMargin(0);
    const QSizeF pagina(impresora.width() / escalaX, impresora.height() / escalaY);
    documento.setPageSize(pagina);
    const int paginas = std::max(1, documento.pageCount());

    QPainter pintor;
    if (!pintor.begin(&impresora)) {
        throw ErrorEjecucion(ErrImpresora);
    }
    for (int n = 0; n < paginas; ++n) {
        if (n > 0 && !impresora.newPage()) {
            throw ErrorEjecucion(ErrImpresora);
        }
        const QRectF visible(QPointF(0, n * pagina.height()), pagina);
        pintor.save();
        pintor.scale(escalaX, escalaY);
        pintor.translate(0, -visible.top());
        pintor.setClipRect(visible);
        QAbstractTextDocumentLayout::PaintContext contexto;
        contexto.clip = visible;
        contexto.palette.setColor(QPalette::Text, Qt::black);
        documento.documentLayout()->draw(&pintor, contexto);
        pintor.restore();
    }
    if (!pintor.end()) {
        throw ErrorEjecucion(ErrImpresora);
    }
    return paginas;
}

void ImprimirInforme(frmInforme& informe) {
    const auto impresora = CrearImpresora(MostrarDialogoImpresora(PeticionImprimirModelo()));
    ImprimirRTF(informe.InformeCompleto(), *impresora);
}

void VistaPreliminarInforme(const Informe& informe, QWidget* padre) {
    QPrinter impresora(QPrinter::HighResolution);
    QPrintPreviewDialog vista(&impresora, padre);
    vista.setObjectName(Q("frmVistaPreliminar"));
    vista.setWindowTitle(Q(kTituloVistaPreliminar));
    Conectar(&vista, &QPrintPreviewDialog::paintRequested, &vista,
             [&informe](QPrinter* destino) { ImprimirRTF(informe, *destino); });
    MostrarModal(vista);
}

void EscribirInformePdf(const Informe& informe, const std::string& ruta) {
    QPdfWriter pdf(Q(ruta));
    pdf.setPageSize(QPageSize(QPageSize::A4));
    pdf.setTitle(Q(TituloInforme(SesionActual().modelo)));
    pdf.setCreator(Q("VADRO PROGRAMADOR"));
    try {
        ImprimirRTF(informe, pdf);
    } catch (const ErrorEjecucion&) {
        throw ErrorEjecucion(ErrAccesoRuta);
    }
}

} // namespace vadro
