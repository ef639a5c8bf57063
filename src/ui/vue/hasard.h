#pragma once
// The Mersenne twister (MT19937) seeded as QRandomGenerator seeds it, through std::seed_seq: the
// same numbers, made a block of 624 at a time with vector instructions. The pictures' grain draws
// hundreds of thousands at every start, where QRandomGenerator's took over a millisecond.

#include <array>
#include <cstdint>

namespace agenda::ui {

class Mt19937 {
public:
    static constexpr int n = 624;
    explicit Mt19937(std::uint32_t graine);
    // The sequence's next n numbers.
    const std::array<std::uint32_t, n>& suivants();

private:
    alignas(32) std::array<std::uint32_t, n> etat_;
    alignas(32) std::array<std::uint32_t, n> sortie_;
};

} // namespace agenda::ui
