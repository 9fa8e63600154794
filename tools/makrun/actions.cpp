#include "actions.h"

#include <charconv>
#include <map>
#include <optional>

#include "files.h"
#include "platform/simulated/desktop.h"
#include "runtime/text.h"

namespace makrun {
namespace {

namespace simulated = platform::simulated;

std::optional<Target> ParseTarget(const std::string& text) {
  const auto pieces = runtime::Split(text, '.');
  if (pieces.empty()) return std::nullopt;
  Target target{pieces[0], {}};
  for (std::size_t i = 1; i < pieces.size(); ++i) {
    std::int32_t id = 0;
    const char* const last = pieces[i].data() + pieces[i].size();
    const auto [end, error] = std::from_chars(pieces[i].data(), last, id);
    if (error != std::errc() || end != last) return std::nullopt;
    target.ids.push_back(id);
  }
  return target;
}

std::string Joined(const std::vector<std::string>& parts, const std::string& separator) {
  std::string text;
  for (std::size_t i = 0; i < parts.size(); ++i) text += (i == 0 ? "" : separator) + parts[i];
  return text;
}

// What a control shows; of a list, its rows: cells parted by tabs, rows by line ends.
std::string Shown(const simulated::Window& window) {
  std::string text = window.text;
  for (const simulated::ListRow& row : window.rows) text += (text.empty() ? "" : "\r\n") + Joined(row.columns, "\t");
  return text;
}

// The cell of the first selected row, by its column from 0; empty without one.
std::string SelectedCell(const simulated::Window& list, std::size_t column) {
  for (const simulated::ListRow& row : list.rows)
    if ((row.state & simulated::LVIS_SELECTED) != 0) return column < row.columns.size() ? row.columns[column] : "";
  return "";
}

// What "NAME.ID" shows, or of "NAME.ID/COLUMN" that cell of the selected row; empty when the window is not open.
std::string Value(const std::string& reference) {
  const auto slash = reference.find('/');
  const auto target = ParseTarget(reference.substr(0, slash));
  const std::int32_t window = target ? scene.Find(*target) : 0;
  if (window == 0) return "";
  if (slash == std::string::npos) return Shown(simulated::At(window));
  std::size_t column = 0;
  const std::string number = reference.substr(slash + 1);
  const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), column);
  return error == std::errc() && *end == '\0' ? SelectedCell(simulated::At(window), column) : "";
}

// The text with each reference in braces replaced by its value.
std::string Filled(const std::string& text) {
  std::string filled;
  std::size_t from = 0;
  for (auto open = text.find('{'); open != std::string::npos; open = text.find('{', from)) {
    const auto close = text.find('}', open);
    if (close == std::string::npos) break;
    filled += text.substr(from, open - from) + Value(text.substr(open + 1, close - open - 1));
    from = close + 1;
  }
  return filled + text.substr(from);
}

// What is done to a window that is not open has no effect.
Action OnWindow(const Target& target, std::function<void(simulated::Window&)> act) {
  return [target, act = std::move(act)] {
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
  if (statement.inner.empty()) RaiseMistake(path_, statement.line, "indented actions below this line");
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
  };
  const std::string& word = statement.words[0].text;
  if (word == "after") return ReadDelay(statement, arguments);
  if (word == "when") return ReadCondition(statement, arguments);
  const auto reading = kSimple.find(word);
  if (reading == kSimple.end()) {
    std::string known;
    for (const auto& [name, ignored] : kSimple) known += name + ", ";
    arguments.Mistake("one of the actions " + known + "after, when instead of \"" + word + "\"");
  }
  if (!statement.inner.empty()) RaiseMistake(path_, statement.inner[0].line, "nothing below \"" + word + "\"");
  return (this->*reading->second)(arguments);
}

Action ActionReader::Open(Arguments& arguments) const {
  return [name = KnownName(arguments)] { scene.Open(name); };
}

Action ActionReader::Close(Arguments& arguments) const {
  return [name = KnownName(arguments)] { scene.Close(name); };
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
  const Target target = ReadTarget(arguments);
  const std::string expected = "the new text in double quotes";
  std::string text = arguments.Text(expected);
  for (const std::string& line : arguments.Texts(expected)) text += "\r\n" + line;
  return OnWindow(target, [=](simulated::Window& window) { window.text = Filled(text); });
}

Action ActionReader::SetItems(Arguments& arguments) const {
  const Target target = ReadTarget(arguments);
  const auto items = arguments.Texts("the entries in double quotes");
  return OnWindow(target, [=](simulated::Window& window) {
    window.entries = items;
    SelectEntry(window, -1);
  });
}

Action ActionReader::Select(Arguments& arguments) const {
  const Target target = ReadTarget(arguments);
  const std::int32_t index = arguments.Number("the number of an entry, from 0");
  return OnWindow(target, [=](simulated::Window& window) { SelectEntry(window, index); });
}

Action ActionReader::Check(Arguments& arguments) const {
  return OnWindow(ReadTarget(arguments), [](simulated::Window& window) { window.check = 1; });
}

Action ActionReader::Uncheck(Arguments& arguments) const {
  return OnWindow(ReadTarget(arguments), [](simulated::Window& window) { window.check = 0; });
}

Action ActionReader::AddRow(Arguments& arguments) const {
  const Target target = ReadTarget(arguments);
  const auto cells = arguments.Texts("the row's cells in double quotes");
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
    for (simulated::ListRow& row : window.rows) row.state |= simulated::LVIS_SELECTED;
  });
}

Action ActionReader::Clipboard(Arguments& arguments) const {
  const std::string text = LinesText(arguments.Texts("the lines in double quotes"));
  return [=] { simulated::Clipboard() = Filled(text); };
}

Action ActionReader::Write(Arguments& arguments) const {
  const std::string path = arguments.Text("the file's path in double quotes");
  const std::string text = LinesText(arguments.Texts("the file's lines in double quotes"));
  return [=] { PutSimulatedFile(Filled(path), Filled(text)); };
}

Action ActionReader::Append(Arguments& arguments) const {
  const std::string path = arguments.Text("the file's path in double quotes");
  const std::string text = LinesText(arguments.Texts("the file's lines in double quotes"));
  return [=] {
    const std::string file = Filled(path);
    PutSimulatedFile(file, simulated::GetFile(file) + Filled(text));
  };
}

Action ActionReader::Grow(Arguments& arguments) const {
  const std::string path = arguments.Text("the file's path in double quotes");
  const std::int32_t size = arguments.Number("the bytes by which the file grows", 0);
  return [=] {
    const std::string file = Filled(path);
    PutSimulatedFile(file, simulated::GetFile(file) + std::string(static_cast<std::size_t>(size), 'x'));
  };
}

Action ActionReader::ReadDelay(const Statement& statement, Arguments& arguments) const {
  const std::int32_t milliseconds = arguments.Number("milliseconds", 0);
  return [milliseconds, actions = Read(statement)] { simulated::Schedule(milliseconds, [=] { Carry(actions); }); };
}

Action ActionReader::ReadCondition(const Statement& statement, Arguments& arguments) const {
  const Target target = ReadTarget(arguments);
  const std::string expected = "selected and a number, checked, unchecked, or text and a text";
  const std::string& state = arguments.Name(expected);
  std::function<bool(const simulated::Window&)> holds;
  if (state == "selected") {
    const std::int32_t index = arguments.Number("the number of an entry, from 0");
    holds = [=](const simulated::Window& window) { return window.selection == index; };
  } else if (state == "checked" || state == "unchecked") {
    holds = [check = state == "checked" ? 1 : 0](const simulated::Window& window) { return window.check == check; };
  } else if (state == "text") {
    const std::string text = arguments.Text("a text in double quotes");
    holds = [=](const simulated::Window& window) { return window.text == text; };
  } else {
    arguments.Mistake(expected);
  }
  return OnWindow(target, [holds, actions = Read(statement)](const simulated::Window& window) {
    if (holds(window)) Carry(actions);
  });
}

std::string ActionReader::KnownName(Arguments& arguments) const {
  const std::string expected = "the name of a window of this file";
  const std::string& name = arguments.Name(expected);
  if (!names_.contains(name)) arguments.Mistake(expected + " instead of \"" + name + "\"");
  return name;
}

Target ActionReader::ReadTarget(Arguments& arguments) const {
  const std::string expected = "the name of a window of this file, or NAME.ID for a control of it";
  const std::string& text = arguments.Name(expected);
  const auto target = ParseTarget(text);
  if (!target || !names_.contains(target->window)) arguments.Mistake(expected + ", instead of \"" + text + "\"");
  return *target;
}

}  // namespace makrun
