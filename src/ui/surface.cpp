#include "ui/surface.h"

#include <cmath>
#include <map>
#include <QFont>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QHash>
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

namespace {

struct Mesures {
    QFontMetricsF metriques;
    QHash<QString, int> largeurs; // of the texts measured in that font
};

// The measures of each font and size the surfaces write in, made once for the program: a day's
// ruling switches between two sizes at every hour, and a text laid character by character is
// measured at each character. Never freed, as a font must not outlive the application.
Mesures& mesures(const QString& police, double taille) {
    static auto* toutes = new std::map<std::pair<QString, double>, Mesures>;
    auto it = toutes->find({police, taille});
    if (it == toutes->end())
        it = toutes
                 ->emplace(std::pair(police, taille),
                           Mesures{QFontMetricsF(police_twips(police, taille)), {}})
                 .first;
    return it->second;
}

} // namespace

int Surface::hauteur_texte(const QString&) const {
    return int(std::lround(mesures(police_, taille_).metriques.height()));
}

int Surface::largeur_texte(const QString& texte) const {
    Mesures& m = mesures(police_, taille_);
    auto it = m.largeurs.find(texte);
    if (it == m.largeurs.end())
        it = m.largeurs.insert(texte, int(std::lround(m.metriques.horizontalAdvance(texte))));
    return *it;
}

} // namespace agenda::ui
