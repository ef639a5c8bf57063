#include "editor/inter.h"

#include "data/etat.h"
#include "data/fichier_records.h"
#include "data/record.h"
#include "data/texte.h"
#include "ui/dates.h"

#include <array>

namespace agenda {

namespace {

const QString marque_init = QStringLiteral("#INIT#");

int canal_inter = 0;
std::int32_t compte_inter = 0;

FichierRecords& intlog() {
    return canal_fichier(canal_inter);
}

void ferme_inter() {
    intlog().ferme();
    canal_inter = 0;
}

QString cle_recherche(const QString& cle) {
    return cadre(sans_blancs(cle), RecInter::cle_inter.largeur).toUpper();
}

bool porte_marque(const RecInter& r) {
    return r.lit(RecInter::cle_inter).startsWith(marque_init);
}

const std::array<QString, 10> lignes_fiche = {
    QStringLiteral("Merci de noter"),
    QStringLiteral("votre prochain"),
    QStringLiteral("rendez-vous"),
    QStringLiteral("merci de prévenir"),
    QStringLiteral("en cas d'impossibilité"),
    QStringLiteral("de votre part"),
    QString(),
    QString(),
    QString(),
    QString(),
};

} // namespace

void ouvre_inter() {
    canal_inter = canal_libre();
    intlog().ouvre(QStringLiteral("W_intlog.wdo"), RecInter::longueur);
    RecInter entete = lit_record<RecInter>(intlog(), 1);
    if (!porte_marque(entete)) {
        ajoute_inter();
        // The buffer is the blank entry ajoute_inter just wrote.
        entete = RecInter{};
        entete.pose(RecInter::cle_inter, marque_init);
        ecrit_record(intlog(), 1, entete);
    }
    compte_inter = entete.lit(RecInter::nb_inter);
}

std::int32_t ajoute_inter() {
    const std::int64_t records = intlog().records();
    RecInter entete = lit_record<RecInter>(intlog(), 1);
    const std::int32_t n = numero_suivant(entete.lit(RecInter::nb_inter), records);
    entete.pose(RecInter::nb_inter, n);
    ecrit_record(intlog(), 1, entete);
    ecrit_record(intlog(), std::int64_t(n) + 1, RecInter{});
    return n;
}

std::int32_t cherche_inter(const QString& cle) {
    std::int32_t trouve = -1;
    parcourt<RecInter>(intlog(), compte_inter,
                       [&](std::int32_t i, std::span<const std::uint8_t> r) {
                           if (RecInter::cle_inter.dans(r) != cle) return true;
                           trouve = i;
                           return false;
                       });
    return trouve;
}

QString lit_inter(const QString& cle) {
    ouvre_inter();
    const std::int32_t n = cherche_inter(cle_recherche(cle));
    const QString valeur =
        n > 0 ? lit_record<RecInter>(intlog(), n + 1).lit(RecInter::valeur_inter) : QString();
    ferme_inter();
    return valeur;
}

void ecrit_inter(const QString& cle, const QString& valeur) {
    ouvre_inter();
    const QString recherche = cle_recherche(cle);
    std::int32_t n = cherche_inter(recherche);
    if (n < 0) n = ajoute_inter();
    RecInter r = lit_record<RecInter>(intlog(), n + 1);
    r.pose(RecInter::cle_inter, recherche);
    r.pose(RecInter::valeur_inter, valeur);
    ecrit_record(intlog(), n + 1, r);
    ferme_inter();
}

RecInter ouvre_rvv_181() {
    auto& f = canal_fichier(canal::fiche_rv);
    f.ferme();
    f.ouvre(etat.prefixe_dossier + QStringLiteral("wrv181ff.wdo"), RecInter::longueur);
    RecInter r = lit_record<RecInter>(f, 1);
    if (porte_marque(r)) return r;
    r.pose(RecInter::cle_inter,
           marque_init + ui::format_date(ui::date_maintenant(), u"dd/mm/yyyy"));
    for (const Texte c :
         {RecInter::zone_64, RecInter::zone_15, RecInter::valeur_inter, RecInter::zone_63})
        r.pose(c, {});
    ecrit_record(f, 1, r);
    for (std::size_t i = 0; i < lignes_fiche.size(); ++i) {
        r.pose(RecInter::valeur_inter, lignes_fiche[i]);
        ecrit_record(f, static_cast<std::int64_t>(i) + 2, r);
    }
    return r;
}

void ecrit_rendez_vous(const QString& date_en_lettres, const QString& heure,
                       const QString& minute) {
    // The lines take the other fields of the buffer that the opening left: record 1's.
    RecInter r = ouvre_rvv_181();
    auto& f = canal_fichier(canal::fiche_rv);
    r.pose(RecInter::valeur_inter, sans_blancs(date_en_lettres));
    ecrit_record(f, 8, r);
    r.pose(RecInter::valeur_inter, QStringLiteral("à : ") + heure + QStringLiteral(" H ") + minute);
    ecrit_record(f, 9, r);
}

} // namespace agenda
