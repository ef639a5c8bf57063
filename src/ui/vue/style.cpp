#include "ui/vue/style.h"

#include <QIconEngine>
#include <QImageReader>
#include <QPainter>

namespace agenda::ui {

namespace {

// A picture of the toolkit's, read as the PNG it is: left to guess, the reader would first load
// every image plug-in installed to ask each whether it knows the bytes.
QPixmap png(const QString& chemin) {
    QImageReader lecteur(chemin, "png");
    lecteur.setAutoDetectImageFormat(false);
    return QPixmap::fromImage(lecteur.read());
}

// An arrow at 16, 32 and 128 pixels, as the toolkit's icon of those three files, but for the
// 128 pixels one, read only when a size above 32 is asked: its decoding was a millisecond of
// every start, and it serves on screens of twice the usual density or more only. The icon of
// pixmaps picks the smallest at least as large as the size asked, so that up to 32 the two
// small ones give what the three would.
class Fleche : public QIconEngine {
public:
    explicit Fleche(QString nom) : nom_(std::move(nom)) {
        for (const int taille : {16, 32})
            petites_.addPixmap(png(chemin(taille)));
    }
    QPixmap pixmap(const QSize& taille, QIcon::Mode mode, QIcon::State etat) override {
        return icone(taille).pixmap(taille, 1.0, mode, etat);
    }
    void paint(QPainter* g, const QRect& r, QIcon::Mode mode, QIcon::State etat) override {
        const qreal dpr = g->device() ? g->device()->devicePixelRatio() : 1.0;
        g->drawPixmap(r, pixmap(r.size() * dpr, mode, etat));
    }
    QSize actualSize(const QSize& taille, QIcon::Mode, QIcon::State) override {
        // The smallest picture at least as large, or the largest, scaled down to fit.
        const int aire = taille.width() * taille.height();
        int cote = 128;
        for (const int c : {32, 16})
            if (c * c >= aire) cote = c;
        QSize reelle(cote, cote);
        if (reelle.width() > taille.width() || reelle.height() > taille.height())
            reelle.scale(taille, Qt::KeepAspectRatio);
        return reelle;
    }
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State etat) override {
        if (mode != QIcon::Normal || etat != QIcon::Off) return {};
        return {{16, 16}, {32, 32}, {128, 128}};
    }
    bool isNull() override { return false; }
    QIconEngine* clone() const override { return new Fleche(*this); }

private:
    QString chemin(int taille) const {
        return QStringLiteral(":/qt-project.org/styles/commonstyle/images/%1-%2.png")
            .arg(nom_)
            .arg(taille);
    }
    QIcon& icone(QSize taille) {
        if (taille.width() * taille.height() <= 32 * 32) return petites_;
        if (toutes_.isNull()) {
            toutes_ = petites_;
            toutes_.addPixmap(png(chemin(128)));
        }
        return toutes_;
    }
    QString nom_;
    QIcon petites_, toutes_;
};

} // namespace

QIcon StyleDuLivre::standardIcon(StandardPixmap icone, const QStyleOption* option,
                                 const QWidget* widget) const {
    // Asked of the icon theme first, they cost the search of its folders at every start, for
    // the month control's first arrow; where the theme has none, these are what it falls back on.
    if (icone != SP_ArrowLeft && icone != SP_ArrowRight)
        return QProxyStyle::standardIcon(icone, option, widget);
    return QIcon(
        new Fleche(icone == SP_ArrowLeft ? QStringLiteral("left") : QStringLiteral("right")));
}

} // namespace agenda::ui
