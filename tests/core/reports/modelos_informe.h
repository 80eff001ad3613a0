#pragma once

#include "core/reports/informe_modelo.h"
#include "soporte/modelo_sano.h"

#include <string>

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
    NodoCriterio& ruido = m.Requerimientos(1).Criterios(1);
    for (CabeceraNodo* nodo : std::initializer_list<CabeceraNodo*>{
             &m.Requerimientos(1), &m.Requerimientos(2), &ruido, &ruido.Indicadores(1),
             &ruido.Subcriterios(1), &ruido.Subcriterios(1).Indicadores(1)}) {
        nodo->Peso = ValorLibre();
    }
    m.NumComponentes = ValorLibre();
    m.Componentes.Borrar();
    m.NumEtapas = 0;
    return m;
}

// The names of the drawings of the report, in their order.
inline const char* const kNombresDibujo[] = {"Continua", "Escalon", "Tachada"};

// A report's lines as they are laid out: the level, the left and right indents, then the
// pieces: a run in quotes (b before a bold one, "(letra)" after one not in the report's font),
// an icon in angle brackets, a picture in square brackets.
inline std::string Estructura(const Informe& informe) {
    const char* const iconos[] = {"",          "Requerimiento", "Criterio",      "Subcriterio",
                                  "Indicador", "Componente",    "Subcomponente", "Etapa"};
    std::string texto;
    for (const LineaInforme& linea : informe.Lineas()) {
        texto += std::to_string(linea.Nivel) + " " + std::to_string(linea.Sangria) + " " +
                 std::to_string(linea.SangriaDerecha) + " |";
        for (const PiezaInforme& p : linea.Piezas) {
            if (p.Tipo == TipoPieza::Icono) {
                texto += std::string(" <") + iconos[static_cast<int>(p.Icono)] + ">";
            } else if (p.Tipo == TipoPieza::Grafica) {
                texto += std::string(" [") + kNombresDibujo[static_cast<int>(p.Dibujo)] + "]";
            } else {
                const bool propia = p.Letra == FormatoLetra{.Negrita = p.Letra.Negrita};
                texto +=
                    (p.Letra.Negrita ? " b'" : " '") + p.Texto + "'" + (propia ? "" : "(letra)");
            }
        }
        texto += "\n";
    }
    return texto;
}

} // namespace vadro::pruebas
