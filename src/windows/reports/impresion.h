#pragma once

#include "core/core/dialogos.h"

#include <QFont>

#include <memory>

class QAbstractItemView;
class QPagedPaintDevice;
class QPrinter;

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

// Sends the model report of the loaded report window to the default printer, paged, with
// the report's margins and its pictures in place. A failure goes up to the command as a
// runtime error, a cancelled printer dialog as the cancel error.
//
// Printing is not built yet: until it is, this tells the user so and prints nothing.
void ImprimirInforme(frmInforme& informe);

} // namespace vadro
