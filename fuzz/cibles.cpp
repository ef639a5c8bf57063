// libFuzzer targets over every reader of the data folder. The input is the content of the
// files (a whole folder is split into its files); whatever it holds, the program must end each
// run by a result or by a clean error (Erreur), never by a crash, undefined behaviour, a hang or
// a large allocation. One target per CIBLE, built from this one file.

#include "book/torva1.h"
#include "clients/cclifa.h"
#include "clients/client.h"
#include "clients/lit_cli.h"
#include "data/dossier.h"
#include "data/etat.h"
#include "data/fichier_records.h"
#include "data/formats.h"
#include "data/param.h"
#include "data/rendez_vous.h"
#include "data/texte.h"
#include "editor/detarv.h"
#include "editor/inter.h"
#include "editor/saisnote.h"
#include "input/mini_97.h"
#include "planning/torva11.h"
#include "search/torvar.h"
#include "settings/toroutils.h"
#include "sms/sms.h"
#include "sms/verifsmss.h"
#include "ui/dates.h"
#include "ui/erreur.h"
#include "ui/systeme.h"

#include <cstdint>
#include <cstdlib>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <vector>

using namespace agenda;

namespace {

struct Fin {}; // the program's end, which a run must not reach but by an error

void ecrit_fichier(const char* nom, const std::uint8_t* octets, std::size_t n) {
    QFile f(QString::fromLatin1(nom));
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate)) std::abort();
    f.write(reinterpret_cast<const char*>(octets), qint64(n));
}

// The input as several files: each piece is a 2-byte little-endian length, then its bytes.
[[maybe_unused]] void ecrit_dossier(const std::uint8_t* octets, std::size_t n,
                                    std::initializer_list<const char*> noms) {
    for (const char* nom : noms) {
        std::size_t lg = 0;
        if (n >= 2) {
            lg = std::min<std::size_t>(octets[0] | octets[1] << 8, n - 2);
            octets += 2, n -= 2;
        }
        ecrit_fichier(nom, octets, lg);
        octets += lg, n -= lg;
    }
}

template <class Rec>
[[maybe_unused]] void aller_retour(const std::uint8_t* octets, std::size_t n) {
    // A record read and written back is the same bytes: nothing of the other programs is lost.
    ecrit_fichier("r.wdo", octets, std::min<std::size_t>(n, Rec::longueur));
    FichierRecords a, b;
    a.ouvre(QStringLiteral("r.wdo"), Rec::longueur);
    b.ouvre(QStringLiteral("s.wdo"), Rec::longueur);
    const Rec r = lit_record<Rec>(a, 1);
    ecrit_record(b, 1, r);
    if (n >= std::size_t(Rec::longueur) && lit_record<Rec>(b, 1).octets != r.octets) std::abort();
    for (const Texte c : {Texte{0, 15}, Texte{3, 7}}) // a text field, through CP1252 and back
        if (n >= 15 && octets::vers_cp1252(r.lit(c)) !=
                           QByteArray(reinterpret_cast<const char*>(octets) + c.offset, c.largeur))
            std::abort();
}

void une_entree(const std::uint8_t* octets, std::size_t n) {
    etat = Etat{};
    etat.date_courante = ui::date_de(QDate(2004, 3, 3));
#if CIBLE == 1
    aller_retour<RecRv>(octets, n);
    aller_retour<RecParam>(octets, n);
    aller_retour<RecArr>(octets, n);
    aller_retour<RecInter>(octets, n);
    aller_retour<RecCli>(octets, n);
#elif CIBLE == 2
    ecrit_fichier("tf_r0000.wdo", octets, n);
    ecrit_fichier("tf_a0000.wdo", octets, n);
    ouvre_rv();
    std::vector<RecRv> records;
    charge_journee(records);
    ouvre_notes();
    cherche_note(QStringLiteral("JO:040303"));
    alloue_numero(canal_fichier(canal::rv));
    charge_journee(records); // into the room the first load left
    if (records.size() != std::size_t(etat.nb_jour())) std::abort();
    scan_semaine(canal_fichier(canal::rv), etat.date_courante - 2);
    // The week's note read and written over the same bytes.
    etat.cle_note = QStringLiteral("SE:040301");
    Saisnote note;
    note.Form_Load();
    note.Text1 += QStringLiteral(" et suite");
    note.bt_ok_Click();
    // The planning's column of collaborator 0, and the search over the same bytes.
    etat.nb_collab = 1;
    etat.noms_collab[1] = QStringLiteral("00 : Zero");
    etat.heure_debut = 7, etat.heure_fin = 19;
    Torva11 planning;
    planning.Form_Load();
    planning.p1_MouseMove(400, 3000);
    ecrit_fichier("tf_r0001.wdo", octets, n);
    critere_rv = QStringLiteral("co");
    Torvar recherche;
    recherche.recherche_rv();
    recherche.g1_DblClick(1);
#elif CIBLE == 3
    ecrit_fichier("WTORV_IA.WDO", octets, n);
    for (const char* cle : {"TORVA:HEURE", "TORVA:HORL", "DCA:JOUR:PLA", "COUL_FERIE", "COUL_RV"})
        lit_valeur_param(QString::fromLatin1(cle));
    ecrit_param(QStringLiteral("COUL_RV"), QStringLiteral("255"));
    ecrit_param(QStringLiteral("NOUVELLE"), QStringLiteral("1"));
#elif CIBLE == 4
    ecrit_dossier(octets, n, {"W_intlog.wdo", "wrv181ff.wdo"});
    lit_inter(QStringLiteral("TORVA:NUMUSER"));
    ecrit_inter(QStringLiteral("TORVA:RETOUR"), QStringLiteral("caisse"));
    ecrit_rendez_vous(QStringLiteral("Mercredi 03 mars 2004"), QStringLiteral("09"),
                      QStringLiteral("30"));
#elif CIBLE == 5
    ecrit_dossier(octets, n, {"W_CAI038.WDO", "w_arr104.wdo", "tf_r0000.wdo"});
    ouvre_arr();
    lit_nb_services();
    ouvre_rv();
    etat.num_rv = 1;
    Detarv d;
    d.Form_Load();
    ouvre_clients();
    cree_client();
    d.Text1 = QStringLiteral("x");
    d.sauve_rv();
    // The list over whatever the file holds, and the card of its last client.
    LitCli liste;
    liste.Form_Load();
    liste.Text1_Change(QStringLiteral("AB"));
    liste.zlis_Click(1);
    etat.num_client_courant = en_i16(client_alloue);
    Cclifa fiche;
    fiche.Form_Load();
    fiche.picture4_Click();
#elif CIBLE == 6
    ecrit_dossier(octets, n,
                  {"lien_agenda.txt", "WTORV_IA.WDO", "W_intlog.wdo", "tf_r0000.wdo",
                   "w_arr104.wdo", "w_cai020.wdo"});
    Torva1 livre;
    livre.charge();
    livre.Picture3_Click();
    livre.paged_MouseDown(2000, 2000);
#elif CIBLE == 7
    // The SMS module's two files: the manager over the queue, the cancelling scan, a reminder
    // queued, and the settings read and saved.
    ecrit_dossier(octets, n, {"vigi/wmesanev.wdo", "vigi/winit20v.wdo"});
    ouvre_sms();
    if (!etat.sms_actif) return;
    ref_sms_nouvelle = QStringLiteral("06112233440403030930");
    Verifsmss gestionnaire;
    gestionnaire.Form_Load();
    gestionnaire.g1_DblClick(1, 0);
    gestionnaire.g1_DblClick(2, 3);
    gestionnaire.Image1_Click();
    annule_sms(ref_sms_nouvelle);
    queue_rappel({QStringLiteral("0611223344"), ref_sms_nouvelle, etat.date_courante,
                  QStringLiteral("09"), QStringLiteral("30")},
                 QStringLiteral(" 1-1 2"));
    Toroutils reglages;
    reglages.Form_Load();
    reglages.command1_Click();
#endif
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QGuiApplication app(*argc, *argv);
    static QTemporaryDir dossier;
    if (!dossier.isValid() || !QDir::setCurrent(dossier.path())) std::abort();
    ui::fixe_fin([](int) { throw Fin{}; });
    ui::fixe_lanceur([](const QString&) { return true; });
    ui::fixe_horloge([] { return QDateTime(QDate(2004, 3, 3), QTime(10, 0)); });
    // The windows a run may open answer at once, as an operator leaving them.
    ui::scenario<Detarv>([](Detarv& d) { d.bt_valid_Click(); });
    ui::scenario<Mini97>([](Mini97& b) {
        b.Text1_Change(QStringLiteral("Nouveau message"));
        b.btc_Click(2);
    });
    if (!QDir().mkpath(QStringLiteral("vigi"))) std::abort();
    fixe_dossier_sms(QStringLiteral("vigi/"));
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t n) {
    try {
        une_entree(octets, n);
    } catch (const Erreur&) {
        // a clean end of the program, with its French message
    } catch (const Fin&) {
    }
    ferme_tous_les_canaux();
    return 0;
}
