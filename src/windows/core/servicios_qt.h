#pragma once

#include <QString>

namespace vadro {

// Shows the core's message boxes, file dialogs and printer dialog with Qt's.
void InstalarServiciosQt();

// Qt's own dialogs and buttons speak Spanish: Qt's Spanish translation, from the folder
// "translations" beside the program or from Qt's own. False when none was found.
bool CargarTraduccionQt();

// A filter in the "Description|pattern|Description|pattern" form as Qt's file dialog wants it.
QStringList FiltrosQt(const QString& filtro);

} // namespace vadro
