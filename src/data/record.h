#pragma once
// One style for every record format. A record is its bytes, as read: the fields a format names
// are read and stored in place through descriptors, and every byte it does not name is carried
// back unchanged. A format's default value is its blank record (blank texts, zero numbers),
// which is also what a read past the end of the file yields.

#include "data/fichier_records.h"
#include "data/octets.h"

#include <array>
#include <cstdint>
#include <QString>

namespace agenda {

// A text field: blank-padded CP1252, cut to its width.
struct Texte {
    int offset, largeur;
    constexpr int fin() const { return offset + largeur; }
};
// Little-endian integers.
struct Entier32 {
    int offset;
    constexpr int fin() const { return offset + 4; }
};
struct Entier16 {
    int offset;
    constexpr int fin() const { return offset + 2; }
};

template <int N>
struct Record {
    static constexpr int longueur = N;
    std::array<std::uint8_t, N> octets;

    Record() { octets.fill(' '); }

    QString lit(Texte c) const { return octets::texte(octets, c.offset, c.largeur); }
    std::int32_t lit(Entier32 c) const { return octets::i32(octets, c.offset); }
    std::int16_t lit(Entier16 c) const { return octets::i16(octets, c.offset); }
    void pose(Texte c, QStringView s) { octets::pose_texte(octets, c.offset, c.largeur, s); }
    void pose(Entier32 c, std::int32_t v) { octets::pose_i32(octets, c.offset, v); }
    void pose(Entier16 c, std::int16_t v) { octets::pose_i16(octets, c.offset, v); }

protected:
    // Numbers of the blank record.
    void zeros(int offset, int n) { std::fill_n(octets.begin() + offset, n, std::uint8_t(0)); }
};

template <class Rec>
Rec lit_record(const FichierRecords& f, std::int64_t r) {
    Rec rec;
    f.lit(r, rec.octets);
    return rec;
}

template <class Rec>
void ecrit_record(FichierRecords& f, std::int64_t r, const Rec& rec) {
    f.ecrit(r, rec.octets);
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
