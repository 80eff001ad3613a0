#pragma once

#include "core/core/arreglo.h"
#include "core/core/dialogos.h"
#include "core/core/mensajes.h"
#include "core/core/registros.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace vadro {

// The ways out of the logic that a window layer or a test replaces.
struct Servicios {
    FuncionMensajes mensajes;
    FuncionDialogos dialogos;
    FuncionImpresora impresora;
    // Called while a file is being written, before it takes the place of the target; a test
    // throws from it to see a save fail halfway.
    std::function<void(const std::string& ruta)> durante_escritura;
};

// The values of "Config.ini" as the session holds them after the start.
struct Configuracion {
    std::string DirProyectos;
    std::string DirModelos;
    std::string DirRequerimientos;
    std::string DirComponentes;
    std::string DirEtapas;
    std::string DirFuncionValor;
    bool MostrarInicio = true;
    bool MostrarAvisoBeta = true;
    int32_t TamanoFuente = 0;
    bool ModoLineaComandos = false;
};

// The one state of a design session: the model, the configuration and the working tables
// that the editors share.
struct Sesion {
    Modelo modelo;
    Configuracion configuracion;
    std::string DirectorioPrograma;
    // Set at the end of the first successful opening of a model; the open command asks about
    // saving from then on, whatever `Modificado` says.
    bool ModeloAbiertoAntes = false;

    Arreglo<FuncionOptativo> FuncionesEdicion; // the function editor's two working copies
    Matriz<ValorLibre> MatrizSaaty;
    Matriz<ValorLibre> MatrizConsistente;
    Arreglo<ValorLibre> PesosEdicion;
    Arreglo<ValorLibre> PesosConsistentes;
    std::vector<std::array<int16_t, 5>> FilasPonderacion;
    Arreglo<NodoEdicion> NodosEdicion;
    int16_t NodoEdicionActual = 0;
    // Whether the notice before the first function drawing shows; for this session only.
    bool MostrarAvisoFuncionValor = true;

    Servicios servicios;
};

// The session of this process.
Sesion& SesionActual();

// Starts the session afresh: the empty model, the default configuration and no working
// tables. The services and the program directory stay.
void ReiniciarSesion();

} // namespace vadro
