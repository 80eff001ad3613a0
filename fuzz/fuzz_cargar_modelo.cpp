// Any byte sequence given to the model reader must load, or end with a runtime error that the
// opening command shows; never a crash, a hang or a sanitizer finding.
#include "core/core/error_ejecucion.h"
#include "core/core/sesion.h"
#include "core/files/modelo_archivo.h"
#include "core/files/proteccion.h"

#include <cstddef>
#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, std::size_t tamano) {
    const std::string bytes(reinterpret_cast<const char*>(datos), tamano);
    vadro::InstalarMensajes([](const vadro::Mensaje& m) { return vadro::PrimerBoton(m.botones); });
    vadro::ArchivoEntrada archivo = vadro::ArchivoEntrada::DesdeTexto(vadro::TextoPlano(bytes));
    vadro::Modelo modelo;
    try {
        vadro::CargarModelo(modelo, archivo);
    } catch (const vadro::ErrorEjecucion&) {
        // A runtime error is the reader's answer to a file it cannot read.
    }
    return 0;
}
