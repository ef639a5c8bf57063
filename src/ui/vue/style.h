#pragma once
// The program's widget style: the platform's own, but for the month control's arrows, which are
// the toolkit's built-in ones on every desktop, as the book draws them, for scroll bars, drawn
// once for each look they take and then copied, and for the marks of the small controls, which
// shrink with the book.

#include <QProxyStyle>
#include <QStyledItemDelegate>

namespace agenda::ui {

class StyleDuLivre : public QProxyStyle {
public:
    QIcon standardIcon(StandardPixmap icone, const QStyleOption* option,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl controle, const QStyleOptionComplex* option, QPainter* g,
                            const QWidget* widget) const override;
    // A check box's mark and a list's arrow shrink with a book shown smaller than it is drawn:
    // at their fixed sizes they left the small controls no room for their text.
    int pixelMetric(PixelMetric mesure, const QStyleOption* option,
                    const QWidget* widget) const override;
    QRect subControlRect(ComplexControl controle, const QStyleOptionComplex* option,
                         SubControl partie, const QWidget* widget) const override;
};

// A grid's cells of plain text on its ground, each drawn once for its look and then copied: the
// style lays a cell's text out three times at every paint.
class CellulesGardees : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* g, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};

} // namespace agenda::ui
