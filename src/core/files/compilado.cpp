#include "core/files/compilado.h"

#include "core/core/archivos.h"
#include "core/core/comunes.h"
#include "core/core/dialogos.h"
#include "core/core/error_ejecucion.h"
#include "core/core/mensajes.h"
#include "core/core/version.h"
#include "core/files/modelo_archivo.h"

namespace vadro {

namespace {

// The dialog offers the folder and base name of an existing compiled file, or else the
// program directory.
PeticionDialogo DialogoCompilado(const Sesion& sesion) {
    const std::string& compilado = sesion.modelo.ArchivoCompilado;
    PeticionDialogo peticion;
    peticion.tipo = TipoDialogo::Guardar;
    peticion.titulo = "Guardar modelo compilado como...";
    peticion.filtro = "Archivos compilados (*.vdc)|*.vdc|Todos los archivos (*.*)|*.*";
    peticion.flags = DlgPreguntarSobrescribir | DlgOcultarSoloLectura;
    if (compilado.empty() || !ExisteArchivo(compilado)) {
        peticion.directorioInicial = sesion.DirectorioPrograma;
    } else {
        peticion.directorioInicial = DirectorioDe(compilado);
        peticion.nombreArchivo = UnirRuta(DirectorioDe(compilado), NombreSinExtension(compilado));
    }
    return peticion;
}

} // namespace

bool EscribirCompilado(Sesion& sesion) {
    Modelo& modelo = sesion.modelo;
    if (modelo.ArchivoCompilado.empty() || !ExisteArchivo(modelo.ArchivoCompilado)) {
        modelo.ArchivoCompilado = modelo.Archivo;
    }
    const auto elegida = ElegirArchivo(DialogoCompilado(sesion));
    if (!elegida) {
        return false;
    }
    const std::string& ruta = *elegida;
    modelo.ArchivoCompilado = ruta;
    modelo.Aplicacion = VersionPrograma();
    if (!GuardarModelo(modelo, ruta, false)) {
        return false;
    }
    MsgBox("Se ha creado el archivo compilado " + ruta +
               "\nEste archivo será utilizable por el módulo VADRO USUARIO.",
           Botones::Aceptar, Icono::Informacion, "VADRO PROGRAMADOR: compilación correcta");
    modelo.Compilado = true;
    return true;
}

} // namespace vadro
