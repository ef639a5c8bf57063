#pragma once
// Read and write by record number, for any record format. A format is a struct with
// `longueur`, `charge(buffer)` and `range(buffer)`; its default value is the blank record
// (blank texts, zero numbers), which is also what a read past the end of the file yields.

#include "data/fichier_records.h"

#include <array>
#include <cstdint>

namespace agenda {

template <class Rec>
const std::array<std::uint8_t, Rec::longueur>& image_vierge() {
    static const auto image = [] {
        std::array<std::uint8_t, Rec::longueur> buf{};
        Rec{}.range(buf);
        return buf;
    }();
    return image;
}

template <class Rec>
Rec lit_record(const FichierRecords& f, std::int64_t r) {
    auto buf = image_vierge<Rec>();
    f.lit(r, buf);
    return Rec::charge(buf);
}

template <class Rec>
void ecrit_record(FichierRecords& f, std::int64_t r, const Rec& rec) {
    std::array<std::uint8_t, Rec::longueur> buf{};
    rec.range(buf);
    f.ecrit(r, buf);
}

template <class Rec>
Rec lit_record(int canal_numero, std::int64_t r) {
    return lit_record<Rec>(canal_fichier(canal_numero), r);
}

template <class Rec>
void ecrit_record(int canal_numero, std::int64_t r, const Rec& rec) {
    ecrit_record(canal_fichier(canal_numero), r, rec);
}

} // namespace agenda
