// The hint that a change of the area puts up. It keeps its form disabled until it is answered.
#pragma once

#include <windows.h>

#include <string>

namespace teru {

constexpr char kHintTitle[] = "Hinweis";

constexpr int kIdHintText = 2126;

// Shows the text over the form and returns at once, so that a program that tells of the change by a message is not kept
// waiting for the answer. A hint that is up gets the new text.
void ShowAssetHint(HWND form, const std::string& text);

}  // namespace teru
