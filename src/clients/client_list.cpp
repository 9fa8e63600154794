#include "clients/client_list.h"

#include <cstdint>

#include "automation/list_views.h"
#include "automation/state.h"
#include "clients/frmInputEST.h"
#include "clients/state.h"
#include "engine/loops.h"
#include "engine/standard_handler.h"
#include "environment/settings.h"
#include "frame/log.h"
#include "runtime/conversions.h"
#include "runtime/fault.h"

namespace basMain {
namespace {

using runtime::Skip;

std::string CellOfCurrentClient(std::int32_t column) {
  std::string text;
  Skip([&] { text = GetListItemText(column, "5071", "Mandant öffnen", "", ""); });
  return text;
}

std::string Basisnummer() {
  return basAPI::ReadIniString(basAPI::SettingsFile(), "Einkommensteuer", "Basisnummer", "0");
}

}  // namespace

std::string GetMandantName() { return CellOfCurrentClient(1); }

std::string GetMandantNummer() { return CellOfCurrentClient(Basisnummer() == "1" ? 4 : 3); }

bool VertifyMandantNr() {
  if (clients.InputState != InputESTForm::kFromTo) {
    LogWrite("VertifyMandantNr=True");
    return true;
  }
  std::int32_t n = 0;
  Skip([&] { n = runtime::ToLong(GetMandantNummer()); });
  LogWrite("VertifyMandantNr: " + std::to_string(n));
  bool outside = false;
  Skip([&] { outside = n < runtime::ToDouble(clients.MandantNrFrom) || n > runtime::ToDouble(clients.MandantNrTo); });
  if (outside) {
    LogWrite("VertifyMandantNr=False");
    return false;
  }
  LogWrite("VertifyMandantNr-> From " + clients.MandantNrFrom + " To " + clients.MandantNrTo + " = TRUE");
  return true;
}

bool VerifyList(const std::string& id, const std::string& window, const std::string& exact, const std::string& text) {
  return Standard("VerifyList", [&] {
    const std::int32_t state = clients.InputState;
    if (state != InputESTForm::kAll && state != InputESTForm::kCurrent && state != InputESTForm::kFromTo) return true;
    if (CheckVJ()) SelectList(id, window, exact, text);
    if (state == InputESTForm::kCurrent) automation.ListCount = automation.ListIndex;
    return true;
  });
}

bool IfBasisnummer(const std::string& value) { return Basisnummer() == value; }

}  // namespace basMain
