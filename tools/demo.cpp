// Writes a demo data folder, as the point-of-sale program and a few days of work would have
// left it: collaborators, catalogue, clients, settings, and a week of appointments around
// today. Usage: agenda_demo FOLDER

#include "clients/rec_cli.h"
#include "data/dossier.h"
#include "data/etat.h"
#include "data/fichier_records.h"
#include "data/formats.h"
#include "data/octets.h"
#include "data/param.h"
#include "data/record.h"
#include "data/rendez_vous.h"
#include "data/texte.h"
#include "editor/inter.h"
#include "ui/dates.h"
#include "ui/erreur.h"

#include <cstdio>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRandomGenerator>

using namespace agenda;

namespace {

struct Service {
    const char* nom;
    int minutes;
};

const Service services[] = {
    {"Coupe femme", 45}, {"Coupe homme", 30},      {"Brushing", 30},       {"Couleur", 90},
    {"Mèches", 120},     {"Permanente", 100},      {"Soin du visage", 60}, {"Épilation jambes", 45},
    {"Manucure", 40},    {"Beauté des pieds", 50}, {"Maquillage", 30},     {"Coupe enfant", 20},
};

const char* const collaborateurs[] = {"01 : Sophie Martin", "02 : Julien Bernard",
                                      "03 : Camille Petit", "04 : Léa Dubois"};

struct Client {
    const char* titre;
    const char* nom;
    const char* ville;
    const char* telephone;
};

const Client clients[] = {
    {"Madame", "DURAND Marie", "75011 Paris", "06 12 34 56 78"},
    {"Monsieur", "LEROY Paul", "75012 Paris", "06 23 45 67 89"},
    {"Madame", "MOREAU Claire", "92100 Boulogne", "06 34 56 78 90"},
    {"Melle", "SIMON Chloé", "75015 Paris", "07 45 67 89 01"},
    {"Madame", "LAURENT Hélène", "94300 Vincennes", "06 56 78 90 12"},
    {"Monsieur", "LEFEBVRE Marc", "75020 Paris", "06 67 89 01 23"},
    {"Madame", "MICHEL Anne", "93100 Montreuil", "06 78 90 12 34"},
    {"Madame", "GARCIA Isabelle", "75011 Paris", "07 89 01 23 45"},
    {"Monsieur", "DAVID Thomas", "75010 Paris", "06 90 12 34 56"},
    {"Madame", "BERTRAND Sylvie", "75019 Paris", "06 01 23 45 67"},
    {"Melle", "ROUX Manon", "92130 Issy", "07 11 22 33 44"},
    {"Madame", "VINCENT Nathalie", "75011 Paris", "06 22 33 44 55"},
    {"Monsieur", "FOURNIER Luc", "75012 Paris", "06 33 44 55 66"},
    {"Madame", "MOREL Catherine", "94000 Créteil", "06 44 55 66 77"},
    {"Madame", "GIRARD Sandrine", "75020 Paris", "06 55 66 77 88"},
    {"Monsieur", "ANDRÉ Nicolas", "75011 Paris", "06 66 77 88 99"},
    {"Madame", "MERCIER Valérie", "93200 Saint-Denis", "06 77 88 99 00"},
    {"Melle", "BLANC Julie", "75018 Paris", "07 88 99 00 11"},
    {"Madame", "GUERIN Sophie", "75017 Paris", "06 99 00 11 22"},
    {"Monsieur", "BOYER Antoine", "92200 Neuilly", "06 10 20 30 40"},
    {"Madame", "GARNIER Agnès", "75011 Paris", "06 20 30 40 50"},
    {"Madame", "CHEVALIER Martine", "75004 Paris", "06 30 40 50 60"},
    {"Melle", "FRANÇOIS Emma", "75003 Paris", "07 40 50 60 70"},
    {"Monsieur", "LEGRAND Pierre", "75011 Paris", "06 50 60 70 80"},
    {"Madame", "GAUTHIER Brigitte", "94200 Ivry", "06 60 70 80 90"},
    {"Madame", "PERRIN Céline", "75013 Paris", "06 70 80 90 00"},
    {"Monsieur", "ROBIN Hugo", "75014 Paris", "06 80 90 00 10"},
    {"Madame", "CLÉMENT Odile", "75011 Paris", "06 90 00 10 20"},
    {"Madame", "MORIN Patricia", "92300 Levallois", "06 05 15 25 35"},
    {"Melle", "NICOLAS Léna", "75016 Paris", "07 15 25 35 45"},
};

// Soft label colours, 0x00BBGGRR.
const std::int32_t palette[] = {0xC0E0FF, 0xFFE0C0, 0xC0FFC0, 0xE0C0FF,
                                0xC0FFFF, 0xFFC0E0, 0xD0D0FF, 0xB0F0E0};

void ecrit_texte(const QString& nom, const QStringList& lignes) {
    QFile f(nom);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate))
        throw Erreur(QStringLiteral("Impossible d'écrire %1").arg(nom));
    for (const QString& l : lignes)
        f.write(octets::vers_cp1252(l) + "\r\n");
}

void ecrit_catalogue() {
    FichierRecords f;
    f.ouvre(QStringLiteral("w_arr104.wdo"), RecArr::longueur);
    RecArr entete;
    entete.pose(RecArr::nb_arr, std::int32_t(std::size(services)));
    ecrit_record(f, 1, entete);
    int i = 0;
    for (const auto& s : services) {
        RecArr r;
        r.pose(RecArr::code_arr, QStringLiteral("PRE%1").arg(++i, 3, 10, QLatin1Char('0')));
        r.pose(RecArr::nom_arr, QString::fromUtf8(s.nom));
        r.pose(RecArr::info_arr, motif_zeros(s.minutes, 3));
        ecrit_record(f, i + 1, r);
    }
}

void ecrit_clients() {
    FichierRecords f;
    f.ouvre(QStringLiteral("W_CAI038.WDO"), RecCli::longueur);
    RecCli entete;
    entete.pose(RecCli::dernier_client, std::int32_t(std::size(clients) + 1));
    ecrit_record(f, 1, entete);
    const auto nouveau = [](int n) {
        RecCli r;
        r.pose(RecCli::code_client, motif_zeros(n, 4));
        r.pose(RecCli::marque_258, 9);
        return r;
    };
    RecCli divers = nouveau(1);
    divers.pose(RecCli::nom_client, u"Clients Divers");
    ecrit_record(f, 2, divers);
    int n = 1;
    for (const auto& c : clients) {
        RecCli r = nouveau(++n);
        r.pose(RecCli::nom_client, QString::fromUtf8(c.nom));
        r.pose(RecCli::adresse1, QStringLiteral("%1 rue de la Roquette").arg(n * 3));
        r.pose(RecCli::code_ville, QString::fromUtf8(c.ville));
        r.pose(RecCli::telephone, QString::fromUtf8(c.telephone));
        r.pose(RecCli::titre, QString::fromUtf8(c.titre));
        const bool homme = QByteArray(c.titre) == "Monsieur";
        r.pose(RecCli::sexe, std::int16_t(homme ? 2 : 1));
        ecrit_record(f, n + 1, r);
    }
}

void ecrit_rendez_vous_collab(int collab, QRandomGenerator& rng) {
    FichierRecords f;
    f.ouvre(nom_fichier_rv(std::int16_t(collab), false), RecRv::longueur);
    const Date aujourdhui = std::floor(ui::date_maintenant());
    for (int ecart = -3; ecart <= 3; ++ecart) {
        const Date jour = aujourdhui + ecart;
        if (ui::jour_semaine(jour) == 1 && ecart != 0) // closed on Sundays, but for today's demo
            continue;
        int minute = (8 + int(rng.bounded(2))) * 60 + 30 * int(rng.bounded(2));
        while (minute < 18 * 60) {
            const auto& s = services[rng.bounded(int(std::size(services)))];
            const int client = 2 + int(rng.bounded(int(std::size(clients))));
            // Today, two o'clock stays free for a walk-in, and four o'clock but for the first
            // collaborator, for an appointment moved from the planning.
            const int libre = ecart != 0 ? -1 : minute < 15 * 60 ? 14 : collab > 1 ? 16 : -1;
            if (libre >= 0 && minute < (libre + 1) * 60 && minute + s.minutes > libre * 60) {
                minute = (libre + 1) * 60;
                continue;
            }
            const int fin = minute + s.minutes;
            const std::int32_t n = alloue_numero(f);
            RecRv r = lit_record<RecRv>(f, n + 1);
            r.pose(RecRv::cle_rv,
                   cle_rendez_vous(jour, motif_zeros(minute / 60, 2), motif_zeros(minute % 60, 2),
                                   motif_zeros(fin / 60, 2), motif_zeros(fin % 60, 2)));
            r.pose(RecRv::texte_rv, QString::fromUtf8(s.nom) + QStringLiteral(" - ") +
                                        QString::fromUtf8(clients[client - 2].nom));
            r.pose(RecRv::duree_rv, s.minutes);
            r.pose(RecRv::num_client, client);
            r.pose(RecRv::code_jour, code_jour(jour));
            r.pose(RecRv::couleur_rv, palette[rng.bounded(int(std::size(palette)))]);
            r.pose(RecRv::encadre_rv, rng.bounded(5) == 0 ? 1 : 0);
            ecrit_record(f, n + 1, r);
            // A pause now and then, rounded to the quarter hour.
            minute = fin + 15 * int(rng.bounded(3));
            minute = (minute + 14) / 15 * 15;
        }
    }
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage : agenda_demo DOSSIER\n");
        return 2;
    }
    try {
        const QString dossier = QString::fromLocal8Bit(argv[1]);
        if (!QDir().mkpath(dossier) || !QDir::setCurrent(dossier))
            throw Erreur(QStringLiteral("Dossier inutilisable : %1").arg(dossier));
        QStringList lignes;
        for (const char* c : collaborateurs)
            lignes << QString::fromUtf8(c);
        ecrit_texte(QStringLiteral("lien_agenda.txt"), lignes);
        {
            FichierRecords f;
            f.ouvre(QStringLiteral("w_cai020.wdo"), RecTxt20::longueur);
            RecTxt20 clavier;
            clavier.pose(RecTxt20::texte, u"0");
            ecrit_record(f, 42, clavier);
        }
        ecrit_catalogue();
        ecrit_clients();
        ecrit_param(QStringLiteral("TORVA:HEURE"), QStringLiteral("08:13:19:030"));
        ecrit_inter(QStringLiteral("TORVA:NUMUSER"), QStringLiteral("0001 Sophie Martin"));
        QRandomGenerator rng(2004);
        for (int c = 1; c <= 4; ++c)
            ecrit_rendez_vous_collab(c, rng);
        ferme_tous_les_canaux();
        std::printf("Dossier de démonstration prêt : %s\n", qPrintable(QDir::currentPath()));
        return 0;
    } catch (const Erreur& e) {
        ferme_tous_les_canaux();
        std::fprintf(stderr, "agenda_demo : %s\n", qPrintable(e.message()));
        return 1;
    }
}
