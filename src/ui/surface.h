#pragma once
// A drawing surface in twips. Drawing records what was drawn; the widget that shows the
// surface replays it at the screen's scale, and tests read it back in twips.

#include <algorithm>
#include <cstdint>
#include <QColor>
#include <QFont>
#include <QString>
#include <vector>

namespace agenda::ui {

// 0x00BBGGRR as the files keep colours; 0x800000nn is the system colour nn.
QColor couleur(std::int32_t bbggrr);
// And back: a screen colour as the files keep it.
std::int32_t bbggrr(const QColor& c);

// Font sizes are points; a point is 20 twips.
inline constexpr int twips_par_point = 20;
// A font whose pixel size is its height in twips, so that measures come out in twips whatever
// the screen, and a painter scaled to twips draws it at its size.
QFont police_twips(const QString& nom, double points, bool gras = false);

class Surface {
public:
    struct Trait {
        int x1, y1, x2, y2;
        std::int32_t couleur;
        bool pointille;
        int epaisseur; // twips; 0 is the thinnest line
        bool operator==(const Trait&) const = default;
    };
    struct Texte {
        int x, y; // top-left
        QString texte;
        QString police;
        double taille;
        std::int32_t couleur;
        bool operator==(const Texte&) const = default;
    };
    // A filled box between two corners given in any order, both edges included.
    struct Boite {
        int x1, y1, x2, y2;
        std::int32_t couleur;
        bool contient(int x, int y) const {
            return x >= std::min(x1, x2) && x <= std::max(x1, x2) && y >= std::min(y1, y2) &&
                   y <= std::max(y1, y2);
        }
        bool operator==(const Boite&) const = default;
    };

    void efface();
    void police(const QString& nom) { police_ = nom; }
    void taille_police(double points) { taille_ = points; }
    void couleur_texte(std::int32_t c) { couleur_texte_ = c; }
    void style_pointille(bool oui) { pointille_ = oui; }
    void epaisseur(int twips) { epaisseur_ = twips; }
    void ligne(int x1, int y1, int x2, int y2, std::int32_t couleur);
    void ecrit(int x, int y, const QString& texte);
    void boite(int x1, int y1, int x2, int y2, std::int32_t couleur);
    // Width and height of a text in the current font, in twips.
    int largeur_texte(const QString& texte) const;
    int hauteur_texte(const QString& texte) const;
    // The colour at a point: the last box drawn there, or the surface's own.
    std::int32_t couleur_point(int x, int y) const;

    const std::vector<Trait>& traits() const { return traits_; }
    const std::vector<Texte>& textes() const { return textes_; }
    const std::vector<Boite>& boites() const { return boites_; }
    // The same drawing: what was drawn, whatever the pen is set to now.
    bool meme_dessin(const Surface& autre) const {
        return traits_ == autre.traits_ && textes_ == autre.textes_ && boites_ == autre.boites_;
    }

private:
    QString police_ = QStringLiteral("Arial");
    double taille_ = 8;
    std::int32_t couleur_texte_ = 0;
    bool pointille_ = false;
    int epaisseur_ = 0;
    static constexpr std::int32_t fond_ = 0xFFFFFF; // the surface's own colour
    std::vector<Trait> traits_;
    std::vector<Texte> textes_;
    std::vector<Boite> boites_;
};

} // namespace agenda::ui
