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
    r.pose(RecCli::code_client, motif_zeros(n, 4));
    for (const Texte c :
         {RecCli::nom_client, RecCli::adresse1, RecCli::adresse2, RecCli::code_ville,
          RecCli::zone_175, RecCli::telephone, RecCli::zone_220, RecCli::zone_235, RecCli::zone_286,
          RecCli::bloc_304, RecCli::bloc_432, RecCli::bloc_682, RecCli::bloc_744})
        r.pose(c, {});
    r.pose(RecCli::nombre_250, 0);
    r.pose(RecCli::marque_258, 9);
    r.zeros_270();
    r.pose(RecCli::sexe, 0);
}

} // namespace

void ouvre_clients() {
    fichier().ferme();
    fichier().ouvre(etat.prefixe_dossier + QStringLiteral("W_CAI038.WDO"), RecCli::longueur);
    rec_cli = lit_record<RecCli>(fichier(), 1);
    if (rec_cli.lit(RecCli::dernier_client) > 0) return;
    // First use: the catch-all client number 1.
    rec_cli.pose(RecCli::dernier_client, 1);
    client_alloue = 1;
    ecrit_record(fichier(), 1, rec_cli);
    rec_cli = lit_record<RecCli>(fichier(), 2);
    vide_client(rec_cli, 1);
    rec_cli.pose(RecCli::nom_client, u"Clients Divers");
    ecrit_record(fichier(), 2, rec_cli);
}

void cree_client() {
    const std::int64_t records = fichier().records();
    rec_cli = lit_record<RecCli>(fichier(), 1);
    const std::int32_t n = numero_suivant(rec_cli.lit(RecCli::dernier_client), records);
    client_alloue = n;
    rec_cli.pose(RecCli::dernier_client, n);
    ecrit_record(fichier(), 1, rec_cli);
    rec_cli = lit_record<RecCli>(fichier(), std::int64_t(n) + 1);
    vide_client(rec_cli, n);
    ecrit_record(fichier(), std::int64_t(n) + 1, rec_cli);
}

void lit_client(std::int32_t n) {
    rec_cli = lit_record<RecCli>(fichier(), std::int64_t(n) + 1);
}

void ecrit_client(std::int32_t n) {
    ecrit_record(fichier(), std::int64_t(n) + 1, rec_cli);
}

void parcourt_clients(
    const std::function<void(std::int32_t, std::span<const std::uint8_t>)>& visite) {
    parcourt_depuis_entete<RecCli>(fichier(), RecCli::dernier_client,
                                   [&](std::int32_t n, std::span<const std::uint8_t> client) {
                                       visite(n, client);
                                       return true;
                                   });
}

} // namespace agenda
