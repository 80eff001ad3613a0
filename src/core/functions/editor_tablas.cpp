// The editor's table grids: the optional indicators with their functions, and the boolean and
// numeric scoring elements.
#include "core/core/mensajes.h"
#include "core/core/sesion.h"
#include "core/functions/editor_funcion.h"

#include <algorithm>

namespace vadro {

namespace {

const std::string kTituloProgramador = "VADRO PROGRAMADOR";

void Avisar(const std::string& texto) {
    MsgBox(texto, Botones::Aceptar, Icono::Ninguno, kTituloProgramador);
}

const char* SinElementos(Tabla tabla) {
    switch (tabla) {
    case Tabla::Optativos:
        return "Introduzca primero el número de elementos optativos deseado.";
    case Tabla::Booleanos:
        return "Introduzca primero el número de elementos booleanos deseado.";
    case Tabla::Numericos:
        break;
    }
    return "Introduzca primero el número de elementos numéricos deseado.";
}

// A score cell as the record keeps it: the empty text for an empty cell.
ValorLibre ValorPuntuacion(const std::string& texto) {
    if (texto.empty()) {
        return {};
    }
    if (const auto numero = LeerNumero(texto)) {
        return *numero;
    }
    return texto;
}

void Marcar() {
    SesionActual().modelo.Modificado = true;
}

} // namespace

TablaEdicion& EditorFuncion::TablaDe(Tabla tabla) {
    return tabla == Tabla::Optativos ? Optativos
                                     : (tabla == Tabla::Booleanos ? Booleanos : Numericos);
}

const TablaEdicion& EditorFuncion::TablaDe(Tabla tabla) const {
    return tabla == Tabla::Optativos ? Optativos
                                     : (tabla == Tabla::Booleanos ? Booleanos : Numericos);
}

void EditorFuncion::CambiarCuenta(Tabla tabla, int n) {
    TablaEdicion& t = TablaDe(tabla);
    const int m = static_cast<int>(t.Filas.size());
    if (n < m && !Cargando && Aviso && ConfirmarReduccion && !ConfirmarReduccion()) {
        return; // the count stays as it was, and so do the rows
    }
    t.Dimensionar(n);
    if (!Cargando) {
        Marcar();
    }
    if (tabla != Tabla::Optativos) {
        return;
    }
    // One working function per row; with no row the array keeps one blank place, as a
    // function without optional indicators is written.
    auto& funciones = SesionActual().FuncionesEdicion;
    if (n > 0) {
        funciones.RedimensionarConservando(n);
    } else {
        funciones.Redimensionar(1);
    }
    MaximoSeleccionables = std::max(n - 1, 0);
    Seleccionables = std::min(Seleccionables, MaximoSeleccionables);
    DibujarOptativo();
}

void EditorFuncion::CambiarSeleccionables(int n) {
    Seleccionables = std::clamp(n, 0, MaximoSeleccionables);
    Marcar();
}

void EditorFuncion::EntrarCelda(Tabla tabla, int fila, int columna) {
    TablaEdicion& t = TablaDe(tabla);
    if (t.Cuenta < 1 || fila < 1 || fila > t.Cuenta) {
        return; // the row of " -" cells is no cell to enter
    }
    t.FilaActual = fila;
    t.ColumnaActual = columna;
    if (tabla == Tabla::Optativos) {
        DibujarOptativo();
    }
}

bool EditorFuncion::AbrirCelda(Tabla tabla) {
    TablaEdicion& t = TablaDe(tabla);
    if (t.Cuenta < 1) {
        Avisar(SinElementos(tabla));
        return false;
    }
    if (t.FilaActual < 1 || t.ColumnaActual < t.PrimeraColumna()) {
        return false; // no cell yet, or the column "Id"
    }
    t.EntradaAbierta = true;
    return true;
}

bool EditorFuncion::NumeroInvalido(const TablaEdicion& tabla, const std::string& texto) const {
    if (&tabla == &Optativos || tabla.ColumnaActual == 1 || texto.empty() || LeerNumero(texto)) {
        return false;
    }
    MsgBox("Debe introducir un numero válido.", Botones::Aceptar, Icono::Ninguno,
           "VADRO PROGRAMADOR: error");
    return true;
}

void EditorFuncion::SalirCelda(Tabla tabla, const std::string& texto) {
    TablaEdicion& t = TablaDe(tabla);
    if (!t.EntradaAbierta) {
        return;
    }
    t.EntradaAbierta = false;
    if (t.Cuenta < 1 || NumeroInvalido(t, texto)) {
        return; // a refused text leaves the cell as it was
    }
    std::string& celda = t.Celda(t.FilaActual, t.ColumnaActual);
    const bool textual = tabla == Tabla::Optativos || t.ColumnaActual == 1 || texto.empty();
    const std::string nuevo = textual ? texto : TextoNumero(*LeerNumero(texto));
    if (celda != nuevo) {
        celda = nuevo;
        Marcar();
    }
}

AccionEntrada EditorFuncion::TeclaEntrada(Tabla tabla, int tecla, const std::string& texto) {
    TablaEdicion& t = TablaDe(tabla);
    switch (tecla) {
    case 13:
        SalirCelda(tabla, texto);
        return AccionEntrada::Confirmada;
    case 27:
        t.EntradaAbierta = false;
        return AccionEntrada::Descartada;
    case 37:
    case 38:
    case 39:
    case 40:
        break;
    default:
        return AccionEntrada::Ninguna;
    }
    if (NumeroInvalido(t, texto)) {
        return AccionEntrada::Retenida;
    }
    SalirCelda(tabla, texto);
    if (tecla == 37 && t.ColumnaActual > t.PrimeraColumna()) {
        --t.ColumnaActual;
    } else if (tecla == 38 && t.FilaActual > 1) {
        --t.FilaActual;
    } else if (tecla == 39 && t.ColumnaActual < t.Columnas() - 1) {
        ++t.ColumnaActual;
    } else if (tecla == 40 && t.FilaActual < t.Cuenta) {
        ++t.FilaActual;
    }
    if (tabla == Tabla::Optativos) {
        DibujarOptativo();
    }
    return AccionEntrada::Movida;
}

int EditorFuncion::FilaOptativoAEditar() {
    if (Optativos.Cuenta < 1) {
        Avisar(SinElementos(Tabla::Optativos));
        return 0;
    }
    if (Optativos.FilaActual < 1) {
        Avisar("Seleccione primero un indicador en la tabla de indicadores.");
        return 0;
    }
    return Optativos.FilaActual;
}

std::string EditorFuncion::TituloOptativo(const std::string& titulo, int fila) const {
    return titulo + " - Función del indicador optativo " + Optativos.Celda(fila, 0);
}

void EditorFuncion::DibujarOptativo() {
    const auto& funciones = SesionActual().FuncionesEdicion;
    const int fila = Optativos.FilaActual;
    if (Optativos.Cuenta > 0 && fila >= 1 && fila <= funciones.Tamano()) {
        GraficaOptativo = GraficarOptativo(funciones(fila));
    } else {
        GraficaOptativo = Grafica();
    }
}

void EditorFuncion::LeerOptativos(const FuncionValor& funcion) {
    const auto& leidos = funcion.Optativos;
    auto& funciones = SesionActual().FuncionesEdicion;
    // One element without a name is how a function without optional indicators is kept.
    if (leidos.Tamano() == 0 || (leidos.Tamano() == 1 && leidos(1).Nombre.empty())) {
        funciones.Redimensionar(1);
        Optativos.Poner({});
        MaximoSeleccionables = 0;
        Seleccionables = 0;
    } else {
        funciones.Redimensionar(leidos.Tamano());
        std::vector<std::vector<std::string>> filas;
        for (int i = 1; i <= leidos.Tamano(); ++i) {
            funciones(i) = leidos(i).Funcion;
            filas.push_back({leidos(i).Nombre});
        }
        Optativos.Poner(std::move(filas));
        MaximoSeleccionables = Optativos.Cuenta - 1;
        Seleccionables = funcion.OptativoSeleccionado;
    }
    DibujarOptativo();
}

void EditorFuncion::EscribirOptativos(FuncionValor& funcion) const {
    const auto& funciones = SesionActual().FuncionesEdicion;
    funcion.Tipo = FuncionOptativos;
    funcion.OptativoSeleccionado = static_cast<int16_t>(Seleccionables);
    const int n = Optativos.Cuenta;
    funcion.Optativos.Redimensionar(std::max(n, 1));
    for (int i = 1; i <= n; ++i) {
        funcion.Optativos(i).Nombre = Optativos.Celda(i, 0);
        if (i <= funciones.Tamano()) {
            funcion.Optativos(i).Funcion = funciones(i);
        }
    }
}

void EditorFuncion::LeerPuntuaciones(const Arreglo<Puntuacion>& puntuaciones) {
    std::vector<std::vector<std::string>> booleanos;
    std::vector<std::vector<std::string>> numericos;
    for (const Puntuacion& p : puntuaciones) {
        if (p.Tipo == PuntuacionBooleana) {
            booleanos.push_back({"", p.Nombre, p.ValorMin.Texto(), p.ValorMax.Texto()});
        } else {
            numericos.push_back({"", p.Nombre, p.Minimo.Texto(), p.Maximo.Texto(),
                                 p.ValorMin.Texto(), p.ValorMax.Texto()});
        }
    }
    Booleanos.Poner(std::move(booleanos));
    Numericos.Poner(std::move(numericos));
}

void EditorFuncion::EscribirPuntuaciones(FuncionValor& funcion) const {
    funcion.Puntuaciones.Redimensionar(Booleanos.Cuenta + Numericos.Cuenta);
    int i = 0;
    for (int fila = 1; fila <= Booleanos.Cuenta; ++fila) {
        const auto celda = [&](int columna) { return Booleanos.Celda(fila, columna); };
        funcion.Puntuaciones(++i) = {
            PuntuacionBooleana,       celda(1), {}, {}, ValorPuntuacion(celda(2)),
            ValorPuntuacion(celda(3))};
    }
    for (int fila = 1; fila <= Numericos.Cuenta; ++fila) {
        const auto celda = [&](int columna) { return Numericos.Celda(fila, columna); };
        funcion.Puntuaciones(++i) = {PuntuacionNumerica,        celda(1),
                                     ValorPuntuacion(celda(2)), ValorPuntuacion(celda(3)),
                                     ValorPuntuacion(celda(4)), ValorPuntuacion(celda(5))};
    }
}

} // namespace vadro
