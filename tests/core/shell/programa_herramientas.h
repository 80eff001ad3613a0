#pragma once

#include "soporte/prueba_sesion.h"

#include <cstdio>
#include <string>
#include <sys/wait.h>

namespace vadro::pruebas {

struct Salida {
    int estado;
    std::string salida;
    std::string error;
};

// The built companion, run as a user runs it.
class ProgramaHerramientas : public PruebaSesion {
protected:
    // Runs the program in the test's folder with `argumentos` as typed in a shell (a
    // redirection of the output among them) and `entrada` as its standard input; it is killed
    // after a minute, so a hang is the status 124.
    Salida Programa(const std::string& argumentos, const std::string& entrada = {}) {
        Escribir(Ruta("entrada.txt"), entrada);
        const std::string orden = "cd '" + Directorio() +
                                  "' && timeout 60 '" VADRO_HERRAMIENTAS "' " + argumentos +
                                  " < entrada.txt 2> error.txt";
        FILE* tubo = popen(orden.c_str(), "r");
        std::string salida;
        char bloque[4096];
        for (std::size_t leidos; (leidos = fread(bloque, 1, sizeof bloque, tubo)) > 0;) {
            salida.append(bloque, leidos);
        }
        const int estado = pclose(tubo);
        return {WIFEXITED(estado) ? WEXITSTATUS(estado) : -1, salida, Contenido(Ruta("error.txt"))};
    }
};

} // namespace vadro::pruebas
