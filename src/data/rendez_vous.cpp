#include "data/rendez_vous.h"

#include "data/dossier.h"
#include "data/fichier_records.h"
#include "data/formats.h"
#include "data/octets.h"
#include "data/record.h"
#include "data/texte.h"
#include "ui/dates.h"
#include "ui/systeme.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <QByteArray>
#include <string_view>
#include <vector>

namespace agenda {

// Built in one piece: it is made for every appointment of the day at every load.
QString entree_du_jour(std::int32_t i, std::span<const std::uint8_t> rec) {
    constexpr int debut_cle = 19;
    // std::to_chars rather than a formatted print: this runs for every entry at every load.
    struct Nombre {
        explicit Nombre(std::int32_t v) : fin(std::to_chars(chiffres, chiffres + 11, v).ptr) {}
        int taille() const { return int(fin - chiffres); }
        char chiffres[11];
        const char* fin;
    };
    const Nombre numero(i), cadre(octets::i32(rec, RecRv::encadre_rv.offset)),
        couleur(octets::i32(rec, RecRv::couleur_rv.offset));
    const int zeros = std::max(0, 6 - numero.taille());
    constexpr std::string_view milieu = "xxxxxxxxx:";
    QString e(debut_cle + zeros + numero.taille() + 1 + cadre.taille() + int(milieu.size()) +
                  couleur.taille(),
              Qt::Uninitialized);
    QChar* c = octets::decode_cp1252(rec.subspan(RecRv::cle_rv.offset, debut_cle), e.data());
    const auto ajoute = [&](std::string_view t) {
        for (const char x : t)
            *c++ = QLatin1Char(x);
    };
    ajoute(std::string_view("000000", std::size_t(zeros)));
    ajoute(std::string_view(numero.chiffres, numero.fin));
    ajoute(":");
    ajoute(std::string_view(cadre.chiffres, cadre.fin));
    ajoute(milieu);
    ajoute(std::string_view(couleur.chiffres, couleur.fin));
    return e;
}

namespace {

// A key's first N characters, as bytes; N is fixed so that the comparison is inlined, which
// matters when it runs on every record of the file.
template <std::size_t N>
struct DebutCle {
    explicit DebutCle(const QString& texte) {
        const QByteArray b = octets::vers_cp1252(cadre(texte, int(N)));
        std::memcpy(octets.data(), b.constData(), N);
    }
    explicit DebutCle(const std::array<std::uint8_t, N>& o) : octets(o) {}
    bool ouvre(std::span<const std::uint8_t> rec) const {
        return std::memcmp(rec.data(), octets.data(), N) == 0;
    }
    std::array<std::uint8_t, N> octets{};
};

// The day pattern "yymmdd" as a key's bytes, from the date's parts taken at once: it is made at
// every load, where a formatted text and its conversion cost a tenth of a small file's scan.
std::array<std::uint8_t, 6> octets_du_jour(Date d) {
    int annee = 0, mois = 0, jour = 0;
    ui::jour_de(d).getDate(&annee, &mois, &jour);
    std::array<std::uint8_t, 6> o{};
    auto c = o.begin();
    for (const int n : {(annee % 100 + 100) % 100, mois, jour}) {
        *c++ = std::uint8_t('0' + n / 10);
        *c++ = std::uint8_t('0' + n % 10);
    }
    return o;
}

} // namespace

std::int32_t ajoute_numerote(FichierRecords& f, const RecRv& rec) {
    // Nothing between the read and the write of the header, not even a look at the file's
    // length: another workstation may be drawing at the same moment.
    const std::int64_t records = f.records();
    RecRv entete = lit_record<RecRv>(f, 1);
    const std::int32_t n = numero_suivant(entete.lit(RecRv::dernier_num), records);
    entete.pose(RecRv::dernier_num, n);
    ecrit_record(f, 1, entete);
    ui::cede();
    // Appended rather than written at n + 1, where it lands when no other workstation is
    // drawing: two that drew the same number get two places, one after the other, instead of
    // one over the other. The number is the place the record took; a header left behind is
    // brought into line by the next day scan.
    return en_i32(double(f.ajoute(rec.octets, std::int64_t(n) + 1) - 1));
}

std::int32_t alloue_numero(FichierRecords& f) {
    RecRv vide;
    vide.pose(RecRv::fin_rec, u"\r\n");
    return ajoute_numerote(f, vide);
}

std::int32_t repare_entete(FichierRecords& f, RecRv entete) {
    const double present = double(f.taille()) / RecRv::longueur - 1;
    if (present > entete.lit(RecRv::dernier_num)) {
        entete.pose(RecRv::dernier_num, en_i32(present));
        ecrit_record(f, 1, entete);
    }
    return entete.lit(RecRv::dernier_num);
}

QString motif_jour(Date d) {
    const auto o = octets_du_jour(d);
    return QString::fromLatin1(reinterpret_cast<const char*>(o.data()), qsizetype(o.size()));
}

QString cle_rendez_vous(Date jour, const QString& heure, const QString& minute,
                        const QString& heure_fin, const QString& minute_fin) {
    return cadre(motif_jour(jour) + QLatin1Char(':') + heure + QLatin1Char('H') + minute +
                     QLatin1Char(':') + heure_fin + QLatin1Char('H') + minute_fin,
                 RecRv::cle_rv.largeur);
}

std::int32_t code_jour(Date jour) {
    const QDate d = ui::jour_de(jour);
    return d.day() + 31 * d.month();
}

void parcourt_jour(FichierRecords& f, Date jour,
                   const std::function<std::int32_t(const RecRv&)>& compte,
                   const std::function<bool(std::int32_t, std::span<const std::uint8_t>)>& rv) {
    const DebutCle<6> motif(octets_du_jour(jour));
    parcourt_depuis_entete<RecRv>(f, compte,
                                  [&](std::int32_t i, std::span<const std::uint8_t> rec) {
                                      return !motif.ouvre(rec) || rv(i, rec);
                                  });
}

void scan_journee(FichierRecords& f, Date jour, QStringList& liste, std::vector<RecRv>& records) {
    liste.clear();
    records.clear();
    // Room for a full day at once: growing one entry at a time costs a load as much as its
    // reads on a small file.
    constexpr int jour_plein = 16;
    liste.reserve(jour_plein);
    records.reserve(jour_plein);
    // The count is taken wide: a file past 32,767 records is scanned whole.
    parcourt_jour(
        f, jour, [&](const RecRv& entete) { return repare_entete(f, entete); },
        [&](std::int32_t i, std::span<const std::uint8_t> rec) {
            liste.append(entree_du_jour(i, rec));
            // Copied where it stands: a record made apart and moved in is copied twice.
            copie_dans(records.emplace_back(), rec);
            return true;
        });
}

std::array<QStringList, 7> scan_semaine(FichierRecords& f, Date lundi) {
    std::vector<DebutCle<6>> jours;
    for (int k = 0; k < 7; ++k)
        jours.emplace_back(octets_du_jour(lundi + k));
    // Most records are of other months: their first four bytes, "yymm", rule them out at once.
    // A week spans one month or two.
    const auto mois = [](std::span<const std::uint8_t> cle) {
        std::uint32_t m;
        std::memcpy(&m, cle.data(), sizeof m);
        return m;
    };
    const std::uint32_t premier_mois = mois(jours.front().octets),
                        dernier_mois = mois(jours.back().octets);
    std::array<QStringList, 7> listes;
    parcourt_depuis_entete<RecRv>(
        f, [&](const RecRv& entete) { return repare_entete(f, entete); },
        [&](std::int32_t i, std::span<const std::uint8_t> rec) {
            const std::uint32_t m = mois(rec);
            if (m != premier_mois && m != dernier_mois) return true;
            for (std::size_t k = 0; k < jours.size(); ++k)
                if (jours[k].ouvre(rec)) {
                    listes[k].append(entree_du_jour(i, rec));
                    break;
                }
            return true;
        });
    return listes;
}

void charge_journee(std::vector<RecRv>& records) {
    QStringList liste;
    scan_journee(canal_fichier(canal::rv), etat.date_courante, liste, records);
    etat.liste_jour = std::move(liste);
}

std::int32_t cherche_note(const QString& cle) {
    auto& f = canal_fichier(canal::notes);
    const std::int32_t compte = lit_record<RecRv>(f, 1).lit(RecRv::dernier_num);
    const DebutCle<9> motif(cle);
    std::int32_t trouve = 0;
    parcourt<RecRv>(f, compte, [&](std::int32_t i, std::span<const std::uint8_t> rec) {
        if (!motif.ouvre(rec)) return true;
        trouve = i;
        return false;
    });
    return trouve;
}

QString cle_semaine(Date lundi) {
    return QStringLiteral("SE:") + motif_jour(lundi);
}

Note lit_note(const QString& cle) {
    ouvre_notes();
    Note note;
    note.numero = cherche_note(cle);
    if (note.numero > 0) note.rec = lit_record<RecRv>(canal::notes, std::int64_t(note.numero) + 1);
    canal_fichier(canal::notes).ferme();
    return note;
}

std::int32_t entree_jour::numero(const QString& e) {
    return static_cast<std::int32_t>(val(e.mid(19, 6)));
}

} // namespace agenda
