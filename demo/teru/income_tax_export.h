// The dialog "Einkommensteuer-Export": writes a client's tax return of one assessment year into a folder.
#pragma once

#include <windows.h>

#include <string>

namespace teru {

constexpr char kIncomeTaxTitle[] = "Einkommensteuer-Export";

constexpr int kIdTaxClient = 5080;
constexpr int kIdTaxYear = 5081;
constexpr int kIdTaxFolder = 5082;
constexpr int kIdTaxStart = 5083;
constexpr int kIdTaxClose = 5084;

// Opens the dialog for a client and brings it to the front; an open one changes over to the client.
void OpenIncomeTaxExport(const std::string& number, const std::string& name);

}  // namespace teru
