#include "explain.h"

#include <algorithm>
#include <map>
#include <vector>

#include "automation/state.h"
#include "automation/window_search.h"
#include "engine/state.h"
#include "engine/verbs.h"
#include "environment/file_system.h"
#include "frame/frmMain.h"
#include "frame/state.h"
#include "platform/messages.h"
#include "platform/simulated/desktop.h"
#include "platform/window_lookup.h"
#include "runtime/code_page.h"
#include "runtime/conversions.h"
#include "runtime/fault.h"
#include "runtime/text.h"
#include "texts.h"

namespace makrun {
namespace {

using runtime::ToUtf8;
using tools::Say;

// A text of the program between double quotes.
std::string Quoted(const std::string& text) { return "\"" + ToUtf8(text) + "\""; }

std::string Joined(const std::vector<std::string>& texts) {
  std::string joined;
  for (const std::string& text : texts) joined += (joined.empty() ? "" : ", ") + text;
  return joined;
}

// The arguments of a line by their names in the table of verbs.
class NamedArguments {
 public:
  NamedArguments(const basMain::Verb& verb, const basMain::Arguments& a) {
    const auto names = runtime::Split(std::string_view(verb.arguments), std::string_view(", "));
    for (std::size_t i = 0; i < names.size() && i + 1 < a.size(); ++i) values_[names[i]] = a[i + 1];
  }

  bool Has(const std::string& name) const { return values_.contains(name); }
  // Empty for a verb without that argument.
  std::string operator[](const std::string& name) const {
    const auto value = values_.find(name);
    return value == values_.end() ? "" : value->second;
  }

 private:
  std::map<std::string, std::string> values_;
};

std::uint32_t ProcessOf(std::int32_t window) {
  std::uint32_t process = 0;
  platform::GetWindowThreadProcessId(window, process);
  return process;
}

// The windows with a title that a macro can mean, from the top; not those of the program itself.
std::vector<std::int32_t> TitledWindows() {
  std::vector<std::int32_t> windows;
  const std::uint32_t own = ProcessOf(basMain::frmMain.Window());
  for (std::int32_t h = platform::FindWindowA(nullptr, nullptr); h != 0;
       h = platform::GetWindow(h, platform::GW_HWNDNEXT))
    if (!basMain::GetWindowTitle(h).empty() && ProcessOf(h) != own) windows.push_back(h);
  return windows;
}

std::vector<std::int32_t> Fitting(const std::string& title, bool exact) {
  std::vector<std::int32_t> windows = TitledWindows();
  std::erase_if(windows, [&](std::int32_t h) {
    const std::string shown = basMain::GetWindowTitle(h);
    return exact ? shown != title : !runtime::Contains(shown, title);
  });
  return windows;
}

std::string ShownTitles() {
  std::vector<std::string> titles;
  for (const std::int32_t h : TitledWindows()) titles.push_back(Quoted(basMain::GetWindowTitle(h)));
  return titles.empty() ? Say(say::kNone) : Joined(titles);
}

std::vector<std::int32_t> ControlsOf(std::int32_t window) {
  basMain::EmptyChildWindowList();
  basMain::CollectChildWindows(window);
  std::vector<std::int32_t> controls = basMain::automation.ChildWindowList;
  controls.pop_back();  // the spare slot
  return controls;
}

// A control that a line asks for: by its number alone, or by class, number (0: any) and text (empty: any).
struct Wanted {
  std::int32_t id = 0;
  std::string cls;
  std::string text;

  bool IsIn(std::int32_t window) const {
    return (cls.empty() ? platform::GetDlgItem(window, id) : basMain::SearchControl(window, text, cls, id)) != 0;
  }

  std::string Description() const {
    std::vector<std::string> words;
    if (id != 0 || cls.empty()) words.push_back(Say(say::kWithId, {std::to_string(id)}));
    if (cls.empty()) words.push_back(Say(say::kDirectly));
    else words.push_back(Say(say::kOfClass, {ToUtf8(cls)}));
    if (!text.empty()) words.push_back(Say(say::kWithText, {ToUtf8(text)}));
    return Joined(words);
  }
};

// What the window has instead: the controls of this number, else those of this class.
std::string Instead(std::int32_t window, const Wanted& wanted) {
  std::vector<std::string> sameId;
  std::vector<std::string> sameClass;
  for (const std::int32_t control : ControlsOf(window)) {
    const std::int32_t id = platform::GetDlgCtrlID(control);
    const std::string cls = basMain::GetWindowClass(control);
    const std::string shown =
        Say(say::kControl, {std::to_string(id), ToUtf8(cls), ToUtf8(basMain::GetWindowTitle(control))});
    if (wanted.id != 0 && id == wanted.id) sameId.push_back(shown);
    if (!wanted.cls.empty() && runtime::EqualIgnoringCase(cls, wanted.cls)) sameClass.push_back(shown);
  }
  const auto& controls = sameId.empty() ? sameClass : sameId;
  return controls.empty() ? "" : Say(say::kInstead, {Joined(controls)});
}

// The class of a control that the verb asks for where the line names none.
std::string OwnClass(const std::string& verb) {
  static const std::map<std::string, std::string> classes = {
      {"BUTTONCLICK", "Button"},       {"SELECTCOMBO", "ComboBox"},       {"SELECTCOMBOINDEX", "ComboBox"},
      {"SELECTLIST", "SysListView32"}, {"READLISTITEM", "SysListView32"}, {"VERIFYLIST", "SysListView32"},
  };
  const auto found = classes.find(verb);
  return found == classes.end() ? "" : found->second;
}

std::int32_t NumberOf(const std::string& text) {
  std::int32_t number = 0;
  if (runtime::IsNumeric(text)) runtime::Skip([&] { number = runtime::ToLong(text); });
  return number;
}

// The control by number, class and text, or the window alone.
std::string MissingControl(const std::string& verb, const NamedArguments& named,
                           const std::vector<std::int32_t>& windows) {
  const std::string id = named["id"] + named["list id"] + named["control id"];  // no verb has more than one of them
  const std::string cls = named["class"].empty() ? OwnClass(verb) : named["class"];
  const bool inFrame = !(named["frame id"] + named["frame id or control text"]).empty();
  if (verb == "WAITFORWINDOW" && cls.empty()) return named["text"].empty() ? "" : Say(say::kNoClass);
  if (cls.empty() && (id.empty() || inFrame)) return "";
  // Among the arguments of this verb "text" is what the control is to show.
  const Wanted wanted{NumberOf(id), cls, verb == "SETMERLATEXT" ? "" : named["text"]};
  if (std::ranges::any_of(windows, [&](std::int32_t window) { return wanted.IsIn(window); })) return "";
  const std::string title = Quoted(basMain::GetWindowTitle(windows.front()));
  return Say(say::kNoControl, {title, wanted.Description()}) + Instead(windows.front(), wanted);
}

std::string MissingWindow(const std::string& verb, const NamedArguments& named) {
  const std::string title = named["window"];
  if (title == "%MAINWINDOW%") return "";
  // The word of the dates wants whole titles always.
  const bool exact = verb == "SETMERLADATE" || named["exact"] == "1";
  const auto windows = Fitting(title, exact);
  const bool inTarget = basMain::SearchChildWindow(basMain::frame.MainWindow, title, "", "", 0) != 0;
  if (windows.empty() && !inTarget)
    return Say(exact ? say::kNoWindow : say::kNoWindowWith, {ToUtf8(title), ShownTitles()});
  return windows.empty() ? "" : MissingControl(verb, named, windows);
}

std::string MissingBox(const std::string& title, const std::string& text) {
  const auto windows = Fitting(title, false);
  if (windows.empty()) return Say(say::kNoWindowWith, {ToUtf8(title), ShownTitles()});
  for (const std::int32_t window : windows) {
    for (const std::int32_t control : ControlsOf(window))
      if (runtime::EqualIgnoringCase(basMain::GetWindowClass(control), "STATIC") &&
          runtime::ContainsIgnoringCase(basMain::GetWindowTitle(control), text))
        return "";
  }
  return Say(say::kNoBoxText, {Quoted(basMain::GetWindowTitle(windows.front())), ToUtf8(text)});
}

std::string MissingFile(const std::string& path) {
  if (runtime::Contains(path, "*")) return Say(say::kNoFileOfKind, {ToUtf8(path)});
  if (basMain::FileSystem().FolderExists(path)) return Say(say::kFolderNoFile, {ToUtf8(path)});
  return basMain::FileSystem().FileExists(path) ? "" : Say(say::kNoFile, {ToUtf8(path)});
}

bool IsVerb(const std::string& word) { return basMain::FindVerb(word) != nullptr; }

// A word that the table does not have.
std::string UnknownVerb(const LineVisit& visit) {
  const std::string trimmed = runtime::Trim(visit.verb);
  if (trimmed != visit.verb && IsVerb(trimmed)) return Say(say::kBlanks, {trimmed});
  // "Name = VERB(...)", and an assignment to what is not declared.
  const std::string rest = visit.line.substr(std::min(visit.line.find('='), visit.line.size() - 1) + 1);
  const std::string assigned = runtime::Trim(runtime::ToUpper(rest.substr(0, rest.find('('))));
  if (IsVerb(assigned)) {
    const std::string name = visit.line.substr(0, visit.line.find('='));
    const auto declared = basMain::run.UserVariables.FindDeclared(runtime::Trim(name));
    return declared ? Say(say::kBlanks, {ToUtf8(runtime::Trim(name))}) : Say(say::kUndeclared, {ToUtf8(name)});
  }
  const std::size_t bracket = trimmed.find('(');
  if (bracket != std::string::npos && IsVerb(trimmed.substr(0, bracket)))
    return Say(say::kBrackets, {ToUtf8(trimmed.substr(0, bracket))});
  return "";
}

// An opening single quote that nothing closes takes all arguments with it from there on.
bool QuoteIsOpen(const LineVisit& visit) { return std::ranges::count(visit.line, '\'') % 2 != 0; }

// What verbs that fail without any text want.
std::string WrongValue(const LineVisit& visit) {
  const basMain::Arguments& a = visit.arguments;
  if ((visit.verb == "WAIT" || visit.verb == "SLEEP") && !runtime::IsNumeric(a[1]))
    return Say(say::kNoNumber, {ToUtf8(a[1])});
  const std::string button = runtime::ToUpper(a[1]);
  if (visit.verb == "MOUSECLICK" && button != "LEFT" && button != "RIGHT")
    return Say(say::kNoMouseButton, {ToUtf8(a[1])});
  if (visit.verb == "BLOCKINPUT") return Say(say::kBlockRefused);
  if ((visit.verb == "SETFOCUSCTL" || visit.verb == "MOUSEMOVETOCTL") && (a[1] + a[2]).empty())
    return Say(say::kNoClassOrText);
  if (visit.verb == "RAISEERROR" && a[1].empty()) return Say(say::kNoMessage);
  return "";
}

// What a control shows that is there.
std::string WrongState(const std::string& verb) {
  if (verb == "GETCHECK") return Say(say::kNotChecked);
  if (verb == "READLISTITEM" || verb == "SELECTLIST" || verb == "VERIFYLIST") return Say(say::kEmptyList);
  return "";
}

std::string Cause(const LineVisit& visit) {
  if (!visit.parsed) return "";
  if (QuoteIsOpen(visit)) return Say(say::kOpenQuote);
  const basMain::Verb* const verb = basMain::FindVerb(visit.verb);
  if (verb == nullptr) return UnknownVerb(visit);
  if (const std::string why = WrongValue(visit); !why.empty()) return why;
  const NamedArguments named(*verb, visit.arguments);
  if (visit.verb == "WAITFORDIALOG") return MissingBox(visit.arguments[1], visit.arguments[2]);
  if (visit.verb == "WAITFORFILE") return MissingFile(visit.arguments[1]);
  if (visit.verb == "WAITFORCLIPBOARD") return Say(say::kNoClipboard);
  if (!named.Has("window")) return "";
  if (named["window"].empty()) return Say(say::kNoWindowNamed, {visit.verb, verb->arguments});
  const std::string why = MissingWindow(visit.verb, named);
  return why.empty() ? WrongState(visit.verb) : why;
}

}  // namespace

std::string Explain(const LineVisit& visit) {
  std::string cause;
  runtime::Skip([&] { cause = Cause(visit); });  // of a path that no system takes, for one
  return cause;
}

}  // namespace makrun
