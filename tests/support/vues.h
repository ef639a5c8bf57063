#pragma once
// What the tests of the real widgets share: a gesture on the next modal window, and a key.

#include <functional>
#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QTimer>

namespace agenda::test {

// Acts on the next modal window as soon as it is shown (its load may yield to the event loop
// before it is).
inline void puis(std::function<void(QDialog&)> geste) {
    QWidget* avant = QApplication::activeModalWidget();
    auto* attente = new QTimer;
    QObject::connect(attente, &QTimer::timeout, [attente, avant, geste] {
        auto* d = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!d || d == avant) return;
        attente->stop();
        attente->deleteLater();
        geste(*d);
    });
    attente->start(5);
}

inline void touche(QWidget& w, int touche, const QString& texte = {}) {
    QKeyEvent appui(QEvent::KeyPress, touche, Qt::NoModifier, texte);
    QApplication::sendEvent(&w, &appui);
}

} // namespace agenda::test
