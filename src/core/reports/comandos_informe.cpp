#include "core/reports/comandos_informe.h"

#include "core/core/comunes.h"
#include "core/core/error_ejecucion.h"

#include <exception>

namespace vadro {

double TwipsAPuntos(int twips, double puntosPorPulgada) {
    return twips * puntosPorPulgada / 1440.0;
}

PeticionImpresora PeticionImprimirModelo() {
    return {ImpOcultarArchivo | ImpSinNumerosPagina | ImpSinSeleccion};
}

Mensaje MensajeFalloImprimirModelo(int numero) {
    return {"Error " + std::to_string(numero) + " al realizar la impresión.", Botones::Aceptar,
            Icono::Critico, "VADRO PROGRAMADOR: imprimir modelo"};
}

PeticionDialogo PeticionExportarPdf(const Sesion& sesion) {
    PeticionDialogo peticion;
    peticion.tipo = TipoDialogo::Guardar;
    peticion.titulo = "Exportar informe a PDF";
    peticion.filtro = "Documentos PDF (*.pdf)|*.pdf";
    peticion.indiceFiltro = 1;
    peticion.flags = DlgPreguntarSobrescribir | DlgOcultarSoloLectura | DlgRutaDebeExistir;
    const std::string& archivo = sesion.modelo.Archivo;
    if (!archivo.empty()) {
        peticion.directorioInicial = DirectorioDe(archivo);
        peticion.nombreArchivo = NombreSinExtension(archivo) + ".pdf";
    } else if (!sesion.configuracion.DirModelos.empty()) {
        peticion.directorioInicial = sesion.configuracion.DirModelos;
    } else {
        peticion.directorioInicial = sesion.DirectorioPrograma;
    }
    return peticion;
}

Mensaje MensajeFalloExportarPdf(int numero, const std::string& descripcion) {
    std::string texto = "Error " + std::to_string(numero) + " al exportar el informe a PDF";
    texto += descripcion.empty() ? "." : ": " + descripcion + ".";
    return {texto, Botones::Aceptar, Icono::Critico, "VADRO PROGRAMADOR: exportar a PDF"};
}

bool ExportarInformePdf(const Sesion& sesion,
                        const std::function<void(const std::string& ruta)>& escribir) {
    std::optional<Mensaje> fallo;
    try {
        const auto ruta = ElegirArchivo(PeticionExportarPdf(sesion));
        if (!ruta) {
            return false;
        }
        escribir(*ruta);
        return true;
    } catch (const ErrorEjecucion& error) {
        fallo = MensajeFalloExportarPdf(error.Numero(), error.Descripcion());
    } catch (const std::exception& error) {
        fallo = MensajeFalloExportarPdf(ErrImpresora, error.what());
    }
    MsgBox(fallo->texto, fallo->botones, fallo->icono, fallo->titulo);
    return false;
}

} // namespace vadro
