#include "support/support.h"

#include "data/fichier_records.h"
#include "ui/systeme.h"

#include <cstring>
#include <QDir>
#include <QFile>

namespace agenda::test {

Gabarit& Gabarit::texte(int offset, int largeur, const char* octets) {
    const auto n = std::min<std::size_t>(std::strlen(octets), std::size_t(largeur));
    std::memset(octets_.data() + offset, ' ', std::size_t(largeur));
    std::memcpy(octets_.data() + offset, octets, n);
    return *this;
}

Gabarit& Gabarit::i32(int offset, std::int32_t v) {
    const auto u = static_cast<std::uint32_t>(v);
    for (int i = 0; i < 4; ++i)
        octets_[std::size_t(offset + i)] = std::uint8_t(u >> (8 * i));
    return *this;
}

Gabarit& Gabarit::i16(int offset, std::int16_t v) {
    const auto u = static_cast<std::uint16_t>(v);
    octets_[std::size_t(offset)] = std::uint8_t(u);
    octets_[std::size_t(offset + 1)] = std::uint8_t(u >> 8);
    return *this;
}

Gabarit& Gabarit::zeros(int offset, int n) {
    std::memset(octets_.data() + offset, 0, std::size_t(n));
    return *this;
}

QByteArray Gabarit::octets() const {
    return QByteArray(reinterpret_cast<const char*>(octets_.data()), qsizetype(octets_.size()));
}

Gabarit rv_vierge() {
    Gabarit g(512);
    g.zeros(422, 48);
    return g;
}

QByteArray rv_entete(std::int32_t dernier) {
    return rv_vierge().i32(466, dernier).octets();
}

void DossierDonnees::SetUp() {
    ASSERT_TRUE(dossier_.isValid());
    ancien_ = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(dossier_.path()));
    ferme_tous_les_canaux();
    etat = Etat{};
    fixe_maintenant(QDateTime(QDate(2004, 3, 3), QTime(10, 0)));
    ui::fixe_horloge([this] { return maintenant_; });
    ui::fixe_fin([](int code) { throw FinDemandee{code}; });
    ui::fixe_lanceur([](const QString&) { return true; });
}

void DossierDonnees::TearDown() {
    ferme_tous_les_canaux();
    ui::fixe_horloge({});
    ui::fixe_fin({});
    ui::fixe_lanceur({});
    QDir::setCurrent(ancien_);
}

void DossierDonnees::fixe_maintenant(const QDateTime& t) {
    maintenant_ = t;
}

QByteArray DossierDonnees::contenu(const QString& nom) const {
    QFile f(chemin(nom));
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void DossierDonnees::ecrit(const QString& nom, const QByteArray& octets) const {
    QFile f(chemin(nom));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
    f.write(octets);
}

void DossierDonnees::ajoute(const QString& nom, const QByteArray& octets) const {
    QFile f(chemin(nom));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Append));
    f.write(octets);
}

} // namespace agenda::test
