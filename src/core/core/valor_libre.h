#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace vadro {

// A value that is the empty text, a number or a text. The empty text is the only form of an
// undefined value: zero is a defined number. Counts, weights, limits and function parameters
// are of this kind, and every consumer accepts all three forms.
class ValorLibre {
public:
    ValorLibre() = default;
    ValorLibre(double numero) : valor_(numero) {}
    ValorLibre(int numero) : valor_(static_cast<double>(numero)) {}
    ValorLibre(std::string texto) : valor_(std::move(texto)) {}
    ValorLibre(const char* texto) : valor_(std::string(texto)) {}

    bool EsVacio() const;
    bool EsNumero() const { return std::holds_alternative<double>(valor_); }
    // A text that is not empty (it may still read as a number).
    bool EsTexto() const { return !EsNumero() && !EsVacio(); }

    // The number it holds or its text read as a number; the empty text and a text that is no
    // number are a type mismatch.
    double Numero() const;
    // The text form: the text itself, or the number in its plain form ("60", "0.5", "-2").
    std::string Texto() const;

    // A count: the empty text means zero, anything else is converted to a 16-bit integer.
    int Cuenta() const;

    bool operator==(const ValorLibre& otro) const = default;

private:
    std::variant<std::string, double> valor_;
};

// Whether a count holds anything: neither the empty text nor 0 or less.
bool HayElementos(const ValorLibre& cuenta);

// Reads a text as a number the way the system's conversions do: blanks around it, an
// optional sign, digits with one decimal separator ("." or ","), an optional exponent
// introduced by E or D. Anything else gives no number.
std::optional<double> LeerNumero(std::string_view texto);

// The plain text form of a number: up to 15 significant digits, exponent form from 1E+15.
std::string TextoNumero(double numero);

// Conversions to integers, rounding half to even; a value out of range is an overflow and
// a value that is no number a type mismatch.
int16_t AEntero16(double numero);
int32_t AEntero32(double numero);
int16_t AEntero16(const ValorLibre& valor);
int32_t AEntero32(const ValorLibre& valor);

} // namespace vadro
