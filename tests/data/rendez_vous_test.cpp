#include "data/dossier.h"
#include "data/fichier_records.h"
#include "data/rendez_vous.h"
#include "support/support.h"
#include "ui/dates.h"

using namespace agenda;
using agenda::test::Gabarit;
using agenda::test::rv_entete;
using agenda::test::rv_vierge;

namespace {

const QString fichier = QStringLiteral("tf_r0000.wdo");

QByteArray rv(const char* cle, std::int32_t couleur = 0xFFFFFF, std::int32_t encadre = 0) {
    return rv_vierge()
        .texte(0, 20, cle)
        .texte(20, 402, "texte")
        .i32(446, couleur)
        .i32(450, encadre)
        .texte(510, 2, "\r\n")
        .octets();
}

class Rendezvous : public agenda::test::DossierDonnees {
protected:
    void SetUp() override {
        DossierDonnees::SetUp();
        etat.date_courante = ui::date_de(QDate(2004, 3, 3));
    }
    FichierRecords& f() { return canal_fichier(canal::rv); }
};

} // namespace

TEST_F(Rendezvous, NumeroAlloueEnAjoutant) {
    ouvre_rv();
    EXPECT_EQ(alloue_numero(f()), 1);
    // Record 1 was read past the end: blank texts, so its last two bytes are blanks.
    const QByteArray apres_un =
        rv_vierge().i32(466, 1).octets() + rv_vierge().texte(510, 2, "\r\n").octets();
    EXPECT_EQ(contenu(fichier), apres_un);
    EXPECT_EQ(alloue_numero(f()), 2);
    EXPECT_EQ(contenu(fichier).size(), 3 * 512);
    EXPECT_EQ(contenu(fichier).mid(466, 4), QByteArray("\x02\0\0\0", 4));
}

TEST_F(Rendezvous, EnTeteRepareParLaLongueurSeulementSIlRetarde) {
    struct Cas {
        int records;
        std::int32_t dernier;
        std::int32_t attendu;
    };
    for (const Cas c : {Cas{5, 2, 4}, {3, 9, 9}, {4, 3, 3}, {1, 0, 0}, {0, 0, 0}}) {
        QByteArray octets = c.records ? rv_entete(c.dernier) : QByteArray();
        for (int i = 1; i < c.records; ++i)
            octets += rv("----------");
        ecrit(fichier, octets);
        ouvre_rv();
        charge_journee();
        EXPECT_EQ(etat.nb_jour(), 0);
        const QByteArray apres = contenu(fichier);
        EXPECT_EQ(apres.size(), c.records * 512);
        EXPECT_EQ(apres.mid(466, 4), c.records ? rv_entete(c.attendu).mid(466, 4) : QByteArray())
            << c.records << " " << c.dernier;
        EXPECT_EQ(apres.mid(512), octets.mid(512)); // nothing else written
    }
}

TEST_F(Rendezvous, LeBalayageDuJourPasseSurLesAnnulesEtLesClesAbimees) {
    ecrit(fichier, rv_entete(9) + rv("040303:14H00:15H00", 0xC0C0FF, 1) // 1
                       + rv("----------")                               // 2: deleted in the editor
                       + rv("--------------------")                     // 3: deleted from the list
                       + rv("")                                         // 4: transferred
                       + rv("040304:09H00:09H30")                       // 5: another day
                       + rv("0403xx:09H00:09H30")                       // 6: damaged date
                       + rv("040303:09H30:10H15", 12632256)             // 7
                       + rv("040303garbage")        // 8: matched on six characters
                       + rv("040303:09H30:10H15")); // 9: same key again
    ouvre_rv();
    charge_journee();
    ASSERT_EQ(etat.nb_jour(), 4);
    EXPECT_EQ(etat.liste_jour[0], QStringLiteral("040303:14H00:15H00 000001:1xxxxxxxxx:12632319"));
    EXPECT_EQ(etat.liste_jour[1], QStringLiteral("040303:09H30:10H15 000007:0xxxxxxxxx:12632256"));
    EXPECT_EQ(etat.liste_jour[2].left(26), QStringLiteral("040303garbage      000008:"));
    EXPECT_EQ(entree_jour::numero(etat.liste_jour[3]), 9);
    EXPECT_EQ(entree_jour::heure_debut(etat.liste_jour[1]), QStringLiteral("09H30"));
    EXPECT_EQ(entree_jour::heure_fin(etat.liste_jour[1]), QStringLiteral("10H15"));
    EXPECT_TRUE(entree_jour::encadre(etat.liste_jour[0]));
}

TEST_F(Rendezvous, FichierCourtOuJourneeDePlusDeDeuxCents) {
    // The header says 5, but the file ends in the middle of record 3.
    ecrit(fichier, rv_entete(5) + rv("040303:08H00:09H00") + rv("040303:10H00:11H00").left(100));
    ouvre_rv();
    charge_journee();
    ASSERT_EQ(etat.nb_jour(), 2);
    EXPECT_EQ(entree_jour::numero(etat.liste_jour[1]), 2);

    QByteArray octets = rv_entete(250);
    for (int i = 0; i < 250; ++i)
        octets += rv("040303:10H00:11H00");
    ecrit(fichier, octets);
    charge_journee();
    EXPECT_EQ(etat.nb_jour(), 250);
    EXPECT_EQ(contenu(fichier), octets);
}

TEST_F(Rendezvous, RechercheDeNoteParCle) {
    etat.num_collab = 7;
    ecrit(QStringLiteral("tf_a0007.wdo"),
          rv_entete(4) + rv("SE:040301") + rv("JO:040303") + rv("JO:040303") + rv("JO:040304"));
    ouvre_notes();
    EXPECT_EQ(cherche_note(QStringLiteral("JO:040303")), 2);
    EXPECT_EQ(cherche_note(QStringLiteral("SE:040301")), 1);
    EXPECT_EQ(cherche_note(QStringLiteral("JO:040305")), 0);
}
