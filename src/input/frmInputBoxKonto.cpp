#include "input/frmInputBoxKonto.h"

#include "frame/log.h"
#include "resources/texts.h"

namespace basMain {

InputBoxKontoForm frmInputBoxKonto;

InputBoxKontoForm::InputBoxKontoForm()
    : Form("frmInputBoxKonto", resources::kProgramTitle),
      lblInfo(*this, "lblInfo", "Bitte geben Sie die Konto-Nr und BLZ ein", {.characters = 48}),
      Label1(*this, "Label1", "Konto:"),
      txtKonto(*this, "txtKonto", {.characters = 30, .grows = true}),
      Label2(*this, "Label2", "BLZ:"),
      txtBLZ(*this, "txtBLZ", {.characters = 30, .grows = true}),
      cmdOK(*this, "cmdOK", "OK", forms::ButtonRole::Default, [this] { cmdOK_Click(); }),
      cmdCancel(*this, "cmdCancel", "Abbrechen", forms::ButtonRole::Cancel, [this] { cmdCancel_Click(); }) {}

forms::Box InputBoxKontoForm::Layout() {
  return forms::Column(
      {lblInfo, forms::Grid(2, {Label1, txtKonto, Label2, txtBLZ}), forms::Buttons({cmdOK, cmdCancel})});
}

void InputBoxKontoForm::cmdOK_Click() {
  konto_ = txtKonto.Text();
  blz_ = txtBLZ.Text();
  LogWrite("Konto / Blz Dialog");
  Unload();
}

void InputBoxKontoForm::cmdCancel_Click() { Unload(); }

}  // namespace basMain
