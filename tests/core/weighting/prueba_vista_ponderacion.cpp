#include "arbol_ponderado.h"
#include "core/weighting/vista_ponderacion.h"
#include "soporte/acta.h"
#include "soporte/datos.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <optional>
#include <sstream>

namespace vadro {
namespace {

const std::string kTitulo = "VADRO PROGRAMADOR: Ponderación";

// The grid as text: the heads, then per row its path and its cells, a merged cell written
// once with the rows it spans and "^" under it, "[rojo]" for light red.
std::string Volcar(const VistaPonderacion& vista) {
    std::ostringstream s;
    for (const std::string& cabecera : vista.Cabeceras) {
        s << cabecera << " | ";
    }
    s << "\n";
    std::vector<int> cubiertas(static_cast<std::size_t>(vista.NumColumnas()), 0);
    for (int f = 0; f < vista.NumFilas(); ++f) {
        const RutaFila& ruta = vista.Rutas[static_cast<std::size_t>(f)];
        s << ruta[0] << ":";
        for (int l = 1; l < 5; ++l) {
            s << " " << ruta[static_cast<std::size_t>(l)];
        }
        for (int c = 0; c < vista.NumColumnas(); ++c) {
            int& cubierta = cubiertas[static_cast<std::size_t>(c)];
            if (cubierta > 0) {
                --cubierta;
                s << " | ^";
                continue;
            }
            const CeldaVista& celda = vista.Celda(f, c);
            std::string texto = celda.Texto;
            for (auto p = texto.find('\n'); p != std::string::npos; p = texto.find('\n')) {
                texto.replace(p, 1, " / ");
            }
            s << " | " << texto;
            if (celda.Fondo == ColorRojoClaro) {
                s << " [rojo]";
            }
            const int extension = c + 1 < vista.NumColumnas() ? vista.Extension(f, c) : 1;
            if (extension > 1) {
                s << " x" << extension;
                cubierta = extension - 1;
            }
        }
        s << "\n";
    }
    return s.str();
}

class VistaPonderacionPrueba : public pruebas::PruebaSesion {
protected:
    Modelo modelo = pruebas::ArbolPonderado();
    VistaPonderacion vista = ConstruirVistaPonderacion(modelo);
};

TEST_F(VistaPonderacionPrueba, TheTreeWithSubcriteriaIsOneRowPerLeafPathWithMergedParents) {
    EXPECT_EQ(Volcar(vista), pruebas::Datos("ponderacion/vista_subcriterios.txt", Volcar(vista)));
}

TEST_F(VistaPonderacionPrueba, WithoutSubcriteriaColumnTwoShowsTheIndicators) {
    Modelo correcto = pruebas::ModeloCorrecto();
    pruebas::PonerClaves(correcto);
    correcto.Requerimientos(2).Criterios(1).Indicadores(2).Peso = ValorLibre();
    const VistaPonderacion sin = ConstruirVistaPonderacion(correcto);
    EXPECT_EQ(Volcar(sin), pruebas::Datos("ponderacion/vista_sin_subcriterios.txt", Volcar(sin)));
    EXPECT_EQ(sin.Nivel(2), 3);
    // The indicators of a criterion are one set, whichever of them is clicked.
    EXPECT_EQ(SeleccionarConjunto(sin, 5, 2), (SeleccionConjunto{2, 4, 5}));
    const auto direccion = DireccionDeCelda(sin, 5, 2);
    ASSERT_TRUE(direccion);
    EXPECT_EQ(NodosConjunto(correcto, *direccion).at(1)->Nombre, "Plazo");
    EXPECT_EQ(TextoPesoGlobal(correcto, sin, 0, 2), "Peso global: 12.50 %");
}

TEST_F(VistaPonderacionPrueba, ANodeShowsItsKeyNameAndWeightOnlyWhenItHasOne) {
    CabeceraNodo nodo;
    nodo.Clave = "C2R1";
    nodo.Nombre = "Plazo";
    std::string textos;
    for (const ValorLibre& peso :
         {ValorLibre(), ValorLibre(12.345), ValorLibre(0.0), ValorLibre("33.3"), ValorLibre(100)}) {
        nodo.Peso = peso;
        textos += TextoNodoPonderacion(nodo) + "|";
        EXPECT_EQ(ColorNodoPonderacion(nodo), peso.EsVacio() ? ColorRojoClaro : ColorBlanco);
    }
    EXPECT_EQ(textos, "(C2R1) Plazo|(C2R1) Plazo\nPeso: 12.35 %|(C2R1) Plazo\nPeso: 0.00 %|"
                      "(C2R1) Plazo\nPeso: 33.30 %|(C2R1) Plazo\nPeso: 100.00 %|");
}

// Each cell: the set a click selects (the nearest filled parent's; none, with the message, on
// an incomplete branch), the nodes of the set a double click weighs, and the global weight
// along its path (60 % x 50 % x 40 % x 25 % = 3 %; the criterion's own indicator skips the
// empty column).
TEST_F(VistaPonderacionPrueba, WhatEachCellSelectsWeighsAndShowsAsGlobalWeight) {
    pruebas::Acta acta;
    acta.iconos = true;
    for (const pruebas::Caso& caso : pruebas::Casos("ponderacion/celdas.txt")) {
        const std::string& celda = caso.campos.at(1);
        const int fila = std::stoi(celda), columna = std::stoi(celda.substr(celda.find(',') + 1));
        const auto conjunto = SeleccionarConjunto(vista, fila, columna);
        EXPECT_EQ(ConjuntoDeCelda(vista, fila, columna), conjunto) << fila << "," << columna;
        std::string texto = "no set";
        if (conjunto) {
            texto = "set in column " + std::to_string(conjunto->Columna) + ", rows " +
                    std::to_string(conjunto->Primera) + "-" + std::to_string(conjunto->Ultima);
        }
        texto += "; weighs";
        if (const auto direccion = DireccionDeCelda(vista, fila, columna)) {
            for (const CabeceraNodo* nodo : NodosConjunto(modelo, *direccion)) {
                texto += " " + nodo->Nombre;
            }
        } else {
            texto += " nothing";
        }
        acta.Fila(caso.texto, texto + "; '" + TextoPesoGlobal(modelo, vista, fila, columna) + "'");
    }
    acta.Comparar("ponderacion/celdas.txt");
    modelo.Requerimientos(1).Peso = ValorLibre();
    EXPECT_EQ(TextoPesoGlobal(modelo, vista, 0, 3), "") << "a missing weight up the path";
}

TEST_F(VistaPonderacionPrueba, RebuildingASetTakesItsNewWeightsAndColours) {
    const SeleccionConjunto conjunto{3, 3, 4};
    NodoCriterio& plazo = modelo.Requerimientos(1).Criterios(2);
    plazo.Indicadores(1).Peso = 20.0;
    plazo.Indicadores(2).Peso = 80.0;
    EXPECT_EQ(vista.Celda(4, 3).Texto, "(I2C2R1) Hitos") << "the grid keeps what it was built with";
    ReconstruirConjunto(modelo, vista, conjunto);
    EXPECT_EQ(vista.Celda(3, 3).Texto, "(I1C2R1) Meses\nPeso: 20.00 %");
    EXPECT_EQ(vista.Celda(4, 3).Texto, "(I2C2R1) Hitos\nPeso: 80.00 %");
    EXPECT_EQ(vista.Celda(4, 3).Fondo, ColorBlanco);
    EXPECT_EQ(vista.Celda(5, 1).Fondo, ColorRojoClaro) << "outside the set nothing changes";

    plazo.Indicadores(1).Peso = ValorLibre();
    vista.Filas[3][3].Fondo = ColorMarino;
    RepintarConjunto(modelo, vista, conjunto);
    EXPECT_EQ(vista.Celda(3, 3).Fondo, ColorRojoClaro);
    EXPECT_EQ(vista.Celda(3, 3).Texto, "(I1C2R1) Meses\nPeso: 20.00 %") << "a repaint keeps texts";
}

TEST_F(VistaPonderacionPrueba, CountsBeyondTheStoredNodesAreNotFollowed) {
    Modelo m;
    m.NumRequerimientos = 3;
    m.Requerimientos.Redimensionar(1);
    m.Requerimientos(1).NumCriterios = 2;
    const VistaPonderacion v = ConstruirVistaPonderacion(m);
    ASSERT_EQ(v.NumFilas(), 1);
    EXPECT_EQ(v.NumColumnas(), 3);
    EXPECT_EQ(v.Celda(0, 1).Texto, "");
}

TEST_F(VistaPonderacionPrueba, AnEmptyModelAsksWhereToGo) {
    Modelo vacio;
    EXPECT_FALSE(ModeloPonderable(vacio));
    vacio.NumRequerimientos = "";
    EXPECT_FALSE(ModeloPonderable(vacio));
    EXPECT_TRUE(ModeloPonderable(modelo));

    const std::string texto = "Imposible ponderar. El modelo está vacío.\nDesea volver a la "
                              "pantalla de diseño del árbol de requerimientos?";
    for (const auto& [respuesta, hija, posicion] :
         {std::tuple{Respuesta::Si, Hija::Ejes, Posicion::Ejes},
          std::tuple{Respuesta::No, Hija::Informe, Posicion::Informe}}) {
        mensajes.Esperar(kTitulo, texto, respuesta);
        const Transicion t = PreguntarModeloVacio();
        EXPECT_EQ(t.descargar, std::vector<Hija>{Hija::Ponderacion});
        EXPECT_EQ(t.cargar, std::vector<Hija>{hija});
        EXPECT_EQ(t.destino, posicion);
        // Yes goes back to the design with setting A, No on to the report with setting B.
        const Ajuste a = respuesta == Respuesta::Si ? AjusteDiseno() : AjusteRevision();
        EXPECT_EQ(std::tuple(t.ajuste.entradasDiseno, t.ajuste.cmdRetroceder, t.ajuste.grupoDiseno),
                  std::tuple(a.entradasDiseno, a.cmdRetroceder, a.grupoDiseno));
    }
    EXPECT_EQ(mensajes.Vistos().at(0).botones, Botones::SiNo);
    EXPECT_EQ(mensajes.Vistos().at(0).icono, Icono::Critico);
}

} // namespace
} // namespace vadro
