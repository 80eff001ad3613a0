#include "core/compilation/informe_compilacion.h"

#include "core/core/archivos.h"
#include "core/core/codigo_pagina.h"
#include "core/core/comunes.h"
#include "core/core/dialogos.h"
#include "core/core/error_ejecucion.h"

#include <ctime>
#include <exception>

namespace vadro {

std::string FechaHoraCorta() {
    const std::time_t ahora = std::time(nullptr);
    std::tm local{};
#ifdef _WIN32
    localtime_s(&local, &ahora);
#else
    localtime_r(&ahora, &local);
#endif
    char texto[64];
    const std::size_t largo = std::strftime(texto, sizeof texto, "%x %X", &local);
    return std::string(texto, largo);
}

std::vector<std::string> LineasInformeCompilacion(const Modelo& modelo,
                                                  const std::vector<std::string>& informe,
                                                  const std::string& fechaHora) {
    std::vector<std::string> lineas = {"COMPILACION. INFORME DE ERRORES.",
                                       "modelo: " + modelo.Nombre,
                                       "Fecha de compilado: " + fechaHora, "", ""};
    lineas.insert(lineas.end(), informe.begin(), informe.end());
    return lineas;
}

namespace {

PeticionDialogo DialogoInforme(const Sesion& sesion) {
    PeticionDialogo peticion;
    peticion.tipo = TipoDialogo::Guardar;
    peticion.titulo = "Guardar informe de compilación...";
    peticion.filtro = "Archivos compilados (*.log)|*.log|Todos los archivos (*.*)|*.*";
    peticion.indiceFiltro = 1;
    peticion.flags = DlgPreguntarSobrescribir | DlgOcultarSoloLectura;
    const std::string& archivo = sesion.modelo.Archivo;
    if (archivo.empty()) {
        peticion.directorioInicial = sesion.DirectorioPrograma;
    } else {
        peticion.directorioInicial = DirectorioDe(archivo);
        peticion.nombreArchivo = NombreSinExtension(archivo);
    }
    return peticion;
}

} // namespace

bool GuardarInformeCompilacion(const Sesion& sesion, const std::vector<std::string>& informe) {
    const auto ruta = ElegirArchivo(DialogoInforme(sesion));
    if (!ruta) {
        return false;
    }
    std::vector<std::string> lineas;
    for (const auto& linea : LineasInformeCompilacion(sesion.modelo, informe, FechaHoraCorta())) {
        lineas.push_back(AOchoBits(linea));
    }
    EscribirArchivo(*ruta, UnirLineas(lineas));
    return true;
}

PeticionImpresora PeticionImprimirInforme() {
    return {ImpOcultarArchivo | ImpSinNumerosPagina | ImpSinSeleccion};
}

Mensaje MensajeFalloImpresion() {
    return {"Ha ocurrido un error crítico. No ha sido posible realizar la impresión.",
            Botones::Aceptar, Icono::Informacion, "VADRO PROGRAMADOR: imprimir modelo"};
}

bool ImprimirInformeCompilacion(const std::function<void(const ImpresoraElegida&)>& imprimir) {
    bool fallo = false;
    try {
        imprimir(MostrarDialogoImpresora(PeticionImprimirInforme()));
        return true;
    } catch (const ErrorEjecucion& error) {
        fallo = error.Numero() != ErrCancelar;
    } catch (const std::exception&) {
        fallo = true;
    }
    if (fallo) {
        const Mensaje mensaje = MensajeFalloImpresion();
        MsgBox(mensaje.texto, mensaje.botones, mensaje.icono, mensaje.titulo);
    }
    return false;
}

} // namespace vadro
