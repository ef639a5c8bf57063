#pragma once
// The client file W_CAI038.WDO, shared with the point-of-sale program. A client is known only by
// its number, its position in the file; the book creates clients and carries every byte it does
// not own unchanged.

#include "clients/rec_cli.h"

#include <cstdint>
#include <functional>
#include <span>

namespace agenda {

// The number the last allotment gave out.
inline std::int32_t client_alloue = 0;
// The current client's buffer, shared by the editor's panel and the card.
inline RecCli rec_cli;

// Opens the file afresh and reads its header; a file with no client yet gets its first one,
// "Clients Divers".
void ouvre_clients();
// Allots the next number and writes an empty client for it; the number is in client_alloue.
void cree_client();
// Client n into rec_cli; past the end of the file it reads blank.
void lit_client(std::int32_t n);
// rec_cli as client n.
void ecrit_client(std::int32_t n);
// Every client's bytes from 1 to the header's last, read in blocks into a buffer of the scan's
// own, so that rec_cli stays the current client. A count past the end of the file stops there.
void parcourt_clients(
    const std::function<void(std::int32_t numero, std::span<const std::uint8_t> client)>& visite);

} // namespace agenda
