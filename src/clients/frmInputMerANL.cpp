#include "clients/frmInputMerANL.h"

#include <algorithm>

#include "clients/state.h"
#include "engine/standard_handler.h"
#include "environment/create_path.h"
#include "environment/discovery.h"
#include "environment/settings.h"
#include "frame/log.h"
#include "runtime/text.h"

namespace basMain {

using runtime::Skip;

InputMerANLForm frmInputMerANL;

InputMerANLForm::InputMerANLForm() : YearListDialog("frmInputMerANL") {}

forms::Box InputMerANLForm::Layout() {
  return forms::Column({forms::Row({imgQuest, lblInfo}), lstViewJahr, forms::Buttons({cmdOK, cmdCancel})});
}

void InputMerANLForm::InfoCaption(const std::string& text, const std::string& client) {
  client_ = client;
  lblInfo.SetCaption(runtime::Replace(text, "%1", client));
}

void InputMerANLForm::PresetMerYears() {
  const std::string file = basAPI::JoinPath(GetTeRuDestination(), "Import\\Anl", "merla.cfg");
  std::string value = basAPI::ReadIniString(file, "Vorlage", "WirtschaftsjahrAb", "");
  if (value.empty()) return;
  for (std::size_t i = 0; i < lstViewJahr.Count(); ++i) {
    const std::string begin = lstViewJahr.SubItem(i, 1);
    const std::string year = begin.substr(begin.size() - std::min<std::size_t>(begin.size(), 4));
    if (year < value) continue;
    Mark(i, true);
    value = begin;  // on purpose: from the first hit on, the years are compared with this whole date text
  }
}

void InputMerANLForm::cmdOK_Click() {
  if (!TakeMarks(clients.MerMatrix)) return;
  Answer(kConfirmed);
  SaveMerExport();
  Unload();
}

void InputMerANLForm::SaveMerExport() {
  const std::string folder = basAPI::JoinPath(GetTeRuDestination(), "Extern\\" + client_ + "\\ANL");
  Skip([&] { basAPI::CreatePath(folder); });
  const auto write = [file = folder + "\\export.cfg"](const std::string& key, const std::string& value) {
    Skip([&] { basAPI::WriteIniString(file, "Mandantendaten", key, value); });
  };
  const auto flag = [](bool set) { return set ? "1" : "0"; };
  write("Nummer", client_);
  int n = 0;
  for (MerMatrixRow& row : clients.MerMatrix) {
    if (!row.Checked) continue;
    const std::string year = std::to_string(++n) + "WJ ";  // the format wants the number in front
    write(year + "Waehrung", row.Waehrung);
    write(year + "Beginn", row.Beginn);
    write(year + "Ende", row.Ende);
    write(year + "Steuerrecht", flag(row.Steuerrecht));
    write(year + "Kalkulation", flag(row.Kalkulation));
    write(year + "Handelsrecht", flag(row.Handelsrecht));
    write(year + "IAS/IFRS", flag(row.IASIFRS));
    row.Pfad = folder + "\\" + runtime::Remove(row.Beginn, '.');
    Skip([&] { basAPI::CreatePath(row.Pfad); });
    LogWrite("Pfad: " + row.Pfad);
  }
}

bool ShowInputMerANL(const std::string& text, const std::string& client) {
  return Standard("ShowInputMerANL", [&] {
    AskUser(frmInputMerANL, [&] {
      frmInputMerANL.InfoCaption(text, client);
      frmInputMerANL.AddYearRows(clients.MerMatrix);
      frmInputMerANL.PresetMerYears();
      return true;
    });
    LogWrite("ShowInputMerANL");
    return true;
  });
}

}  // namespace basMain
