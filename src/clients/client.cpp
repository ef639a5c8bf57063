#include "clients/client.h"

#include "data/etat.h"
#include "data/fichier_records.h"
#include "data/record.h"
#include "data/texte.h"

#include <algorithm>

namespace agenda {

namespace {

FichierRecords& fichier() {
    return canal_fichier(canal::clients);
}

// The fields a new client starts with. Those the book does not own and that a creation does not
// set (zone_260, zone_265, dernier_client) keep what the read delivered.
void vide_client(RecCli& r, std::int32_t n) {
    r.pose_texte(RecCli::off_code, RecCli::lg_code, motif_zeros(n, 4));
    for (const auto& [offset, largeur] : {std::pair{RecCli::off_nom, RecCli::lg_nom},
                                          {RecCli::off_adresse1, RecCli::lg_adresse1},
                                          {RecCli::off_adresse2, RecCli::lg_adresse2},
                                          {RecCli::off_code_ville, RecCli::lg_code_ville},
                                          {RecCli::off_zone_175, RecCli::lg_zone_175},
                                          {RecCli::off_telephone, RecCli::lg_telephone},
                                          {RecCli::off_zone_220, RecCli::lg_zone_220},
                                          {RecCli::off_zone_235, RecCli::lg_zone_235},
                                          {RecCli::off_zone_286, RecCli::lg_zone_286},
                                          {RecCli::off_bloc_304, RecCli::lg_bloc_304},
                                          {RecCli::off_bloc_432, RecCli::lg_bloc_432},
                                          {RecCli::off_bloc_682, RecCli::lg_bloc_682},
                                          {RecCli::off_bloc_744, RecCli::lg_bloc_744}})
        r.pose_texte(offset, largeur, QString());
    r.pose_entier(RecCli::off_nombre_250, 0);
    r.pose_court(RecCli::off_marque_258, 9);
    std::fill_n(r.octets_.begin() + RecCli::off_nombres_270, RecCli::lg_nombres_270, 0);
    r.pose_court(RecCli::off_sexe, 0);
}

} // namespace

void ouvre_clients() {
    fichier().ferme();
    fichier().ouvre(etat.prefixe_dossier + QStringLiteral("W_CAI038.WDO"), RecCli::longueur);
    rec_cli = lit_record<RecCli>(fichier(), 1);
    if (rec_cli.entier(RecCli::off_dernier_client) > 0) return;
    // First use: the catch-all client number 1.
    rec_cli.pose_entier(RecCli::off_dernier_client, 1);
    client_alloue = 1;
    ecrit_record(fichier(), 1, rec_cli);
    rec_cli = lit_record<RecCli>(fichier(), 2);
    vide_client(rec_cli, 1);
    rec_cli.pose_texte(RecCli::off_nom, RecCli::lg_nom, QStringLiteral("Clients Divers"));
    ecrit_record(fichier(), 2, rec_cli);
}

void cree_client() {
    rec_cli = lit_record<RecCli>(fichier(), 1);
    const std::int32_t n = rec_cli.entier(RecCli::off_dernier_client) + 1;
    client_alloue = n;
    rec_cli.pose_entier(RecCli::off_dernier_client, n);
    ecrit_record(fichier(), 1, rec_cli);
    rec_cli = lit_record<RecCli>(fichier(), n + 1);
    vide_client(rec_cli, n);
    ecrit_record(fichier(), n + 1, rec_cli);
}

void lit_client(std::int32_t n) {
    rec_cli = lit_record<RecCli>(fichier(), n + 1);
}

void ecrit_client(std::int32_t n) {
    ecrit_record(fichier(), n + 1, rec_cli);
}

} // namespace agenda
