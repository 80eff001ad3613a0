#pragma once

#include "soporte/modelo_sano.h"

namespace vadro::pruebas {

// Every kind of function in one model: continuous, step, scoring, optional indicators, none,
// and a continuous one without its lower reference limit; subcriteria and direct indicators.
inline Modelo ModeloCompleto() {
    FuncionValor incompleta = Continua();
    incompleta.RMin = ValorLibre();
    Modelo m = ModeloCon(
        {Requerimiento(
             "Económico",
             {Criterio("Inversión",
                       {Indicador("Coste"), Indicador("Plazo", DeEscalones<FuncionValor>())}),
              Criterio("Calidad", {},
                       {Subcriterio("Materiales", {Indicador("Durabilidad", DePuntuacion()),
                                                   Indicador("Acabado", DeOptativos("I2S1C2R1"))}),
                        Subcriterio("Servicio", {Indicador("Atención", FuncionValor())})})}),
         Requerimiento("Social", {Criterio("Empleo", {Indicador("Puestos", incompleta)})})});
    m.Nombre = "Puente de Alcántara";
    m.Version = "2.1";
    m.Autor = "Oficina técnica";
    m.Fecha = "12/03/2024";
    m.Localizacion = "Cáceres";
    m.Referencia = "PA-7";
    m.Descripcion = "Rehabilitación del tablero.";
    pruebas::PonerComponentes(m, {{"Estructura", {"Hormigón", "Acero"}}, {"Accesos", {}}});
    pruebas::PonerEtapas(m, {"Proyecto", "Construcción", "Explotación"});
    return m;
}

// No name, no weights, no components or stages; a requirement without criteria and a
// criterion that holds subcriteria and indicators of its own.
inline Modelo ModeloSinNombreNiPesos() {
    Modelo m = ModeloCon(
        {Requerimiento("Ambiental", {Criterio("Ruido", {Indicador("Decibelios")},
                                              {Subcriterio("Nocturno", {Indicador("Horas")})})}),
         Requerimiento("Vacío", {})});
    m.Requerimientos(1).Peso = ValorLibre();
    m.Requerimientos(2).Peso = ValorLibre();
    NodoCriterio& ruido = m.Requerimientos(1).Criterios(1);
    ruido.Peso = ValorLibre();
    ruido.Indicadores(1).Peso = ValorLibre();
    ruido.Subcriterios(1).Peso = ValorLibre();
    ruido.Subcriterios(1).Indicadores(1).Peso = ValorLibre();
    m.NumComponentes = ValorLibre();
    m.Componentes.Borrar();
    m.NumEtapas = 0;
    return m;
}

} // namespace vadro::pruebas
