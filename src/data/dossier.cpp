#include "data/dossier.h"

#include "data/etat.h"
#include "data/fichier_records.h"
#include "data/formats.h"
#include "data/octets.h"
#include "data/record.h"
#include "data/texte.h"
#include "ui/erreur.h"
#include "ui/systeme.h"

#include <QDir>
#include <QFile>

namespace agenda {

namespace {
constexpr int record_clavier_ecran = 42;
const QString nom_lien_agenda = QStringLiteral("lien_agenda.txt");
} // namespace

QString nom_fichier_rv(std::int16_t collab, bool salle) {
    return (salle ? QStringLiteral("tf_z") : QStringLiteral("tf_r")) + motif_zeros(collab, 4) +
           QStringLiteral(".wdo");
}

QString nom_fichier_notes(std::int16_t collab) {
    return QStringLiteral("tf_a") + motif_zeros(collab, 4) + QStringLiteral(".wdo");
}

void ouvre_rv() {
    ouvre_rv_de(etat.num_collab, etat.mode_salle);
}

void ouvre_rv_de(std::int16_t collab, bool salle) {
    auto& f = canal_fichier(canal::rv);
    f.ferme();
    f.ouvre(nom_fichier_rv(collab, salle), RecRv::longueur);
}

void ouvre_notes() {
    auto& f = canal_fichier(canal::notes);
    f.ferme();
    ui::cede();
    f.ouvre(nom_fichier_notes(etat.num_collab), RecRv::longueur);
    ui::cede();
}

void ouvre_arr() {
    auto& f = canal_fichier(canal::arr);
    f.ferme();
    f.ouvre(etat.prefixe_dossier + QStringLiteral("w_arr104.wdo"), RecArr::longueur);
}

void lit_clavier_ecran() {
    auto& f = canal_fichier(canal::cai020);
    f.ouvre(QStringLiteral("w_cai020.wdo"), RecTxt20::longueur);
    const auto r = lit_record<RecTxt20>(f, record_clavier_ecran);
    f.ferme();
    etat.clavier_ecran =
        en_i16(val(r.lit(RecTxt20::texte)),
               QStringLiteral("l'enregistrement 42 de w_cai020.wdo, écran tactile"));
}

void lit_nb_services() {
    etat.nb_services = lit_record<RecArr>(canal::arr, 1).lit(RecArr::nb_arr);
}

void charge_collaborateurs() {
    etat.nb_collab = 0;
    etat.noms_collab.fill(QString());
    etat.noms_par_num.fill(QString());
    QFile f(nom_lien_agenda);
    if (!f.open(QIODevice::ReadOnly))
        throw Erreur(QStringLiteral("Fichier introuvable : %1\nLe dossier de données %2 "
                                    "ne peut pas servir sans la liste des collaborateurs.")
                         .arg(nom_lien_agenda, QDir::currentPath()));
    QByteArray contenu = f.readAll();
    f.close();
    if (contenu.endsWith('\n')) contenu.chop(1);
    if (contenu.endsWith('\r')) contenu.chop(1);
    if (contenu.isEmpty()) return;
    for (QByteArray ligne : contenu.split('\n')) {
        if (ligne.endsWith('\r')) ligne.chop(1);
        if (etat.nb_collab == 20)
            throw Erreur(QStringLiteral("%1 : plus de 20 collaborateurs, la ligne 21 ne "
                                        "peut pas être lue.")
                             .arg(nom_lien_agenda));
        const QString texte = octets::depuis_cp1252(
            std::span(reinterpret_cast<const std::uint8_t*>(ligne.constData()),
                      static_cast<std::size_t>(ligne.size())));
        etat.noms_collab[++etat.nb_collab] = texte;
        const double numero = val(texte.left(2));
        if (numero < 0 || numero > 20)
            throw Erreur(QStringLiteral("%1 : le numéro de collaborateur de la ligne "
                                        "« %2 » dépasse 20.")
                             .arg(nom_lien_agenda, texte));
        etat.noms_par_num[static_cast<std::size_t>(numero)] = texte;
    }
}

void attente_sablier() {
    ui::pose_pointeur(ui::Pointeur::sablier);
    const double cible = ui::secondes_depuis_minuit() + 2.0;
    while (static_cast<float>(ui::secondes_depuis_minuit()) < static_cast<float>(cible))
        ui::cede();
    ui::pose_pointeur(ui::Pointeur::fleche);
}

bool frein_du_clic() {
    const double dernier_clic = 0;
    if (ui::secondes_depuis_minuit() - dernier_clic > 0.5) return true;
    attente_sablier();
    return false;
}

} // namespace agenda
