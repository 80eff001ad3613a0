#include "core/core/codigo_pagina.h"
#include "core/core/comunes.h"
#include "core/files/formato.h"
#include "core/files/texto_modelo.h"
#include "soporte/acta.h"

#include <gtest/gtest.h>

#include <sstream>

namespace vadro {
namespace {

// The corners of the rule, which prueba_busqueda_texto checks at large against the rule read
// line by line: a search from a line gives a value (or none) and leaves a position. The data
// file holds each file's lines (separated by "|", written in UTF-8 for the 8-bit file), the
// line searched from and the key. Keys in writing order cost one line each; a prefix of a
// longer key finds it, and so does a key inside a value; the value follows the last equals
// sign, whose very last character is not examined; a miss leaves the position; an earlier key
// is found by the wrap, which the end forces and which stops at any line holding the first key
// read, or at the first line when no line read had an equals sign; there is no wrap-around
// from the end; values come back as UTF-8.
TEST(BuscarValor, TheCornersOfTheSearch) {
    pruebas::Acta acta;
    for (const pruebas::Caso& caso : pruebas::Casos("archivos/buscar_valor.txt")) {
        std::vector<std::string> lineas;
        std::istringstream partes(caso.campos.at(0));
        for (std::string linea; std::getline(partes, linea, '|');) {
            lineas.push_back(AOchoBits(linea));
        }
        ArchivoEntrada archivo(lineas);
        archivo.IrA(std::stoul(caso.campos.at(1)));
        const ValorLibre valor = BuscarValor(archivo, caso.campos.at(2));
        const std::string hallado = valor.EsVacio() ? "nothing" : Unir({"'", valor.Texto(), "'"});
        acta.Fila(caso.texto, Unir({hallado, ", at ", std::to_string(archivo.Posicion())}));
    }
    acta.Comparar("archivos/buscar_valor.txt");
}

// Printed numbers, and the millionths written for scaled ones: rounded down, never to nearest.
TEST(Formato, NumbersPrintAndScaleAsTheDataFileSays) {
    pruebas::Acta acta;
    for (const pruebas::Caso& caso : pruebas::Casos("archivos/formato.txt")) {
        const std::string& numero = caso.campos.at(1);
        const ValorLibre valor = numero.empty() ? ValorLibre() : ValorLibre(std::stod(numero));
        const std::string escrito = caso.campos.at(0) == "printed" ? FormaImpresa(std::stod(numero))
                                                                   : NumeroEscalado(valor);
        acta.Fila(caso.texto, Unir({"'", escrito, "'"}));
    }
    acta.Comparar("archivos/formato.txt");
    EXPECT_EQ(LeerEscalado(ValorLibre("1500000")), ValorLibre(1.5));
    EXPECT_TRUE(LeerEscalado(ValorLibre()).EsVacio());
    EXPECT_EQ(FormaValor(ValorLibre("abc")), "abc") << "a count holding text prints as it stands";
    EXPECT_EQ(FormaValor(ValorLibre(2.0)), " 2 ");
}

} // namespace
} // namespace vadro
