#pragma once

namespace vadro {

// Counts changes of the wall clock's second while the interface stays alive; it ends when the
// count equals the argument, so it waits between n-1 and n seconds.
void Esperar(int segundos);

} // namespace vadro
