#pragma once

#include <vector>

namespace vadro {

// The margins of a printed page in twips (1/1440 of an inch).
struct MargenesImpresion {
    int izquierdo = 0;
    int superior = 0;
    int derecho = 0;
    int inferior = 0;
};

// The margins the reports are printed with, the model report and the compilation report alike.
inline constexpr MargenesImpresion kMargenesInforme{2000, 1200, 1000, 1000};

// Twips to millimetres, for a printer that counts in them.
double TwipsAMilimetros(int twips);

// The rows of a list that one printed page holds: the first (from 0) and how many.
struct PaginaLista {
    int primera = 0;
    int filas = 0;
    bool operator==(const PaginaLista&) const = default;
};

// How the rows of a list fall on pages of `lineas` lines each, given how many lines each row
// takes (a long text wraps). The column headings, when the list has them, take the first line
// of every page, so that each page reads on its own. A row never parts across pages, and a
// page always takes at least one row, however small; a list without rows still ejects one
// blank page, as any print job does.
std::vector<PaginaLista> PaginarLista(const std::vector<int>& alturas, int lineas,
                                      bool conCabeceras);

} // namespace vadro
