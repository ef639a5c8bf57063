#include "ui/vue/style.h"

namespace agenda::ui {

QIcon StyleDuLivre::standardIcon(StandardPixmap icone, const QStyleOption* option,
                                 const QWidget* widget) const {
    // Asked of the icon theme first, they cost the search of its folders at every start, for
    // the month control's first arrow; where the theme has none, these are what it falls back on.
    if (icone != SP_ArrowLeft && icone != SP_ArrowRight)
        return QProxyStyle::standardIcon(icone, option, widget);
    const QString nom = icone == SP_ArrowLeft ? QStringLiteral("left") : QStringLiteral("right");
    QIcon i;
    for (const int taille : {16, 32, 128})
        i.addFile(QStringLiteral(":/qt-project.org/styles/commonstyle/images/%1-%2.png")
                      .arg(nom)
                      .arg(taille),
                  QSize(taille, taille));
    return i;
}

} // namespace agenda::ui
