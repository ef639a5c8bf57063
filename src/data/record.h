#pragma once
// One style for every record format. A record is its bytes, as read: the fields a format names
// are read and stored in place through descriptors, and every byte it does not name is carried
// back unchanged. A format's default value is its blank record (blank texts, zero numbers),
// which is also what a read past the end of the file yields.

#include "data/fichier_records.h"
#include "data/octets.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <QString>
#include <span>
#include <type_traits>
#include <utility>

namespace agenda {

// A text field: blank-padded CP1252, cut to its width.
struct Texte {
    int offset, largeur;
    constexpr int fin() const { return offset + largeur; }
    // The field in a record's bytes as a scan holds them, without a copy of the record.
    QString dans(std::span<const std::uint8_t> record) const {
        return octets::texte(record, offset, largeur);
    }
    QString sans_blancs_dans(std::span<const std::uint8_t> record) const {
        return octets::texte_sans_blancs(record, offset, largeur);
    }
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

// Bytes a scan holds, copied into a blank record where it stands (in a vector, say): the bytes
// missing stay blank.
template <class Rec>
void copie_dans(Rec& rec, std::span<const std::uint8_t> octets) {
    std::copy_n(octets.begin(), std::min<std::size_t>(octets.size(), Rec::longueur),
                rec.octets.begin());
}

// A record from bytes a scan holds.
template <class Rec>
Rec record_de(std::span<const std::uint8_t> octets) {
    Rec rec;
    copie_dans(rec, octets);
    return rec;
}

// Records a scan reads per system call.
inline constexpr std::int64_t records_par_bloc = 512;

namespace detail {

// Visits numbers 1 to the count (records 2 to count + 1), `records_par_bloc` records per system
// call. The header (record 1) comes with the first block, which holds at most `au_plus` + 1
// records, and `compte_de(header)` gives the count: no read of its own for the header.
template <class Rec, class Compte, class Visite>
void parcourt_blocs(const FichierRecords& f, std::int64_t au_plus, Compte&& compte_de,
                    Visite&& visite) {
    constexpr std::int64_t par_bloc = records_par_bloc;
    // One block per thread and format, kept: a fresh one would be mapped and faulted in at
    // every scan. It holds bytes only for one call; nothing is served from it later. Aligned to
    // the page, so that the copy from the kernel does not depend on where the allocator puts it.
    struct Bloc {
        alignas(4096) std::array<std::uint8_t, par_bloc * Rec::longueur> octets;
    };
    thread_local const auto tampon = std::make_unique<Bloc>();
    auto& bloc = tampon->octets;
    const auto record = [&](std::int64_t j) {
        return std::span<const std::uint8_t>(bloc.data() + j * Rec::longueur, Rec::longueur);
    };
    // Number 0 is the header, first of the first block; the count is known once it is read.
    std::int64_t compte = au_plus;
    for (std::int64_t premier = 0; premier <= compte; premier += par_bloc) {
        const std::int64_t n = std::min<std::int64_t>(par_bloc, compte - premier + 1);
        const std::size_t lu =
            f.lit_bloc(premier + 1, std::span(bloc.data(), std::size_t(n) * Rec::longueur));
        const std::int64_t lus = std::int64_t(lu) / Rec::longueur;
        std::int64_t j = 0;
        if (premier == 0) {
            // A header cut short reads, as any record, with its missing bytes blank.
            compte = compte_de(
                record_de<Rec>(record(0).first(std::min<std::size_t>(lu, Rec::longueur))));
            j = 1;
        }
        for (const std::int64_t fin = std::min(lus, compte - premier + 1); j < fin; ++j)
            if (!visite(std::int32_t(premier + j), record(j))) return;
        if (lus < n) {
            const std::int64_t dernier = premier + lus;
            if (lu % Rec::longueur != 0 && dernier >= 1 && dernier <= compte) {
                const Rec coupe = record_de<Rec>(record(lus).first(lu % Rec::longueur));
                visite(std::int32_t(dernier), std::span<const std::uint8_t>(coupe.octets));
            }
            return;
        }
    }
}

} // namespace detail

// Calls `visite(number, record bytes)` for numbers 1 to `compte` (records 2 to compte + 1), read
// `records_par_bloc` records per system call, until the file ends or `visite` returns false. The
// records past the end are not visited: they would read as blanks and zeros, so a count far past
// the end costs nothing. A last record cut short is visited with its missing bytes blank.
template <class Rec, class Visite>
void parcourt(const FichierRecords& f, std::int32_t compte, Visite&& visite) {
    if (compte <= 0) return;
    detail::parcourt_blocs<Rec>(
        f, compte, [compte](const Rec&) { return compte; }, std::forward<Visite>(visite));
}

// The same, the count read in the header with the first block: from a field of it (Entier32,
// Entier16) or given by `compte(header)`.
template <class Rec, class Compte, class Visite>
void parcourt_depuis_entete(const FichierRecords& f, const Compte& compte, Visite&& visite) {
    constexpr std::int64_t premier_bloc = records_par_bloc - 1;
    if constexpr (std::is_invocable_v<const Compte&, const Rec&>)
        detail::parcourt_blocs<Rec>(f, premier_bloc, compte, std::forward<Visite>(visite));
    else
        detail::parcourt_blocs<Rec>(
            f, premier_bloc, [&](const Rec& entete) { return entete.lit(compte); },
            std::forward<Visite>(visite));
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
