#include "data/fichier_records.h"

#include "data/erreur.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <QFile>
#include <sys/stat.h>
#include <unistd.h>

namespace agenda {

namespace {

[[noreturn]] void echec(const QString& action, const QString& chemin) {
    throw ErreurFatale(QStringLiteral("Erreur d'accès au fichier %1 (%2) : %3")
                           .arg(chemin, action, QString::fromLocal8Bit(strerror(errno))));
}

} // namespace

void FichierRecords::ouvre(const QString& chemin, int longueur_record) {
    ferme();
    const QByteArray nom = QFile::encodeName(chemin);
    const int fd = ::open(nom.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
    if (fd < 0) echec(QStringLiteral("ouverture"), chemin);
    fd_ = fd;
    longueur_ = longueur_record;
    chemin_ = chemin;
}

void FichierRecords::ferme() {
    if (fd_ >= 0) ::close(fd_);
    fd_ = -1;
}

std::int64_t FichierRecords::taille() const {
    struct stat st {};
    if (::fstat(fd_, &st) != 0) echec(QStringLiteral("taille"), chemin_);
    return st.st_size;
}

std::size_t FichierRecords::lit_bloc(std::int64_t r, octets::Tampon buf) const {
    std::size_t lu = 0;
    while (lu < buf.size()) {
        const ssize_t n = ::pread(fd_, buf.data() + lu, buf.size() - lu,
                                  static_cast<off_t>(position(r) + std::int64_t(lu)));
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) echec(QStringLiteral("lecture"), chemin_);
        if (n == 0) break;
        lu += static_cast<std::size_t>(n);
    }
    return lu;
}

void FichierRecords::lit(std::int64_t r, octets::Tampon buf) const {
    // pread fills only the bytes the file has: the rest stays the caller's blanks and zeros.
    lit_bloc(r, buf);
}

void FichierRecords::ecrit(std::int64_t r, octets::TamponLu buf) {
    const ssize_t n = ::pwrite(fd_, buf.data(), buf.size(), static_cast<off_t>(position(r)));
    if (n != static_cast<ssize_t>(buf.size())) echec(QStringLiteral("écriture"), chemin_);
}

namespace {
std::array<FichierRecords, canal::maximum + 1>& canaux() {
    static std::array<FichierRecords, canal::maximum + 1> table;
    return table;
}
} // namespace

FichierRecords& canal_fichier(int numero) {
    return canaux().at(static_cast<std::size_t>(numero));
}

int canal_libre() {
    for (int i = 1; i <= canal::maximum; ++i)
        if (!canaux()[i].ouvert()) return i;
    throw ErreurFatale(QStringLiteral("Trop de fichiers ouverts."));
}

void ferme_tous_les_canaux() {
    for (auto& f : canaux())
        f.ferme();
}

} // namespace agenda
