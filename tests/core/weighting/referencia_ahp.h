#pragma once

// An exact reference for the weights: the same definitions carried out in fractions, so that
// each floating-point figure is checked against its true value.

#include "core/core/comunes.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vadro::pruebas {

__extension__ typedef __int128 Entero;

struct Fraccion {
    Entero num = 0;
    Entero den = 1;

    Fraccion(long long n = 0, long long d = 1) : Fraccion(Entero{n}, Entero{d}, true) {}
    Fraccion(Entero n, Entero d, bool) : num(d < 0 ? -n : n), den(d < 0 ? -d : d) {
        Entero a = num < 0 ? -num : num, b = den;
        while (b != 0) {
            a = a % b;
            std::swap(a, b);
        }
        num /= a;
        den /= a;
    }
    static Entero Por(Entero a, Entero b) {
        Entero r = 0;
        EXPECT_FALSE(__builtin_mul_overflow(a, b, &r)) << "the exact reference overflowed";
        return r;
    }
    friend Fraccion operator+(Fraccion a, Fraccion b) {
        return {Por(a.num, b.den) + Por(b.num, a.den), Por(a.den, b.den), true};
    }
    friend Fraccion operator*(Fraccion a, Fraccion b) {
        return {Por(a.num, b.num), Por(a.den, b.den), true};
    }
    friend Fraccion operator/(Fraccion a, Fraccion b) {
        return {Por(a.num, b.den), Por(a.den, b.num), true};
    }
    double Doble() const {
        return static_cast<double>(static_cast<long double>(num) / static_cast<long double>(den));
    }
    // The value times 100, rounded half away from zero; the tests keep away from ties.
    long long Centesimas() const {
        const Entero magnitud = (num < 0 ? -num : num) * 100, resto2 = 2 * (magnitud % den);
        EXPECT_NE(resto2, den) << "a tie at two decimals";
        const auto k = static_cast<long long>(magnitud / den + (resto2 >= den ? 1 : 0));
        return num < 0 ? -k : k;
    }
    std::string Texto00() const {
        const long long k = Centesimas(), a = k < 0 ? -k : k;
        return Unir({k < 0 ? "-" : "", std::to_string(a / 100), ".",
                     std::to_string(100 + a % 100).substr(1)});
    }
};

struct ReferenciaAhp {
    std::vector<Fraccion> pesos; // per cent
    Fraccion lambda;
};

// Weights by column normalisation and row averaging; lambda as the mean of (A w)_r / w_r.
inline ReferenciaAhp CalcularReferencia(const std::vector<std::vector<Fraccion>>& a) {
    const auto n = a.size();
    std::vector<Fraccion> suma(n), w(n);
    ReferenciaAhp ref;
    for (std::size_t r = 0; r < n; ++r) {
        for (std::size_t c = 0; c < n; ++c) {
            suma[c] = suma[c] + a[r][c];
        }
    }
    for (std::size_t r = 0; r < n; ++r) {
        for (std::size_t c = 0; c < n; ++c) {
            w[r] = w[r] + a[r][c] / suma[c] / Fraccion(static_cast<long long>(n));
        }
        ref.pesos.push_back(w[r] * Fraccion(100));
    }
    for (std::size_t r = 0; r < n; ++r) {
        Fraccion producto;
        for (std::size_t c = 0; c < n; ++c) {
            producto = producto + a[r][c] * w[c];
        }
        ref.lambda = ref.lambda + producto / w[r] / Fraccion(static_cast<long long>(n));
    }
    return ref;
}

} // namespace vadro::pruebas
