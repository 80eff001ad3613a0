#pragma once

namespace vadro {

class frmInforme;

// Sends the model report of the loaded report window to the default printer, paged, with
// the report's margins and its pictures in place. A failure goes up to the command as a
// runtime error, a cancelled printer dialog as the cancel error.
//
// Printing is not built yet: until it is, this tells the user so and prints nothing.
void ImprimirInforme(frmInforme& informe);

} // namespace vadro
