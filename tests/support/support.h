#pragma once
// What the tests share: a temporary data folder as the working folder with the program's state
// reset, hand-written record bytes, and a scripted clock and end of program.

#include "data/etat.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <ostream>
#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QTemporaryDir>
#include <vector>

// Readable QString values in failure messages.
inline void PrintTo(const QString& s, std::ostream* os) {
    *os << '"' << s.toStdString() << '"';
}

namespace agenda::test {

// Thrown by the program's end while a test runs.
struct FinDemandee {
    int code;
};

// Bytes of one record, laid by hand from a layout table.
class Gabarit {
public:
    explicit Gabarit(int longueur, std::uint8_t remplissage = ' ')
        : octets_(std::size_t(longueur), remplissage) {}
    // Latin-1 or escaped CP1252 bytes, blank-padded to the width.
    Gabarit& texte(int offset, int largeur, const char* octets);
    Gabarit& i32(int offset, std::int32_t v);
    Gabarit& i16(int offset, std::int16_t v);
    Gabarit& zeros(int offset, int n);
    QByteArray octets() const;

private:
    std::vector<std::uint8_t> octets_;
};

// An appointment record with blank texts and zero numbers (422 to 469), as laid out on disk.
Gabarit rv_vierge();
// Record 1 of an appointment file whose count is `dernier`.
QByteArray rv_entete(std::int32_t dernier);

class DossierDonnees : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    // The clock stands at this instant until a test moves it.
    void fixe_maintenant(const QDateTime& t);
    QByteArray contenu(const QString& nom) const;
    void ecrit(const QString& nom, const QByteArray& octets) const;
    // Appends records to a file, in order.
    void ajoute(const QString& nom, const QByteArray& octets) const;
    QString chemin(const QString& nom) const { return dossier_.filePath(nom); }

    QTemporaryDir dossier_;
    QString ancien_;
    QDateTime maintenant_;
};

} // namespace agenda::test
