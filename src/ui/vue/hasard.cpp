#include "ui/vue/hasard.h"

#include <algorithm>
#include <cstring>
#include <random>

namespace agenda::ui {

namespace {

constexpr int m = 397;
constexpr std::uint32_t haut = 0x80000000u, bas = 0x7fffffffu, matrice = 0x9908b0dfu;

// The twist of a word from itself, the word after it and the word m ahead.
std::uint32_t tord(std::uint32_t x, std::uint32_t x1, std::uint32_t xm) {
    const std::uint32_t y = (x & haut) | (x1 & bas);
    return xm ^ (y >> 1) ^ (-(y & 1u) & matrice);
}

// Eight words at a time, as AVX2 registers where the processor has them, two SSE2 ones
// elsewhere. Pointers, not vectors, cross the calls, which are inlined into each version.
using Huit = std::uint32_t __attribute__((vector_size(32)));

[[gnu::always_inline]] inline void tord_huit(std::uint32_t* x, const std::uint32_t* xm) {
    Huit a, b, c;
    std::memcpy(&a, x, sizeof a);
    std::memcpy(&b, x + 1, sizeof b);
    std::memcpy(&c, xm, sizeof c);
    const Huit y = (a & haut) | (b & bas);
    const Huit t = c ^ (y >> 1) ^ (-(y & 1u) & matrice);
    std::memcpy(x, &t, sizeof t);
}

[[gnu::always_inline]] inline void tempere_huit(std::uint32_t* sortie, const std::uint32_t* x) {
    Huit y;
    std::memcpy(&y, x, sizeof y);
    y ^= y >> 11;
    y ^= (y << 7) & 0x9d2c5680u;
    y ^= (y << 15) & 0xefc60000u;
    y ^= y >> 18;
    std::memcpy(sortie, &y, sizeof y);
}

} // namespace

Mt19937::Mt19937(std::uint32_t graine) {
    std::seed_seq s{graine};
    s.generate(etat_.begin(), etat_.end());
    // As std::mt19937 does: a state of zeros but for the first word's low bits is never used.
    if ((etat_[0] & haut) == 0 &&
        std::all_of(etat_.begin() + 1, etat_.end(), [](std::uint32_t w) { return w == 0; }))
        etat_[0] = haut;
}

__attribute__((target_clones("avx2", "default"))) const std::array<std::uint32_t, Mt19937::n>&
Mt19937::suivants() {
    std::uint32_t* e = etat_.data();
    // Eight words at a time: each reads the words after it before any is written, and the word
    // m ahead is either one not yet twisted (the first n - m) or one twisted long before.
    int i = 0;
    for (; i + 8 <= n - m; i += 8)
        tord_huit(e + i, e + i + m);
    for (; i < n - m; ++i)
        e[i] = tord(e[i], e[i + 1], e[i + m]);
    for (; i + 8 <= n - 1; i += 8)
        tord_huit(e + i, e + i + m - n);
    for (; i < n - 1; ++i)
        e[i] = tord(e[i], e[i + 1], e[i + m - n]);
    e[n - 1] = tord(e[n - 1], e[0], e[m - 1]);
    for (i = 0; i < n; i += 8)
        tempere_huit(sortie_.data() + i, e + i);
    return sortie_;
}

} // namespace agenda::ui
