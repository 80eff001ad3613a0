#pragma once

#include "soporte/modelo_sano.h"

namespace vadro::pruebas {

// A model that gives a finding of every kind a filled model can give, each at a known place:
//   SinEta            no stages
//   CmpRep Co2        components "Estructura" and "ESTRUCTURA"
//   CmpRep Op2Co1     options "Acero" and "ACERO" of the first component
//   ReqRep I2S1C2R2   indicators "Ruido" and "RUIDO" of the subcriterion "Laboral"
//   PesNul R2         the requirement "Social" without weight
//   NoCons CR1        the criteria of "Económico" inconsistent
//   FunVal I1C2R1     the indicator "Energía" without function
//   FunVal I2S1C2R2   the second "RUIDO" without function
//   SinHij C1R2       the criterion "Empleo" with one indicator
//   SinHij C2R2       the criterion "Seguridad" with one subcriterion
inline Modelo ModeloConHallazgos() {
    Modelo modelo = ModeloCon(
        {Requerimiento("Económico",
                       {Criterio("Inversión", {Indicador("Coste"), Indicador("Plazo")}),
                        Criterio("Explotación",
                                 {Indicador("Energía", FuncionValor()), Indicador("Personal")})}),
         Requerimiento("Social", {Criterio("Empleo", {Indicador("Puestos")}),
                                  Criterio("Seguridad", {},
                                           {Subcriterio("Laboral",
                                                        {Indicador("Ruido"),
                                                         Indicador("RUIDO", FuncionValor())})})})});
    modelo.Nombre = "Depuradora";
    modelo.NumEtapas = 0;
    modelo.Etapas.Borrar();
    PonerComponentes(modelo, {{"Estructura", {"Acero", "ACERO"}}, {"ESTRUCTURA", {}}});
    modelo.Requerimientos(2).Peso = "";
    NodoCriterio& inversion = modelo.Requerimientos(1).Criterios(1);
    inversion.Calculo = 0;
    inversion.PesoAuxiliar = 0.5;
    return modelo;
}

} // namespace vadro::pruebas
