#pragma once

#include "core/core/comunes.h"
#include "core/core/registros.h"
#include "soporte/modelo_sano.h"

#include <string>

namespace vadro::pruebas {

// Each node of a list gets its position key: its letter and number before its parent's key.
template <typename Nodo>
void PonerClaves(Arreglo<Nodo>& nodos, const char* letra, const std::string& padre) {
    for (int k = 1; k <= nodos.Tamano(); ++k) {
        nodos(k).Clave = Unir({letra, std::to_string(k), padre});
    }
}

// Every node of the model gets its position key, as a loaded model has them.
inline void PonerClaves(Modelo& modelo) {
    PonerClaves(modelo.Requerimientos, "R", "");
    for (NodoRequerimiento& req : modelo.Requerimientos) {
        PonerClaves(req.Criterios, "C", req.Clave);
        for (NodoCriterio& crit : req.Criterios) {
            PonerClaves(crit.Indicadores, "I", crit.Clave);
            PonerClaves(crit.Subcriterios, "S", crit.Clave);
            for (NodoSubcriterio& sub : crit.Subcriterios) {
                PonerClaves(sub.Indicadores, "I", sub.Clave);
            }
        }
    }
}

// A tree with every kind of branch: a criterion with subcriteria (one of them bare), one with
// its indicators straight under it, one with nothing, and a requirement with nothing. Some
// weights are missing: C3, both indicators of C2 but the first, R2's children.
//
//   R1 Económico 60 ── C1 Coste 50 ── S1 Obra 40 ── I1 Hormigón 25, I2 Acero 75
//                  │              └─ S2 Mantenimiento 60
//                  ├─ C2 Plazo 50 ── I1 Meses 30, I2 Hitos (none)
//                  └─ C3 Riesgo (none)
//   R2 Social 40
inline Modelo ArbolPonderado() {
    Modelo m = ModeloCon(
        {Requerimiento("Económico",
                       {Criterio("Coste", {},
                                 {Subcriterio("Obra", {Indicador("Hormigón"), Indicador("Acero")}),
                                  Subcriterio("Mantenimiento", {})}),
                        Criterio("Plazo", {Indicador("Meses"), Indicador("Hitos")}),
                        Criterio("Riesgo", {})}),
         Requerimiento("Social", {})});
    PonerClaves(m);
    NodoRequerimiento& r1 = m.Requerimientos(1);
    r1.Peso = 60.0;
    m.Requerimientos(2).Peso = 40.0;
    r1.Criterios(1).Peso = 50.0;
    r1.Criterios(2).Peso = 50.0;
    r1.Criterios(3).Peso = ValorLibre();
    NodoCriterio& coste = r1.Criterios(1);
    coste.Subcriterios(1).Peso = 40.0;
    coste.Subcriterios(2).Peso = 60.0;
    coste.Subcriterios(1).Indicadores(1).Peso = 25.0;
    coste.Subcriterios(1).Indicadores(2).Peso = 75.0;
    r1.Criterios(2).Indicadores(1).Peso = 30.0;
    r1.Criterios(2).Indicadores(2).Peso = ValorLibre();
    return m;
}

} // namespace vadro::pruebas
