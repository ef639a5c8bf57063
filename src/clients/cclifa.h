#pragma once
// The client card: one client's name, addresses, town, telephone, title, birth date and
// statistics class, for the number in num_client_courant. It has no cancel: its button and
// Escape both save, and only the eight fields the book owns change in the record.

#include "ui/geometrie.h"
#include "ui/modale.h"

#include <array>
#include <cstdint>
#include <QString>
#include <QStringList>

namespace agenda {

class Cclifa : public ui::FenetreModale {
public:
    // Every step under a trap: a damaged record or a missing picture still gives a card.
    void Form_Load() override;
    // Escape, or the window's close: saves, as the button does.
    void sortie() override { picture4_Click(); }

    void picture4_Click();
    void sexe_Click(int index);
    void select_sexe();

    // The text fields, in the order of the card, with what typing may put into each: a longer
    // text the point-of-sale program wrote shows whole and stays unless it is edited.
    enum Champ { nom, adresse1, adresse2, ville, telephone, naissance, nb_champs };
    struct Saisie {
        const char* libelle;
        int limite;
        ui::RectTwips rect;
    };
    static const std::array<Saisie, nb_champs> saisies;
    std::array<QString, nb_champs> Text; // Text1, Text2, Text3, Text4, Text7, Text5
    // What the operator typed into a field; refused when it grows past the field's limit.
    void Text_Change(Champ c, const QString& texte);

    QString Combo11; // the title, any text
    static QStringList Combo11_liste();
    QString Label3; // the statistics class, 1 to 4

    // The frame round each class icon.
    struct Cadre {
        int largeur = 1;
        std::int32_t couleur = 0; // 0x00BBGGRR
        bool pointille = true;
    };
    std::array<Cadre, 4> Shape2;

    // Where things stand, in twips of the card.
    static constexpr int largeur = 10200, hauteur = 9000;
    static constexpr ui::RectTwips titre_rect{700, 560, 6000, 600},
        Image3_rect{7900, 560, 1600, 1300};
    static constexpr ui::RectTwips note_naissance{2900, 4540, 6600, 360};
    static constexpr ui::RectTwips Combo11_rect{2900, 4950, 3000, 420},
        Combo11_label{700, 4950, 2100, 420};
    static constexpr ui::RectTwips note_icones{700, 5500, 8800, 420};
    static constexpr ui::RectTwips sexe(int i) { return {1000 + 1900 * i, 6100, 1300, 1300}; }
    static constexpr ui::RectTwips Shape2_rect(int i) { return {900 + 1900 * i, 6000, 1500, 1500}; }
    static constexpr ui::RectTwips picture4_rect{8000, 7650, 1600, 760};
};

} // namespace agenda
