#include "ui/surface.h"

#include <cmath>
#include <QFont>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPalette>

namespace agenda::ui {

QColor couleur(std::int32_t bbggrr) {
    const auto v = static_cast<std::uint32_t>(bbggrr);
    if (v & 0x80000000u) {
        // The few system colours the files may hold.
        const QPalette p = QGuiApplication::palette();
        switch (v & 0xFF) {
        case 5:
            return p.color(QPalette::Base); // window background
        case 8:
            return p.color(QPalette::Text); // window text
        case 15:
            return p.color(QPalette::Button); // button face
        default:
            return p.color(QPalette::Window);
        }
    }
    return QColor(int(v & 0xFF), int(v >> 8 & 0xFF), int(v >> 16 & 0xFF));
}

std::int32_t bbggrr(const QColor& c) {
    return c.red() | c.green() << 8 | c.blue() << 16;
}

QFont police_twips(const QString& nom, double points, bool gras) {
    QFont f(nom);
    f.setPixelSize(std::max(1, int(std::lround(points * twips_par_point))));
    f.setBold(gras);
    return f;
}

void Surface::efface() {
    traits_.clear();
    textes_.clear();
    boites_.clear();
}

void Surface::ligne(int x1, int y1, int x2, int y2, std::int32_t c) {
    traits_.push_back({x1, y1, x2, y2, c, pointille_, epaisseur_});
}

void Surface::ecrit(int x, int y, const QString& texte) {
    textes_.push_back({x, y, texte, police_, taille_, couleur_texte_});
}

void Surface::boite(int x1, int y1, int x2, int y2, std::int32_t c) {
    boites_.push_back({x1, y1, x2, y2, c});
}

std::int32_t Surface::couleur_point(int x, int y) const {
    const auto b = std::find_if(boites_.rbegin(), boites_.rend(),
                                [&](const Boite& b) { return b.contient(x, y); });
    return b == boites_.rend() ? fond_ : b->couleur;
}

const QFontMetricsF& Surface::mesures() const {
    if (!mesures_ || police_mesuree_ != police_ || taille_mesuree_ != taille_) {
        mesures_.emplace(police_twips(police_, taille_));
        largeurs_.clear();
        police_mesuree_ = police_;
        taille_mesuree_ = taille_;
    }
    return *mesures_;
}

int Surface::hauteur_texte(const QString&) const {
    return int(std::lround(mesures().height()));
}

int Surface::largeur_texte(const QString& texte) const {
    const QFontMetricsF& m = mesures();
    auto it = largeurs_.find(texte);
    if (it == largeurs_.end())
        it = largeurs_.insert(texte, int(std::lround(m.horizontalAdvance(texte))));
    return *it;
}

} // namespace agenda::ui
