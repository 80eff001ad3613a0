#include "core/shell/herramientas.h"

#include "core/compilation/compilacion.h"
#include "core/compilation/informe_errores.h"
#include "core/core/archivos.h"
#include "core/core/codigo_pagina.h"
#include "core/core/error_ejecucion.h"
#include "core/core/formato_numero.h"
#include "core/core/mensajes.h"
#include "core/core/version.h"
#include "core/files/modelo_archivo.h"
#include "core/files/proteccion.h"
#include "core/reports/informe_modelo.h"
#include "core/weighting/calculo_pesos.h"

#include <algorithm>
#include <charconv>
#include <istream>
#include <new>
#include <ostream>
#include <sstream>

namespace vadro {

namespace {

constexpr int kCorrecto = 0;
constexpr int kConErrores = 1;
constexpr int kFallo = 2;

const char* const kAyuda =
    "Uso: vadro-herramientas ORDEN [ARGUMENTOS]\n"
    "\n"
    "Herramientas de línea de órdenes de VADRO Programador.\n"
    "\n"
    "Órdenes:\n"
    "  texto ARCHIVO            Muestra el texto plano (UTF-8) de un modelo, plantilla o\n"
    "                           modelo compilado, esté codificado o no.\n"
    "  proteger PLANO DESTINO   Escribe en DESTINO la forma codificada de un texto plano.\n"
    "  comprobar MODELO [--claves]\n"
    "                           Comprueba un modelo y muestra el informe de compilación tal\n"
    "                           como lo muestra el programador; con --claves, cada línea\n"
    "                           lleva su clave tras un tabulador.\n"
    "  compilar MODELO DESTINO  Escribe el modelo compilado (.vdc) si la comprobación no\n"
    "                           encuentra errores; si los encuentra, muestra el informe.\n"
    "  informe MODELO           Muestra el texto del informe del modelo (UTF-8), con la\n"
    "                           sangría de cada nivel y \"[gráfica]\" en lugar de cada gráfica.\n"
    "  pesos                    Lee de la entrada estándar una matriz de comparación por\n"
    "                           pares, una fila por línea, celdas separadas por blancos y\n"
    "                           \"-\" para una celda vacía (se admiten fracciones como 1/3);\n"
    "                           muestra el peso de cada fila y la razón de consistencia.\n"
    "  --help                   Muestra esta ayuda.\n"
    "\n"
    "Estado de salida: 0 correcto, 1 modelo con errores, 2 fallo.\n";

struct ErrorUso {
    std::string mensaje;
};

bool EsUtf8ConAcentos(const std::string& bytes) {
    bool conAcentos = false;
    std::size_t i = 0;
    while (i < bytes.size()) {
        const auto c = static_cast<unsigned char>(bytes[i]);
        int siguen = 0;
        if (c < 0x80) {
            ++i;
            continue;
        }
        if ((c & 0xE0) == 0xC0 && c >= 0xC2) {
            siguen = 1;
        } else if ((c & 0xF0) == 0xE0) {
            siguen = 2;
        } else if ((c & 0xF8) == 0xF0 && c <= 0xF4) {
            siguen = 3;
        } else {
            return false;
        }
        for (int k = 1; k <= siguen; ++k) {
            if (i + static_cast<std::size_t>(k) >= bytes.size() ||
                (static_cast<unsigned char>(bytes[i + static_cast<std::size_t>(k)]) & 0xC0) !=
                    0x80) {
                return false;
            }
        }
        conAcentos = true;
        i += static_cast<std::size_t>(siguen) + 1;
    }
    return conAcentos;
}

std::string LeerOFallar(const std::string& ruta) {
    try {
        return LeerArchivo(ruta);
    } catch (const ErrorEjecucion& e) {
        throw ErrorUso{"No se puede leer " + ruta + ": " + e.Descripcion()};
    }
}

// Plain text starts with the five asterisks of its first marker; anything else is read as
// scrambled.
bool EsTextoPlano(std::string_view bytes) {
    return bytes.substr(0, 5) == "*****";
}

// The plain 8-bit text of a file, as every order reads it: a plain input in UTF-8 (what
// "texto" prints, edited) is taken as UTF-8, a scrambled one is decoded.
std::string TextoPlanoDe(const std::string& ruta) {
    std::string bytes = LeerOFallar(ruta);
    return TextoPlano(EsTextoPlano(bytes) ? ComoOchoBits(bytes) : bytes);
}

int Texto(const std::vector<std::string>& args, std::ostream& salida) {
    if (args.size() != 2) {
        throw ErrorUso{"La orden texto necesita un ARCHIVO."};
    }
    for (const auto& linea : DividirLineas(TextoPlanoDe(args[1]))) {
        salida << DesdeOchoBits(linea) << '\n';
    }
    return kCorrecto;
}

int Proteger(const std::vector<std::string>& args) {
    if (args.size() != 3) {
        throw ErrorUso{"La orden proteger necesita un archivo PLANO y un DESTINO."};
    }
    const std::string bytes = LeerOFallar(args[1]);
    // Scrambling a scrambled file again would make a model that loads empty.
    if (!EsTextoPlano(bytes)) {
        throw ErrorUso{"El archivo " + args[1] +
                       " no es un texto plano (no empieza por \"*****\"): ya está codificado o "
                       "no es un modelo de VADRO."};
    }
    const std::vector<std::string> lineas = DividirLineas(ComoOchoBits(bytes));
    try {
        EscribirArchivo(args[2], TextoProtegido(lineas));
    } catch (const ErrorEjecucion& e) {
        throw ErrorUso{"No se puede escribir " + args[2] + ": " + e.Descripcion()};
    }
    return kCorrecto;
}

Modelo CargarOFallar(const std::string& ruta) {
    Modelo modelo;
    ArchivoEntrada archivo = ArchivoEntrada::DesdeTexto(TextoPlanoDe(ruta));
    try {
        CargarModelo(modelo, archivo);
    } catch (const ErrorEjecucion& e) {
        throw ErrorUso{"No se puede leer el modelo " + ruta + ": error " +
                       std::to_string(e.Numero()) + ", " + e.Descripcion()};
    }
    modelo.Archivo = ruta;
    return modelo;
}

int Comprobar(const std::vector<std::string>& args, std::ostream& salida) {
    const bool conClaves = args.size() == 3 && args[2] == "--claves";
    if (args.size() != 2 && !conClaves) {
        throw ErrorUso{"La orden comprobar necesita un MODELO y, si acaso, --claves."};
    }
    const InformeErrores informe = ComprobarModelo(CargarOFallar(args[1]));
    salida << TextoInforme(informe, conClaves);
    return PermiteCompilado(Desenlace(informe)) ? kCorrecto : kConErrores;
}

int Compilar(const std::vector<std::string>& args, std::ostream& salida) {
    if (args.size() != 3) {
        throw ErrorUso{"La orden compilar necesita un MODELO y un DESTINO."};
    }
    Modelo modelo = CargarOFallar(args[1]);
    const InformeErrores informe = ComprobarModelo(modelo);
    if (!PermiteCompilado(Desenlace(informe))) {
        salida << TextoInforme(informe, false);
        return kConErrores;
    }
    // As the designer writes it: the same text, with the program's version in the header.
    modelo.ArchivoCompilado = args[2];
    modelo.Aplicacion = VersionPrograma();
    if (!GuardarModelo(modelo, args[2], false)) {
        return kFallo;
    }
    salida << "Se ha creado el archivo compilado " << args[2] << '\n';
    return kCorrecto;
}

// The model report as plain text, from the same lines as the report window's.
int InformeModelo(const std::vector<std::string>& args, std::ostream& salida) {
    if (args.size() != 2) {
        throw ErrorUso{"La orden informe necesita un MODELO."};
    }
    salida << TextoPlano(GenerarInforme(CargarOFallar(args[1])));
    return kCorrecto;
}

// A cell of a typed matrix: "-" is empty, "a/b" a fraction, anything else a number.
ValorLibre LeerCelda(const std::string& celda, int fila) {
    if (celda == "-") {
        return ValorLibre();
    }
    const auto barra = celda.find('/');
    const auto numerador = LeerNumero(celda.substr(0, barra));
    const auto denominador = barra == std::string::npos ? std::optional<double>(1.0)
                                                        : LeerNumero(celda.substr(barra + 1));
    if (!numerador || !denominador || *denominador == 0) {
        throw ErrorUso{"La celda \"" + celda + "\" de la fila " + std::to_string(fila) +
                       " no es un número."};
    }
    return ValorLibre(*numerador / *denominador);
}

std::string DiecisieteCifras(double numero) {
    char texto[40];
    const auto fin =
        std::to_chars(texto, texto + sizeof texto, numero, std::chars_format::general, 17).ptr;
    return std::string(texto, fin);
}

// A sibling set has fewer than 32768 nodes; and a matrix whose lines give a small part of its
// cells (thousands of lines of one number each) would ask for memory out of all proportion.
void ComprobarTamano(const std::vector<std::vector<ValorLibre>>& filas) {
    constexpr std::size_t kMaximoHermanos = 32767;
    constexpr std::size_t kFilasSinMedida = 1000;
    const std::size_t n = filas.size();
    if (n > kMaximoHermanos) {
        throw ErrorUso{"La matriz tiene " + std::to_string(n) +
                       " filas, y un conjunto de hermanos tiene como mucho " +
                       std::to_string(kMaximoHermanos) + "."};
    }
    std::size_t celdas = 0;
    for (const auto& fila : filas) {
        celdas += std::min(fila.size(), n);
    }
    if (n > kFilasSinMedida && celdas < n * n / 4) {
        throw ErrorUso{"La matriz tiene " + std::to_string(n) + " filas pero solo " +
                       std::to_string(celdas) + " celdas escritas; una matriz de " +
                       std::to_string(n) + " filas tiene " + std::to_string(n * n) + "."};
    }
}

int Pesos(const std::vector<std::string>& args, std::istream& entrada, std::ostream& salida) {
    if (args.size() != 1) {
        throw ErrorUso{
            "La orden pesos lee la matriz de la entrada estándar y no lleva argumentos."};
    }
    std::vector<std::vector<ValorLibre>> filas;
    std::string linea;
    while (std::getline(entrada, linea)) {
        std::istringstream celdas(linea);
        std::vector<ValorLibre> fila;
        std::string celda;
        while (celdas >> celda) {
            fila.push_back(LeerCelda(celda, static_cast<int>(filas.size()) + 1));
        }
        if (!fila.empty()) {
            filas.push_back(std::move(fila));
        }
    }
    if (filas.empty()) {
        throw ErrorUso{"La matriz está vacía."};
    }
    ComprobarTamano(filas);
    const PesosMatriz resultado = PesosDeFilas(filas);
    for (int i = 1; i <= static_cast<int>(filas.size()); ++i) {
        const bool hayPeso =
            resultado.Calculado && i <= resultado.Pesos.Tamano() && !resultado.Pesos(i).EsVacio();
        salida << "Peso " << i << " = " << (hayPeso ? Formato00(resultado.Pesos(i)) : "") << '\n';
    }
    salida << "Consistencia = "
           << (resultado.Consistencia.EsVacio() ? ""
                                                : DiecisieteCifras(resultado.Consistencia.Numero()))
           << '\n';
    return kCorrecto;
}

} // namespace

std::string ComoOchoBits(const std::string& bytes) {
    return EsUtf8ConAcentos(bytes) ? AOchoBits(bytes) : bytes;
}

namespace {

int Orden(const std::vector<std::string>& argumentos, std::istream& entrada, std::ostream& salida) {
    if (argumentos.empty()) {
        throw ErrorUso{"Falta la orden."};
    }
    const std::string& orden = argumentos.front();
    if (orden == "--help" || orden == "-h" || orden == "ayuda") {
        salida << kAyuda;
        return kCorrecto;
    }
    if (orden == "texto") {
        return Texto(argumentos, salida);
    }
    if (orden == "proteger") {
        return Proteger(argumentos);
    }
    if (orden == "comprobar") {
        return Comprobar(argumentos, salida);
    }
    if (orden == "compilar") {
        return Compilar(argumentos, salida);
    }
    if (orden == "informe") {
        return InformeModelo(argumentos, salida);
    }
    if (orden == "pesos") {
        return Pesos(argumentos, entrada, salida);
    }
    throw ErrorUso{"Orden desconocida: " + orden + "."};
}

// While the companion runs, a message box is a line on the error stream; a box that offers a
// retry is answered Cancelar, so that the first failure ends the order.
class MensajesAlError {
public:
    explicit MensajesAlError(std::ostream& error)
        : anterior_(InstalarMensajes([&error](const Mensaje& mensaje) {
              std::string texto = mensaje.texto;
              texto.erase(std::remove(texto.begin(), texto.end(), '\r'), texto.end());
              error << "vadro-herramientas: " << texto << '\n';
              return mensaje.botones == Botones::ReintentarCancelar ? Respuesta::Cancelar
                                                                    : PrimerBoton(mensaje.botones);
          })) {}
    ~MensajesAlError() { InstalarMensajes(std::move(anterior_)); }
    MensajesAlError(const MensajesAlError&) = delete;
    MensajesAlError& operator=(const MensajesAlError&) = delete;

private:
    FuncionMensajes anterior_;
};

} // namespace

int EjecutarHerramientas(const std::vector<std::string>& argumentos, std::istream& entrada,
                         std::ostream& salida, std::ostream& error) {
    const MensajesAlError mensajes(error);
    try {
        const int estado = Orden(argumentos, entrada, salida);
        // Every write to the output is checked: output cut on a full disk is a failure.
        salida.flush();
        if (!salida) {
            error << "vadro-herramientas: no se puede escribir en la salida estándar.\n";
            return kFallo;
        }
        return estado;
    } catch (const ErrorUso& e) {
        error << "vadro-herramientas: " << e.mensaje << "\nPruebe «vadro-herramientas --help».\n";
        return kFallo;
    } catch (const ErrorEjecucion& e) {
        error << "vadro-herramientas: error " << e.Numero() << ": " << e.Descripcion() << '\n';
        return kFallo;
    } catch (const std::bad_alloc&) {
        error << "vadro-herramientas: error " << ErrMemoria << ": " << DescripcionError(ErrMemoria)
              << '\n';
        return kFallo;
    }
}

} // namespace vadro
