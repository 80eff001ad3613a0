#pragma once

#include "core/core/sesion.h"
#include "soporte/guion_mensajes.h"

#include <gtest/gtest.h>

#include <string>

namespace vadro::pruebas {

// A fresh session in a fresh program directory (also set as VADRO_DIR) for every test, with
// a strict message script: a message the test did not expect fails it.
class PruebaSesion : public ::testing::Test {
protected:
    PruebaSesion();
    ~PruebaSesion() override;

    Sesion& sesion() { return SesionActual(); }
    const std::string& Directorio() const { return directorio_; }
    // A path inside the test's program directory.
    std::string Ruta(const std::string& nombre) const;
    // The bytes of a file; empty when missing.
    static std::string Contenido(const std::string& ruta);
    static void Escribir(const std::string& ruta, const std::string& bytes);
    // The name stored in a model file, read back through the file layer.
    static std::string NombreGuardadoEn(const std::string& ruta);

    GuionMensajes mensajes;

private:
    std::string directorio_;
};

} // namespace vadro::pruebas
