#include "input/clavv.h"

#include "data/etat.h"
#include "ui/systeme.h"

namespace agenda {

namespace {

const std::array<const char16_t*, 3> dessin_des_couches = {
    u" &é''(-è_çà)+||azertyuiop$|qsdfghjklm*||<wxcvbn,;:!|||||||",
    u" 1234567890°=||AZERTYUIOP£|QSDFGHJKLM%||>WXCVBN?./§|||||||",
    u"  ~#{}`\\^@[] ||ïë€îêôâûù £|          µ||           |||||||",
};

constexpr int cote = 795, pas = 990;

} // namespace

ui::RectTwips Clavv::touche(int i) {
    // The larger keys, and those off the rows, placed by hand.
    struct Placee {
        int touche;
        ui::RectTwips r;
    };
    static constexpr Placee placees[] = {
        {12, {210, 240, cote, cote}},   {13, {12090, 240, 1725, 885}},
        {14, {150, 1200, 1215, 855}},   {38, {12540, 1200, 1275, 1845}},
        {26, {210, 2220, 1275, 855}},   {39, {240, 3240, 1095, cote}},
        {40, {1560, 3240, 735, cote}},  {51, {12360, 3180, 1425, 885}},
        {57, {720, 4230, cote, cote}},  {54, {1830, 4230, cote, cote}},
        {55, {2820, 4230, cote, cote}}, {0, {3900, 4170, 5385, 975}},
        {56, {9510, 4170, 1245, 915}},  {52, {10980, 4200, 855, 885}},
        {53, {12030, 4200, 855, 885}},
    };
    for (const Placee& p : placees)
        if (p.touche == i) return p.r;
    // The others in rows, one every 990 twips.
    const auto rang = [](int premier, int gauche, int haut, int k) {
        return ui::RectTwips{gauche + (k - premier) * pas, haut, cote, cote};
    };
    if (i <= 11) return rang(0, 210, 240, i);
    if (i <= 25) return rang(15, 1500, 1230, i);
    if (i <= 37) return rang(27, 1680, 2250, i);
    return rang(41, 2490, 3240, i);
}

void Clavv::Form_Load() {
    for (std::size_t c = 0; c < dessin_des_couches.size(); ++c)
        couches[c] = QString::fromUtf16(dessin_des_couches[c]);
    // The captions of the design: the first layer, but for the space bar and two keys.
    for (int i = 0; i < touches; ++i) {
        const QChar c = couches[0][i];
        ttoc[std::size_t(i)] = c == fonction ? QString() : QString(c);
    }
    ttoc[0] = QStringLiteral("Espace");
    ttoc[1] = QStringLiteral(".");
    ttoc[3] = QStringLiteral("\"");

    if (const qsizetype bar = etat.mini_texte.indexOf(fonction); bar >= 0) {
        Text1 = etat.mini_texte.mid(bar + 1);
        etat.mini_texte = etat.mini_texte.left(bar);
    }
    Label2 = Text1;
    texte_clav = Text1;
    pos_clav = static_cast<std::int16_t>(Text1.size());
    Text1_curseur = pos_clav;
    Label1 = etat.mini_texte;
    un_coup_clav = 0;
    couche_clav = 0;
    if (etat.mini_mode == mode_nombre) {
        couche_clav = 1;
        affiche_clav();
    }
    ui::cede();
}

void Clavv::affiche_clav() {
    const QString& couche = couches.at(std::size_t(couche_clav));
    for (int i = 0; i < touches; ++i)
        if (couche[i] != fonction) ttoc[std::size_t(i)] = couche[i];
}

void Clavv::Form_KeyPress(int code) {
    if (code == 13) ttoc_Click(valide);
    if (code == 27) ttoc_Click(annule);
}

void Clavv::ttoc_Click(int index) {
    if (index < 0 || index >= touches) return;
    const QChar c = couches.at(std::size_t(couche_clav))[index];
    if (c != fonction) {
        texte_clav.insert(pos_clav, c);
        ++pos_clav;
        if (un_coup_clav == 1) {
            un_coup_clav = couche_clav = 0;
            affiche_clav();
        }
    } else {
        switch (index) {
        case verrouillage:
            couche_clav = couche_clav != 0 ? 0 : 1;
            affiche_clav();
            break;
        case efface:
            if (pos_clav > 0) texte_clav.remove(--pos_clav, 1);
            break;
        case majuscule:
        case alternative:
            if (un_coup_clav != 0) {
                un_coup_clav = couche_clav = 0;
            } else {
                un_coup_clav = 1;
                couche_clav = index == majuscule ? 1 : 2;
            }
            affiche_clav();
            break;
        case efface_tout:
            texte_clav.clear();
            pos_clav = 0;
            break;
        case gauche:
            if (pos_clav > 0) --pos_clav;
            break;
        case droite:
            if (pos_clav < texte_clav.size()) ++pos_clav;
            break;
        case valide:
            etat.mini_texte = Text1; // what the field shows, typed into or not
            ferme();
            return;
        case annule:
            etat.mini_texte = Label2;
            ferme();
            return;
        default: // 51, and the list's keys with no list
            break;
        }
    }
    Text1 = texte_clav;
    Text1_curseur = pos_clav;
}

} // namespace agenda
