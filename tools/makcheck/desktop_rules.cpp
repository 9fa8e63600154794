// What a macro names, against the windows that are described. Each line is looked up by the routines that its verb
// runs.
#include <algorithm>
#include <cstdlib>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "automation/control_address.h"
#include "automation/window_search.h"
#include "desktop.h"
#include "nearest.h"
#include "platform/class_names.h"
#include "platform/simulated/desktop.h"
#include "platform/window_lookup.h"
#include "rules.h"
#include "runtime/conversions.h"
#include "runtime/text.h"
#include "verb_facts.h"

namespace makcheck {
namespace {

using runtime::EqualIgnoringCase;

// How a verb comes from its window to its control.
enum class Way {
  None,            // the window alone
  DirectThenDeep,  // a direct child by its id, else a descendant by class and id
  DirectOnly,
  DeepOnly,
};

constexpr const char* kNothing = "-";

Way WayOf(const Line& line, bool classGiven) {
  if (line.Is("SETTEXT")) return classGiven ? Way::DeepOnly : Way::DirectOnly;
  const std::string_view plain = line.word.starts_with("IF ") ? std::string_view(line.word).substr(3) : line.word;
  for (const char* verb : {"GETTEXT", "SELECTALL"})
    if (plain == verb) return Way::DirectOnly;
  for (const char* verb : {"BUTTONCLICK", "SETOPTION", "GETCHECK", "READTEXT", "SETMERLATEXT"})
    if (plain == verb) return Way::DirectThenDeep;
  for (const char* verb :
       {"SENDKEY2", "SELECTCOMBO", "SELECTCOMBOINDEX", "READCOMBO", "READCOMBOTEXT", "SELECTLIST", "VERIFYLIST",
        "READLISTITEM", "GETANLLIST", "GETPATHFROMCTL", "CREATEMATRIX", "CREATEMERLAMATRIX", "WAITFORWINDOW"})
    if (plain == verb) return Way::DeepOnly;
  return Way::None;
}

// The class that a verb takes where none is given.
std::string DefaultClass(std::string_view word) {
  for (const char* verb : {"SELECTCOMBO", "SELECTCOMBOINDEX", "CREATEMATRIX"})
    if (runtime::Contains(word, verb)) return "ComboBox";
  for (const char* verb : {"SELECTLIST", "VERIFYLIST", "READLISTITEM", "GETANLLIST"})
    if (runtime::Contains(word, verb)) return "SysListView32";
  return runtime::Contains(word, "BUTTONCLICK") ? "Button" : "";
}

class DesktopRules {
 public:
  DesktopRules(const Macro& macro, const Desktop& desktop, Findings& findings)
      : macro_(macro), desktop_(desktop), findings_(findings) {}

  void Check() {
    for (index_ = 0; index_ < macro_.Lines().size(); ++index_) {
      line_ = &macro_.Lines()[index_];
      if (line_->verb == nullptr || line_->openQuote) continue;
      facts_ = &ArgumentsOf(*line_->verb);
      CheckOnce();
    }
  }

 private:
  struct Found {
    FindingId id;
    std::size_t argument;
    std::vector<std::string> values;
  };

  // The same verb with the same values is looked up once.
  void CheckOnce() {
    std::string key = line_->word;
    for (std::size_t i = 0; i < line_->arguments.size(); ++i) {
      const auto value = Value(i);
      key += value ? "=" + *value : "?";
    }
    auto known = known_.find(key);
    if (known == known_.end()) {
      found_.clear();
      if (line_->Is("WAITFORDIALOG")) CheckBox();
      else if (line_->Is("MENUCLICK") || line_->Is("IF MENUCLICK")) CheckMenu();
      else CheckLine();
      known = known_.emplace(std::move(key), std::move(found_)).first;
    }
    for (const Found& found : known->second) {
      const bool given = found.argument < line_->arguments.size();
      const Span span = given ? line_->PlaceOf(line_->arguments[found.argument]) : line_->Whole();
      findings_.push_back({found.id, index_, span, found.values});
    }
  }

  void Add(FindingId id, std::size_t argument, std::vector<std::string> values) {
    found_.push_back({id, argument, std::move(values)});
  }

  std::optional<std::size_t> Find(ArgumentKind kind) const {
    for (std::size_t i = 0; i < facts_->size(); ++i)
      if ((*facts_)[i].kind == kind) return i;
    return std::nullopt;
  }

  // The text of an argument as it reaches the verb, where that is known: a literal, or a variable that is given one
  // text and no other.
  std::optional<std::string> Value(std::size_t argument) const {
    if (argument >= line_->arguments.size()) return "";
    const std::string& text = line_->arguments[argument].text;
    const Variable* variable = macro_.DeclaredBefore(text, index_);
    if (variable == nullptr) {
      if (IsComputed(macro_, index_, line_->arguments[argument])) return std::nullopt;
      return text;
    }
    if (variable->assignments.size() != 1 || variable->assignments[0] >= index_) return std::nullopt;
    const Line& assignment = macro_.Lines()[variable->assignments[0]];
    if (!assignment.Is("VALUE") || assignment.arguments.empty()) return std::nullopt;
    if (IsComputed(macro_, variable->assignments[0], assignment.arguments[0])) return std::nullopt;
    return assignment.arguments[0].text;
  }
  // Empty for an argument that the verb has not; nothing for one that only a run knows.
  std::optional<std::string> ValueOf(ArgumentKind kind) const {
    const auto argument = Find(kind);
    return argument ? Value(*argument) : "";
  }

  struct Address {
    std::string window, exact, text, cls, id, frameId, frameClass;
    bool Exact() const { return exact == "1"; }
  };

  std::optional<Address> AddressOf() const {
    const auto window = ValueOf(ArgumentKind::Window);
    const auto exact = ValueOf(ArgumentKind::Exact);
    const auto text = ValueOf(ArgumentKind::Control);
    const auto cls = ValueOf(ArgumentKind::Class);
    const auto frame = ValueOf(ArgumentKind::FrameId);
    const auto frameClass = ValueOf(ArgumentKind::FrameClass);
    auto id = ValueOf(ArgumentKind::Id);
    if (id && id->empty()) id = ValueOf(ArgumentKind::CommandId);
    if (!window || !exact || !text || !cls || !frame || !frameClass || !id) return std::nullopt;
    return Address{*window, *exact, *text, cls->empty() ? DefaultClass(line_->word) : *cls, *id, *frame, *frameClass};
  }

  bool IsNumber(const std::string& text) const { return runtime::IsNumeric(text); }

  void CheckLine() {
    const auto windowArgument = Find(ArgumentKind::Window);
    if (!windowArgument) return;
    const auto address = AddressOf();
    if (!address || address->window.empty()) return;
    if (line_->Is("MOUSECLICKBYWINDOWOFFSET")) {
      if (platform::FindWindowA(platform::kFormClass, address->window.c_str()) == 0) AddUnknownWindow(*address);
      return;
    }
    // The window inside the target that has this whole text serves, too.
    const bool exact = address->Exact() || line_->Is("SETMERLADATE");
    std::int32_t hWindow = 0;
    std::int32_t ignored = 0;
    basMain::SearchWindow(address->window, hWindow, exact, "", "", "0", "", ignored);
    if (hWindow == 0) return AddUnknownWindow(*address);
    if (line_->Is("SETCHECK")) return CheckCheckBox(*address, hWindow);
    if (line_->Is("SETMERLADATE")) {
      CheckFrame(*address, platform::kFrameClass, address->id);
      return;
    }
    const bool classGiven = !ValueOf(ArgumentKind::Class).value_or("").empty();
    const Way way = WayOf(*line_, classGiven);
    if (way == Way::None) return;
    if (line_->Is("WAITFORWINDOW") && address->text.empty() && address->cls.empty()) return;
    if (!IsNumber(address->id) && !address->id.empty()) return;  // told by another rule
    if (way != Way::DirectOnly && !address->frameId.empty() && !line_->Is("READCOMBO")) {
      const std::string& cls = address->frameClass.empty() ? address->cls : address->frameClass;
      if (!CheckFrame(*address, cls, address->frameId)) return;
    }
    const std::int32_t control = ControlOf(*address, way);
    if (control == 0) return AddUnknownControl(*address);
    CheckShadowed(*address, way, control);
    CheckEntry(*address, control);
    if (line_->Is("CREATEMATRIX")) CheckAreas(*address);
  }

  // As the verbs of its way find it.
  std::int32_t ControlOf(const Address& address, Way way) const {
    const std::int32_t id = basMain::NumberOrZero(address.id);
    if (way == Way::DirectThenDeep && Find(ArgumentKind::FrameId)) {
      const std::string& frameClass = address.frameClass;
      return basMain::FindControlInFrame(address.id, address.window, address.exact, address.cls, address.frameId,
                                         frameClass);
    }
    const bool windowAlone = way == Way::DirectOnly;
    basMain::ControlAddress search = {address.window, address.exact};
    if (!windowAlone) {
      search.text = address.text;
      search.cls = address.cls;
      search.id = std::to_string(id);
    }
    std::int32_t hWindow = basMain::FindAddressedWindow(search);
    if (hWindow == 0) return 0;
    if (way == Way::DirectOnly) {
      if (!address.frameId.empty()) hWindow = basMain::FindFrame(hWindow, basMain::NumberOrZero(address.frameId));
      return platform::GetDlgItem(hWindow, id);
    }
    if (way == Way::DirectThenDeep) return basMain::FindControl(hWindow, id, search);
    return basMain::FindDescendant(hWindow, search);
  }

  bool CheckFrame(const Address& address, const std::string& cls, const std::string& id) {
    for (const ControlView& control : desktop_.ControlsOf(address.window, address.Exact() || line_->Is("SETMERLADATE")))
      if (std::to_string(control.id) == id && EqualIgnoringCase(control.cls, cls)) return true;
    const auto argument = line_->Is("SETMERLADATE") ? Find(ArgumentKind::Id) : Find(ArgumentKind::FrameId);
    Add(FindingId::UnknownFrame, argument.value_or(0),
        {address.window, id + " " + cls, NearestControl(address, id, cls)});
    return false;
  }

  // Its fifth argument is the id of a frame, or else the text of the box.
  void CheckCheckBox(const Address& address, std::int32_t hWindow) {
    const auto frame = ValueOf(ArgumentKind::Frame);
    if (!frame || frame->empty() || !IsNumber(address.id)) return;
    const std::int32_t id = basMain::NumberOrZero(address.id);
    bool found = false;
    if (IsNumber(*frame)) {
      const std::int32_t hFrame = basMain::FindFrame(hWindow, basMain::NumberOrZero(*frame));
      found = hFrame != 0 && platform::GetDlgItem(hFrame, id) != 0;
    } else {
      for (const char* cls : {"Button", platform::kCheckBoxClass, platform::kOptionButtonClass})
        found = found || basMain::SearchControl(hWindow, *frame, cls, id) != 0;
    }
    if (!found) AddUnknownControl(address);
  }

  void CheckAreas(const Address& address) {
    const auto areas = ValueOf(ArgumentKind::CommandId);
    if (!areas || !IsNumber(*areas)) return;
    Address other = address;
    other.id = *areas;
    if (ControlOf(other, Way::DeepOnly) == 0) AddUnknownControl(other);
  }

  // Others that fit as well as the one that is found.
  void CheckShadowed(const Address& address, Way way, std::int32_t control) {
    if (way == Way::DirectOnly || !address.frameId.empty()) return;
    const auto controls = desktop_.ControlsOf(address.window, address.Exact());
    std::size_t fitting = 0;
    std::string reached;
    for (const ControlView& other : controls) {
      if (other.handle == control) reached = Describe(other);
      const bool sameId = basMain::NumberOrZero(address.id) == 0 || std::to_string(other.id) == address.id;
      const bool sameText = address.text.empty() || EqualIgnoringCase(other.text, address.text);
      if (sameId && sameText && EqualIgnoringCase(other.cls, address.cls)) ++fitting;
    }
    // A direct child of the window is meant before all others.
    const bool direct = way == Way::DirectThenDeep && platform::GetParent(platform::GetParent(control)) == 0;
    if (fitting > 1 && !direct && !line_->Is("WAITFORWINDOW")) Add(FindingId::ShadowedControl, IdArgument(), {reached});
  }

  void CheckEntry(const Address& address, std::int32_t control) {
    const auto argument = Find(ArgumentKind::Entry);
    if (!argument) return;
    const auto value = Value(*argument);
    const auto& entries = platform::simulated::At(control).entries;
    if (!value || entries.empty()) return;
    const bool there = std::any_of(entries.begin(), entries.end(), [&](const std::string& entry) {
      return EqualIgnoringCase(entry.substr(0, value->size()), *value);
    });
    if (there) return;
    std::string near = Nearest(*value, entries);
    Add(FindingId::UnknownEntry, *argument, {address.id, *value, near.empty() ? entries.front() : near});
  }

  // A wait for a box that nothing described opens.
  void CheckBox() {
    const auto title = Value(0);
    const auto text = Value(1);
    if (!title || !text) return;
    for (const std::string& shown : desktop_.Titles()) {
      if (!runtime::Contains(shown, *title)) continue;
      for (const ControlView& control : desktop_.ControlsOf(shown, true))
        if (EqualIgnoringCase(control.cls, "STATIC") && runtime::ContainsIgnoringCase(control.text, *text)) return;
    }
    Add(FindingId::UnknownBox, 0, {*title, *text, NearestTitle(*title)});
  }

  void CheckMenu() {
    const auto window = Value(1);
    const auto menu = Value(0);
    const auto cls = ValueOf(ArgumentKind::Class);
    if (!window || !menu || !cls || !IsNumber(*menu) || window->empty()) return;
    const auto address = AddressOf();
    if (!address) return;
    std::int32_t target = desktop_.MainWindow();
    if (*window != "%MAINWINDOW%") {
      const std::string id = address->id.empty() || cls->empty() ? "0" : address->id;
      target = basMain::FindAddressedWindow({*window, address->exact, "", *cls, id});
      if (target == 0) return cls->empty() ? AddUnknownWindow(*address) : AddUnknownControl(*address);
    }
    if (!cls->empty())
      target = basMain::FindControl(target, basMain::NumberOrZero(*menu), {"", "", "", *cls, address->id});
    const auto commands = CommandsOf(target);
    if (std::find(commands.begin(), commands.end(), std::to_string(basMain::NumberOrZero(*menu))) != commands.end())
      return;
    Add(FindingId::UnknownMenu, 0, {*menu, NearestNumber(*menu, commands)});
  }

  const std::vector<std::string>& CommandsOf(std::int32_t hWnd) {
    const auto known = commands_.find(hWnd);
    if (known != commands_.end()) return known->second;
    return commands_.emplace(hWnd, desktop_.CommandsOf(hWnd)).first->second;
  }

  std::size_t IdArgument() const {
    const auto id = Find(ArgumentKind::Id);
    return id ? *id : Find(ArgumentKind::CommandId).value_or(0);
  }

  void AddUnknownWindow(const Address& address) {
    Add(FindingId::UnknownWindow, Find(ArgumentKind::Window).value_or(0),
        {address.window, NearestTitle(address.window)});
  }

  void AddUnknownControl(const Address& address) {
    std::string wanted = address.id + (address.cls.empty() ? "" : " " + address.cls);
    if (!address.text.empty()) wanted += " \"" + address.text + "\"";
    Add(FindingId::UnknownControl, IdArgument(),
        {address.window, wanted, NearestControl(address, address.id, address.cls)});
  }

  std::string NearestTitle(const std::string& title) const {
    const auto titles = desktop_.Titles();
    for (const std::string& shown : titles)
      if (runtime::ContainsIgnoringCase(shown, title)) return shown;
    const std::string near = Nearest(title, titles);
    return near.empty() ? kNothing : near;
  }

  // One of the same id, or the one of the same class with the nearest id.
  std::string NearestControl(const Address& address, const std::string& id, const std::string& cls) const {
    const auto controls = desktop_.ControlsOf(address.window, address.Exact() || line_->Is("SETMERLADATE"));
    const ControlView* nearest = nullptr;
    const std::int32_t wanted = basMain::NumberOrZero(id);
    for (const ControlView& control : controls) {
      if (control.id == wanted) return Describe(control);
      if (!cls.empty() && !EqualIgnoringCase(control.cls, cls)) continue;
      if (nearest == nullptr || std::abs(control.id - wanted) < std::abs(nearest->id - wanted)) nearest = &control;
    }
    return nearest == nullptr ? kNothing : Describe(*nearest);
  }

  static std::string NearestNumber(const std::string& number, const std::vector<std::string>& numbers) {
    const std::string* nearest = nullptr;
    const auto distance = [&](const std::string& other) {
      return std::abs(basMain::NumberOrZero(other) - basMain::NumberOrZero(number));
    };
    for (const std::string& other : numbers)
      if (nearest == nullptr || distance(other) < distance(*nearest)) nearest = &other;
    return nearest == nullptr ? kNothing : *nearest;
  }

  const Macro& macro_;
  const Desktop& desktop_;
  Findings& findings_;
  std::map<std::int32_t, std::vector<std::string>> commands_;
  std::map<std::string, std::vector<Found>> known_;
  std::vector<Found> found_;  // in the line at hand
  std::size_t index_ = 0;
  const Line* line_ = nullptr;
  const std::vector<ArgumentFact>* facts_ = nullptr;
};

}  // namespace

void CheckDesktop(const Macro& macro, const Desktop& desktop, Findings& findings) {
  DesktopRules(macro, desktop, findings).Check();
}

}  // namespace makcheck
