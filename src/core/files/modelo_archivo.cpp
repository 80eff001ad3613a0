#include "core/files/modelo_archivo.h"

#include "core/core/error_ejecucion.h"
#include "core/core/mensajes.h"
#include "core/files/componentes_etapas.h"
#include "core/files/formato.h"
#include "core/files/lectura_seccion.h"
#include "core/files/seccion_requerimientos.h"

#include <new>
#include <stdexcept>

namespace vadro {

namespace {

// The header's text fields in the order of the file, with the suffix of each key.
struct CampoCabecera {
    const char* sufijo;
    std::string Modelo::*campo;
};

constexpr CampoCabecera kCampos[] = {
    {"_APL", &Modelo::Aplicacion},
    {"_NOM", &Modelo::Nombre},
    {"_DAT", &Modelo::Fecha},
    {"_POR", &Modelo::Autor},
    {"_VER", &Modelo::Version},
    {"_LOC", &Modelo::Localizacion},
    {"_REF", &Modelo::Referencia},
    {"_DSC", &Modelo::Descripcion},
    {"_FCP", &Modelo::ArchivoCompilado},
    {"_EJX", &Modelo::EjeX},
    {"_EJY", &Modelo::EjeY},
    {"_EJZ", &Modelo::EjeZ},
};

std::string ClaveCabecera(const Modelo& modelo, const std::string& indice, const char* sufijo) {
    return indice + "MOD" + modelo.Clave + sufijo;
}

void MostrarFalloGuardado(const ErrorEjecucion& error) {
    MsgBox("Error " + std::to_string(error.Numero()) + " al guardar el modelo.\n\r" +
               error.Descripcion(),
           Botones::Aceptar, Icono::Critico, "VADRO: Error ");
}

} // namespace

void EscribirCabecera(const Modelo& modelo, ArchivoSalida& salida, const std::string& indice) {
    salida.Escribir(indice + "*****MODELO*****");
    for (const auto& [sufijo, campo] : kCampos) {
        salida.Escribir(ClaveCabecera(modelo, indice, sufijo), modelo.*campo);
    }
    salida.Escribir(ClaveCabecera(modelo, indice, "_PERM_USU_VER"),
                    BooleanoArchivo(modelo.PermisoUsuarioVer));
}

void LeerCabecera(Modelo& modelo, ArchivoEntrada& archivo, const std::string& indice) {
    for (const auto& [sufijo, campo] : kCampos) {
        modelo.*campo = BuscarValor(archivo, ClaveCabecera(modelo, indice, sufijo)).Texto();
    }
    modelo.PermisoUsuarioVer =
        LeerBooleanoArchivo(BuscarValor(archivo, ClaveCabecera(modelo, indice, "_PERM_USU_VER")));
}

bool GuardarModelo(Modelo& modelo, const std::string& ruta, bool anadir,
                   const std::string& indice) {
    ArchivoSalida salida;
    EscribirCabecera(modelo, salida, indice);
    // The requirements show their own failure, and the model goes on without the rest of them.
    // A save abandoned in a function's retry box, or refused for a number that would not read
    // back, leaves the previous file and Modificado.
    try {
        GuardarRequerimientos(modelo, salida, indice);
    } catch (const ErrorEjecucion& error) {
        if (error.Numero() == ErrDesbordamiento) {
            MostrarFalloGuardado(error);
        } else if (error.Numero() != ErrCancelar) {
            throw;
        }
        return false;
    }
    // The components and stages writers have no trap: their failures go up to the caller.
    GuardarComponentes(modelo, salida, indice);
    GuardarEtapas(modelo, salida, indice);
    try {
        GuardarSeccion(ruta, salida, anadir);
    } catch (const ErrorEjecucion& error) {
        MostrarFalloGuardado(error);
        return false;
    }
    modelo.Modificado = false;
    return true;
}

// The message of a failure names the file, so that the user knows which one is at fault.
void CargarModelo(Modelo& modelo, const std::string& ruta, const std::string& indice) {
    try {
        ArchivoPropio archivo(ruta);
        CargarModelo(modelo, *archivo, indice);
    } catch (const ErrorEjecucion& error) {
        throw ErrorEjecucion(error.Numero(), error.Descripcion() + " (" + ruta + ")");
    } catch (const std::bad_alloc&) {
        throw ErrorEjecucion(ErrMemoria, DescripcionError(ErrMemoria) + " (" + ruta + ")");
    } catch (const std::length_error&) {
        throw ErrorEjecucion(ErrMemoria, DescripcionError(ErrMemoria) + " (" + ruta + ")");
    }
}

void CargarModelo(Modelo& modelo, ArchivoEntrada& archivo, const std::string& indice) {
    LeerCabecera(modelo, archivo, indice);
    CargarRequerimientos(modelo, archivo, indice);
    CargarComponentes(modelo, archivo, indice);
    CargarEtapas(modelo, archivo, indice);
}

} // namespace vadro
