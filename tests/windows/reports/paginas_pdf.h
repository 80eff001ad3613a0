#pragma once

#include <fstream>
#include <iterator>
#include <regex>
#include <string>

namespace vadro::pruebas {

inline std::string BytesPdf(const std::string& ruta) {
    std::ifstream archivo(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(archivo), std::istreambuf_iterator<char>()};
}

inline int Coincidencias(const std::string& texto, const std::regex& patron) {
    return static_cast<int>(std::distance(std::sregex_iterator(texto.begin(), texto.end(), patron),
                                          std::sregex_iterator()));
}

// The pages of a PDF file, counted in its page objects; 0 for a missing file.
inline int PaginasPdf(const std::string& ruta) {
    return Coincidencias(BytesPdf(ruta), std::regex("/Type\\s*/Page[^s]"));
}

// The bitmaps a PDF file holds (an image and its transparency mask count apart).
inline int ImagenesPdf(const std::string& ruta) {
    return Coincidencias(BytesPdf(ruta), std::regex("/Subtype\\s*/Image"));
}

} // namespace vadro::pruebas
