#pragma once
// The program's widget style: the platform's own, but for the month control's arrows, which are
// the toolkit's built-in ones on every desktop, as the book draws them, and for scroll bars,
// drawn once for each look they take and then copied.

#include <QProxyStyle>
#include <QStyledItemDelegate>

namespace agenda::ui {

class StyleDuLivre : public QProxyStyle {
public:
    QIcon standardIcon(StandardPixmap icone, const QStyleOption* option,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl controle, const QStyleOptionComplex* option, QPainter* g,
                            const QWidget* widget) const override;
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
