#pragma once
// The settings window: the hours and the standard duration, the clock's model and hands, the
// SMS send day's shift by weekday, the reminder settings of the SMS module, and the list of the
// current file's appointments where stray ones are voided. It takes the book's place, and its
// one button, which saves, gives the book back.

#include "ui/geometrie.h"
#include "ui/modale.h"

#include <array>
#include <cstdint>
#include <QString>
#include <QStringList>
#include <vector>

namespace agenda {

class Toroutils : public ui::FenetreModale {
public:
    static constexpr int horloges = 7;
    static constexpr std::int32_t aiguilh_dessin = 0x000080, aiguilm_dessin = 0x800000;

    void Form_Load() override;
    // Escape or the window's close: the one way out, which saves.
    void sortie() override { command1_Click(); }
    void command1_Click();
    void g1_DblClick(int ligne, int colonne);
    void Image1_Click(int index);
    void sel_horloge();
    void Picture1_MouseDown(std::int32_t couleur); // the hour hand's palette
    void Picture2_MouseDown(std::int32_t couleur); // the minute hand's
    void Text2_Change(const QString& texte);
    void Image2_Click(); // the SMS module's help page
    void Image3_Click() { liste_rv(); }
    void liste_rv();
    void List1_DblClick(int index);

    static QString adresse_aide();

    std::array<QString, 3> Combo1; // opening, rupture, closing: "07 heure"
    QStringList Combo1_liste;
    QString Combo2; // the standard duration, as typed
    QString Label4, Label5, Label8;
    std::int32_t aiguilh = aiguilh_dessin, aiguilm = aiguilm_dessin;
    ui::RectTwips Shape2_rect{};
    std::array<std::array<QString, 7>, 2> g1; // day names, then the shifts
    int Check1 = 0;
    QStringList Combo3_liste;
    int Combo3_index = 0;
    QString Text1 = QStringLiteral("0"), Text2, Label7;
    struct Entree {
        QString texte;
        std::int32_t numero;
    };
    std::vector<Entree> List1; // sorted by text
    bool List1_visible = false;

    // Where things stand, in twips of a window of the book's size.
    static constexpr ui::RectTwips Image1_rect(int i) { return {400 + i * 1100, 3300, 1000, 1000}; }
    static constexpr ui::RectTwips Picture1_rect{400, 5300, 3600, 1000},
        Picture2_rect{4400, 5300, 3600, 1000}, g1_rect{400, 7000, 7700, 760},
        List1_rect{400, 8200, 14500, 1800}, Text2_rect{8600, 3500, 6300, 1300};
};

} // namespace agenda
