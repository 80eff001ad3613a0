#include "core/weighting/calculo_pesos.h"

#include "core/core/error_ejecucion.h"
#include "core/core/formato_numero.h"
#include "core/weighting/aritmetica.h"

#include <algorithm>
#include <array>
#include <optional>

namespace vadro {

namespace {

// The upper bound of the first dimension; a matrix never sized has none.
int CotaFilas(const Matriz<ValorLibre>& matriz) {
    if (!matriz.Presente()) {
        throw ErrorEjecucion(ErrSubindice);
    }
    return matriz.Filas();
}

using Columna = std::vector<double>; // indexed from 1, element 0 unused

Columna SumasDeColumnas(const Matriz<ValorLibre>& matriz, int n) {
    Columna sumas(static_cast<std::size_t>(n) + 1, 0.0);
    for (int c = 1; c <= n; ++c) {
        for (int r = 1; r <= n; ++r) {
            sumas[static_cast<std::size_t>(c)] =
                Sumar(sumas[static_cast<std::size_t>(c)], matriz(r, c).Numero());
        }
    }
    return sumas;
}

// The row averages of the normalised columns, written as weights row by row; nothing when a
// column adds to zero.
std::optional<Columna> Promedios(const Matriz<ValorLibre>& matriz, int n, const Columna& sumas,
                                 Arreglo<ValorLibre>& pesos) {
    Columna promedios(static_cast<std::size_t>(n) + 1, 0.0);
    for (int r = 1; r <= n; ++r) {
        double fila = 0;
        for (int c = 1; c <= n; ++c) {
            const double suma = sumas[static_cast<std::size_t>(c)];
            if (suma == 0) {
                return std::nullopt;
            }
            fila = Sumar(fila, Dividir(matriz(r, c).Numero(), suma));
        }
        fila = Dividir(fila, n);
        promedios[static_cast<std::size_t>(r)] = fila;
        pesos(r) = Multiplicar(100, fila);
    }
    return promedios;
}

// Lambda before its rounding: the mean over the rows of the matrix times the weights, each
// divided by the row's weight; nothing when a row's product adds to zero.
std::optional<double> Lambda(const Matriz<ValorLibre>& matriz, int n, const Columna& promedios) {
    double sumaL = 0;
    for (int r = 1; r <= n; ++r) {
        double t = 0;
        for (int c = 1; c <= n; ++c) {
            t = Sumar(t,
                      Multiplicar(promedios[static_cast<std::size_t>(c)], matriz(r, c).Numero()));
        }
        if (t == 0) {
            return std::nullopt;
        }
        sumaL = Sumar(sumaL, Dividir(t, promedios[static_cast<std::size_t>(r)]));
    }
    return Dividir(sumaL, n);
}

// The ratio of a matrix of two or more; nothing on an early stop.
std::optional<double> RazonConsistencia(const Matriz<ValorLibre>& matriz, int n,
                                        Arreglo<ValorLibre>& pesos) {
    const Columna sumas = SumasDeColumnas(matriz, n);
    const auto promedios = Promedios(matriz, n, sumas, pesos);
    if (!promedios) {
        return std::nullopt;
    }
    const auto lambda = Lambda(matriz, n, *promedios);
    if (!lambda) {
        return std::nullopt;
    }
    // Lambda is rounded as it would be shown, so that a consistent matrix gives exactly 0 and
    // small inconsistencies vanish; a lambda rounded below n gives a small negative ratio.
    const double indice = Dividir(Restar(Redondeado00(*lambda), n), n - 1);
    const double aleatorio = IndiceAleatorio(n);
    return aleatorio != 0 ? Dividir(indice, aleatorio) : 0.0;
}

} // namespace

double IndiceAleatorio(int n) {
    static constexpr std::array<double, 15> indices = {
        0, 0, 0.58, 0.9, 1.12, 1.24, 1.32, 1.41, 1.45, 1.49, 1.51, 1.48, 1.56, 1.57, 1.59};
    if (n < 1) {
        return 0;
    }
    return indices[static_cast<std::size_t>(std::min(n, 15) - 1)];
}

bool CalcularPesos(const Matriz<ValorLibre>& matriz, Arreglo<ValorLibre>& pesos,
                   double& consistencia) {
    try {
        const int n = CotaFilas(matriz);
        pesos.Redimensionar(n);
        if (n == 1) {
            pesos(1) = 100;
            consistencia = 0;
            return true;
        }
        const auto razon = RazonConsistencia(matriz, n, pesos);
        if (!razon) {
            return false;
        }
        consistencia = *razon;
        return true;
    } catch (const ErrorEjecucion&) {
        return false;
    }
}

bool MatrizCompleta(const Matriz<ValorLibre>& matriz) {
    const int n = CotaFilas(matriz);
    for (int r = 1; r <= n; ++r) {
        for (int c = 1; c <= n; ++c) {
            if (matriz(r, c).EsVacio()) {
                return false;
            }
        }
    }
    return true;
}

bool RecalcularPesos(const Matriz<ValorLibre>& matriz, Arreglo<ValorLibre>& pesos,
                     ValorLibre& resultado) {
    pesos.Redimensionar(CotaFilas(matriz));
    if (!MatrizCompleta(matriz)) {
        resultado = ValorLibre();
        return false;
    }
    double consistencia = 0;
    if (!CalcularPesos(matriz, pesos, consistencia)) {
        return false;
    }
    resultado = consistencia;
    return true;
}

void ActualizarPesos(const Matriz<ValorLibre>& matriz, Arreglo<ValorLibre>& pesos,
                     ValorLibre& resultado, RejillaPonderacion& rejilla) {
    if (!RecalcularPesos(matriz, pesos, resultado)) {
        return;
    }
    const int columnaPeso = rejilla.Columnas() - 1;
    for (int r = 1; r < rejilla.Filas(); ++r) {
        rejilla.PonerTexto(r, columnaPeso, Formato00(pesos(r)));
    }
}

void ConstruirMatrizConsistente(const Matriz<ValorLibre>& matriz, Matriz<ValorLibre>& consistente) {
    const int n = CotaFilas(matriz);
    consistente.Redimensionar(n, n);
    for (int i = 1; i <= n; ++i) {
        for (int j = 1; j <= n; ++j) {
            if (i == 1) {
                consistente(1, j) = matriz(1, j);
            } else if (i < j) {
                consistente(i, j) =
                    Dividir(consistente(i - 1, j).Numero(), consistente(i - 1, i).Numero());
            } else if (i > j) {
                consistente(i, j) = Dividir(1, consistente(j, i).Numero());
            } else {
                consistente(i, j) = 1;
            }
        }
    }
}

void LlenarPorcentajesDirecto(const Arreglo<ValorLibre>& puntuaciones,
                              Arreglo<ValorLibre>& porcentajes, RejillaPonderacion& rejilla) {
    const int n = puntuaciones.Cota();
    if (!porcentajes.Presente() || porcentajes.Tamano() != n) {
        porcentajes.Redimensionar(n);
    }
    double suma = 0;
    for (const ValorLibre& puntuacion : puntuaciones) {
        if (!puntuacion.EsVacio()) {
            suma = Sumar(suma, puntuacion.Numero());
        }
    }
    // The total adds the figures as shown, so three thirds make 99.99.
    double total = 0;
    for (int i = 1; i <= n; ++i) {
        if (puntuaciones(i).EsVacio()) {
            rejilla.PonerTexto(i, ColumnaPorcentaje, "");
            porcentajes(i) = ValorLibre();
            continue;
        }
        // With nothing positive to share, every scored row gets the whole.
        const double porcentaje =
            suma > 0 ? Multiplicar(Dividir(puntuaciones(i).Numero(), suma), 100) : 100.0;
        const std::string mostrado = Formato00(porcentaje);
        rejilla.PonerTexto(i, ColumnaPorcentaje, mostrado);
        total = Sumar(total, *LeerNumero(mostrado));
        porcentajes(i) = porcentaje;
    }
    const int filaTotal = n + 1;
    rejilla.PonerTexto(filaTotal, ColumnaPuntuacion, suma > 0 ? Formato00(suma) : "");
    rejilla.PonerTexto(filaTotal, ColumnaPorcentaje, suma > 0 ? Formato00(total) + " %" : "");
}

AspectoConsistencia ColorConsistencia(const ValorLibre& consistencia) {
    const double umbral = 1.0 / 10;
    // A missing ratio, or one that is no number, stands above every number.
    const std::optional<double> razon =
        consistencia.EsNumero() ? consistencia.Numero() : LeerNumero(consistencia.Texto());
    AspectoConsistencia aspecto;
    aspecto.Leyenda = Formato00(consistencia);
    if (!razon || *razon > umbral) {
        aspecto.Fondo = ColorRojo;
    } else if (*razon == 0) {
        aspecto.Fondo = ColorVerde;
    } else {
        aspecto.Fondo = ColorAmarilloClaro;
    }
    return aspecto;
}

Matriz<ValorLibre> MatrizDeFilas(const std::vector<std::vector<ValorLibre>>& filas) {
    const int n = static_cast<int>(filas.size());
    Matriz<ValorLibre> matriz;
    matriz.Redimensionar(n, n);
    for (int i = 1; i <= n; ++i) {
        const auto& fila = filas[static_cast<std::size_t>(i - 1)];
        const int dadas = std::min(n, static_cast<int>(fila.size()));
        for (int j = 1; j <= dadas; ++j) {
            matriz(i, j) = fila[static_cast<std::size_t>(j - 1)];
        }
        matriz(i, i) = 1;
    }
    return matriz;
}

PesosMatriz PesosDeFilas(const std::vector<std::vector<ValorLibre>>& filas) {
    PesosMatriz resultado;
    resultado.Calculado =
        RecalcularPesos(MatrizDeFilas(filas), resultado.Pesos, resultado.Consistencia);
    return resultado;
}

} // namespace vadro
