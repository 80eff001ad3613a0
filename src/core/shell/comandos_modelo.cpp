#include "core/shell/comandos_modelo.h"

#include "core/core/archivos.h"
#include "core/core/comunes.h"
#include "core/core/configuracion.h"
#include "core/core/error_ejecucion.h"
#include "core/core/mensajes.h"
#include "core/core/version.h"
#include "core/files/lectura_seccion.h"
#include "core/files/modelo_archivo.h"
#include "core/shell/flujo_trabajo.h"
#include "core/trees/arbol_modelo.h"

#include <filesystem>

namespace vadro {

namespace {

constexpr const char* kCarpetaProyectos = "Archivos de proyecto";
constexpr const char* kCarpetaModelos = "Archivos de modelo";
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
    if (modelo.Archivo.empty()) {
        CarpetaDelPrograma(SesionActual(), kCarpetaProyectos);
    }
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

std::string CarpetaDelPrograma(const Sesion& sesion, const std::string& nombre) {
    const std::string carpeta = UnirRuta(sesion.DirectorioPrograma, nombre);
    std::error_code fallo;
    std::filesystem::create_directories(
        std::filesystem::path(std::u8string(carpeta.begin(), carpeta.end())), fallo);
    return carpeta;
}

PeticionDialogo PeticionAbrirModelo(const std::string& directorioModelos) {
    PeticionDialogo peticion;
    peticion.tipo = TipoDialogo::Abrir;
    peticion.titulo = "Abrir modelo";
    peticion.filtro = "Archivos de modelos (*.vdm)|*.vdm|Archivos de modelos compilados "
                      "(*.vdc)|*.vdc|";
    peticion.indiceFiltro = 0;
    peticion.flags = DlgOcultarSoloLectura;
    peticion.directorioInicial = directorioModelos;
    return peticion;
}

bool PareceModelo(const std::vector<std::string>& lineas) {
    if (lineas.empty()) {
        return true;
    }
    for (const std::string& linea : lineas) {
        for (const char* comienzo : {"*****", "MOD_", "REQ_", "CMP_", "ETA_", "FUN_"}) {
            if (linea.rfind(comienzo, 0) == 0) {
                return true;
            }
        }
    }
    return false;
}

namespace {

// The reading of the chosen file into a blank model; the live model takes it only whole.
Modelo LeerModelo(const Modelo& blanco, const std::string& ruta) {
    Modelo leido = blanco;
    ArchivoPropio archivo(ruta);
    if (!PareceModelo((*archivo).Lineas())) {
        throw ErrorEjecucion(ErrFormatoArchivo, "El archivo no contiene un modelo de VADRO.");
    }
    CargarModelo(leido, *archivo);
    leido.Archivo = ruta;
    leido.Aplicacion = VersionPrograma();
    leido.Modificado = false;
    return leido;
}

bool GuardarAntesDeAbrir(Sesion& sesion) {
    if (!sesion.ModeloAbiertoAntes) {
        return true;
    }
    Modelo& modelo = sesion.modelo;
    const Respuesta respuesta = MsgBox("Desea guardar los cambios realizados en el modelo actual?",
                                       Botones::SiNoCancelar, Icono::Pregunta, "VADRO PROGRAMADOR");
    if (respuesta == Respuesta::Cancelar) {
        return false;
    }
    // A save that failed has told why; the model stays rather than being blanked.
    return respuesta != Respuesta::Si || GuardarModelo(modelo, modelo.Archivo, false);
}

} // namespace

bool AbrirModelo(Sesion& sesion) {
    Modelo& modelo = sesion.modelo;
    try {
        if (!GuardarAntesDeAbrir(sesion)) {
            return false;
        }
        InicializarModelo(modelo);
        std::string& directorio = sesion.configuracion.DirModelos;
        if (directorio.empty()) {
            directorio = CarpetaDelPrograma(sesion, kCarpetaModelos);
        }
        const std::string ruta = MostrarDialogoArchivo(PeticionAbrirModelo(directorio));
        directorio = DirectorioDe(ruta);
        EscribirConfiguracion(sesion, kSeccionDirectorios, kClaveModelos, directorio);
        modelo = LeerModelo(modelo, ruta);
    } catch (const ErrorEjecucion& error) {
        if (error.Numero() != ErrCancelar) {
            MsgBox("Error " + std::to_string(error.Numero()) +
                       " al abrir el modelo: " + error.Descripcion(),
                   Botones::Aceptar, Icono::Critico, "VADRO PROGRAMADOR: abrir modelo");
        }
        return false;
    }
    sesion.ModeloAbiertoAntes = true;
    return true;
}

namespace {

bool HayPesoVacio(const Modelo& modelo) {
    bool vacio = false;
    const auto mirar = [&vacio](const CabeceraNodo& nodo) { vacio = vacio || nodo.Peso.EsVacio(); };
    for (int r = 1; r <= modelo.NumRequerimientos.Cuenta(); ++r) {
        const NodoRequerimiento& requerimiento = modelo.Requerimientos(r);
        mirar(requerimiento);
        for (int c = 1; c <= requerimiento.NumCriterios.Cuenta(); ++c) {
            const NodoCriterio& criterio = requerimiento.Criterios(c);
            mirar(criterio);
            for (int i = 1; i <= criterio.NumIndicadores.Cuenta(); ++i) {
                mirar(criterio.Indicadores(i));
            }
            for (int s = 1; s <= criterio.NumSubcriterios.Cuenta(); ++s) {
                const NodoSubcriterio& subcriterio = criterio.Subcriterios(s);
                mirar(subcriterio);
                for (int i = 1; i <= subcriterio.NumIndicadores.Cuenta(); ++i) {
                    mirar(subcriterio.Indicadores(i));
                }
            }
        }
    }
    return vacio;
}

} // namespace

std::vector<std::pair<int, bool>> EtiquetasTrasAbrir(const Modelo& modelo) {
    return {{EtqRequerimientos, HayElementos(modelo.NumRequerimientos)},
            {EtqComponentes, HayElementos(modelo.NumComponentes)},
            {EtqCicloVida, HayElementos(modelo.NumEtapas)},
            {EtqPesos, !HayPesoVacio(modelo)}};
}

CambioSubcriterios CambiarPermisoSubcriterios(Modelo& modelo, bool marcado) {
    if (!marcado) {
        const Respuesta respuesta =
            MsgBox("Se recomienda un máximo de tres niveles en el árbol de requerimientos.\r"
                   "Está seguro de querer usar subcriterios?",
                   Botones::SiNo, Icono::Pregunta, "VADRO PROGRAMADOR: permitir subcriterios");
        if (respuesta != Respuesta::Si) {
            return CambioSubcriterios::Ninguno;
        }
        modelo.ConSubcriterios = true;
        return CambioSubcriterios::Permitidos;
    }
    if (HaySubcriterios(modelo) &&
        MsgBox("Existen subcriterios en el modelo actual que serán eliminados. Desea continuar?",
               Botones::SiNo, Icono::Pregunta,
               "VADRO PROGRAMADOR: eliminar subcriterios") != Respuesta::Si) {
        return CambioSubcriterios::Ninguno;
    }
    modelo.ConSubcriterios = false;
    EliminarSubcriterios(modelo);
    return CambioSubcriterios::Eliminados;
}

} // namespace vadro
