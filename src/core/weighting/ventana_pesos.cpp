#include "core/weighting/ventana_pesos.h"

#include "core/core/formato_numero.h"
#include "core/core/mensajes.h"
#include "core/weighting/calculo_pesos.h"

namespace vadro {

namespace {

const std::string kTituloPonderacion = "VADRO PROGRAMADOR: Ponderación";
const std::string kTituloMatriz = "VADRO PROGRAMADOR: matriz de pesos";

bool Pregunta(const std::string& texto, const std::string& titulo, Icono icono) {
    return MsgBox(texto, Botones::SiNo, icono, titulo) == Respuesta::Si;
}

} // namespace

bool CeldaEditableDirecto(int filas, int columnas, int fila, int columna) {
    return columna > 0 && columna < columnas && fila >= 1 && fila < filas - 1;
}

bool CeldaEditableSaaty(int filas, int columnas, int fila, int columna) {
    return columna > 0 && columna < columnas - 1 && fila >= 1 && fila < filas && fila != columna;
}

bool CeldaConEscala(int columnas, int fila, int columna) {
    return fila >= 1 && fila < columna && columna < columnas - 1;
}

AccionTecla AccionDeTecla(TeclaEntrada tecla) {
    switch (tecla) {
    case TeclaEntrada::Escape:
        return AccionTecla::Ocultar;
    case TeclaEntrada::Retorno:
        return AccionTecla::Confirmar;
    case TeclaEntrada::Izquierda:
    case TeclaEntrada::Arriba:
    case TeclaEntrada::Derecha:
    case TeclaEntrada::Abajo:
        return AccionTecla::Mover;
    case TeclaEntrada::Digito:
    case TeclaEntrada::Separador:
        return AccionTecla::Escribir;
    case TeclaEntrada::Otra:
        break;
    }
    return AccionTecla::Descartar;
}

Celda CeldaTrasFlecha(TeclaEntrada flecha, Celda actual, int filas, int columnas) {
    switch (flecha) {
    case TeclaEntrada::Izquierda:
        if (actual.Columna > 1) {
            --actual.Columna;
        }
        break;
    case TeclaEntrada::Arriba:
        if (actual.Fila > 1) {
            --actual.Fila;
        }
        break;
    case TeclaEntrada::Derecha:
        if (actual.Columna < columnas - 1) {
            ++actual.Columna;
        }
        break;
    case TeclaEntrada::Abajo:
        if (actual.Fila < filas - 1) {
            ++actual.Fila;
        }
        break;
    default:
        break;
    }
    return actual;
}

Confirmacion ConfirmarSaaty(Sesion& sesion, EdicionPesos& edicion, Celda celda,
                            const std::string& texto, RejillaPonderacion& rejilla) {
    if (!texto.empty()) {
        edicion.ModificadoAHP = true;
    }
    switch (ClasificarEntradaMatriz(texto)) {
    case EntradaMatriz::Vacia:
        BlanquearCeldaSaaty(sesion, edicion, celda.Fila, celda.Columna, rejilla);
        return Confirmacion::Blanqueada;
    case EntradaMatriz::NoPositiva:
        MsgBox("El valor introducido no puede ser cero ni negativo.\nSi no quiere introducir "
               "ahora un nuevo valor, deje la casilla en blanco.",
               Botones::Aceptar, Icono::Informacion, kTituloPonderacion);
        return Confirmacion::Rechazada;
    case EntradaMatriz::Valida:
        IntroducirValorSaaty(sesion, edicion, celda.Fila, celda.Columna, ValorLibre(texto),
                             rejilla);
        return Confirmacion::Introducida;
    case EntradaMatriz::NoNumero:
    case EntradaMatriz::Desbordada:
        break;
    }
    return Confirmacion::Descartada;
}

bool ConfirmarDirecto(EdicionPesos& edicion, Celda celda, const std::string& texto,
                      RejillaPonderacion& rejilla) {
    edicion.ModificadoDirecto = true;
    ValorLibre puntuacion;
    if (!texto.empty()) {
        const auto numero = LeerNumero(texto);
        if (!numero) {
            return false;
        }
        puntuacion = *numero;
    }
    edicion.PuntuacionesDirecto(celda.Fila) = puntuacion;
    rejilla.PonerTexto(celda.Fila, celda.Columna, Formato00(puntuacion));
    LlenarPorcentajesDirecto(edicion.PuntuacionesDirecto, edicion.PorcentajesDirecto, rejilla);
    return true;
}

std::string AyudaCelda(const RejillaPonderacion& rejilla, int fila, int columna) {
    if (fila < 1 || columna < 1 || fila >= rejilla.Filas() || columna >= rejilla.Columnas()) {
        return "";
    }
    return rejilla.Texto(fila, columna);
}

const std::array<OpcionSaaty, kOpcionesSaaty>& EscalaSaaty() {
    static const std::array<OpcionSaaty, kOpcionesSaaty> escala = {{
        {"1", "Igual importancia"},
        {"2", "Intermedio entre 1 y 3"},
        {"3", "Moderadamente más importante"},
        {"4", "Intermedio entre 3 y 5"},
        {"5", "Más importante"},
        {"6", "Intermedio entre 5 y 7"},
        {"7", "Mucho más importante"},
        {"8", "Intermedio entre 7 y 9"},
        {"9", "Extremadamente más importante"},
        {"1/1", "Igual importancia"},
        {"1/2", "Intermedio entre 1 y 1/3"},
        {"1/3", "Moderadamente menos importante"},
        {"1/4", "Intermedio entre 1/3 y 1/ 5"},
        {"1/5", "Menos importante"},
        {"1/6", "Intermedio entre 1/5 y 1/7"},
        {"1/7", "Mucho menos importante"},
        {"1/8", "Intermedio entre 1/7 y 1/9"},
        {"1/9", "Extremadamente menos importante"},
    }};
    return escala;
}

std::string EtiquetaOpcionSaaty(int k) {
    if (k < 9) {
        return TextoNumero(k + 1);
    }
    return TextoNumero(1.0 / (k - 8));
}

std::optional<int> OpcionDeCelda(const std::string& textoCelda) {
    if (textoCelda.empty()) {
        return 0;
    }
    for (int k = 0; k < kOpcionesSaaty; ++k) {
        if (EtiquetaOpcionSaaty(k) == textoCelda) {
            return k;
        }
    }
    return std::nullopt;
}

ValorLibre ValorOpcionSaaty(int k) {
    if (k < 9) {
        return k + 1;
    }
    return 1.0 / (k - 8);
}

void AceptarOpcionSaaty(Sesion& sesion, Celda celda, int opcion, RejillaPonderacion& rejilla) {
    GuardarValorSaaty(sesion.MatrizSaaty, celda.Fila, celda.Columna, ValorOpcionSaaty(opcion),
                      rejilla);
}

ColorRGB ColorParpadeo(ColorRGB actual) {
    return actual == ColorRojoClaro ? ColorBlanco : ColorRojoClaro;
}

bool Intermitencia::Tic(int segundo) {
    if (segundo == Segundo) {
        return false;
    }
    Segundo = segundo;
    return true;
}

bool ConsistenciaPerfectaPosible(const Matriz<ValorLibre>& matriz) {
    if (PrimeraFilaCompleta(matriz)) {
        return true;
    }
    MsgBox("Al menos uno de los valores de la primera fila es cero o está vacío. No es posible "
           "calcular la consistencia perfecta!!",
           Botones::Aceptar, Icono::Informacion, "VADRO PROGRAMADOR: consistencia perfecta");
    return false;
}

bool ConfirmarTraspaso() {
    return Pregunta("Desea traspasar los valores hallados a la matriz de pesos?\nSe perderán los "
                    "valores introducidos inicialmente.",
                    "VADRO PROGRAMADOR: Consistencia perfecta", Icono::Pregunta);
}

namespace {

// Whether the ratio is over the threshold or missing, as the label's colour says.
bool RazonMala(const ValorLibre& consistencia) {
    return ColorConsistencia(consistencia).Fondo == ColorRojo;
}

bool PuntuacionesCompletas(const RejillaPonderacion& directo) {
    for (int fila = 1; fila < directo.Filas() - 1; ++fila) {
        if (directo.Texto(fila, ColumnaPuntuacion).empty()) {
            return false;
        }
    }
    return true;
}

} // namespace

bool AceptarPesos(Sesion& sesion, const EdicionPesos& edicion, MetodoCalculo visible,
                  const RejillaPonderacion& directo) {
    if (visible == CalculoSaaty) {
        if (RazonMala(edicion.Consistencia) &&
            Pregunta("La matriz de pesos NO es consistente. Desea modificarla?",
                     "VADRO PROGRAMADOR: matriz NO consistente", Icono::Pregunta)) {
            return false;
        }
    } else if (!PuntuacionesCompletas(directo) &&
               !Pregunta("La matriz de ponderación en modo directo no está completa. Desea "
                         "continuar?",
                         "VADRO PROGRAMADOR", Icono::Ninguno)) {
        return false;
    }
    EscribirConjunto(sesion, edicion, visible);
    sesion.modelo.Modificado = true;
    return true;
}

bool ConfirmarCancelacion() {
    return Pregunta("Se perderán los últimos datos introducidos. Desea continuar?",
                    "VADRO PROGRAMADOR: cerrar matriz de pesos", Icono::Pregunta);
}

bool PuedeDescargarPesos(const EdicionPesos& edicion, MetodoCalculo visible) {
    if (visible == CalculoDirecto && edicion.ModificadoAHP) {
        return Pregunta("La matriz de pesos AHP ha sido modificada y se perderán los valores "
                        "introducidos.\nDesea continuar?",
                        kTituloMatriz, Icono::Pregunta);
    }
    if (visible == CalculoSaaty && edicion.ModificadoDirecto) {
        return Pregunta("La matriz de introducción directa de pesos ha sido modificada y se "
                        "perderán sus valores.\nDesea continuar?",
                        kTituloMatriz, Icono::Pregunta);
    }
    return true;
}

} // namespace vadro
