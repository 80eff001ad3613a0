#include "core/shell/comandos_modelo.h"

#include "core/core/archivos.h"
#include "core/core/comunes.h"
#include "core/core/error_ejecucion.h"
#include "core/core/mensajes.h"
#include "core/core/version.h"
#include "core/files/modelo_archivo.h"

namespace vadro {

namespace {

constexpr const char* kCarpetaProyectos = "Archivos de proyecto";
constexpr const char* kFiltroModelo = "Archivos de modelo (*.vdm)|*.vdm";
constexpr const char* kTituloGuardarComo = "Guardar modelo como...";

// The folder, name and extension of a path the user typed, which may lack a folder or an
// extension: unlike the dialog-path routines these give the empty text instead of failing.
std::string CarpetaDe(const std::string& archivo) {
    const std::string normal = NormalizarRuta(archivo);
    const auto corte = normal.rfind(SeparadorRuta());
    return corte == std::string::npos ? std::string() : normal.substr(0, corte);
}

std::string NombreDe(const std::string& archivo) {
    const std::string normal = NormalizarRuta(archivo);
    const auto corte = normal.rfind(SeparadorRuta());
    return corte == std::string::npos ? normal : normal.substr(corte + 1);
}

std::string ExtensionDeNombre(const std::string& archivo) {
    const std::string nombre = NombreDe(archivo);
    const auto punto = nombre.rfind('.');
    return punto == std::string::npos ? std::string() : nombre.substr(punto + 1);
}

} // namespace

void InicializarModelo(Modelo& modelo) {
    modelo.Requerimientos.Redimensionar(1);
    modelo.Componentes.Redimensionar(1);
    modelo.Etapas.Redimensionar(1);
    modelo.Aplicacion = VersionPrograma();
    for (std::string Modelo::*campo :
         {&Modelo::Archivo, &Modelo::Nombre, &Modelo::Fecha, &Modelo::Autor, &Modelo::Version,
          &Modelo::Localizacion, &Modelo::Referencia, &Modelo::Descripcion}) {
        (modelo.*campo).clear();
    }
    modelo.NumRequerimientos = 0;
    modelo.NumComponentes = 0;
    modelo.NumEtapas = 0;
    modelo.ConSubcriterios = false;
    modelo.EjeX = "Tiempo";
    modelo.EjeY = "Requerimientos";
    modelo.EjeZ = "Componentes";
}

bool GuardarAntesDeNuevo(Modelo& modelo) {
    if (!modelo.Modificado) {
        return true;
    }
    const Respuesta respuesta = MsgBox("Desea guardar el modelo activo?", Botones::SiNoCancelar,
                                       Icono::Pregunta, "VADRO PROGRAMADOR: Nuevo modelo");
    if (respuesta == Respuesta::Cancelar) {
        return false;
    }
    if (respuesta == Respuesta::Si) {
        GuardarModelo(modelo, modelo.Archivo, false);
    }
    return true;
}

PeticionDialogo PeticionGuardarModelo(const std::string& archivo,
                                      const std::string& directorioPrograma, bool nombreCompleto) {
    PeticionDialogo peticion;
    peticion.tipo = TipoDialogo::Guardar;
    peticion.titulo = kTituloGuardarComo;
    peticion.filtro = kFiltroModelo;
    peticion.flags = DlgOcultarSoloLectura | DlgPreguntarSobrescribir;
    if (archivo.empty()) {
        peticion.directorioInicial = UnirRuta(directorioPrograma, kCarpetaProyectos);
    } else if (nombreCompleto) {
        peticion.nombreArchivo = NormalizarRuta(archivo);
    } else {
        peticion.directorioInicial = CarpetaDe(archivo);
        peticion.nombreArchivo = NombreDe(archivo);
    }
    return peticion;
}

bool NecesitaNombre(const std::string& archivo) {
    return archivo.empty() || MinusculasAscii(ExtensionDeNombre(archivo)) == "vdc";
}

bool ElegirArchivoModelo(Modelo& modelo, const std::string& directorioPrograma,
                         bool nombreCompleto) {
    const auto ruta =
        ElegirArchivo(PeticionGuardarModelo(modelo.Archivo, directorioPrograma, nombreCompleto));
    if (!ruta) {
        return false;
    }
    modelo.Archivo = *ruta;
    return true;
}

bool GuardarComo(Modelo& modelo, const std::string& directorioPrograma) {
    if (!ElegirArchivoModelo(modelo, directorioPrograma, true)) {
        return false;
    }
    GuardarModelo(modelo, modelo.Archivo, false);
    return true;
}

bool GuardarAlCerrar(Modelo& modelo, const std::string& directorioPrograma) {
    if (!modelo.Modificado) {
        return true;
    }
    const Respuesta respuesta = MsgBox("Desea guardar los cambios realizados en el modelo actual?",
                                       Botones::SiNoCancelar, Icono::Pregunta, "VADRO PROGRAMADOR");
    if (respuesta == Respuesta::Cancelar) {
        return false;
    }
    if (respuesta == Respuesta::Si) {
        if (!modelo.Archivo.empty()) {
            GuardarModelo(modelo, modelo.Archivo, false);
        } else {
            GuardarComo(modelo, directorioPrograma);
        }
    }
    return true;
}

} // namespace vadro
