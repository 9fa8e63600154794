#include "clients/year_list_dialog.h"

#include "platform/dialogs.h"
#include "resources/texts.h"

namespace basMain {

using runtime::Skip;

namespace {

// Columns of the list.
constexpr std::size_t kBegin = 1;
constexpr std::size_t kEnd = 2;
constexpr std::size_t kTaken = 3;

}  // namespace

YearListDialog::YearListDialog(const std::string& formName)
    : InputDialog(formName, {.resizable = true}),
      lstViewJahr(*this, "lstViewJahr", {"", "Beginn", "Ende", "Übernehmen"},
                  {.characters = 52, .lines = 10, .grows = true},
                  {.ItemClick = [this](std::size_t item) { lstViewJahr_ItemClick(item); },
                   .ItemCheck = [this](std::size_t item) { lstViewJahr_ItemCheck(item); },
                   .DblClick = [this] { lstViewJahr_DblClick(); }}) {}

void YearListDialog::Form_Load() {
  InputDialog::Form_Load();
  touched_.reset();
}

void YearListDialog::AddYearRow(const std::string& begin, const std::string& end, bool checked) {
  Skip([&] {
    const std::size_t item = lstViewJahr.Add("Item" + begin, "");
    lstViewJahr.SetSubItem(item, kBegin, begin);
    lstViewJahr.SetSubItem(item, kEnd, end);
    Mark(item, checked);
  });
}

void YearListDialog::Mark(std::size_t item, bool checked) {
  lstViewJahr.SetChecked(item, checked);
  lstViewJahr.SetSubItem(item, kTaken, checked ? "Ja" : "Nein");
}

void YearListDialog::lstViewJahr_ItemClick(std::size_t item) { touched_ = item; }

void YearListDialog::lstViewJahr_ItemCheck(std::size_t item) {
  touched_ = item;
  Skip([&] {
    const bool checked = lstViewJahr.Item(item).checked;
    Mark(item, checked);
    PropagateYearCheck(lstViewJahr.SubItem(item, kBegin), checked);
    lstViewJahr.Select(item);
    lstViewJahr.EnsureVisible(item);
  });
}

void YearListDialog::lstViewJahr_DblClick() {
  if (!touched_) return;
  Skip([&] {
    const bool checked = !lstViewJahr.Item(*touched_).checked;
    Mark(*touched_, checked);
    PropagateYearCheck(lstViewJahr.SubItem(*touched_, kBegin), checked);
  });
}

// The dates are compared as texts, day first, on purpose: 01.07.2004 counts as later than 01.01.2005.
void YearListDialog::PropagateYearCheck(const std::string& date, bool checked) {
  for (std::size_t i = 0; i < lstViewJahr.Count(); ++i) {
    const std::string& begin = lstViewJahr.SubItem(i, kBegin);
    if (begin > date) Mark(i, checked);
    else if (begin < date && checked) Mark(i, false);
  }
}

void YearListDialog::RefuseWithoutYear() {
  Refuse(resources::Text(resources::TextId::YearMissing), platform::MB_ICONINFORMATION);
}

}  // namespace basMain
