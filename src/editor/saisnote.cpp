#include "editor/saisnote.h"

#include "data/dossier.h"
#include "data/etat.h"
#include "data/fichier_records.h"
#include "data/formats.h"
#include "data/record.h"
#include "data/rendez_vous.h"
#include "data/texte.h"
#include "input/mini_97.h"
#include "ui/systeme.h"

namespace agenda {

void Saisnote::Form_Load() {
    left = etat.note_x;
    top = etat.note_y;
    // The first note under the key: two stand under one only when two workstations created it
    // at the same moment.
    const Note note = lit_note(etat.cle_note);
    etat.num_note = en_i16(note.numero, QStringLiteral("le numéro de la note"));
    if (note.numero > 0) {
        Text1 = sans_blancs(note.rec.lit(RecRv::texte_rv));
        Text1_encre = note.rec.lit(RecRv::encadre_rv);
        Text1_fond = note.rec.lit(RecRv::couleur_rv);
    }
}

void Saisnote::bt_ok_Click() {
    if (!frein_du_clic()) return;
    etat.texte_note = sans_blancs(Text1);
    if (!etat.texte_note.isEmpty() || etat.num_note != 0) {
        ouvre_notes();
        auto& f = canal_fichier(canal::notes);
        // A note is changed in its record, read again, and its key stays; an emptied text is
        // written blank and the note is found again. A new one is written whole in one write
        // after the header: two workstations that drew the same number get two records, and
        // the scan finds the first.
        const std::int64_t r = etat.num_note != 0 ? std::int64_t(etat.num_note) + 1 : 0;
        RecRv note = r != 0 ? lit_record<RecRv>(f, r) : RecRv();
        note.pose(RecRv::texte_rv, etat.texte_note);
        note.pose(RecRv::couleur_rv, Text1_fond);
        note.pose(RecRv::encadre_rv, Text1_encre);
        if (r != 0) {
            ecrit_record(f, r, note);
        } else {
            note.pose(RecRv::cle_rv, etat.cle_note);
            note.pose(RecRv::fin_rec, u"\r\n");
            etat.num_note =
                en_i16(ajoute_numerote(f, note), QStringLiteral("le numéro de la note"));
        }
        ui::cede();
    }
    etat.num_note = 0;
    canal_fichier(canal::notes).ferme();
    ui::cede();
    ferme();
    ui::cede();
}

void Saisnote::bt_annul_Click() {
    if (demande(QStringLiteral("Confirmez l'annulation de cette note ?"), 4) != 6) return;
    Text1.clear();
    ui::cede();
    bt_ok_Click();
}

} // namespace agenda
