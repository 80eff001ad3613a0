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

// A script of the printer dialogs a test expects, in order: each is answered with a printer
// (a test's printer is a PDF file) or with a cancel. An unexpected one fails the test and is
// cancelled.
class GuionImpresoras {
public:
    GuionImpresoras();
    ~GuionImpresoras();
    GuionImpresoras(const GuionImpresoras&) = delete;
    GuionImpresoras& operator=(const GuionImpresoras&) = delete;

    GuionImpresoras& Elegir(ImpresoraElegida impresora);
    // The output into a PDF file, on the printer's own paper.
    GuionImpresoras& ElegirArchivo(const std::string& ruta);
    GuionImpresoras& Cancelar();

    const std::vector<PeticionImpresora>& Peticiones() const { return peticiones_; }

private:
    std::optional<ImpresoraElegida> Responder(const PeticionImpresora& peticion);

    std::deque<std::optional<ImpresoraElegida>> esperados_;
    std::vector<PeticionImpresora> peticiones_;
    FuncionImpresora anterior_;
};

} // namespace vadro::pruebas
