#pragma once

#include <functional>

class QDialog;

namespace vadro {

// Every modal window opens here. Normally it runs the dialog's own loop; a test installs a
// conductor that works the open dialog's controls and closes it.
int MostrarModal(QDialog& dialogo);

using ConductorModal = std::function<void(QDialog&)>;
ConductorModal InstalarConductorModal(ConductorModal conductor);

} // namespace vadro
