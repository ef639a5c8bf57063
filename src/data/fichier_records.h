#pragma once
// A shared file of fixed-length records. Opened for reading and writing with no lock of any
// kind, created empty when missing. Every read goes to the file and every write reaches it at
// once (pread/pwrite on the descriptor, no user-space buffer), so what another workstation
// wrote is seen at the next read.

#include "data/octets.h"

#include <cstdint>
#include <QString>
#include <sys/types.h>

namespace agenda {

// The system calls under every record file. Tests put their own in place to make the Nth read
// or write fail or come back short, and to see the order of the writes.
class Disque {
public:
    virtual ~Disque() = default;
    virtual ssize_t lit(int fd, void* octets, std::size_t n, off_t position, const QString& chemin);
    virtual ssize_t ecrit(int fd, const void* octets, std::size_t n, off_t position,
                          const QString& chemin);
    // A write at the end of the file, on a descriptor opened for appending.
    virtual ssize_t ajoute(int fd, const void* octets, std::size_t n, const QString& chemin);
};
// nullptr gives the system's calls back.
void fixe_disque(Disque* disque);

class FichierRecords {
public:
    FichierRecords() = default;
    FichierRecords(const FichierRecords&) = delete;
    FichierRecords& operator=(const FichierRecords&) = delete;
    ~FichierRecords() { ferme(); }

    // Opens the file (relative names are in the working folder); throws Erreur when the
    // system refuses it.
    void ouvre(const QString& chemin, int longueur_record);
    void ferme();
    bool ouvert() const { return fd_ >= 0; }
    const QString& chemin() const { return chemin_; }
    int longueur_record() const { return longueur_; }

    std::int64_t taille() const; // in bytes, as the file stands now
    // Records that have bytes in the file, the last one possibly cut short.
    std::int64_t records() const { return (taille() + longueur_ - 1) / longueur_; }

    // Record r (from 1). Bytes the file does not have are left as the caller set them, which
    // is how a read past the end yields the format's blanks and zeros.
    void lit(std::int64_t r, octets::Tampon buf) const;
    // One write call for the whole record, completed if the system takes only part of it;
    // past the end it extends the file. A failure throws with the system's reason in French.
    void ecrit(std::int64_t r, octets::TamponLu buf);
    // One record at the end of the file, in one atomic step: two processes that append at the
    // same moment put their records one after the other. Returns the record's number. A file
    // whose length is not whole records gets the record at `prevu` instead.
    std::int64_t ajoute(octets::TamponLu buf, std::int64_t prevu);
    // Reads as many whole records from r on as fit in buf, in one call; returns the number of
    // bytes read (short at the end of the file).
    std::size_t lit_bloc(std::int64_t r, octets::Tampon buf) const;

private:
    std::int64_t position(std::int64_t r) const;
    [[noreturn]] void echec(const QString& action, int numero) const;
    // One system call, repeated when a signal interrupts it; a failure throws.
    template <class Appel>
    ssize_t appel_systeme(bool lecture, Appel&& appel) const;
    template <class Appel>
    std::size_t jusqu_au_bout(std::int64_t r, std::size_t taille, bool lecture,
                              Appel&& appel) const;

    int fd_ = -1;
    int fd_ajout_ = -1; // the same file, opened for appending when first needed
    int longueur_ = 0;
    QString chemin_;
};

// The number a header's count gives the next record: the count plus one. A count that runs more
// than a few records past the file's end, or below zero, is damage: it is first brought back to
// the records the file holds, as the header-lag repair would, so that a save never writes far
// past the end. A count that runs ahead by a few (another workstation between its two writes)
// stands. `records` is the file's number of records (header included), taken before the header
// is read; past the largest 32-bit number it is an overflow error.
std::int32_t numero_suivant(std::int32_t compte, std::int64_t records);

// The fixed channels of the record files, so that any routine can close or reuse a file
// without holding a handle.
namespace canal {
inline constexpr int rv = 15;
inline constexpr int notes = 16;
inline constexpr int planning = 115;
inline constexpr int param = 25;
inline constexpr int cai020 = 28;
inline constexpr int arr = 104;
inline constexpr int clients = 38;
inline constexpr int sms_messages = 41;
inline constexpr int sms_init = 20;
inline constexpr int fiche_rv = 181;
inline constexpr int maximum = 255;
} // namespace canal

// The file behind a channel number (1 to 255).
FichierRecords& canal_fichier(int numero);
// The lowest channel with no open file.
int canal_libre();
// Closes every channel: the program's end.
void ferme_tous_les_canaux();

} // namespace agenda
