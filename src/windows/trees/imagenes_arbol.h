#pragma once

#include <QIcon>
#include <QPixmap>

namespace vadro {

// The eight images of the tree windows' image list, by number from 1: requirement, criterion,
// subcriterion, indicator, model, and the three of the other trees. Another number gives the
// empty icon.
const QIcon& ImagenNodo(int numero);

// The picture that follows the pointer while a node is dragged.
const QPixmap& IconoArrastre();

} // namespace vadro
