#include "ui/vue/boutons.h"

#include "ui/vue/echelle.h"
#include "ui/vue/icc.h"

#include <QToolButton>

namespace agenda::ui {

QToolButton* bouton_image(QWidget& parent, const RectTwips& r, bool oui,
                          std::function<void()> clic) {
    auto* b = new QToolButton(&parent);
    place(*b, r);
    b->setAutoRaise(true);
    b->setIcon(icc::bouton(oui, b->size()));
    b->setIconSize(b->size());
    b->setToolTip(oui ? QStringLiteral("Oui") : QStringLiteral("Non"));
    QObject::connect(b, &QToolButton::clicked, b, std::move(clic));
    return b;
}

QToolButton* fleche_jour(QWidget& parent, const RectTwips& r, bool precedent,
                         std::function<void()> clic, Pas pas) {
    auto* b = new QToolButton(&parent);
    place(*b, r);
    b->setAutoRaise(true);
    b->setCursor(Qt::PointingHandCursor);
    b->setIcon(icc::fleche(precedent, b->size()));
    b->setIconSize(b->size());
    static const QString aides[3][2] = {
        {QStringLiteral("Jour précédent"), QStringLiteral("Jour suivant")},
        {QStringLiteral("Semaine précédente"), QStringLiteral("Semaine suivante")},
        {QStringLiteral("Année précédente"), QStringLiteral("Année suivante")}};
    b->setToolTip(aides[int(pas)][precedent ? 0 : 1]);
    QObject::connect(b, &QToolButton::clicked, b, std::move(clic));
    return b;
}

} // namespace agenda::ui
