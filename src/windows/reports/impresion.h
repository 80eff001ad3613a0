#pragma once

#include "core/core/dialogos.h"
#include "core/reports/impresion.h"
#include "core/reports/informe_modelo.h"

#include <QFont>

#include <memory>

class QAbstractItemView;
class QPagedPaintDevice;
class QPrinter;
class QWidget;

namespace vadro {

class frmInforme;

// A printer set up as the user chose it in the printer dialog. When a file was chosen the
// output goes into it as PDF.
std::unique_ptr<QPrinter> CrearImpresora(const ImpresoraElegida& elegida);

// The font of a printed list.
QFont FuenteLista();

// Gives the page the margins of the reports, and says how many lines of the list's font fit
// between them.
int LineasPorPagina(QPagedPaintDevice& impresora);

// Prints a list through the printer's text output: its column headings at the top of each
// page when the view shows them, then its rows, the columns side by side across the width, a
// long text wrapping within its column, page after page. A printer that cannot start the job
// or take a new page is a printer error (482), which goes up to the caller.
void ImprimirLista(const QAbstractItemView& lista, QPagedPaintDevice& impresora);

// Prints a report on a paged device (a printer, a PDF file) within the margins in twips, page
// after page as the laid-out text fills them, with its pictures in place, drawn as vectors.
// A report that fits one page takes one page; an empty one still ejects one. A device that
// cannot start the job or take a new page is a printer error (482). Gives the pages printed.
int ImprimirRTF(const Informe& informe, QPagedPaintDevice& impresora,
                const MargenesImpresion& margenes = kMargenesInforme);

// Sends the model report of the loaded report window to the printer the user chooses, paged,
// with the report's margins and its pictures in place. A failure goes up to the command as a
// runtime error, a cancelled printer dialog as the cancel error.
void ImprimirInforme(frmInforme& informe);

// The print preview of a report, from which the user may print it.
void VistaPreliminarInforme(const Informe& informe, QWidget* padre);

// Writes a report into a PDF file with the report's margins on A4 paper, its pictures as
// vectors. A file that cannot be written is a path access error (75).
void EscribirInformePdf(const Informe& informe, const std::string& ruta);

} // namespace vadro
