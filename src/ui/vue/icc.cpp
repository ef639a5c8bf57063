#include "ui/vue/icc.h"

#include "ui/geometrie.h"
#include "ui/vue/hasard.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <map>
#include <memory>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QHash>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <span>
#include <vector>

namespace agenda::ui::icc {

namespace {

const QColor cuir_clair(0x7a, 0x22, 0x2a);
const QColor cuir_fonce(0x3b, 0x0c, 0x12);
const QColor or_vieux(0xc9, 0xa4, 0x4c);

// The screens' device pixels to a logical one: the pictures are drawn at the finest screen's.
qreal finesse() {
    return qGuiApp ? qGuiApp->devicePixelRatio() : 1.0;
}

// The pictures are the team's, not records: each is drawn once for its role and size, and kept
// for the life of the program (never freed, as a picture must not outlive the application).
template <class Dessin>
QPixmap garde(const QString& role, QSize t, Dessin&& dessin) {
    static auto* pictures = new QHash<QString, QPixmap>;
    const QString cle =
        role + QStringLiteral("@%1x%2@%3").arg(t.width()).arg(t.height()).arg(finesse());
    auto it = pictures->find(cle);
    if (it == pictures->end()) it = pictures->insert(cle, dessin());
    return *it;
}

// A transparent picture of `t` logical pixels, in the screen's device pixels: drawn in logical
// coordinates, it is as sharp as the screen.
QPixmap vierge(QSize t) {
    const qreal r = finesse();
    QPixmap p(t.expandedTo(QSize(1, 1)) * r);
    p.setDevicePixelRatio(r);
    p.fill(Qt::transparent);
    return p;
}

// A picture drawn anti-aliased on a transparent ground.
template <class Dessin>
QPixmap trace(QSize t, Dessin&& dessine) {
    QPixmap p = vierge(t);
    QPainter g(&p);
    g.setRenderHint(QPainter::Antialiasing);
    dessine(g);
    g.end();
    return p;
}

// The same, kept for its role and size.
template <class Dessin>
QPixmap dessin(const QString& role, QSize t, Dessin&& dessine) {
    return garde(role, t, [&] { return trace(t, dessine); });
}

// The grain's points, grouped by alpha in the order they were drawn: the same at every drawing.
// Each point takes three draws (alpha, y, x) from QRandomGenerator's sequence, each scaled to its
// range as QRandomGenerator::bounded does.
struct Grain {
    // Room for each alpha's points, from their counts: compte[a - 9] for alpha a.
    template <class Compte>
    explicit Grain(const std::array<Compte, 31>& compte) {
        for (std::size_t a = 1; a < compte.size(); ++a)
            debut[a] = debut[a - 1] + compte[a];
        points.resize(debut.back());
    }
    std::vector<QPoint> points;
    std::array<std::size_t, 31> debut{}; // alpha a's points start at debut[a - 10]
    std::span<const QPoint> d_alpha(int a) const {
        return std::span(points).subspan(debut[std::size_t(a - 10)],
                                         debut[std::size_t(a - 9)] - debut[std::size_t(a - 10)]);
    }
};

struct Tire {
    int x, y, alpha;
};

// The points in the order drawn, by blocks of the generator's, each given to `prend(point,
// gardé)` with whether `garde(x, y)` keeps it: all of a block's points are looked at before any
// is taken, so that the looks run together instead of each waiting on the one before.
template <class Garde, class Prend>
void parcourt_grain(QSize t, int densite, Garde&& garde, Prend&& prend) {
    const auto borne = [](std::uint32_t tirage, int haut) {
        return int((std::uint64_t(tirage) * std::uint32_t(haut)) >> 32);
    };
    const auto n = std::size_t(std::max(0, t.width() * t.height() / densite));
    constexpr std::size_t bloc = Mt19937::n / 3;
    Mt19937 hasard(20040303);
    std::array<Tire, bloc> b;
    std::array<bool, bloc> oui;
    for (std::size_t debut = 0; debut < n; debut += bloc) {
        const std::size_t m = std::min(bloc, n - debut);
        const auto& tirage = hasard.suivants();
        for (std::size_t j = 0; j < m; ++j)
            b[j] = {borne(tirage[3 * j + 2], t.width()), borne(tirage[3 * j + 1], t.height()),
                    borne(tirage[3 * j], 30)};
        for (std::size_t j = 0; j < m; ++j)
            oui[j] = garde(b[j].x, b[j].y);
        for (std::size_t j = 0; j < m; ++j)
            prend(b[j], oui[j]);
    }
}

// The points kept, grouped by alpha. Each kept point is written where the next one goes and a
// point turned away moves nothing on: no branch for the processor to mispredict at each random
// place, most of them turned away on the cover.
template <class Garde>
Grain points_du_grain(QSize t, int densite, Garde&& garde) {
    const auto n = std::size_t(std::max(0, t.width() * t.height() / densite));
    const auto tires = std::make_unique_for_overwrite<Tire[]>(n + 1); // the kept only touched
    // Counts of another type than the end's, which their stores then cannot be taken to change.
    std::array<std::uint32_t, 31> compte{};
    std::size_t k = 0;
    parcourt_grain(t, densite, garde, [&](const Tire& p, bool oui) {
        tires[k] = p;
        compte[std::size_t(p.alpha) + 1] += oui;
        k += oui;
    });
    Grain g(compte);
    auto place = g.debut;
    for (std::size_t i = 0; i < k; ++i)
        g.points[place[std::size_t(tires[i].alpha)]++] = QPoint(tires[i].x, tires[i].y);
    return g;
}

// Every point, grouped by alpha: twice through the sequence, each alpha's count and then each
// point in its place, rather than keeping all the points drawn meanwhile.
Grain tout_le_grain(QSize t, int densite) {
    const auto tous = [](int, int) { return true; };
    std::array<std::size_t, 31> compte{};
    parcourt_grain(t, densite, tous,
                   [&](const Tire& p, bool) { ++compte[std::size_t(p.alpha) + 1]; });
    Grain g(compte);
    auto place = g.debut;
    parcourt_grain(t, densite, tous, [&](const Tire& p, bool) {
        g.points[place[std::size_t(p.alpha)]++] = QPoint(p.x, p.y);
    });
    return g;
}

// A point of the grain over a pixel, both premultiplied, as the painter's source over blends a
// pen's point: each channel of the pixel times 255 - alpha over 255, rounded as the raster
// engine does.
QRgb sur(QRgb pixel, QRgb point) {
    constexpr std::uint64_t masque = 0x00ff00ff00ff00ffULL;
    std::uint64_t t = ((std::uint64_t(pixel) | (std::uint64_t(pixel) << 24)) & masque) *
                      std::uint64_t(255 - qAlpha(point));
    t = ((t + ((t >> 8) & masque) + 0x0080008000800080ULL) >> 8) & masque;
    return point + (QRgb(t) | QRgb(t >> 24));
}

// The bytes of a pixel whose grain is blended by hand: ARGB32 premultiplied, or RGB888, opaque;
// none for the formats the painter blends.
int octets_du_pixel(const QImage& image) {
    switch (image.format()) {
    case QImage::Format_ARGB32_Premultiplied:
        return 4;
    case QImage::Format_RGB888:
        return 3;
    default:
        return 0;
    }
}

} // namespace

void grain(QPainter& g, QSize t, int densite, QColor c) {
    // On a picture of the grain's size, at its pixels, the points go straight into the pixels.
    auto* image = dynamic_cast<QImage*>(g.device());
    if (image && octets_du_pixel(*image) != 0 && image->size() == t &&
        g.deviceTransform().type() == QTransform::TxNone && !g.hasClipping() && g.opacity() == 1 &&
        g.compositionMode() == QPainter::CompositionMode_SourceOver) {
        std::vector<Partie> entiere{{image, QPoint(0, 0)}};
        grain_dans(entiere, t, densite, c);
        return;
    }
    const Grain grain = tout_le_grain(t, densite);
    for (int alpha = 10; alpha < 40; ++alpha) {
        const auto points = grain.d_alpha(alpha);
        c.setAlpha(alpha);
        g.setPen(c);
        g.drawPoints(points.data(), int(points.size()));
    }
}

void grain_dans(std::vector<Partie>& parties, QSize entiere, int densite, QColor c) {
    // Each part's pixels and columns in the whole, and the parts that each row crosses: a point
    // looks at those only, and only the points that fall in a part are kept.
    struct Zone {
        std::uint8_t* pixels; // the part's first pixel
        qsizetype ligne;
        int octets;     // a pixel's: 4 premultiplied, or 3 opaque
        int x0, x1, y0; // its columns [x0, x1) and first row in the whole
    };
    std::vector<Zone> zones;
    zones.reserve(parties.size());
    for (const Partie& p : parties)
        zones.push_back({p.image->bits(), p.image->bytesPerLine(), octets_du_pixel(*p.image),
                         p.origine.x(), p.origine.x() + p.image->width(), p.origine.y()});
    // A bit for each pixel of the whole that a part covers: most of the cover's points fall
    // outside its parts, and each is turned away at one look. A single part that is the whole,
    // a page, needs neither this nor the rows' parts.
    const bool une_seule =
        parties.size() == 1 &&
        QRect(parties[0].origine, parties[0].image->size()) == QRect(QPoint(), entiere);
    const auto lignes = std::size_t(une_seule ? 0 : std::max(0, entiere.height()));
    const auto mots = std::size_t(std::max(0, entiere.width()) + 63) / 64;
    std::vector<std::uint64_t> couvert(mots * lignes);
    std::vector<std::vector<const Zone*>> par_ligne(lignes);
    for (std::size_t i = 0; i < parties.size() && !une_seule; ++i) {
        const QRect r =
            QRect(parties[i].origine, parties[i].image->size()) & QRect(QPoint(), entiere);
        for (int y = r.top(); y <= r.bottom(); ++y) {
            par_ligne[std::size_t(y)].push_back(&zones[i]);
            for (int x = r.left(), n = 0; x <= r.right(); x += n) {
                n = std::min(64 - x % 64, r.right() + 1 - x);
                couvert[std::size_t(y) * mots + std::size_t(x) / 64] |=
                    (n == 64 ? ~0ULL : (1ULL << n) - 1) << (x % 64);
            }
        }
    }
    const Grain grain =
        une_seule
            ? tout_le_grain(entiere, densite)
            : points_du_grain(entiere, densite, [&](int x, int y) {
                  return (couvert[std::size_t(y) * mots + std::size_t(x) / 64] >> (x % 64)) & 1;
              });
    const std::vector<const Zone*> toute{une_seule ? &zones[0] : nullptr};
    for (int alpha = 10; alpha < 40; ++alpha) {
        // The pen's colour as the raster engine takes it: premultiplied at 16 bits, then 8.
        c.setAlpha(alpha);
        const QRgb point = qPremultiply(c.rgba64()).toArgb32();
        for (const QPoint& p : grain.d_alpha(alpha))
            for (const Zone* z : une_seule ? toute : par_ligne[std::size_t(p.y())]) {
                if (p.x() < z->x0 || p.x() >= z->x1) continue;
                std::uint8_t* pixel =
                    z->pixels + (p.y() - z->y0) * z->ligne + (p.x() - z->x0) * z->octets;
                if (z->octets == 4) {
                    auto* argb = reinterpret_cast<QRgb*>(pixel);
                    *argb = sur(*argb, point);
                } else {
                    // Red, green, blue in that order, under an alpha that stays whole.
                    const QRgb rgb = sur(qRgb(pixel[0], pixel[1], pixel[2]), point);
                    pixel[0] = std::uint8_t(qRed(rgb));
                    pixel[1] = std::uint8_t(qGreen(rgb));
                    pixel[2] = std::uint8_t(qBlue(rgb));
                }
            }
    }
}

namespace {

const std::array<const char*, 6> titres = {"Jour",     "Semaine",   "Année",
                                           "Planning", "Recherche", "Sortie"};

QPixmap titre_onglet(int i, QSize t, bool gauche) {
    QPixmap p = vierge(t);
    if (i < 0 || i >= int(titres.size())) return p;
    QPainter g(&p);
    g.setRenderHint(QPainter::TextAntialiasing);
    QFont f(QStringLiteral("DejaVu Serif"));
    f.setBold(true);
    // As large as the tab allows, the longest title included: the same for every tab of a size,
    // and each size tried loads a font of its own, so it is found once per size.
    static std::map<std::pair<int, int>, int> tailles;
    auto [taille, nouvelle] = tailles.try_emplace({t.width(), t.height()}, 0);
    if (nouvelle) {
        const auto longueur = [&](int pixels) {
            f.setPixelSize(pixels);
            return QFontMetrics(f).horizontalAdvance(QString::fromUtf8(titres[4]));
        };
        const qreal place = t.height() * 0.85;
        const auto tient = [&](int pixels) { return pixels <= 6 || longueur(pixels) <= place; };
        // The largest size up to the tab's that fits: guessed from the longest title's width in
        // this typeface, about 5.94 times the size, then checked on either side; each size
        // measured loads a font of its own.
        const int plus_grande = std::max(6, t.width() * 9 / 20);
        int essai = std::clamp(int(place / 5.94), 6, plus_grande);
        while (!tient(essai))
            --essai;
        while (essai < plus_grande && tient(essai + 1))
            ++essai;
        taille->second = essai;
    }
    f.setPixelSize(taille->second);
    const QString titre = QString::fromUtf8(titres[std::size_t(i)]);
    g.setFont(f);
    g.setPen(encre);
    // Written along the edge, reading from the page outwards.
    g.translate(t.width() / 2.0, t.height() / 2.0);
    g.rotate(gauche ? -90 : 90);
    g.drawText(QRectF(-t.height() / 2.0, -t.width() / 2.0, t.height(), t.width()), Qt::AlignCenter,
               titre);
    return p;
}

} // namespace

std::vector<QImage> couverture(QSize t, const std::vector<QRect>& parties) {
    t = t.expandedTo(QSize(1, 1));
    QRadialGradient rg(t.width() / 2.0, t.height() / 2.0, std::max(t.width(), t.height()) * 0.7);
    rg.setColorAt(0, cuir_clair);
    rg.setColorAt(1, cuir_fonce);
    std::vector<QImage> images;
    std::vector<Partie> morceaux;
    images.reserve(parties.size());
    for (const QRect& r : parties) {
        QImage& p = images.emplace_back(r.size().expandedTo(QSize(1, 1)),
                                        QImage::Format_ARGB32_Premultiplied);
        p.fill(Qt::transparent);
        QPainter g(&p);
        g.translate(-r.topLeft());
        g.fillRect(QRect(QPoint(), t), rg);
        g.end();
        morceaux.push_back({&p, r.topLeft()});
    }
    grain_dans(morceaux, t, 6, Qt::black);
    for (const Partie& partie : morceaux) {
        // A gilt fillet round the boards.
        QPainter g(partie.image);
        g.translate(-partie.origine);
        const int m = std::max(2, t.width() / 160);
        g.setPen(QPen(or_vieux, std::max(1, m / 3)));
        g.drawRoundedRect(QRectF(m, m, t.width() - 2.0 * m, t.height() - 2.0 * m), m, m);
    }
    return images;
}

QPixmap couverture(QSize t) {
    return garde(QStringLiteral("couverture"), t,
                 [&] { return QPixmap::fromImage(couverture(t, {QRect(QPoint(), t)}).front()); });
}

void page(QPainter& g, QSize t, bool gauche) {
    g.save();
    g.setRenderHint(QPainter::Antialiasing);
    QPainterPath bord;
    const qreal r = t.width() / 60.0;
    bord.addRoundedRect(QRectF(0, 0, t.width(), t.height()), r, r);
    // The paper darkens towards the gutter, where the page curves into the binding.
    QLinearGradient lg(gauche ? t.width() : 0, 0, gauche ? 0 : t.width(), 0);
    lg.setColorAt(0, papier_ombre);
    lg.setColorAt(0.08, papier);
    lg.setColorAt(0.97, papier);
    lg.setColorAt(1, papier_ombre);
    g.fillPath(bord, lg);
    grain(g, t, 40, QColor(0x80, 0x60, 0x30));
    // The edges of the leaves underneath, on the fore-edge side.
    g.setPen(QPen(papier_ombre.darker(110), 1));
    for (int i = 1; i <= 3; ++i) {
        const int x = gauche ? i * 2 : t.width() - 1 - i * 2;
        g.drawLine(x, int(r), x, t.height() - int(r));
    }
    g.restore();
}

QPixmap icone(QSize t) {
    return dessin(QStringLiteral("icone"), t, [&](QPainter& g) {
        // Drawn on a 256 grid: the open book seen from above, on its leather boards.
        g.scale(t.width() / 256.0, t.height() / 256.0);
        g.setPen(Qt::NoPen);
        QLinearGradient cuir(0, 40, 0, 220);
        cuir.setColorAt(0, cuir_clair);
        cuir.setColorAt(1, cuir_fonce);
        g.setBrush(cuir);
        g.drawRoundedRect(QRectF(8, 44, 240, 172), 18, 18);
        g.setPen(QPen(or_vieux, 3));
        g.setBrush(Qt::NoBrush);
        g.drawRoundedRect(QRectF(15, 51, 226, 158), 13, 13);
        // The two pages, curving down into the spine.
        for (const bool gauche : {true, false}) {
            const qreal x = gauche ? 22 : 234, s = gauche ? 1 : -1;
            QPainterPath page;
            page.moveTo(x, 58);
            page.quadTo(x + s * 52, 48, 128, 62);
            page.lineTo(128, 206);
            page.quadTo(x + s * 52, 192, x, 202);
            page.closeSubpath();
            QLinearGradient lg(x, 0, 128, 0);
            lg.setColorAt(0, papier);
            lg.setColorAt(0.85, papier);
            lg.setColorAt(1, papier_ombre);
            g.setPen(QPen(papier_ombre.darker(120), 1.5));
            g.setBrush(lg);
            g.drawPath(page);
            // The day's ruling, and a label at its hour.
            g.setPen(QPen(QColor(0xc0, 0xc0, 0xc0), 2));
            for (int i = 0; i < 6; ++i) {
                const qreal y = 86 + i * 20;
                g.drawLine(QPointF(x + s * 14, y), QPointF(128 - s * 14, y + 2));
            }
        }
        g.setPen(Qt::NoPen);
        g.setBrush(QColor(0xc0, 0xe0, 0xff));
        g.drawRect(QRectF(40, 108, 70, 18));
        g.setBrush(QColor(0xff, 0xc0, 0xc0));
        g.drawRect(QRectF(146, 88, 70, 38));
        // The ribbon over the spine.
        g.setBrush(QColor(0xa0, 0x18, 0x20));
        g.drawPolygon(QPolygonF{{124, 60}, {134, 60}, {134, 236}, {129, 228}, {124, 236}});
    });
}

QPixmap feuille(QSize t) {
    return dessin(QStringLiteral("feuille"), t, [&](QPainter& g) {
        const QRectF r(1, 1, t.width() - 2.0, t.height() - 2.0);
        const qreal coin = std::min(t.width(), t.height()) / 40.0;
        // A thin shadow on the right and below: the sheet lies on the page.
        g.setPen(Qt::NoPen);
        g.setBrush(QColor(0x5a, 0x3a, 0x22, 40));
        g.drawRoundedRect(r.translated(1, 1), coin, coin);
        g.setBrush(papier.lighter(102));
        g.setPen(QPen(papier_ombre.darker(115), 1));
        g.drawRoundedRect(r.adjusted(0, 0, -1, -1), coin, coin);
        grain(g, t, 60, QColor(0x80, 0x60, 0x30));
    });
}

QPicture reliure(QSize t) {
    QPicture p;
    QPainter g(&p);
    QLinearGradient lg(0, 0, t.width(), 0);
    lg.setColorAt(0, papier_ombre.darker(130));
    lg.setColorAt(0.25, cuir_fonce);
    lg.setColorAt(0.5, cuir_clair);
    lg.setColorAt(0.75, cuir_fonce);
    lg.setColorAt(1, papier_ombre.darker(130));
    g.fillRect(QRect(QPoint(), t), lg);
    // Gilt bands at head and tail, and the ribbon marker.
    g.setPen(QPen(or_vieux, std::max(1, t.width() / 20)));
    for (const double y : {0.04, 0.06, 0.94, 0.96})
        g.drawLine(0, int(t.height() * y), t.width(), int(t.height() * y));
    const int rw = std::max(2, t.width() / 6);
    g.fillRect(QRect(t.width() / 2 - rw / 2, int(t.height() * 0.6), rw, int(t.height() * 0.4)),
               QColor(0x9e, 0x1b, 0x1b));
    g.end();
    // The bands' pen reaches past the sides: the picture still lies where its widget does.
    p.setBoundingRect(QRect(QPoint(), t));
    return p;
}

QPixmap p11g(int i, QSize t) {
    return titre_onglet(i, t, true);
}
QPixmap p11d(int i, QSize t) {
    return titre_onglet(i, t, false);
}

QPixmap fleche(bool vers_la_gauche, QSize t) {
    return dessin(QStringLiteral("fleche%1").arg(vers_la_gauche), t, [&](QPainter& g) {
        const qreal w = t.width(), h = t.height();
        QPainterPath tri;
        if (vers_la_gauche) {
            tri.moveTo(w * 0.15, h / 2);
            tri.lineTo(w * 0.85, h * 0.15);
            tri.lineTo(w * 0.85, h * 0.85);
        } else {
            tri.moveTo(w * 0.85, h / 2);
            tri.lineTo(w * 0.15, h * 0.15);
            tri.lineTo(w * 0.15, h * 0.85);
        }
        tri.closeSubpath();
        g.fillPath(tri, cuir_clair);
        g.setPen(QPen(or_vieux, std::max(1.0, w / 24)));
        g.drawPath(tri);
    });
}

QPixmap piece_cadre(int coin, int i, QSize t) {
    return dessin(QStringLiteral("cadre%1-%2").arg(coin).arg(i), t, [&](QPainter& g) {
        const bool vertical = i == 4 || i == 6;
        QLinearGradient lg(0, 0, vertical ? t.width() : 0, vertical ? 0 : t.height());
        lg.setColorAt(0, cuir_fonce);
        lg.setColorAt(0.5, cuir_clair);
        lg.setColorAt(1, cuir_fonce);
        g.fillRect(QRect(QPoint(0, 0), t), lg);
        if (i < 4) {
            // A gilt boss on each corner; larger on the wide frame.
            const qreal d = std::min(t.width(), t.height()) * (coin > 200 ? 0.5 : 0.6);
            g.setBrush(or_vieux);
            g.setPen(Qt::NoPen);
            g.drawEllipse(QRectF((t.width() - d) / 2, (t.height() - d) / 2, d, d));
        }
    });
}

QPixmap bouton(bool oui, QSize t) {
    return dessin(QStringLiteral("bouton%1").arg(oui), t, [&](QPainter& g) {
        const QRectF r(1, 1, t.width() - 2, t.height() - 2);
        g.setBrush(oui ? QColor(0x2e, 0x7d, 0x32) : QColor(0xa3, 0x1f, 0x24));
        g.setPen(QPen(or_vieux, 2));
        g.drawRoundedRect(r, r.height() / 4, r.height() / 4);
        g.setPen(QPen(Qt::white, std::max(2.0, r.height() / 10), Qt::SolidLine, Qt::RoundCap));
        const qreal cx = r.center().x(), cy = r.center().y(), k = r.height() / 4;
        if (oui) {
            g.drawLine(QPointF(cx - k, cy), QPointF(cx - k / 3, cy + k * 0.7));
            g.drawLine(QPointF(cx - k / 3, cy + k * 0.7), QPointF(cx + k, cy - k * 0.7));
        } else {
            g.drawLine(QPointF(cx - k * 0.7, cy - k * 0.7), QPointF(cx + k * 0.7, cy + k * 0.7));
            g.drawLine(QPointF(cx - k * 0.7, cy + k * 0.7), QPointF(cx + k * 0.7, cy - k * 0.7));
        }
    });
}

} // namespace agenda::ui::icc

namespace agenda::ui::icc {

namespace {

struct StyleCadran {
    QColor fond, bord, chiffres;
};

const std::array<StyleCadran, 7> cadrans = {{
    {QColor(0xfb, 0xf6, 0xe8), QColor(0xc9, 0xa4, 0x4c), QColor(0x4a, 0x2c, 0x1a)},
    {QColor(0x2b, 0x2b, 0x3a), QColor(0xc0, 0xc0, 0xc8), QColor(0xf0, 0xf0, 0xf0)},
    {QColor(0xe6, 0xf0, 0xfa), QColor(0x3a, 0x6e, 0xa5), QColor(0x1d, 0x3b, 0x5c)},
    {QColor(0xe9, 0xd3, 0xae), QColor(0x7a, 0x4a, 0x1e), QColor(0x4a, 0x2c, 0x1a)},
    {QColor(0xf4, 0xe4, 0xe4), QColor(0x9e, 0x1b, 0x1b), QColor(0x5a, 0x10, 0x10)},
    {QColor(0xe8, 0xf4, 0xe8), QColor(0x2e, 0x7d, 0x32), QColor(0x1b, 0x4d, 0x1e)},
    {QColor(0xff, 0xff, 0xff), QColor(0x60, 0x60, 0x60), QColor(0x20, 0x20, 0x20)},
}};

} // namespace

QPixmap horloge(int n, QSize t) {
    return garde(QStringLiteral("horloge%1").arg(n), t, [&] {
        QPixmap p = vierge(t);
        const auto face = std::size_t(std::clamp(n, 0, int(cadrans.size()) - 1));
        const StyleCadran& st = cadrans[face];
        const AnneauxHorloge anneaux = anneaux_horloge[face];
        QPainter g(&p);
        g.setRenderHint(QPainter::Antialiasing);
        g.setRenderHint(QPainter::TextAntialiasing);
        g.scale(t.width() / double(horloge_largeur), t.height() / double(horloge_hauteur));
        const QPointF centre(horloge_centre_x, horloge_centre_y);
        QRadialGradient rg(centre, 2500);
        rg.setColorAt(0, st.fond.lighter(104));
        rg.setColorAt(0.9, st.fond);
        rg.setColorAt(1, st.fond.darker(112));
        g.setBrush(rg);
        g.setPen(QPen(st.bord, 90));
        g.drawEllipse(centre, 2460, 2460);
        // The minute dots, where the minute cells lie.
        g.setPen(Qt::NoPen);
        for (int i = 0; i < 12; ++i) {
            const double a = i * 3.1415926 / 6;
            const QPointF c(centre.x() + anneaux.minutes * std::sin(a),
                            centre.y() - anneaux.minutes * std::cos(a));
            g.setBrush(QColor(0x90, 0x90, 0x90));
            g.drawEllipse(c, 90, 90);
        }
        QFont f(QStringLiteral("DejaVu Serif"));
        f.setBold(true);
        f.setPixelSize(380);
        g.setFont(f);
        g.setPen(st.chiffres);
        for (int i = 0; i < 12; ++i) {
            const double a = i * 3.1415926 / 6;
            const QPointF c(centre.x() + anneaux.heures * std::sin(a),
                            centre.y() - anneaux.heures * std::cos(a));
            g.drawText(QRectF(c.x() - 400, c.y() - 300, 800, 600), Qt::AlignCenter,
                       QString::number(i == 0 ? 12 : i));
        }
        g.setBrush(st.bord);
        g.setPen(Qt::NoPen);
        g.drawEllipse(centre, 110, 110);
        return p;
    });
}

QPixmap horloge_sur(int n, QSize t, const QColor& fond) {
    return garde(QStringLiteral("horloge%1-sur-%2").arg(n).arg(fond.rgba()), t, [&] {
        const QPixmap face = horloge(n, t);
        QPixmap p(face.size());
        p.setDevicePixelRatio(face.devicePixelRatio());
        p.fill(fond);
        QPainter g(&p);
        g.drawPixmap(0, 0, face);
        return p;
    });
}

QPixmap palette(QSize t) {
    return garde(QStringLiteral("palette"), t, [&] {
        QPixmap p = vierge(t);
        QPainter g(&p);
        // Soft label colours first, then stronger ones; black last, which the editor refuses.
        const std::array<QColor, 24> teintes = {
            QColor(0xff, 0xc0, 0xc0), QColor(0xff, 0xe0, 0xc0), QColor(0xff, 0xff, 0xc0),
            QColor(0xc0, 0xff, 0xc0), QColor(0xc0, 0xff, 0xff), QColor(0xc0, 0xe0, 0xff),
            QColor(0xe0, 0xc0, 0xff), QColor(0xff, 0xc0, 0xff), QColor(0xe0, 0xe0, 0xe0),
            QColor(0xff, 0xff, 0xff), QColor(0xf0, 0xe6, 0xd2), QColor(0xd2, 0xf0, 0xe6),
            QColor(0xff, 0x80, 0x80), QColor(0xff, 0xb0, 0x60), QColor(0xff, 0xff, 0x60),
            QColor(0x80, 0xff, 0x80), QColor(0x60, 0xe0, 0xe0), QColor(0x80, 0xb0, 0xff),
            QColor(0xb0, 0x80, 0xff), QColor(0xff, 0x80, 0xff), QColor(0xa0, 0xa0, 0xa0),
            QColor(0xc8, 0xa0, 0x78), QColor(0x9e, 0x1b, 0x1b), QColor(0, 0, 0),
        };
        const int n = int(teintes.size());
        for (int i = 0; i < n; ++i) {
            const int x1 = t.width() * i / n, x2 = t.width() * (i + 1) / n;
            g.fillRect(QRect(x1, 0, x2 - x1, t.height()), teintes[std::size_t(i)]);
        }
        g.setPen(QPen(QColor(0x5a, 0x3a, 0x22), 1));
        g.drawRect(QRect(0, 0, t.width() - 1, t.height() - 1));
        return p;
    });
}

QPixmap barre(bool paire, QSize t) {
    return dessin(QStringLiteral("barre%1").arg(paire), t, [&](QPainter& g) {
        const QColor fond = paire ? papier : papier_ombre.lighter(106);
        QLinearGradient lg(0, 0, 0, t.height());
        lg.setColorAt(0, fond.lighter(103));
        lg.setColorAt(1, fond.darker(104));
        const qreal r = t.height() / 5.0;
        g.setBrush(lg);
        g.setPen(QPen(papier_ombre.darker(115), 1));
        g.drawRoundedRect(QRectF(0.5, 0.5, t.width() - 1.0, t.height() - 1.0), r, r);
        // A gilt mark at the end of the row, clear of its text.
        const qreal d = t.height() * 0.22;
        g.setBrush(or_vieux);
        g.setPen(Qt::NoPen);
        g.drawEllipse(QRectF(t.width() - d * 1.6, (t.height() - d) / 2, d, d));
    });
}

QPixmap touche(QSize t) {
    return dessin(QStringLiteral("touche"), t, [&](QPainter& g) {
        const qreal m = std::max(1.0, t.width() / 30.0), r = t.width() / 7.0;
        const QRectF dessous(m, m * 2, t.width() - 2 * m, t.height() - 3 * m);
        g.setPen(Qt::NoPen);
        g.setBrush(cuir_fonce);
        g.drawRoundedRect(dessous, r, r);
        // The cap, lit from above.
        const QRectF dessus(m, m, t.width() - 2 * m, t.height() - 4 * m);
        QLinearGradient lg(0, dessus.top(), 0, dessus.bottom());
        lg.setColorAt(0, papier);
        lg.setColorAt(1, papier_ombre);
        g.setBrush(lg);
        g.setPen(QPen(or_vieux, std::max(1.0, m)));
        g.drawRoundedRect(dessus, r, r);
    });
}

namespace {

// A bust in a round medallion: the clothes and the face, under the hair each class has.
void buste(QPainter& g, QSize t, QColor habit) {
    const qreal w = t.width(), h = t.height();
    g.setPen(Qt::NoPen);
    g.setBrush(papier);
    g.drawEllipse(QRectF(w * 0.03, h * 0.03, w * 0.94, h * 0.94));
    QPainterPath epaules;
    epaules.moveTo(w * 0.18, h * 0.92);
    epaules.cubicTo(w * 0.2, h * 0.68, w * 0.8, h * 0.68, w * 0.82, h * 0.92);
    epaules.closeSubpath();
    g.setBrush(habit);
    g.drawPath(epaules);
    g.setBrush(QColor(0xf1, 0xc8, 0xa4));
    g.drawEllipse(QRectF(w * 0.33, h * 0.24, w * 0.34, h * 0.4));
    // Eyes and a smile.
    g.setBrush(encre);
    for (const qreal x : {0.43, 0.57})
        g.drawEllipse(QPointF(w * x, h * 0.42), w * 0.022, h * 0.022);
    g.setPen(QPen(encre, std::max(1.0, w / 60)));
    g.setBrush(Qt::NoBrush);
    g.drawArc(QRectF(w * 0.43, h * 0.46, w * 0.14, h * 0.09), 200 * 16, 140 * 16);
    g.setPen(Qt::NoPen);
}

} // namespace

QIcon icone_de(const QPixmap& image) {
    // The store's pictures live as long as the program, and no two share a key.
    static auto* icones = new QHash<qint64, QIcon>;
    auto it = icones->find(image.cacheKey());
    if (it == icones->end()) it = icones->insert(image.cacheKey(), QIcon(image));
    return *it;
}

QPixmap visage(int i, QSize t) {
    return dessin(QStringLiteral("visage%1").arg(i), t, [&](QPainter& g) {
        const qreal w = t.width(), h = t.height();
        const std::array<QColor, 4> habits = {QColor(0x9e, 0x1b, 0x5a), QColor(0xd9, 0x6b, 0x9a),
                                              QColor(0x2a, 0x4a, 0x7a), QColor(0x4a, 0x4a, 0x4a)};
        const std::array<QColor, 4> cheveux = {QColor(0x5a, 0x34, 0x1c), QColor(0xc8, 0x96, 0x3c),
                                               QColor(0x2b, 0x1a, 0x10), QColor(0xb8, 0xb8, 0xb8)};
        const auto k = std::size_t(std::clamp(i, 0, 3));
        if (k == 0) {
            // Long hair down to the shoulders, behind the face.
            g.setPen(Qt::NoPen);
            g.setBrush(cheveux[k]);
            g.drawRoundedRect(QRectF(w * 0.26, h * 0.2, w * 0.48, h * 0.56), w * 0.2, w * 0.2);
        }
        buste(g, t, habits[k]);
        g.setBrush(cheveux[k]);
        switch (k) {
        case 0:
            g.drawChord(QRectF(w * 0.3, h * 0.18, w * 0.4, h * 0.3), 0, 180 * 16);
            break;
        case 1:
            // A fringe and a ponytail with its bow.
            g.drawChord(QRectF(w * 0.31, h * 0.19, w * 0.38, h * 0.28), 0, 180 * 16);
            g.drawEllipse(QRectF(w * 0.66, h * 0.24, w * 0.14, h * 0.3));
            g.setBrush(QColor(0x9e, 0x1b, 0x1b));
            g.drawEllipse(QRectF(w * 0.63, h * 0.2, w * 0.1, h * 0.08));
            break;
        case 2:
            g.drawChord(QRectF(w * 0.32, h * 0.2, w * 0.36, h * 0.22), 0, 180 * 16);
            break;
        default:
            // Grey at the temples, and a beard.
            g.drawEllipse(QRectF(w * 0.31, h * 0.32, w * 0.07, h * 0.12));
            g.drawEllipse(QRectF(w * 0.62, h * 0.32, w * 0.07, h * 0.12));
            g.drawChord(QRectF(w * 0.33, h * 0.36, w * 0.34, h * 0.3), 180 * 16, 180 * 16);
            g.setBrush(QColor(0xf1, 0xc8, 0xa4));
            g.drawEllipse(QRectF(w * 0.44, h * 0.5, w * 0.12, h * 0.05));
            break;
        }
        g.setBrush(Qt::NoBrush);
        g.setPen(QPen(or_vieux, std::max(1.0, w / 40)));
        g.drawEllipse(QRectF(w * 0.03, h * 0.03, w * 0.94, h * 0.94));
    });
}

QPixmap nouveau_client(QSize t) {
    return dessin(QStringLiteral("nouveau_client"), t, [&](QPainter& g) {
        const int c = std::min(t.width(), t.height());
        g.drawPixmap((t.width() - c) / 2, 0, visage(2, QSize(c, c)));
        // A green "+" over the medallion's corner.
        const qreal d = c * 0.42;
        const QRectF rond(t.width() / 2.0 + c / 2.0 - d, c - d, d, d);
        g.setPen(QPen(or_vieux, std::max(1.0, c / 40.0)));
        g.setBrush(QColor(0x2e, 0x7d, 0x32));
        g.drawEllipse(rond);
        g.setPen(QPen(Qt::white, std::max(2.0, d / 6), Qt::SolidLine, Qt::RoundCap));
        const QPointF m = rond.center();
        g.drawLine(m - QPointF(d * 0.25, 0), m + QPointF(d * 0.25, 0));
        g.drawLine(m - QPointF(0, d * 0.25), m + QPointF(0, d * 0.25));
    });
}

} // namespace agenda::ui::icc

namespace agenda::ui::icc {

QPixmap transfert(QSize t) {
    return dessin(QStringLiteral("transfert"), t, [&](QPainter& g) {
        const qreal w = t.width(), h = t.height();
        // An appointment's label, and the arrow that carries it to another column.
        g.fillRect(QRectF(w * 0.08, h * 0.2, w * 0.34, h * 0.45), QColor(0xff, 0xe0, 0xc0));
        g.setPen(QPen(encre, std::max(1.0, w / 28)));
        g.drawRect(QRectF(w * 0.08, h * 0.2, w * 0.34, h * 0.45));
        QPainterPath fleche;
        fleche.moveTo(w * 0.45, h * 0.5);
        fleche.cubicTo(w * 0.6, h * 0.15, w * 0.75, h * 0.2, w * 0.82, h * 0.55);
        g.setPen(QPen(cuir_clair, std::max(1.5, w / 14), Qt::SolidLine, Qt::RoundCap));
        g.drawPath(fleche);
        QPainterPath pointe;
        pointe.moveTo(w * 0.7, h * 0.5);
        pointe.lineTo(w * 0.95, h * 0.5);
        pointe.lineTo(w * 0.83, h * 0.8);
        pointe.closeSubpath();
        g.fillPath(pointe, cuir_clair);
    });
}

QPixmap calendrier(QSize t) {
    return dessin(QStringLiteral("calendrier"), t, [&](QPainter& g) {
        const qreal w = t.width(), h = t.height();
        const QRectF feuille(w * 0.15, h * 0.15, w * 0.7, h * 0.7);
        g.fillRect(feuille, papier);
        g.fillRect(QRectF(feuille.left(), feuille.top(), feuille.width(), h * 0.18), cuir_clair);
        g.setPen(QPen(encre, std::max(1.0, w / 30)));
        g.drawRect(feuille);
        g.setPen(Qt::NoPen);
        g.setBrush(encre);
        for (int r = 0; r < 3; ++r)
            for (int c = 0; c < 4; ++c)
                g.drawEllipse(QPointF(w * (0.25 + c * 0.16), h * (0.46 + r * 0.13)), w * 0.03,
                              w * 0.03);
    });
}

QPixmap sortie(QSize t) {
    return dessin(QStringLiteral("sortie"), t, [&](QPainter& g) {
        const qreal w = t.width(), h = t.height();
        // A door ajar, and the way out.
        g.fillRect(QRectF(w * 0.15, h * 0.12, w * 0.4, h * 0.76), cuir_fonce);
        QPolygonF porte{
            {w * 0.15, h * 0.12}, {w * 0.42, h * 0.2}, {w * 0.42, h * 0.95}, {w * 0.15, h * 0.88}};
        g.setBrush(cuir_clair);
        g.setPen(QPen(or_vieux, std::max(1.0, w / 30)));
        g.drawPolygon(porte);
        g.setPen(QPen(encre, std::max(1.5, w / 14), Qt::SolidLine, Qt::RoundCap));
        g.drawLine(QPointF(w * 0.6, h * 0.5), QPointF(w * 0.9, h * 0.5));
        g.drawLine(QPointF(w * 0.78, h * 0.38), QPointF(w * 0.9, h * 0.5));
        g.drawLine(QPointF(w * 0.78, h * 0.62), QPointF(w * 0.9, h * 0.5));
    });
}

} // namespace agenda::ui::icc

namespace agenda::ui::icc {

QPixmap marque_sms(bool annulee, QSize t) {
    return dessin(QStringLiteral("marque_sms%1").arg(annulee), t, [&](QPainter& g) {
        const qreal w = t.width(), h = t.height();
        g.setPen(QPen(annulee ? QColor(0xb0, 0x10, 0x20) : QColor(0x2e, 0x7d, 0x32),
                      std::max(1.5, w / 7), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        if (annulee) {
            g.drawLine(QPointF(w * 0.2, h * 0.2), QPointF(w * 0.8, h * 0.8));
            g.drawLine(QPointF(w * 0.8, h * 0.2), QPointF(w * 0.2, h * 0.8));
        } else {
            g.drawPolyline(
                QPolygonF{{w * 0.18, h * 0.55}, {w * 0.42, h * 0.78}, {w * 0.84, h * 0.24}});
        }
    });
}

} // namespace agenda::ui::icc

namespace agenda::ui::icc {

QPixmap clavier(QSize t, const std::vector<Touche>& touches) {
    // Made once per size: the keys stand where the layout puts them, whatever the text.
    return dessin(QStringLiteral("clavier"), t, [&](QPainter& g) {
        QLinearGradient fond(0, 0, 0, t.height());
        fond.setColorAt(0, cuir_clair);
        fond.setColorAt(1, cuir_fonce);
        g.setPen(Qt::NoPen);
        g.setBrush(fond);
        g.drawRoundedRect(QRectF(QPointF(0, 0), QSizeF(t)), 12, 12);
        for (const Touche& k : touches) {
            const QRectF r = k.rect.adjusted(1, 1, -1, -1);
            g.setBrush(QColor(0, 0, 0, 60));
            g.drawRoundedRect(r.translated(0, 2), 6, 6);
            QLinearGradient dessus(0, r.top(), 0, r.bottom());
            dessus.setColorAt(0, papier);
            dessus.setColorAt(1, papier_ombre);
            g.setBrush(dessus);
            g.drawRoundedRect(r, 6, 6);
            if (k.face.isEmpty()) continue;
            QFont f(QStringLiteral("DejaVu Sans"));
            f.setPixelSize(std::max(6, int(std::min(r.height() / 3.2, r.width() / 4.5))));
            f.setBold(true);
            g.setFont(f);
            g.setPen(encre);
            g.drawText(r, Qt::AlignCenter | Qt::TextWordWrap, k.face);
            g.setPen(Qt::NoPen);
        }
    });
}

} // namespace agenda::ui::icc

namespace agenda::ui::icc {

QPixmap interrupteur(bool oui, QSize t) {
    return dessin(QStringLiteral("interrupteur%1").arg(oui), t, [&](QPainter& g) {
        const qreal w = t.width(), h = t.height(), r = h * 0.32;
        const QRectF rail(w * 0.08, h / 2 - r, w * 0.84, 2 * r);
        g.setPen(QPen(encre, std::max(1.0, w / 40)));
        g.setBrush(oui ? QColor(0x2e, 0x7d, 0x32) : papier_ombre);
        g.drawRoundedRect(rail, r, r);
        g.setBrush(papier);
        g.drawEllipse(QPointF(oui ? rail.right() - r : rail.left() + r, h / 2), r * 0.85, r * 0.85);
    });
}

} // namespace agenda::ui::icc

namespace agenda::ui::icc {

QPixmap internet(QSize t) {
    return dessin(QStringLiteral("internet"), t, [&](QPainter& g) {
        const qreal w = t.width(), h = t.height();
        const QRectF globe(w * 0.12, h * 0.12, w * 0.76, h * 0.76);
        g.setPen(QPen(encre, std::max(1.0, w / 28)));
        g.setBrush(QColor(0xc0, 0xe0, 0xff));
        g.drawEllipse(globe);
        g.setBrush(Qt::NoBrush);
        g.drawEllipse(globe.adjusted(w * 0.2, 0, -w * 0.2, 0));
        g.drawLine(QPointF(globe.left(), h / 2), QPointF(globe.right(), h / 2));
        g.drawLine(QPointF(w / 2, globe.top()), QPointF(w / 2, globe.bottom()));
    });
}

} // namespace agenda::ui::icc

namespace agenda::ui::icc {

QPixmap imprimante(QSize t) {
    return dessin(QStringLiteral("imprimante"), t, [&](QPainter& g) {
        g.scale(t.width() / 100.0, t.height() / 100.0);
        g.setPen(QPen(encre, 3));
        // The sheet going in, the body, the printed sheet coming out.
        g.setBrush(papier);
        g.drawRect(QRectF(28, 10, 44, 30));
        g.setBrush(cuir_clair);
        g.drawRoundedRect(QRectF(12, 36, 76, 34), 6, 6);
        g.setBrush(papier);
        g.drawRect(QRectF(24, 58, 52, 32));
        g.setPen(QPen(papier_ombre.darker(140), 3));
        for (const qreal y : {68.0, 76.0, 84.0})
            g.drawLine(QPointF(32, y), QPointF(68, y));
        g.setPen(Qt::NoPen);
        g.setBrush(or_vieux);
        g.drawEllipse(QPointF(78, 46), 4, 4);
    });
}

QPixmap reglages(QSize t) {
    return dessin(QStringLiteral("reglages"), t, [&](QPainter& g) {
        const qreal w = t.width(), h = t.height(), r = std::min(w, h) * 0.36;
        const QPointF c(w / 2, h / 2);
        // A gilt cog.
        g.setPen(Qt::NoPen);
        g.setBrush(or_vieux);
        for (int i = 0; i < 8; ++i) {
            g.save();
            g.translate(c);
            g.rotate(i * 45);
            g.drawRect(QRectF(-r * 0.22, -r * 1.25, r * 0.44, r * 0.5));
            g.restore();
        }
        g.drawEllipse(c, r, r);
        g.setBrush(cuir_fonce);
        g.drawEllipse(c, r * 0.42, r * 0.42);
    });
}

} // namespace agenda::ui::icc
