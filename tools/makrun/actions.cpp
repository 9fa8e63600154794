#include "actions.h"

#include <algorithm>
#include <charconv>
#include <map>

#include "common/tool.h"
#include "desktop_texts.h"
#include "files.h"
#include "platform/messages.h"
#include "platform/simulated/desktop.h"
#include "runtime/code_page.h"
#include "runtime/text.h"

namespace makrun {
namespace {

using runtime::ToUtf8;
using tools::Say;

namespace simulated = platform::simulated;

// What is done to a window that is not open has no effect.
Action OnWindow(const WindowPlan& target, std::function<void(simulated::Window&)> act) {
  return [&target, act = std::move(act)] {
    if (const std::int32_t window = scene.Find(target)) act(simulated::At(window));
  };
}

void Carry(const std::vector<Action>& actions) {
  for (const Action& action : actions) action();
}

}  // namespace

std::string LinesText(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

std::vector<Action> ActionReader::Read(const Statement& statement) const {
  if (statement.inner.empty()) RaiseMistake(path_, statement.line, Say(say::kActionsBelow));
  std::vector<Action> actions;
  for (const Statement& inner : statement.inner) {
    Arguments arguments(path_, inner);
    actions.push_back(ReadAction(inner, arguments));
    arguments.End();
  }
  return actions;
}

Action ActionReader::ReadAction(const Statement& statement, Arguments& arguments) const {
  using Reading = Action (ActionReader::*)(Arguments&) const;
  static const std::map<std::string, Reading> kSimple = {
      {"open", &ActionReader::Open},           {"close", &ActionReader::Close},
      {"show", &ActionReader::Show},           {"hide", &ActionReader::Hide},
      {"text", &ActionReader::SetText},        {"items", &ActionReader::SetItems},
      {"select", &ActionReader::Select},       {"check", &ActionReader::Check},
      {"uncheck", &ActionReader::Uncheck},     {"grow", &ActionReader::Grow},
      {"clipboard", &ActionReader::Clipboard}, {"write", &ActionReader::Write},
      {"append", &ActionReader::Append},       {"row", &ActionReader::AddRow},
      {"clear", &ActionReader::ClearRows},     {"select-all", &ActionReader::SelectRows},
      {"copy", &ActionReader::Copy},
  };
  const std::string& word = statement.words[0].text;
  if (word == "after") return ReadDelay(statement, arguments);
  if (word == "when") return ReadCondition(statement, arguments);
  const auto reading = kSimple.find(word);
  if (reading == kSimple.end()) {
    std::string known;
    for (const auto& [name, ignored] : kSimple) known += name + ", ";
    arguments.Mistake(Say(say::kOneAction, {known, ToUtf8(word)}));
  }
  if (!statement.inner.empty()) RaiseMistake(path_, statement.inner[0].line, Say(say::kNothingBelow, {ToUtf8(word)}));
  return (this->*reading->second)(arguments);
}

Action ActionReader::Open(Arguments& arguments) const {
  return [name = KnownName(arguments)] { scene.Open(name); };
}

Action ActionReader::Close(Arguments& arguments) const {
  return OnWindow(ReadTarget(arguments),
                  [](const simulated::Window& window) { simulated::DestroyWindow(window.handle); });
}

Action ActionReader::Show(Arguments& arguments) const {
  return OnWindow(ReadTarget(arguments),
                  [](const simulated::Window& window) { simulated::ShowWindow(window.handle, true); });
}

Action ActionReader::Hide(Arguments& arguments) const {
  return OnWindow(ReadTarget(arguments),
                  [](const simulated::Window& window) { simulated::ShowWindow(window.handle, false); });
}

Action ActionReader::SetText(Arguments& arguments) const {
  const WindowPlan& target = ReadTarget(arguments);
  const std::string expected = Say(say::kNewText);
  std::string text = arguments.Text(expected);
  for (const std::string& line : arguments.Texts(expected)) text += "\r\n" + line;
  return OnWindow(target,
                  [filled = Filled(arguments, text)](simulated::Window& window) { window.text = filled.Now(); });
}

Action ActionReader::SetItems(Arguments& arguments) const {
  const WindowPlan& target = ReadTarget(arguments);
  const auto items = arguments.Texts(Say(say::kEntries));
  return OnWindow(target, [=](simulated::Window& window) {
    window.entries = items;
    SelectEntry(window, -1);
  });
}

Action ActionReader::Select(Arguments& arguments) const {
  const WindowPlan& target = ReadTarget(arguments);
  const std::int32_t index = arguments.Number(Say(say::kEntryNumber));
  return OnWindow(target, [=](simulated::Window& window) { SelectEntry(window, index); });
}

Action ActionReader::Check(Arguments& arguments) const {
  return OnWindow(ReadTarget(arguments), [](simulated::Window& window) { window.check = 1; });
}

Action ActionReader::Uncheck(Arguments& arguments) const {
  return OnWindow(ReadTarget(arguments), [](simulated::Window& window) { window.check = 0; });
}

Action ActionReader::AddRow(Arguments& arguments) const {
  const WindowPlan& target = ReadTarget(arguments);
  const auto cells = arguments.Texts(Say(say::kCells));
  return OnWindow(target, [=](simulated::Window& window) { window.rows.push_back({cells, 0}); });
}

Action ActionReader::ClearRows(Arguments& arguments) const {
  return OnWindow(ReadTarget(arguments), [](simulated::Window& window) {
    window.rows.clear();
    window.selectionMark = -1;
  });
}

Action ActionReader::SelectRows(Arguments& arguments) const {
  return OnWindow(ReadTarget(arguments), [](simulated::Window& window) {
    for (simulated::ListRow& row : window.rows) row.state |= platform::LVIS_SELECTED;
  });
}

Action ActionReader::Clipboard(Arguments& arguments) const {
  const FilledText text = Filled(arguments, LinesText(arguments.Texts(Say(say::kLines))));
  return [=] { simulated::Clipboard() = text.Now(); };
}

Action ActionReader::Write(Arguments& arguments) const {
  const FilledText path = Filled(arguments, arguments.Text(Say(say::kFilePath)));
  const FilledText text = Filled(arguments, LinesText(arguments.Texts(Say(say::kFileLines))));
  return [=] { PutSimulatedFile(path.Now(), text.Now()); };
}

Action ActionReader::Append(Arguments& arguments) const {
  const FilledText path = Filled(arguments, arguments.Text(Say(say::kFilePath)));
  const FilledText text = Filled(arguments, LinesText(arguments.Texts(Say(say::kFileLines))));
  return [=] {
    const std::string file = path.Now();
    PutSimulatedFile(file, simulated::GetFile(file) + text.Now());
  };
}

Action ActionReader::Grow(Arguments& arguments) const {
  const FilledText path = Filled(arguments, arguments.Text(Say(say::kFilePath)));
  const std::int32_t size = arguments.Number(Say(say::kGrowth), 0);
  return [=] {
    const std::string file = path.Now();
    PutSimulatedFile(file, simulated::GetFile(file) + std::string(static_cast<std::size_t>(size), 'x'));
  };
}

// The file's bytes are read at once, so that a file that is not there is a mistake here.
Action ActionReader::Copy(Arguments& arguments) const {
  const std::string expected = Say(say::kFileName);
  const std::string& name = arguments.Text(expected);
  std::string bytes;
  try {
    bytes = tools::ReadFile(path_.substr(0, path_.find_last_of("/\\") + 1) + ToUtf8(name));
  } catch (const tools::FileError& error) {
    arguments.Mistake(expected + "; " + error.text);
  }
  const FilledText path = Filled(arguments, arguments.Text(Say(say::kNewFilePath)));
  if (arguments.More()) {
    const auto size = static_cast<std::int32_t>(bytes.size());
    bytes.resize(static_cast<std::size_t>(arguments.Number(Say(say::kCopiedBytes, {std::to_string(size)}), 0, size)));
  }
  return [=] { PutSimulatedFile(path.Now(), bytes); };
}

Action ActionReader::ReadDelay(const Statement& statement, Arguments& arguments) const {
  const std::int32_t milliseconds = arguments.Number(Say(say::kMilliseconds), 0);
  return [milliseconds, actions = Read(statement)] { simulated::Schedule(milliseconds, [=] { Carry(actions); }); };
}

Action ActionReader::ReadCondition(const Statement& statement, Arguments& arguments) const {
  const WindowPlan& target = ReadTarget(arguments);
  const std::string expected = Say(say::kStates);
  const std::string& state = arguments.Name(expected);
  std::function<bool(const simulated::Window&)> holds;
  if (state == "selected") {
    const std::int32_t index = arguments.Number(Say(say::kEntryNumber));
    holds = [=](const simulated::Window& window) { return window.selection == index; };
  } else if (state == "checked" || state == "unchecked") {
    holds = [check = state == "checked" ? 1 : 0](const simulated::Window& window) { return window.check == check; };
  } else if (state == "text") {
    std::vector<std::string> texts = {arguments.Text(Say(say::kSomeText))};
    for (const std::string& text : arguments.Texts(Say(say::kOtherText))) texts.push_back(text);
    holds = [=](const simulated::Window& window) { return std::ranges::count(texts, window.text) != 0; };
  } else {
    arguments.Mistake(expected);
  }
  return OnWindow(target, [holds, actions = Read(statement)](const simulated::Window& window) {
    if (holds(window)) Carry(actions);
  });
}

std::string ActionReader::KnownName(Arguments& arguments) const {
  const std::string expected = Say(say::kWindowName);
  const std::string& name = arguments.Name(expected);
  if (!plans_.contains(name)) arguments.Mistake(Say(say::kInsteadOf, {expected, ToUtf8(name)}));
  return name;
}

const WindowPlan& ActionReader::ReadTarget(Arguments& arguments) const {
  const std::string expected = Say(say::kTargetName);
  const std::string& text = arguments.Name(expected);
  const WindowPlan* const target = Resolve(text);
  if (target == nullptr) arguments.Mistake(Say(say::kInsteadOfTarget, {expected, ToUtf8(text)}));
  return *target;
}

const WindowPlan* ActionReader::Resolve(const std::string& target) const {
  const auto pieces = runtime::Split(target, '.');
  const auto window = pieces.empty() ? plans_.end() : plans_.find(pieces[0]);
  const WindowPlan* found = window == plans_.end() ? nullptr : &window->second;
  for (std::size_t i = 1; i < pieces.size() && found != nullptr; ++i) {
    std::int32_t id = 0;
    const char* const last = pieces[i].data() + pieces[i].size();
    const auto [end, error] = std::from_chars(pieces[i].data(), last, id);
    found = error == std::errc() && end == last ? FindControl(*found, id) : nullptr;
  }
  return found;
}

FilledText ActionReader::Filled(const Arguments& arguments, const std::string& text) const {
  try {
    return {text, [this](const std::string& target) { return Resolve(target); }};
  } catch (const FilledText::WrongReference& wrong) {
    arguments.Mistake(Say(say::kReference, {ToUtf8(wrong.text)}));
  }
}

}  // namespace makrun
