#include "sms/verifsmss.h"

#include "data/fichier_records.h"
#include "data/octets.h"
#include "data/record.h"
#include "data/texte.h"
#include "input/mini_97.h"
#include "sms/sms.h"
#include "ui/liste_triee.h"

#include <algorithm>

namespace agenda {

void Verifsmss::Form_Load() {
    ouvre_sms();
    FichierRecords& file = canal_fichier(canal::sms_messages);
    const std::int32_t n = lit_record<RecSms>(file, 1).lit(RecSms::nb_messages);
    // The number alone decides; a cancelled entry has blanks there and falls out.
    const QString numero = ref_sms_nouvelle.left(10);
    struct Entree {
        QString texte;
        std::int32_t n;
    };
    std::vector<Entree> List1;
    parcourt<RecSms>(file, n, [&](std::int32_t i, std::span<const std::uint8_t> rec) {
        // Only the number is decoded from each record; the whole text only when it matches.
        if (octets::texte(rec, champ_sms::tel_sms.position - 1, 10) == numero)
            List1.push_back({RecSms::texte_sms.dans(rec), i});
        return true;
    });
    // By the whole text, which starts with the send time.
    ui::trie_comme_une_liste(List1, [](const Entree& e) -> const QString& { return e.texte; });
    if (List1.size() > 40) lignes_grille = int(List1.size()) + 3;

    g1.clear();
    for (const Entree& e : List1) {
        // The text the scan has just read is the record's.
        const QString& t = e.texte;
        Ligne l{champ_sms::lit(t, champ_sms::date_affiche_jour),
                champ_sms::lit(t, champ_sms::date_affiche_heure),
                champ_sms::lit(t, champ_sms::message_sms), e.n, false};
        // Another message at the same date and time is a duplicate, whatever its text.
        l.marque_annul = std::any_of(g1.begin(), g1.end(), [&](const Ligne& avant) {
            return avant.date + avant.heure == l.date + l.heure;
        });
        g1.push_back(std::move(l));
    }
}

void Verifsmss::g1_DblClick(int ligne, int colonne) {
    // The header and the rows beyond the messages have no date.
    if (ligne < 1 || ligne > int(g1.size()) || g1[std::size_t(ligne - 1)].date.isEmpty()) return;
    Ligne& l = g1[std::size_t(ligne - 1)];
    if (colonne == 0) {
        l.marque_annul = !l.marque_annul;
        return;
    }
    FichierRecords& file = canal_fichier(canal::sms_messages);
    RecSms r = lit_record<RecSms>(file, std::int64_t(l.numero) + 1);
    QString texte = r.lit(RecSms::texte_sms);
    demande(QStringLiteral("Modification du message ?|") +
                champ_sms::lit(texte, champ_sms::message_sms),
            Mini97::mode_texte);
    const QString reponse = etat.mini_texte;
    if (reponse.isEmpty()) return;
    champ_sms::pose(texte, champ_sms::message_sms, cadre(reponse, champ_sms::message_sms.largeur));
    r.pose(RecSms::texte_sms, texte);
    ecrit_record(file, std::int64_t(l.numero) + 1, r);
    l.message = reponse;
}

void Verifsmss::Image1_Click() {
    FichierRecords& file = canal_fichier(canal::sms_messages);
    for (const Ligne& l : g1) {
        if (!l.marque_annul) continue;
        RecSms r = lit_record<RecSms>(file, std::int64_t(l.numero) + 1);
        r.pose(RecSms::etat_sms, 3);
        r.pose(RecSms::texte_sms, annulee);
        ecrit_record(file, std::int64_t(l.numero) + 1, r);
    }
    ferme();
}

} // namespace agenda
