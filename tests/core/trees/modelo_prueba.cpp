#include "modelo_prueba.h"

namespace vadro::pruebas {

namespace {

template <typename T> T Nodo(const std::string& nombre) {
    T nodo;
    nodo.Nombre = nombre;
    nodo.Descripcion = "d:" + nombre;
    nodo.Peso = 10;
    nodo.Directo = 5;
    return nodo;
}

template <typename T> void Llenar(ValorLibre& cuenta, Arreglo<T>& arreglo, std::vector<T> nodos) {
    const int n = static_cast<int>(nodos.size());
    cuenta = n;
    arreglo.Redimensionar(n);
    for (int i = 1; i <= n; ++i) {
        arreglo(i) = std::move(nodos[static_cast<std::size_t>(i - 1)]);
        arreglo(i).Saaty.Redimensionar(n);
    }
}

} // namespace

NodoIndicador Indicador(const std::string& nombre) {
    auto i = Nodo<NodoIndicador>(nombre);
    i.Funcion.Tipo = FuncionContinua;
    i.Funcion.Unidades = "u:" + nombre;
    return i;
}

NodoSubcriterio Subcriterio(const std::string& nombre, std::vector<NodoIndicador> indicadores) {
    auto s = Nodo<NodoSubcriterio>(nombre);
    Llenar(s.NumIndicadores, s.Indicadores, std::move(indicadores));
    return s;
}

NodoCriterio Criterio(const std::string& nombre, std::vector<NodoIndicador> indicadores,
                      std::vector<NodoSubcriterio> subcriterios) {
    auto c = Nodo<NodoCriterio>(nombre);
    Llenar(c.NumIndicadores, c.Indicadores, std::move(indicadores));
    Llenar(c.NumSubcriterios, c.Subcriterios, std::move(subcriterios));
    return c;
}

NodoRequerimiento Requerimiento(const std::string& nombre, std::vector<NodoCriterio> criterios) {
    auto r = Nodo<NodoRequerimiento>(nombre);
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
