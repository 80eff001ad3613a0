#include "core/reports/impresion.h"

#include <algorithm>

namespace vadro {

double TwipsAMilimetros(int twips) {
    return twips * 25.4 / 1440.0;
}

std::vector<PaginaLista> PaginarLista(const std::vector<int>& alturas, int lineas,
                                      bool conCabeceras) {
    const int cabida = lineas - (conCabeceras ? 1 : 0);
    std::vector<PaginaLista> paginas{{0, 0}};
    int ocupadas = 0;
    for (std::size_t i = 0; i < alturas.size(); ++i) {
        const int altura = std::max(1, alturas[i]);
        PaginaLista& pagina = paginas.back();
        if (pagina.filas > 0 && ocupadas + altura > cabida) {
            paginas.push_back({static_cast<int>(i), 1});
            ocupadas = altura;
        } else {
            ++pagina.filas;
            ocupadas += altura;
        }
    }
    return paginas;
}

} // namespace vadro
