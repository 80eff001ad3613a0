#include "soporte/guion_dialogos.h"

#include <gtest/gtest.h>

namespace vadro::pruebas {

GuionDialogos::GuionDialogos() {
    anterior_ = InstalarDialogos([this](const PeticionDialogo& p) { return Responder(p); });
}

GuionDialogos::~GuionDialogos() {
    InstalarDialogos(std::move(anterior_));
    for (const auto& falta : esperados_) {
        ADD_FAILURE() << "Expected file dialog never shown: " << falta.titulo;
    }
}

GuionDialogos& GuionDialogos::Elegir(const std::string& titulo, const std::string& ruta) {
    esperados_.push_back({titulo, ruta});
    return *this;
}

GuionDialogos& GuionDialogos::Cancelar(const std::string& titulo) {
    esperados_.push_back({titulo, std::nullopt});
    return *this;
}

std::optional<std::string> GuionDialogos::Responder(const PeticionDialogo& peticion) {
    peticiones_.push_back(peticion);
    if (esperados_.empty()) {
        ADD_FAILURE() << "Unexpected file dialog: " << peticion.titulo;
        return std::nullopt;
    }
    Esperado esperado = std::move(esperados_.front());
    esperados_.pop_front();
    EXPECT_EQ(peticion.titulo, esperado.titulo);
    return esperado.ruta;
}

GuionImpresoras::GuionImpresoras() {
    anterior_ = InstalarImpresora([this](const PeticionImpresora& p) { return Responder(p); });
}

GuionImpresoras::~GuionImpresoras() {
    InstalarImpresora(std::move(anterior_));
    if (!esperados_.empty()) {
        ADD_FAILURE() << esperados_.size() << " expected printer dialog(s) never shown";
    }
}

GuionImpresoras& GuionImpresoras::Elegir(ImpresoraElegida impresora) {
    esperados_.emplace_back(std::move(impresora));
    return *this;
}

GuionImpresoras& GuionImpresoras::ElegirArchivo(const std::string& ruta) {
    ImpresoraElegida impresora;
    impresora.archivo = ruta;
    return Elegir(impresora);
}

GuionImpresoras& GuionImpresoras::Cancelar() {
    esperados_.emplace_back(std::nullopt);
    return *this;
}

std::optional<ImpresoraElegida> GuionImpresoras::Responder(const PeticionImpresora& peticion) {
    peticiones_.push_back(peticion);
    if (esperados_.empty()) {
        ADD_FAILURE() << "Unexpected printer dialog";
        return std::nullopt;
    }
    std::optional<ImpresoraElegida> respuesta = std::move(esperados_.front());
    esperados_.pop_front();
    return respuesta;
}

} // namespace vadro::pruebas
