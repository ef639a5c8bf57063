#pragma once
// The appointment editor: one appointment from its record to the window and back, with its
// client panel, the clock that sets its start and the grids that make its duration. This is
// the window's logic; its widgets show these fields and call these handlers.

#include "ui/geometrie.h"
#include "ui/modale.h"

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <QString>
#include <QStringList>
#include <vector>

namespace agenda {

class Detarv : public ui::FenetreModale {
public:
    // The colour of a new appointment: the system's window colour, as its code.
    static constexpr std::int32_t couleur_fenetre = std::int32_t(0x80000005u);
    static constexpr int lignes_services = 50;
    static constexpr int duree_maximum = 800;

    // Every step under a trap that skips it when it fails.
    void Form_Load() override;

    // Load, save and delete. init_rv and charge_rv skip a failing step and go on; sauve_rv has
    // no trap.
    void init_rv();
    void charge_rv();
    void sauve_rv();
    void bt_valid_Click();
    void bt_annul_Click();
    void bt_annull_Click();
    void bt_corr_Click();

    // The client panel and the colour.
    void affiche_client();
    // The client list; a client it asks for is created here, and shown on its card.
    void Image1_Click();
    // The card of the client attached.
    void Image2_Click();
    void Picture1_MouseDown(std::int32_t couleur_du_pixel);
    // On a touch screen, a tap on the text or the SMS number opens the on-screen keyboard in
    // place of typing.
    void Text1_Click();
    void Text2_Click();

    // The clock.
    void charge_horloge();
    void ajuste_heure();
    void affiche_heure();
    void analyse_per();
    void sheur_Click(int i);
    void sminu_Click(int i);
    // The cell of the face under a point in twips of the face: an hour or a minute, and its
    // index. Where two overlap, the one laid last, as they were laid hour then minute for each
    // index in turn.
    struct Cellule {
        bool heure;
        int index;
    };
    std::optional<Cellule> cellule(int x, int y) const;
    void Picture3_Click();
    void picture4_Click();
    void Combo1_Click() { affiche_heure(); }
    void Combo2_Click() { affiche_heure(); }

    // Duration and services.
    void calcul_fin();
    void calcul_duree();
    void Combo3_Click() { calcul_duree(); }
    void Combo4_Click() { calcul_duree(); }
    void Label7_LostFocus() { calcul_fin(); }
    void g1_Click(int ligne);
    void g2_Click(int ligne, int colonne);

    // The selectors' lists: hours "00" to "23", minutes "00" to "55".
    static const QStringList& heures();
    static const QStringList& minutes();

    // Where the controls stand, in twips of the window.
    static constexpr int largeur = 14400, hauteur = 10200;
    static constexpr ui::RectTwips Label4_rect{400, 250, 7000, 550},
        Label13_rect{7600, 250, 6400, 550};
    static constexpr ui::RectTwips Label10_rect{400, 850, 6700, 300},
        Text1_rect{400, 1200, 6700, 2300};
    static constexpr ui::RectTwips Picture1_rect{400, 3600, 4900, 450},
        Check1_rect{5500, 3600, 1600, 450};
    static constexpr ui::RectTwips Label15_rect{400, 4200, 5000, 1250},
        Text2_rect{2000, 5100, 2300, 330};
    static constexpr ui::RectTwips Image1_rect{5500, 4200, 1600, 560},
        Image2_rect{5500, 4850, 1600, 560};
    static constexpr ui::RectTwips g1_rect{400, 5700, 4500, 3700}, g2_rect{5100, 5700, 2000, 1700};
    static constexpr ui::RectTwips Label6_rect{5100, 7550, 2000, 300},
        Label7_rect{5100, 7900, 1100, 420}, Label9_rect{6300, 7900, 800, 420};
    static constexpr ui::RectTwips Label12_rect{400, 9450, 6700, 500};
    static constexpr ui::RectTwips Label11_rect{7600, 850, 6400, 500},
        Picture2_rect{7500, 1400, ui::horloge_largeur, ui::horloge_hauteur};
    static constexpr ui::RectTwips Picture3_rect{12700, 1600, 1400, 480},
        picture4_rect{12700, 2150, 1400, 480};
    static constexpr ui::RectTwips debut_rect{12700, 3000, 1400, 300},
        Combo1_rect{12700, 3300, 680, 420}, Combo2_rect{13420, 3300, 680, 420};
    static constexpr ui::RectTwips fin_rect{12700, 3900, 1400, 300},
        Combo3_rect{12700, 4200, 680, 420}, Combo4_rect{13420, 4200, 680, 420};
    static constexpr ui::RectTwips bt_valid_rect{7600, 6800, 3100, 650},
        bt_annul_rect{10900, 6800, 3100, 650}, bt_annull_rect{7600, 7650, 3100, 650},
        bt_corr_rect{10900, 7650, 3100, 650};

    // The controls.
    QString Label4;                                    // the date in words
    QString Label13 = QStringLiteral("Collaborateur"); // the collaborator
    QString Text1;                                     // the appointment's text
    std::int32_t Text1_couleur = couleur_fenetre;      // and its colour
    QString Combo1, Combo2, Combo3, Combo4;            // start and end, hour and minute
    int Check1 = 0;                                    // "Encadrement"
    int Check2 = 0;                                    // afternoon
    QString Label7;                                    // the duration in minutes
    QString Label9 = QStringLiteral("NO");             // the standard duration still stands
    QString Label14;                                   // the client number
    QString Label15;                                   // the client panel
    QString Text2;                                     // the SMS number
    QString Label8;                                    // the SMS reference as loaded
    bool Image2_visible = false;

    struct LigneService {
        QString nom, minutes, index; // columns 0, 1 and 4
    };
    std::vector<LigneService> g1;
    static const std::array<std::array<const char*, 4>, 4> g2;

    // The clock face and its cells, in twips of the face picture.
    struct Aiguille {
        double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
        std::int32_t couleur = 0;
    };
    QString Label16; // the face number
    int face = 0;
    std::array<ui::RectTwips, 12> sheur{}, sminu{};
    Aiguille aiguilh{0, 0, 0, 0, 0x000080}, aiguilm{0, 0, 0, 0, 0x800000};
    std::int32_t Picture3_fond = 0, picture4_fond = 0;

    // The widgets give the focus back to Text1.
    std::function<void()> focus_texte;

private:
    void lit_horloge();
    void remplit_services();
};

} // namespace agenda
