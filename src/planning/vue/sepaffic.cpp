#include "planning/vue/sepaffic.h"

#include "ui/vue/echelle.h"
#include "ui/vue/icc.h"
#include "ui/vue/widgets.h"

#include <QPainter>

namespace agenda {

Sepaffic::Sepaffic() : QWidget(nullptr, Qt::FramelessWindowHint) {
    setObjectName(QStringLiteral("sepaffic"));
    setFixedSize(ui::px(7200), ui::px(1800));
    ui::centre_fenetre_haut(*this);
}

void Sepaffic::paintEvent(QPaintEvent*) {
    // Drawn when shown, and only then: the banner is loaded at start but seldom shown.
    QPainter g(this);
    g.drawPixmap(0, 0, ui::icc::couverture(size()));
    g.setFont(ui::police(QStringLiteral("DejaVu Serif"), 20, true));
    g.setPen(QColor(0xc9, 0xa4, 0x4c));
    g.drawText(rect(), Qt::AlignCenter, QStringLiteral("Agenda — le carnet de rendez-vous"));
}

} // namespace agenda
