// The language server: findings while one types, completion, help and the rest, for any editor that speaks the Language
// Server Protocol 3.17.
#pragma once

namespace makcheck::lsp {

// Serves one client until it asks for the end or is gone. Yields 0 when it was asked, otherwise 1, as the protocol
// wants it.
int Serve();

}  // namespace makcheck::lsp
