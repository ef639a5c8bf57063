#pragma once
// What the tests share: a temporary data folder as the working folder with the program's state
// reset, record bytes laid by hand from the layout tables, and a scripted clock and end.

#include "book/torva1.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <initializer_list>
#include <memory>
#include <ostream>
#include <QByteArray>
#include <QDateTime>
#include <QTemporaryDir>
#include <tuple>
#include <vector>

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
        : octets_(longueur, char(remplissage)) {}
    // Latin-1 or escaped CP1252 bytes, blank-padded and cut to the width.
    Gabarit& texte(int offset, int largeur, const char* latin1) {
        return pose(offset, QByteArray(latin1).leftJustified(largeur, ' ', true));
    }
    Gabarit& i32(int offset, std::int32_t v) { return entier(offset, std::uint32_t(v), 4); }
    Gabarit& i16(int offset, std::int16_t v) { return entier(offset, std::uint16_t(v), 2); }
    Gabarit& zeros(int offset, int n) { return pose(offset, QByteArray(n, '\0')); }
    // Several fields at once: {offset, width, text}, ... and {offset, value}, ...
    Gabarit& texte(std::initializer_list<std::tuple<int, int, const char*>> champs);
    Gabarit& i32(std::initializer_list<std::pair<int, std::int32_t>> champs);
    const QByteArray& octets() const { return octets_; }

private:
    Gabarit& pose(int offset, const QByteArray& octets);
    Gabarit& entier(int offset, std::uint32_t v, int n);
    QByteArray octets_;
};

// An appointment record: blank texts, zero numbers at 422-469.
Gabarit rv_vierge();
// Record 1 of an appointment file whose count is `dernier`.
QByteArray rv_entete(std::int32_t dernier);
// A written appointment: key, text, colour, client, CR LF at the end.
QByteArray rv(const char* cle, const char* texte = "Coupe", std::int32_t couleur = 0xFFFFFF,
              std::int32_t client = 0);

class DossierDonnees : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    QByteArray contenu(const QString& nom) const;
    void ecrit(const QString& nom, const QByteArray& octets) const;
    QString chemin(const QString& nom) const { return dossier_.filePath(nom); }

    QTemporaryDir dossier_;
    QString ancien_;
};

// The same folder with two collaborators, and the book on it.
class Livre : public DossierDonnees {
protected:
    void SetUp() override;
    void TearDown() override;
    // Appointments (keys) of a file, from number 1, each with its own colour from 0x101010.
    void rendez_vous(const QString& fichier, const std::vector<const char*>& cles);
    // Runs the load; a test end of the program comes back as its status, -1 otherwise.
    int charge();

    std::unique_ptr<Torva1> livre;
};

} // namespace agenda::test
