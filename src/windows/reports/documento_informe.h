#pragma once

#include "core/reports/informe_modelo.h"

#include <QFont>
#include <QObject>
#include <QTextObjectInterface>

#include <functional>
#include <memory>
#include <string>

class QTextDocument;

Q_DECLARE_METATYPE(std::shared_ptr<const vadro::FuncionValor>)

namespace vadro {

// The font of the report: Verdana where the system has it, else the closest sans-serif.
QFont FuenteInforme();

// The dots to the inch a document is laid out in when it has no device of its own: twips,
// picture sizes and the scale of a printed page count in them.
double DpiTexto();

// Reports how far a long build has gone: lines done out of all. It may show a progress box.
using AvanceInforme = std::function<void(int hechas, int total)>;

// Turns the lines of a report into a rich-text document, replacing what it held: one
// paragraph per line with the indents of its level, runs in the report's font, the icons of
// the trees as small images and each function's picture as an object that paints the core's
// drawing when the document is drawn, on a screen, a printed page or a PDF (as vectors).
// Nothing goes through the clipboard.
void LlenarDocumento(QTextDocument& documento, const Informe& informe,
                     const AvanceInforme& avance = {});

// The document read back as the core writes a report in plain text: the blanks of each
// paragraph's level, "[gráfica]" or "[gráfica tachada]" for a picture, no icons.
std::string TextoDocumento(const QTextDocument& documento);

// The pictures of functions the document holds.
int ContarGraficas(const QTextDocument& documento);

// The painter of the pictures: the layout asks it for their size and has it draw them.
class ObjetoGrafica : public QObject, public QTextObjectInterface {
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)
public:
    // The object type of a picture in a document.
    static constexpr int kTipo = QTextFormat::UserObject + 1;

    explicit ObjetoGrafica(QObject* padre = nullptr) : QObject(padre) {}
    QSizeF intrinsicSize(QTextDocument* documento, int posicion,
                         const QTextFormat& formato) override;
    void drawObject(QPainter* pintor, const QRectF& rectangulo, QTextDocument* documento,
                    int posicion, const QTextFormat& formato) override;
};

} // namespace vadro
