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

// Upper case of an 8-bit code, for comparisons that ignore case.
unsigned char MayusculaOchoBits(unsigned char codigo);

} // namespace vadro
