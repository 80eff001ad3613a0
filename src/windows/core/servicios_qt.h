#pragma once

#include <QString>

namespace vadro {

// Shows the core's message boxes and file dialogs with Qt's.
void InstalarServiciosQt();

// A filter in the "Description|pattern|Description|pattern" form as Qt's file dialog wants it.
QStringList FiltrosQt(const QString& filtro);

} // namespace vadro
