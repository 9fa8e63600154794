// Protocols: result files that a macro opens, fills and closes by itself. At most one is open; it does not end with the
// run.
#pragma once

#include <memory>
#include <string>

#include "environment/file_system.h"

namespace basMain {

struct ProtocolState {
  std::unique_ptr<TextStream> ProtocolStream;
};

extern ProtocolState protocol;

// "CREATEPROTOCOL": closes an open protocol and opens this one, continuing a file that exists. A bare name lies in the
// program's folder. A fault fails the run.
bool CreateProtocol(const std::string& file);

// "ADDPROTOCOL": writes the text and a line end; without an open protocol the line is lost. Always true.
bool AddProtocol(const std::string& text);

// "CLOSEPROTOCOL". Always true.
bool CloseProtocol();

}  // namespace basMain
