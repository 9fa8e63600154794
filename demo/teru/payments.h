// The payment module: the statement of one bank account, whose table goes to the clipboard by Ctrl+C, a field that can
// only be filled by keys, and a field that writes down where it is clicked.
#pragma once

namespace teru {

constexpr int kIdStatement = 2401;
constexpr int kIdSearch = 2402;  // refuses every text that is sent, takes all keys, and writes them down
constexpr int kIdNextAccount = 2403;
constexpr int kIdPaymentsClose = 2404;

// Opens the window "Zahlungsverkehr", whose caption holds bank, bank code and account in brackets; F6 shows the next
// account. An open one comes to the front.
void ActivatePayments();

// Opens a window of the second account's statement alone, "Umsätze BLZ: <bank code> Kto: <account> EUR".
void ActivateStatement();

}  // namespace teru
