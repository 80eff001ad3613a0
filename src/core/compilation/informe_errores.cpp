#include "core/compilation/informe_errores.h"

#include "core/core/error_ejecucion.h"

#include <limits>

namespace vadro {

namespace {

bool Empieza(const std::string& linea, const char* prefijo) {
    return linea.rfind(prefijo, 0) == 0;
}

void Contar(int16_t& contador) {
    if (contador == std::numeric_limits<int16_t>::max()) {
        throw ErrorEjecucion(ErrDesbordamiento);
    }
    ++contador;
}

} // namespace

IconoLinea IconoDeLinea(const std::string& linea) {
    if (Empieza(linea, kPrefijoError)) {
        return IconoLinea::Error;
    }
    if (Empieza(linea, kPrefijoAviso)) {
        return IconoLinea::Aviso;
    }
    return IconoLinea::Ninguno;
}

void InformeErrores::Agregar(const std::string& linea, const std::string& clave) {
    const IconoLinea icono = IconoDeLinea(linea);
    if (icono == IconoLinea::Error) {
        Contar(errores_);
    } else if (icono == IconoLinea::Aviso) {
        Contar(avisos_);
    }
    lineas_.push_back(linea);
    claves_.push_back(clave);
    iconos_.push_back(icono);
}

void InformeErrores::Insertar(const std::string& linea) {
    lineas_.insert(lineas_.begin(), linea);
    claves_.insert(claves_.begin(), "");
    iconos_.insert(iconos_.begin(), IconoLinea::Ninguno);
}

// Each goes in at the top, so the last one inserted is the first line.
void InformeErrores::InsertarTotales() {
    Insertar("");
    Insertar(std::string("ERRORES TOTALES: ").append(std::to_string(errores_)));
    Insertar(std::string("AVISOS TOTALES: ").append(std::to_string(avisos_)));
}

std::string TextoInforme(const InformeErrores& informe, bool conClaves) {
    std::string texto;
    const auto& lineas = informe.Lineas();
    for (std::size_t i = 0; i < lineas.size(); ++i) {
        texto += lineas[i];
        if (conClaves) {
            texto += '\t';
            texto += informe.Claves()[i];
        }
        texto += '\n';
    }
    return texto;
}

} // namespace vadro
