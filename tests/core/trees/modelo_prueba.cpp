#include "modelo_prueba.h"

namespace vadro::pruebas {

namespace {

void Cabecera(CabeceraNodo& c, const std::string& nombre, double peso) {
    c.Nombre = nombre;
    c.Descripcion = "d:" + nombre;
    c.Peso = peso;
    c.Directo = peso / 2;
    c.Calculo = CalculoSaaty;
}

// Hangs the nodes into a counted array and gives each a row as wide as the set.
template <typename T> void Llenar(ValorLibre& cuenta, Arreglo<T>& arreglo, std::vector<T> nodos) {
    const int n = static_cast<int>(nodos.size());
    cuenta = n;
    if (n == 0) {
        return;
    }
    arreglo.Redimensionar(n);
    for (int i = 1; i <= n; ++i) {
        arreglo(i) = std::move(nodos[static_cast<std::size_t>(i - 1)]);
        arreglo(i).Saaty.Redimensionar(n);
        for (int j = 1; j <= n; ++j) {
            arreglo(i).Saaty(j) = i == j ? 1.0 : 3.0;
        }
    }
}

} // namespace

NodoIndicador Indicador(const std::string& nombre, double peso) {
    NodoIndicador i;
    Cabecera(i, nombre, peso);
    i.Funcion.Tipo = FuncionContinua;
    i.Funcion.C = peso;
    i.Funcion.Unidades = "u:" + nombre;
    return i;
}

NodoSubcriterio Subcriterio(const std::string& nombre, std::vector<NodoIndicador> indicadores,
                            double peso) {
    NodoSubcriterio s;
    Cabecera(s, nombre, peso);
    Llenar(s.NumIndicadores, s.Indicadores, std::move(indicadores));
    return s;
}

NodoCriterio Criterio(const std::string& nombre, std::vector<NodoIndicador> indicadores,
                      std::vector<NodoSubcriterio> subcriterios, double peso) {
    NodoCriterio c;
    Cabecera(c, nombre, peso);
    Llenar(c.NumIndicadores, c.Indicadores, std::move(indicadores));
    Llenar(c.NumSubcriterios, c.Subcriterios, std::move(subcriterios));
    return c;
}

NodoRequerimiento Requerimiento(const std::string& nombre, std::vector<NodoCriterio> criterios,
                                double peso) {
    NodoRequerimiento r;
    Cabecera(r, nombre, peso);
    Llenar(r.NumCriterios, r.Criterios, std::move(criterios));
    return r;
}

Modelo ModeloCon(std::vector<NodoRequerimiento> requerimientos, const std::string& nombre) {
    Modelo m;
    m.Nombre = nombre;
    Llenar(m.NumRequerimientos, m.Requerimientos, std::move(requerimientos));
    return m;
}

} // namespace vadro::pruebas
