#include "data/fichier_records.h"

#include "data/texte.h"
#include "ui/erreur.h"
#include "ui/systeme.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstring>
#include <fcntl.h>
#include <QFile>
#include <sys/stat.h>
#include <unistd.h>

namespace agenda {

namespace {

Disque systeme;
Disque* disque_en_place = &systeme;

} // namespace

ssize_t Disque::lit(int fd, void* octets, std::size_t n, off_t position, const QString&) {
    return ::pread(fd, octets, n, position);
}

ssize_t Disque::ecrit(int fd, const void* octets, std::size_t n, off_t position, const QString&) {
    return ::pwrite(fd, octets, n, position);
}

ssize_t Disque::ajoute(int fd, const void* octets, std::size_t n, const QString&) {
    return ::write(fd, octets, n);
}

void fixe_disque(Disque* d) {
    disque_en_place = d ? d : &systeme;
}

void FichierRecords::echec(const QString& action, int numero) const {
    throw Erreur(QStringLiteral("Erreur d'accès au fichier %1 (%2) : %3.")
                     .arg(chemin_, action, texte_systeme(numero)));
}

std::int64_t FichierRecords::position(std::int64_t r) const {
    // Record numbers come from the files: one that no file can hold is an error of the
    // caller's step, not a position to seek to.
    constexpr std::int64_t limite = std::int64_t(1) << 40;
    if (r < 1 || r > limite / longueur_) echec(QStringLiteral("enregistrement %1").arg(r), EINVAL);
    return (r - 1) * longueur_;
}

void FichierRecords::ouvre(const QString& chemin, int longueur_record) {
    ferme();
    const QByteArray nom = QFile::encodeName(chemin);
    const int fd = ::open(nom.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
    chemin_ = chemin;
    if (fd < 0) echec(QStringLiteral("ouverture"), errno);
    fd_ = fd;
    longueur_ = longueur_record;
}

void FichierRecords::ferme() {
    for (int* fd : {&fd_, &fd_ajout_}) {
        if (*fd >= 0) ::close(*fd);
        *fd = -1;
    }
}

std::int64_t FichierRecords::taille() const {
    struct stat st {};
    if (::fstat(fd_, &st) != 0) echec(QStringLiteral("taille"), errno);
    return st.st_size;
}

template <class Appel>
ssize_t FichierRecords::appel_systeme(bool lecture, Appel&& appel) const {
    ssize_t n;
    do
        n = appel();
    while (n < 0 && errno == EINTR);
    const QString action = lecture ? QStringLiteral("lecture") : QStringLiteral("écriture");
    if (n < 0) echec(action, errno);
    // A write that takes nothing and reports nothing: the disk is full.
    if (n == 0 && !lecture) echec(action, ENOSPC);
    return n;
}

template <class Appel>
std::size_t FichierRecords::jusqu_au_bout(std::int64_t r, std::size_t taille, bool lecture,
                                          Appel&& appel) const {
    // The system may take or give part of the bytes: the call is repeated for the rest.
    const std::int64_t depart = position(r);
    std::size_t fait = 0;
    while (fait < taille) {
        const ssize_t n = appel_systeme(
            lecture, [&] { return appel(fait, static_cast<off_t>(depart + std::int64_t(fait))); });
        if (n == 0) break; // the end of the file
        fait += static_cast<std::size_t>(n);
    }
    return fait;
}

std::size_t FichierRecords::lit_bloc(std::int64_t r, octets::Tampon buf) const {
    return jusqu_au_bout(r, buf.size(), true, [&](std::size_t fait, off_t pos) {
        return disque_en_place->lit(fd_, buf.data() + fait, buf.size() - fait, pos, chemin_);
    });
}

void FichierRecords::lit(std::int64_t r, octets::Tampon buf) const {
    // pread fills only the bytes the file has: the rest stays the caller's blanks and zeros.
    lit_bloc(r, buf);
}

void FichierRecords::ecrit(std::int64_t r, octets::TamponLu buf) {
    jusqu_au_bout(r, buf.size(), false, [&](std::size_t fait, off_t pos) {
        return disque_en_place->ecrit(fd_, buf.data() + fait, buf.size() - fait, pos, chemin_);
    });
}

std::int32_t numero_suivant(std::int32_t compte, std::int64_t records) {
    constexpr std::int64_t avance_toleree = 16;
    const std::int64_t presents = std::max<std::int64_t>(records - 1, 0);
    if (compte < 0 || compte > presents + avance_toleree)
        compte = std::int32_t(std::min<std::int64_t>(presents, INT32_MAX));
    return plus_un(compte);
}

std::int64_t FichierRecords::ajoute(octets::TamponLu buf, std::int64_t prevu) {
    if (taille() % longueur_ != 0) {
        ecrit(prevu, buf);
        return prevu;
    }
    if (fd_ajout_ < 0) {
        fd_ajout_ = ::open(QFile::encodeName(chemin_).constData(), O_WRONLY | O_APPEND | O_CLOEXEC);
        if (fd_ajout_ < 0) echec(QStringLiteral("ouverture"), errno);
    }
    const ssize_t n = appel_systeme(
        false, [&] { return disque_en_place->ajoute(fd_ajout_, buf.data(), buf.size(), chemin_); });
    // Where this write ended, and so where the record begins, whatever others appended.
    const off_t fin = ::lseek(fd_ajout_, 0, SEEK_CUR);
    if (fin < 0) echec(QStringLiteral("position"), errno);
    const std::int64_t r = (std::int64_t(fin) - n) / longueur_ + 1;
    if (std::size_t(n) < buf.size()) ecrit(r, buf); // taken in part: completed in place
    return r;
}

namespace {
std::array<FichierRecords, canal::maximum + 1>& canaux() {
    static std::array<FichierRecords, canal::maximum + 1> table;
    static const bool fermes_a_la_fin = [] {
        ui::avant_la_fin(ferme_tous_les_canaux);
        return true;
    }();
    (void)fermes_a_la_fin;
    return table;
}
} // namespace

FichierRecords& canal_fichier(int numero) {
    if (numero < 1 || numero > canal::maximum)
        throw Erreur(QStringLiteral("Numéro de fichier %1 invalide.").arg(numero));
    return canaux()[std::size_t(numero)];
}

int canal_libre() {
    for (int i = 1; i <= canal::maximum; ++i)
        if (!canaux()[std::size_t(i)].ouvert()) return i;
    throw Erreur(QStringLiteral("Trop de fichiers ouverts."));
}

void ferme_tous_les_canaux() {
    for (auto& f : canaux())
        f.ferme();
}

} // namespace agenda
