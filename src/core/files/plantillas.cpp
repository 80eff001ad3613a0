#include "core/files/plantillas.h"

#include "core/core/archivos.h"
#include "core/core/comunes.h"
#include "core/core/configuracion.h"
#include "core/core/dialogos.h"
#include "core/core/error_ejecucion.h"
#include "core/files/componentes_etapas.h"
#include "core/files/seccion_funcion.h"
#include "core/files/seccion_requerimientos.h"

#include <filesystem>
#include <optional>

namespace vadro {

const TipoPlantilla kPlantillaRequerimientos{
    "Plantillas de requerimientos (*.req)|*.req", "Importar requerimientos",
    "Exportar requerimientos", kClaveRequerimientos, &Configuracion::DirRequerimientos};
const TipoPlantilla kPlantillaComponentes{"Plantillas de componentes (*.cmp)|*.cmp",
                                          "Importar componentes", "Exportar componentes",
                                          kClaveComponentes, &Configuracion::DirComponentes};
const TipoPlantilla kPlantillaEtapas{"Plantillas de etapa (*.tpa)|*.tpa", "Importar etapas",
                                     "Exportar etapas", kClaveEtapas, &Configuracion::DirEtapas};
const TipoPlantilla kPlantillaFuncionValor{"Plantillas de función de valor (*.fva)|*.fva",
                                           "Importar función de valor", "Exportar función de valor",
                                           kClaveFuncionValor, &Configuracion::DirFuncionValor};

std::string CarpetaArchivosDeModelo(const Sesion& sesion) {
    return UnirRuta(sesion.DirectorioPrograma, "Archivos de modelo");
}

namespace {

// The dialog of a template command; the chosen folder is remembered at once, so that a
// failed read or write still knows where the user went. Nothing when cancelled.
std::optional<std::string> ElegirPlantilla(Sesion& sesion, const TipoPlantilla& tipo,
                                           TipoDialogo modo) {
    std::string& directorio = sesion.configuracion.*tipo.directorio;
    if (directorio.empty()) {
        directorio = CarpetaArchivosDeModelo(sesion);
        std::error_code ec;
        std::filesystem::create_directories(
            std::filesystem::path(std::u8string(directorio.begin(), directorio.end())), ec);
    }
    PeticionDialogo peticion;
    peticion.tipo = modo;
    peticion.titulo = modo == TipoDialogo::Abrir ? tipo.tituloImportar : tipo.tituloExportar;
    peticion.directorioInicial = directorio;
    peticion.filtro = tipo.filtro;
    peticion.indiceFiltro = 0;
    peticion.flags = modo == TipoDialogo::Abrir ? DlgArchivoDebeExistir : DlgPreguntarSobrescribir;
    auto ruta = ElegirArchivo(peticion);
    if (!ruta) {
        return std::nullopt;
    }
    directorio = DirectorioDe(*ruta);
    EscribirConfiguracion(sesion, kSeccionDirectorios, tipo.claveDirectorio, directorio);
    return ruta;
}

} // namespace

bool ImportarPlantilla(Sesion& sesion, const TipoPlantilla& tipo,
                       const std::function<void(const std::string& ruta)>& leer) {
    const auto ruta = ElegirPlantilla(sesion, tipo, TipoDialogo::Abrir);
    if (!ruta) {
        return false;
    }
    leer(*ruta);
    return true;
}

bool ExportarPlantilla(Sesion& sesion, const TipoPlantilla& tipo,
                       const std::function<void(const std::string& ruta)>& escribir) {
    const auto ruta = ElegirPlantilla(sesion, tipo, TipoDialogo::Guardar);
    if (!ruta) {
        return false;
    }
    escribir(*ruta);
    return true;
}

bool ImportarRequerimientos(Modelo& modelo) {
    return ImportarPlantilla(SesionActual(), kPlantillaRequerimientos,
                             [&](const std::string& ruta) { CargarRequerimientos(modelo, ruta); });
}

bool ExportarRequerimientos(Modelo& modelo) {
    return ExportarPlantilla(
        SesionActual(), kPlantillaRequerimientos,
        [&](const std::string& ruta) { GuardarRequerimientos(modelo, ruta, false); });
}

bool ImportarComponentes(Modelo& modelo) {
    return ImportarPlantilla(SesionActual(), kPlantillaComponentes,
                             [&](const std::string& ruta) { CargarComponentes(modelo, ruta); });
}

bool ExportarComponentes(const Modelo& modelo) {
    return ExportarPlantilla(SesionActual(), kPlantillaComponentes, [&](const std::string& ruta) {
        GuardarComponentes(modelo, ruta, false);
    });
}

bool ImportarEtapas(Modelo& modelo) {
    return ImportarPlantilla(SesionActual(), kPlantillaEtapas,
                             [&](const std::string& ruta) { CargarEtapas(modelo, ruta); });
}

bool ExportarEtapas(const Modelo& modelo) {
    return ExportarPlantilla(SesionActual(), kPlantillaEtapas,
                             [&](const std::string& ruta) { GuardarEtapas(modelo, ruta, false); });
}

bool ImportarFuncionValor(FuncionValor& leida) {
    return ImportarPlantilla(SesionActual(), kPlantillaFuncionValor, [&](const std::string& ruta) {
        FuncionValor provisional;
        CargarFuncionValor(provisional, ruta);
        leida = provisional;
    });
}

bool ExportarFuncionValor(const FuncionValor& funcion) {
    return ExportarPlantilla(SesionActual(), kPlantillaFuncionValor, [&](const std::string& ruta) {
        FuncionValor provisional = funcion;
        provisional.Clave.clear();
        GuardarFuncionValor(provisional, ruta, false);
    });
}

} // namespace vadro
