#include "sms/sms.h"

#include "data/fichier_records.h"
#include "data/formats.h"
#include "data/texte.h"
#include "ui/dates.h"
#include "ui/erreur.h"

#include <cmath>

namespace agenda {

namespace {

// On this platform the sending module's folder is a spool, outside the data folder.
const QString dossier_fixe = QStringLiteral("/var/spool/vigi_sms/");
QString& dossier_choisi() {
    static QString d;
    return d;
}

QString chemin(const char* nom) {
    return dossier_sms() + QLatin1String(nom);
}

void ecrit_slot(int slot, const QString& texte) {
    RecTxt20 r;
    r.pose(RecTxt20::texte, texte);
    ecrit_record(canal::sms_init, slot, r);
}

} // namespace

void champ_sms::pose(QString& texte, Champ c, const QString& valeur) {
    const QString v = valeur.left(c.largeur);
    texte.replace(c.position - 1, v.size(), v);
}

QString dossier_sms() {
    return dossier_choisi().isEmpty() ? dossier_fixe : dossier_choisi();
}

void fixe_dossier_sms(const QString& dossier) {
    dossier_choisi() = dossier;
}

void ouvre_sms() {
    etat.sms_actif = false;
    // The one trap of the SMS side: whatever fails here switches SMS off without a word.
    try {
        FichierRecords& file = canal_fichier(canal::sms_messages);
        file.ferme();
        file.ouvre(chemin("wmesanev.wdo"), RecSms::longueur);
        lit_record<RecSms>(file, 1);
        FichierRecords& reglages = canal_fichier(canal::sms_init);
        reglages.ferme();
        reglages.ouvre(chemin("winit20v.wdo"), RecTxt20::longueur);
        if (lit_slot_sms(slot_sms::init).left(6) != QLatin1String("#INIT#")) {
            ecrit_slot(slot_sms::init, QStringLiteral("#INIT#") +
                                           ui::format_date(ui::date_maintenant(), u"mm-dd-yyyy"));
            for (int s = slot_sms::init + 1; s <= slot_sms::dernier; ++s)
                ecrit_slot(s, QString());
            ecrit_slot(slot_sms::reglage_module, QStringLiteral("60"));
        }
        etat.sms_actif = true;
    } catch (const Erreur&) {
        etat.sms_actif = false;
    }
    etat.texte_retour.clear();
}

QString lit_slot_sms(int slot) {
    return lit_record<RecTxt20>(canal::sms_init, slot).lit(RecTxt20::texte);
}

void ajoute_sms(const QString& texte) {
    ouvre_sms();
    FichierRecords& file = canal_fichier(canal::sms_messages);
    RecSms r = lit_record<RecSms>(file, 1);
    const std::int32_t n = plus_un(r.lit(RecSms::nb_messages));
    r.pose(RecSms::nb_messages, n);
    ecrit_record(file, 1, r);
    r.pose(RecSms::texte_sms, texte);
    r.pose(RecSms::nb_messages, 0);
    r.pose(RecSms::etat_sms, 0);
    r.pose(RecSms::fin_sms, u"\r\n");
    ecrit_record(file, std::int64_t(n) + 1, r);
    file.ferme();
}

QString message_rappel(const Rappel& r, const QString& reglage, const QString& modele,
                       const QString& decalages) {
    using namespace champ_sms;
    // Whole numbers kept as doubles: a slot damaged by hand can hold eleven digits, which no
    // 32-bit sum may take, and the fields cut what they cannot hold.
    const double jours_avant = std::trunc(val(mid1(reglage, 5, 1)));
    const double minutes_avant = std::trunc(val(mid1(reglage, 10)));
    // The minute is brought back once only: far enough before, it stays negative.
    double heure = std::trunc(val(r.heure)), minute = std::trunc(val(r.minute)) - minutes_avant;
    if (minute < 0) {
        minute += 60;
        heure -= 1;
    }
    // The shift of the weekday after the send day: Sunday's cell, at position 1, is never read.
    const Date d = r.jour - jours_avant;
    const Date envoi = d + val(mid1(decalages, 2 * ui::jour_semaine(d) + 1, 2));
    const QString hh = motif_zeros(heure, 2), mm = motif_zeros(minute, 2);

    QString t(500, QLatin1Char(' '));
    pose(t, date_envoi, ui::format_date(envoi, u"yyyymmdd") + hh + mm);
    pose(t, tel_sms, r.numero);
    pose(t, ref_sms, r.reference);
    pose(t, minute_envoi, motif_zeros(heure * 60 + minute, 1));
    pose(t, date_affiche,
         ui::format_date(envoi, u"dd/mm/yyyy") + QStringLiteral("   ") + hh + QLatin1Char(':') +
             mm);
    // Only the first of each code is replaced; the appointment's own time and date.
    QString texte = modele;
    if (const qsizetype i = texte.indexOf(QLatin1String("#HEU#")); i >= 0)
        texte.replace(i, 5, r.heure + QLatin1Char(':') + r.minute);
    if (const qsizetype i = texte.indexOf(QLatin1String("#DAT#")); i >= 0)
        texte.replace(i, 5, ui::format_date(r.jour, u"dd-mm-yyyy"));
    pose(t, message_sms, texte);
    return t;
}

bool queue_rappel(const Rappel& r, const QString& decalages) {
    const QString reglage = lit_slot_sms(slot_sms::rappel);
    if (val(reglage.left(2)) == 0) return false;
    QString modele;
    for (int s = slot_sms::modele; s < slot_sms::modele + slot_sms::pieces_modele; ++s)
        modele += lit_slot_sms(s);
    ajoute_sms(message_rappel(r, reglage, modele, decalages));
    return true;
}

void annule_sms(const QString& reference) {
    ouvre_sms();
    FichierRecords& file = canal_fichier(canal::sms_messages);
    const std::int32_t n = lit_record<RecSms>(file, 1).lit(RecSms::nb_messages);
    parcourt<RecSms>(file, n, [&](std::int32_t i, std::span<const std::uint8_t> octets) {
        if (champ_sms::lit(RecSms::texte_sms.dans(octets), champ_sms::ref_sms) != reference)
            return true;
        RecSms r = record_de<RecSms>(octets);
        r.pose(RecSms::texte_sms, annulee);
        ecrit_record(file, std::int64_t(i) + 1, r);
        return true;
    });
}

} // namespace agenda
