#include "data/param.h"

#include "data/etat.h"
#include "data/fichier_records.h"
#include "data/formats.h"
#include "data/record.h"
#include "data/texte.h"
#include "ui/systeme.h"

namespace agenda {

namespace {

FichierRecords& store() {
    return canal_fichier(canal::param);
}

void ferme_param() {
    store().ferme();
    ui::cede();
}

// The number (from 1) of the first record holding the key, or 0. `trouve` receives it.
int cherche(const QString& cle, RecParam& trouve) {
    int numero = 0;
    parcourt_depuis_entete<RecParam>(
        store(), RecParam::nb_param, [&](std::int32_t i, std::span<const std::uint8_t> rec) {
            if (RecParam::cle_param.dans(rec) != cle) return true;
            trouve = record_de<RecParam>(rec); // copied only when it is the one
            numero = i;
            return false;
        });
    return numero;
}

} // namespace

void ouvre_param() {
    store().ferme();
    ui::cede();
    store().ouvre(etat.prefixe_dossier + QStringLiteral("WTORV_IA.WDO"), RecParam::longueur);
    ui::cede();
}

QString lit_valeur_param(const QString& cle) {
    ouvre_param();
    RecParam rec;
    const int i = cherche(cadre(cle, RecParam::cle_param.largeur), rec);
    const QString resultat = i > 0 ? sans_blancs(rec.lit(RecParam::valeur_param)) : QString();
    ferme_param();
    return resultat;
}

void ecrit_param(const QString& cle, const QString& valeur) {
    ouvre_param();
    const QString cle_normale = cadre(cle, RecParam::cle_param.largeur);
    RecParam rec;
    if (const int i = cherche(cle_normale, rec); i > 0) {
        rec.pose(RecParam::valeur_param, valeur);
        ecrit_record(store(), std::int64_t(i) + 1, rec);
    } else {
        // The header is counted before the record is written: a reader in between meets a
        // blank key, which matches nothing.
        const std::int64_t records = store().records();
        rec = lit_record<RecParam>(store(), 1);
        const std::int32_t n = numero_suivant(rec.lit(RecParam::nb_param), records);
        rec.pose(RecParam::nb_param, n);
        ecrit_record(store(), 1, rec);
        ui::cede();
        rec.pose(RecParam::valeur_param, valeur); // fin_param stays as record 1 has it
        rec.pose(RecParam::cle_param, cle_normale);
        for (const Entier32 c : {RecParam::num1_param, RecParam::nb_param, RecParam::num3_param})
            rec.pose(c, 0);
        ecrit_record(store(), std::int64_t(n) + 1, rec);
        ui::cede();
    }
    ferme_param();
}

} // namespace agenda
