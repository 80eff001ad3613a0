#pragma once

#include "core/core/dialogos.h"

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace vadro::pruebas {

// A script of the file dialogs a test expects, in order: each is answered with a path or
// with a cancel. An unexpected dialog fails the test and is cancelled.
class GuionDialogos {
public:
    GuionDialogos();
    ~GuionDialogos();
    GuionDialogos(const GuionDialogos&) = delete;
    GuionDialogos& operator=(const GuionDialogos&) = delete;

    GuionDialogos& Elegir(const std::string& titulo, const std::string& ruta);
    GuionDialogos& Cancelar(const std::string& titulo);

    // The requests seen so far, for checking folders, filters and flags.
    const std::vector<PeticionDialogo>& Peticiones() const { return peticiones_; }

private:
    struct Esperado {
        std::string titulo;
        std::optional<std::string> ruta;
    };
    std::optional<std::string> Responder(const PeticionDialogo& peticion);

    std::deque<Esperado> esperados_;
    std::vector<PeticionDialogo> peticiones_;
    FuncionDialogos anterior_;
};

} // namespace vadro::pruebas
