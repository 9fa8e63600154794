// The dialog "Mandant öffnen": the office's clients in a list, from which one is opened.
#pragma once

#include <windows.h>

#include <string>

namespace teru {

constexpr char kClientListTitle[] = "Mandant öffnen";

constexpr int kIdClientList = 5071;
constexpr int kIdOpenClient = 5072;
constexpr int kIdCloseClientList = 5073;

// Rows of the list; 0: the eight clients of the office.
extern int clientCount;

// Opens the dialog, with the client worked on last as its selected row, and brings it to the front.
void ActivateClientList();

}  // namespace teru
