#include "core/files/componentes_etapas.h"

#include "core/core/error_ejecucion.h"
#include "core/core/mensajes.h"
#include "core/files/formato.h"

#include <functional>

namespace vadro {

namespace {

std::string Num(int n) {
    return std::to_string(n);
}

// A count of 0 or less, the empty text included, writes the fixed line "<key> = 0".
void EscribirCuenta(ArchivoSalida& salida, const std::string& clave, const ValorLibre& cuenta) {
    if (cuenta.EsVacio() || cuenta.Numero() <= 0) {
        salida.Escribir(clave, "0");
    } else {
        salida.Escribir(clave, FormaValor(cuenta));
    }
}

// Runs a section reader; a failure is shown and leaves the section with no entries. The
// temporary file of an independent read then stays behind, as the reader never got to its end.
void LeerConTrampa(const std::function<void()>& leer, const std::string& queNoSeCargo,
                   const std::function<void()>& vaciar) {
    try {
        leer();
    } catch (const ErrorEjecucion&) {
        MsgBox("Fichero no válido o formato de datos incorrecto.\r\n" + queNoSeCargo,
               Botones::Aceptar, Icono::Critico, "VADRO: Error.");
        vaciar();
    }
}

void VaciarComponentes(Modelo& modelo) {
    modelo.NumComponentes = 0;
    modelo.Componentes.Redimensionar(1);
}

void VaciarEtapas(Modelo& modelo) {
    modelo.NumEtapas = 0;
    modelo.Etapas.Redimensionar(1);
}

void LeerComponentes(Modelo& modelo, ArchivoEntrada& archivo, const std::string& indice) {
    const std::string claveCuenta = indice + "CMP_NUM";
    if (BuscarValor(archivo, claveCuenta).EsVacio()) {
        VaciarComponentes(modelo);
        return;
    }
    // The second search finds the key again by the wrap and leaves the position behind it.
    const int16_t componentes = AEntero16(BuscarValor(archivo, claveCuenta));
    modelo.NumComponentes = componentes;
    if (componentes > 0) {
        modelo.Componentes.RedimensionarConservando(componentes);
    }
    for (int c = 1; c <= componentes; ++c) {
        Componente& componente = modelo.Componentes(c);
        const std::string prefijo = indice + "CMP_C" + Num(c);
        componente.Nombre = BuscarValor(archivo, prefijo + "_NOM").Texto();
        componente.NumSubcomponentes = AEntero16(BuscarValor(archivo, prefijo + "_NUM"));
        if (componente.NumSubcomponentes > 0) {
            componente.Subcomponentes.RedimensionarConservando(componente.NumSubcomponentes);
        }
        for (int s = 1; s <= componente.NumSubcomponentes; ++s) {
            componente.Subcomponentes(s).Nombre =
                BuscarValor(archivo, indice + "CMP_S" + Num(s) + "C" + Num(c) + "_NOM").Texto();
        }
    }
}

void LeerEtapas(Modelo& modelo, ArchivoEntrada& archivo, const std::string& indice) {
    const ValorLibre cuenta = BuscarValor(archivo, indice + "ETA_NUM");
    if (cuenta.EsVacio()) {
        VaciarEtapas(modelo);
        return;
    }
    const int16_t etapas = AEntero16(cuenta);
    modelo.NumEtapas = etapas;
    if (etapas > 0) {
        modelo.Etapas.Redimensionar(etapas);
    }
    for (int n = 1; n <= etapas; ++n) {
        modelo.Etapas(n) = BuscarValor(archivo, indice + "ETA_NOM" + Num(n)).Texto();
    }
}

} // namespace

void GuardarComponentes(const Modelo& modelo, ArchivoSalida& salida, const std::string& indice) {
    salida.Escribir(indice + "*****COMPONENTES*****");
    EscribirCuenta(salida, indice + "CMP_NUM", modelo.NumComponentes);
    const int componentes = modelo.NumComponentes.Cuenta();
    for (int c = 1; c <= componentes; ++c) {
        const Componente& componente = modelo.Componentes(c);
        const std::string prefijo = indice + "CMP_C" + Num(c);
        salida.Escribir(prefijo + "_NOM", componente.Nombre);
        salida.Escribir(prefijo + "_NUM", FormaImpresa(componente.NumSubcomponentes));
        for (int s = 1; s <= componente.NumSubcomponentes; ++s) {
            salida.Escribir(indice + "CMP_S" + Num(s) + "C" + Num(c) + "_NOM",
                            componente.Subcomponentes(s).Nombre);
        }
    }
}

void GuardarComponentes(const Modelo& modelo, const std::string& ruta, bool anadir,
                        const std::string& indice) {
    ArchivoSalida salida;
    GuardarComponentes(modelo, salida, indice);
    GuardarSeccion(ruta, salida, anadir);
}

void CargarComponentes(Modelo& modelo, ArchivoEntrada& archivo, const std::string& indice) {
    LeerConTrampa([&] { LeerComponentes(modelo, archivo, indice); },
                  "No se ha podido cargar el árbol de componentes.",
                  [&] { VaciarComponentes(modelo); });
}

void CargarComponentes(Modelo& modelo, const std::string& ruta, const std::string& indice) {
    LeerConTrampa(
        [&] {
            ArchivoEntrada archivo = ArchivoEntrada::Abrir(ruta);
            LeerComponentes(modelo, archivo, indice);
            archivo.BorrarTemporal();
        },
        "No se ha podido cargar el árbol de componentes.", [&] { VaciarComponentes(modelo); });
}

void GuardarEtapas(const Modelo& modelo, ArchivoSalida& salida, const std::string& indice) {
    salida.Escribir(indice + "*****ETAPAS*****");
    EscribirCuenta(salida, indice + "ETA_NUM", modelo.NumEtapas);
    const int etapas = modelo.NumEtapas.Cuenta();
    for (int n = 1; n <= etapas; ++n) {
        salida.Escribir(indice + "ETA_NOM" + Num(n), modelo.Etapas(n));
    }
}

void GuardarEtapas(const Modelo& modelo, const std::string& ruta, bool anadir,
                   const std::string& indice) {
    ArchivoSalida salida;
    GuardarEtapas(modelo, salida, indice);
    GuardarSeccion(ruta, salida, anadir);
}

void CargarEtapas(Modelo& modelo, ArchivoEntrada& archivo, const std::string& indice) {
    LeerConTrampa([&] { LeerEtapas(modelo, archivo, indice); },
                  "No se ha podido cargar la plantilla de etapas.", [&] { VaciarEtapas(modelo); });
}

void CargarEtapas(Modelo& modelo, const std::string& ruta, const std::string& indice) {
    LeerConTrampa(
        [&] {
            ArchivoEntrada archivo = ArchivoEntrada::Abrir(ruta);
            LeerEtapas(modelo, archivo, indice);
            archivo.BorrarTemporal();
        },
        "No se ha podido cargar la plantilla de etapas.", [&] { VaciarEtapas(modelo); });
}

} // namespace vadro
