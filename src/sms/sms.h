#pragma once
// The SMS reminders' queue, shared with a separate sending module through two files in a fixed
// folder of their own: wmesanev.wdo, the queue, and winit20v.wdo, its settings. The agenda
// never creates the folder: without it, SMS is switched off silently.

#include "data/etat.h"
#include "data/record.h"

#include <cstdint>
#include <QString>

namespace agenda {

// A queue record, 512 bytes. Record 1 counts the messages ever queued; message n is record
// n + 1.
struct RecSms : Record<512> {
    static constexpr Texte texte_sms{0, 502};
    static constexpr Entier32 nb_messages{502};
    static constexpr Entier32 etat_sms{506}; // 3: cancelled in the SMS manager
    static constexpr Texte fin_sms{510, 2};

    RecSms() { zeros(nb_messages.offset, fin_sms.offset - nb_messages.offset); }
};
static_assert(RecSms::nb_messages.offset == RecSms::texte_sms.fin());
static_assert(RecSms::etat_sms.offset == RecSms::nb_messages.fin());
static_assert(RecSms::fin_sms.offset == RecSms::etat_sms.fin());
static_assert(RecSms::fin_sms.fin() == RecSms::longueur);

// Where the fields of a message stand in texte_sms, from position 1, and their widths.
namespace champ_sms {
struct Champ {
    int position, largeur;
};
inline constexpr Champ date_envoi{1, 12}, tel_sms{20, 15}, ref_sms{50, 20}, minute_envoi{70, 5},
    date_affiche{80, 18}, date_affiche_jour{80, 10}, date_affiche_heure{93, 5},
    message_sms{100, 150};
inline QString lit(const QString& texte, Champ c) {
    return texte.mid(c.position - 1, c.largeur);
}
// At most the field's width replaced: a shorter value leaves what stands behind it.
void pose(QString& texte, Champ c, const QString& valeur);
} // namespace champ_sms

// A cancelled entry's text: two asterisks, the sender passes over it.
inline const QString annulee = QStringLiteral("**");

// The fixed folder, with its separator at the end. Tests put a folder of their own in its place;
// an empty text gives the fixed one back.
QString dossier_sms();
void fixe_dossier_sms(const QString& dossier);

// The slots of winit20v.wdo that the agenda reads or writes.
namespace slot_sms {
inline constexpr int init = 1, reglage_module = 5, rappel = 1100, modele = 1101, pieces_modele = 10,
                     dernier = 2001;
}

// The reference built by the last save (empty without an SMS number), and the one of the
// appointment in the editor (20 blanks for a blank field; empty for a new appointment).
inline QString ref_sms_nouvelle, ref_sms_chargee;
// "DCA:JOUR:PLA": the send day's shift by weekday, as the editor and the settings last read it.
inline QString jours_sms;

// Opens both files, initialising the settings at first use, and sets sms_actif. Any failure
// (the folder missing, typically) leaves sms_actif false, silently.
void ouvre_sms();
// Appends a message behind the counter, and closes the queue.
void ajoute_sms(const QString& texte);
// A slot of the settings file, 20 characters.
QString lit_slot_sms(int slot);

// What a reminder is built from: the appointment as the editor holds it.
struct Rappel {
    QString numero; // the SMS number as typed
    QString reference;
    Date jour = 0;
    QString heure, minute; // the start, as the selectors show it
};
// The queue text of a reminder: the send time from the settings' slot 1100 and the weekday
// shifts of "DCA:JOUR:PLA", the text from the message model.
QString message_rappel(const Rappel& r, const QString& reglage, const QString& modele,
                       const QString& decalages);
// Queues the reminder of a saved appointment when the settings have reminders on; returns
// whether it did.
bool queue_rappel(const Rappel& r, const QString& decalages);
// Every entry with this reference becomes "**" and blanks; etat_sms stays.
void annule_sms(const QString& reference);

} // namespace agenda
