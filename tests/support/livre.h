#pragma once
// A data folder ready for the main window: a list of collaborators and, on demand,
// appointments of a collaborator.

#include "book/torva1.h"
#include "support/support.h"

#include <memory>

namespace agenda::test {

class Livre : public DossierDonnees {
protected:
    void SetUp() override;
    void TearDown() override;

    // Appointments (keys) in tf_r of a collaborator, from number 1.
    void rendez_vous(const QString& fichier, const std::vector<const char*>& cles);
    // Runs the load; a test end of program comes back as its status, -1 otherwise.
    int charge();

    std::unique_ptr<Torva1> livre;
};

} // namespace agenda::test
