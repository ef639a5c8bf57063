#include "ui/vue/style.h"

#include <QImageReader>

namespace agenda::ui {

namespace {

// A picture of the toolkit's, read as the PNG it is: left to guess, the reader would first load
// every image plug-in installed to ask each whether it knows the bytes.
QPixmap png(const QString& chemin) {
    QImageReader lecteur(chemin, "png");
    lecteur.setAutoDetectImageFormat(false);
    return QPixmap::fromImage(lecteur.read());
}

} // namespace

QIcon StyleDuLivre::standardIcon(StandardPixmap icone, const QStyleOption* option,
                                 const QWidget* widget) const {
    // Asked of the icon theme first, they cost the search of its folders at every start, for
    // the month control's first arrow; where the theme has none, these are what it falls back on.
    if (icone != SP_ArrowLeft && icone != SP_ArrowRight)
        return QProxyStyle::standardIcon(icone, option, widget);
    const QString nom = icone == SP_ArrowLeft ? QStringLiteral("left") : QStringLiteral("right");
    QIcon i;
    for (const int taille : {16, 32, 128})
        i.addPixmap(png(QStringLiteral(":/qt-project.org/styles/commonstyle/images/%1-%2.png")
                            .arg(nom)
                            .arg(taille)));
    return i;
}

} // namespace agenda::ui
