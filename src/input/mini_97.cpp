#include "input/mini_97.h"

#include "data/etat.h"
#include "data/texte.h"

namespace agenda {

void Mini97::Form_Load() {
    if (etat.mini_mode == mode_texte) {
        btc2_rect.top += agrandissement;
        btc3_rect.top += agrandissement;
        hauteur += agrandissement;
        Text1_visible = true;
    }
    // The text behind the bar goes to the field in every mode; only text mode shows it.
    if (const qsizetype bar = etat.mini_texte.indexOf(barre); bar >= 0) {
        Text1 = etat.mini_texte.mid(bar + 1);
        etat.mini_texte = etat.mini_texte.left(bar);
    }
    Label1 = etat.mini_texte;
}

void Mini97::Text1_Change(const QString& texte) {
    Text1 = texte;
    for (QChar& c : Text1)
        if (c.unicode() < 32 && c.unicode() != 8) c = QLatin1Char(' ');
}

void Mini97::btc_Click(int index) {
    etat.mini_mode = index == 2 ? 6 : 7;
    etat.mini_texte = sans_blancs(Text1);
    ferme();
}

std::int32_t demande(const QString& message, std::int32_t mode) {
    etat.mini_mode = mode;
    etat.mini_texte = message;
    Mini97 boite;
    ui::montre_modal(boite);
    return etat.mini_mode;
}

} // namespace agenda
