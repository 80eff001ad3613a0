#pragma once

#include <string>
#include <string_view>

namespace vadro {

// Files are 8-bit text in the Windows Western code page: one byte per character, and each of
// the 256 codes maps to exactly one character (the five codes the page leaves free map to the
// control characters of the same number). The core's strings are UTF-8.

// 8-bit text to UTF-8; every byte has a character.
std::string DesdeOchoBits(std::string_view ochoBits);

// UTF-8 to 8-bit text; a character the page lacks, or a broken UTF-8 sequence, becomes "?".
std::string AOchoBits(std::string_view utf8);

// Upper and lower case of an 8-bit code, as the page pairs its letters.
unsigned char MayusculaOchoBits(unsigned char codigo);
unsigned char MinusculaOchoBits(unsigned char codigo);

// Upper and lower case of UTF-8 text, letter by letter as the page pairs them, so that names
// compare and print alike whatever their case; a character the page lacks keeps its form.
std::string EnMayusculas(std::string_view utf8);
std::string EnMinusculas(std::string_view utf8);

} // namespace vadro
