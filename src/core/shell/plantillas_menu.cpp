#include "core/shell/plantillas_menu.h"

#include "core/core/mensajes.h"
#include "core/files/componentes_etapas.h"
#include "core/files/lectura_seccion.h"
#include "core/files/seccion_requerimientos.h"

namespace vadro {

namespace {

// What the section of each part looks like in a file, and what its refusal says.
struct Seccion {
    const char* marcador;
    const char* prefijo;
    const char* queNoSeCargo;
};

Seccion SeccionDe(ParteModelo parte) {
    switch (parte) {
    case ParteModelo::Requerimientos:
        return {"*****REQUERIMIENTOS*****", "REQ_",
                "No se ha podido cargar el árbol de requerimientos."};
    case ParteModelo::Componentes:
        return {"*****COMPONENTES*****", "CMP_", "No se ha podido cargar el árbol de componentes."};
    case ParteModelo::Etapas:
        break;
    }
    return {"*****ETAPAS*****", "ETA_", "No se ha podido cargar la plantilla de etapas."};
}

void Leer(Modelo& modelo, ParteModelo parte, const std::string& ruta) {
    switch (parte) {
    case ParteModelo::Requerimientos:
        return CargarRequerimientos(modelo, ruta);
    case ParteModelo::Componentes:
        return CargarComponentes(modelo, ruta);
    case ParteModelo::Etapas:
        return CargarEtapas(modelo, ruta);
    }
}

void Escribir(Modelo& modelo, ParteModelo parte, const std::string& ruta) {
    switch (parte) {
    case ParteModelo::Requerimientos:
        return GuardarRequerimientos(modelo, ruta, false);
    case ParteModelo::Componentes:
        return GuardarComponentes(modelo, ruta, false);
    case ParteModelo::Etapas:
        return GuardarEtapas(modelo, ruta, false);
    }
}

// Reads a template into a copy of the model, which the model takes only when it is of the
// right kind and read to its end: a wrong file or a failing read leaves the model whole.
bool Importar(Modelo& modelo, ParteModelo parte, const std::string& ruta) {
    {
        ArchivoPropio archivo(ruta);
        if (!EsPlantillaDe((*archivo).Lineas(), parte)) {
            MsgBox(std::string("Fichero no válido o formato de datos incorrecto.\r\n") +
                       SeccionDe(parte).queNoSeCargo,
                   Botones::Aceptar, Icono::Critico, "VADRO: Error.");
            return false;
        }
    }
    Modelo copia = modelo;
    Leer(copia, parte, ruta);
    modelo = std::move(copia);
    return true;
}

} // namespace

const std::vector<EntradaPlantilla>& EntradasPlantilla() {
    static const std::vector<EntradaPlantilla> entradas = {
        {"mnuImportarR", ParteModelo::Requerimientos, true},
        {"mnuImportarComp", ParteModelo::Componentes, true},
        {"mnuImportarEtapas", ParteModelo::Etapas, true},
        {"mnuExportarR", ParteModelo::Requerimientos, false},
        {"mnuExportarComp", ParteModelo::Componentes, false},
        {"mnuExportarEtapas", ParteModelo::Etapas, false},
    };
    return entradas;
}

const TipoPlantilla& TipoDeParte(ParteModelo parte) {
    switch (parte) {
    case ParteModelo::Requerimientos:
        return kPlantillaRequerimientos;
    case ParteModelo::Componentes:
        return kPlantillaComponentes;
    case ParteModelo::Etapas:
        break;
    }
    return kPlantillaEtapas;
}

Hija HijaDeParte(ParteModelo parte) {
    switch (parte) {
    case ParteModelo::Requerimientos:
        return Hija::Requerimientos;
    case ParteModelo::Componentes:
        return Hija::Componentes;
    case ParteModelo::Etapas:
        break;
    }
    return Hija::Etapas;
}

int EtiquetaDeParte(ParteModelo parte) {
    switch (parte) {
    case ParteModelo::Requerimientos:
        return EtqRequerimientos;
    case ParteModelo::Componentes:
        return EtqComponentes;
    case ParteModelo::Etapas:
        break;
    }
    return EtqCicloVida;
}

bool EsPlantillaDe(const std::vector<std::string>& lineas, ParteModelo parte) {
    const Seccion seccion = SeccionDe(parte);
    for (const std::string& linea : lineas) {
        if (linea == seccion.marcador || linea.rfind(seccion.prefijo, 0) == 0) {
            return true;
        }
    }
    return false;
}

bool EjecutarPlantilla(Sesion& sesion, const EntradaPlantilla& entrada) {
    Modelo& modelo = sesion.modelo;
    const TipoPlantilla& tipo = TipoDeParte(entrada.parte);
    if (!entrada.importar) {
        return ExportarPlantilla(
            sesion, tipo, [&](const std::string& ruta) { Escribir(modelo, entrada.parte, ruta); });
    }
    bool leida = false;
    const bool elegida = ImportarPlantilla(sesion, tipo, [&](const std::string& ruta) {
        leida = Importar(modelo, entrada.parte, ruta);
    });
    return elegida && leida;
}

EfectoImportacion EfectoTrasImportar(ParteModelo parte, bool resumenAbierto, bool disenoAbierto) {
    EfectoImportacion efecto;
    efecto.etiqueta = EtiquetaDeParte(parte);
    efecto.seguirPermiso = parte == ParteModelo::Requerimientos;
    efecto.rellenarResumen = resumenAbierto;
    efecto.rellenarDiseno = !resumenAbierto && disenoAbierto;
    efecto.cargarDiseno = !resumenAbierto && !disenoAbierto;
    return efecto;
}

} // namespace vadro
