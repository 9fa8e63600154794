// Thin path helpers.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "runtime/text.h"

namespace basAPI {

// Joins the pieces by single backslashes. One backslash is removed at each end of each piece, but not at the front of
// the first. An empty piece still adds its backslash.
std::string JoinPieces(std::initializer_list<std::string_view> pieces);

template <class... Piece>
std::string JoinPath(const Piece&... pieces) {
  return JoinPieces({std::string_view(pieces)...});
}

// By a file-system object of its own; a fault counts as false.
bool CheckFileExists(const std::string& path);

using runtime::TrimAtNul;

// The settings file beside the program; computed anew at each use.
std::string SettingsFile();

}  // namespace basAPI
