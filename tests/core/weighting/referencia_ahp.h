#pragma once

// An exact reference for the weights: the same definitions carried out in fractions, so that
// the floating-point result of the code can be checked against the true value of each step.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace vadro::pruebas {

__extension__ typedef __int128 Entero;

struct Fraccion {
    Entero num = 0;
    Entero den = 1;

    Fraccion(long long n = 0, long long d = 1) : num(n), den(d) { Reducir(); }
    static Fraccion De(Entero n, Entero d) {
        Fraccion f;
        f.num = n;
        f.den = d;
        f.Reducir();
        return f;
    }
    static Entero Mcd(Entero a, Entero b) {
        a = a < 0 ? -a : a;
        while (b != 0) {
            const Entero r = a % b;
            a = b;
            b = r < 0 ? -r : r;
        }
        return a;
    }
    static Entero Por(Entero a, Entero b) {
        Entero r;
        if (__builtin_mul_overflow(a, b, &r)) {
            ADD_FAILURE() << "the exact reference overflowed";
        }
        return r;
    }
    void Reducir() {
        if (den < 0) {
            num = -num;
            den = -den;
        }
        const Entero g = Mcd(num, den);
        if (g > 1) {
            num /= g;
            den /= g;
        }
    }
    friend Fraccion operator+(Fraccion a, Fraccion b) {
        return De(Por(a.num, b.den) + Por(b.num, a.den), Por(a.den, b.den));
    }
    friend Fraccion operator*(Fraccion a, Fraccion b) {
        return De(Por(a.num, b.num), Por(a.den, b.den));
    }
    friend Fraccion operator/(Fraccion a, Fraccion b) {
        return De(Por(a.num, b.den), Por(a.den, b.num));
    }
    double Doble() const {
        return static_cast<double>(static_cast<long double>(num) / static_cast<long double>(den));
    }
    // The value times 100 rounded half away from zero, exactly; the tests keep away from ties.
    Entero Centesimas() const {
        const Entero magnitud = (num < 0 ? -num : num) * 100;
        const Entero resto2 = 2 * (magnitud % den);
        EXPECT_NE(resto2, den) << "a tie at two decimals";
        const Entero k = magnitud / den + (resto2 >= den ? 1 : 0);
        return num < 0 ? -k : k;
    }
    // The figure as shown with two decimals.
    std::string Texto00() const {
        const Entero k = Centesimas();
        const long long a = static_cast<long long>(k < 0 ? -k : k);
        const std::string dos = std::to_string(100 + a % 100).substr(1);
        return (k < 0 ? "-" : "") + std::to_string(a / 100) + "." + dos;
    }
};

using FilasExactas = std::vector<std::vector<Fraccion>>;

struct ReferenciaAhp {
    std::vector<Fraccion> pesos; // per cent
    Fraccion lambda;
};

// Weights by column normalisation and row averaging; lambda as the mean of (A w)_r / w_r.
inline ReferenciaAhp CalcularReferencia(const FilasExactas& a) {
    const auto n = a.size();
    std::vector<Fraccion> suma(n), w(n);
    for (std::size_t c = 0; c < n; ++c) {
        for (std::size_t r = 0; r < n; ++r) {
            suma[c] = suma[c] + a[r][c];
        }
    }
    ReferenciaAhp ref;
    for (std::size_t r = 0; r < n; ++r) {
        for (std::size_t c = 0; c < n; ++c) {
            w[r] = w[r] + a[r][c] / suma[c];
        }
        w[r] = w[r] / Fraccion(static_cast<long long>(n));
        ref.pesos.push_back(w[r] * Fraccion(100));
    }
    for (std::size_t r = 0; r < n; ++r) {
        Fraccion producto;
        for (std::size_t c = 0; c < n; ++c) {
            producto = producto + a[r][c] * w[c];
        }
        ref.lambda = ref.lambda + producto / w[r];
    }
    ref.lambda = ref.lambda / Fraccion(static_cast<long long>(n));
    return ref;
}

} // namespace vadro::pruebas
