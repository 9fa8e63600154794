#include "desktop_file.h"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

#include "actions.h"
#include "arguments.h"
#include "common/tool.h"
#include "desktop_text.h"
#include "desktop_texts.h"
#include "files.h"
#include "platform/class_names.h"
#include "platform/messages.h"
#include "platform/registry.h"
#include "platform/simulated/desktop.h"
#include "platform/simulated/host_paths.h"
#include "runtime/code_page.h"
#include "scene.h"

namespace makrun {
namespace {

using runtime::ToUtf8;
using tools::Say;

namespace simulated = platform::simulated;
using simulated::Message;

class Loader {
 public:
  explicit Loader(const std::string& path) : path_(path), actions_(path, scene.plans) {}

  void Load() {
    scene = {};
    const std::vector<Statement> statements = ReadStatements(path_);
    for (const Statement& statement : statements) ReadTopLevel(statement);
    for (const auto& [statement, plan] : references_) ReadReference(*statement, plan);
    // The file lists the windows from the top down.
    for (auto name = open_.rbegin(); name != open_.rend(); ++name) scene.Open(*name);
    for (const Action& action : fromStart_) action();
  }

 private:
  // What stands on the drives from the start.
  template <class Operation>
  static void PutStanding(const Arguments& arguments, Operation&& operation) {
    try {
      operation();
    } catch (const tools::FileError& error) {
      arguments.Mistake(Say(say::kDrivePath) + "; " + error.text);
    }
  }

  static void WriteRegistry(const std::string& key, const std::string& value, const std::string& text) {
    std::int32_t hKey = 0;
    platform::RegCreateKeyA(platform::HKEY_LOCAL_MACHINE, key, hKey);
    platform::RegSetValueExA(hKey, value, platform::REG_SZ, text + '\0');
    platform::RegCloseKey(hKey);
  }

  void ReadTopLevel(const Statement& statement) {
    const std::string& word = statement.words[0].text;
    Arguments arguments(path_, statement);
    if (word == "window" || word == "dialog") {
      const std::string name = ReadName(word, arguments);
      WindowPlan& plan = scene.plans[name];
      plan.window.className = word == "window" ? platform::kFormClass : "#32770";
      plan.window.text = arguments.Text(Say(say::kTitle));
      arguments.End();
      ReadWindow(statement, plan, true);
      if (word == "window") open_.push_back(name);
      return;
    }
    if (word == "box") {
      ReadBox(statement, arguments);
      return;
    }
    if (word == "after") {
      references_.emplace_back(&statement, nullptr);
      return;
    }
    ExpectNothingBelow(statement);
    if (word == "file") {
      const std::string& path = arguments.Text(Say(say::kFilePath));
      PutStanding(arguments,
                  [&, text = LinesText(arguments.Texts(Say(say::kFileLines)))] { PutSimulatedFile(path, text); });
    } else if (word == "folder") {
      PutStanding(arguments, [&, path = arguments.Text(Say(say::kFolderPath))] { MakeSimulatedFolder(path); });
    } else if (word == "registry") {
      const std::string& key = arguments.Text(Say(say::kRegistryKey));
      const std::string& value = arguments.Text(Say(say::kValueName));
      WriteRegistry(key, value, arguments.Text(Say(say::kValueText)));
    } else if (word == "environment") {
      const std::string& name = arguments.Text(Say(say::kVariableName));
      simulated::SetEnvironmentVariable(name, arguments.Text(Say(say::kVariableText)));
    } else if (word == "missing-program") {
      simulated::SetMissingProgram(arguments.Text(Say(say::kMissingProgram)));
    } else if (word == "refuses-blockinput") {
      simulated::Fail("BlockInput");
    } else {
      arguments.Mistake(Say(say::kTopLevel, {ToUtf8(word)}));
    }
    arguments.End();
  }

  // The name of a new window.
  static const std::string& ReadName(const std::string& word, Arguments& arguments) {
    const std::string& name = arguments.Name(Say(say::kNameBehind, {ToUtf8(word)}));
    if (scene.plans.contains(name)) arguments.Mistake(Say(say::kNewName));
    return name;
  }

  // Title, text and buttons; a command closes it.
  void ReadBox(const Statement& statement, Arguments& arguments) {
    WindowPlan& plan = scene.plans[ReadName("box", arguments)];
    plan.window.className = "#32770";
    plan.window.text = arguments.Text(Say(say::kBoxTitle));
    plan.closesOnCommand = true;
    WindowPlan& text = plan.controls.emplace_back();
    text.window.className = "Static";
    text.window.text = arguments.Text(Say(say::kBoxText));
    text.window.id = 65535;
    const std::map<std::string, std::int32_t> ids = {{"OK", 1}, {"Abbrechen", 2}, {"Ja", 6}, {"Nein", 7}};
    for (const std::string& caption : arguments.Texts(Say(say::kCaptions))) {
      const auto id = ids.find(caption);
      const std::int32_t other = 100 + static_cast<std::int32_t>(plan.controls.size());
      WindowPlan& button = plan.controls.emplace_back();
      button.window.className = "Button";
      button.window.text = caption;
      button.window.id = id == ids.end() ? other : id->second;
    }
    ReadWindow(statement, plan, true);
  }

  // What stands below a window or a control.
  void ReadWindow(const Statement& statement, WindowPlan& plan, bool topLevel) {
    for (const Statement& inner : statement.inner) {
      Arguments arguments(path_, inner);
      const std::string& word = inner.words[0].text;
      if (word == "control") {
        ReadControl(inner, arguments, plan);
      } else if (word == "on" || (word == "folder-to" && topLevel)) {
        references_.emplace_back(&inner, &plan);
      } else {
        ReadProperty(word, arguments, plan, topLevel);
        arguments.End();
        ExpectNothingBelow(inner);
      }
    }
  }

  void ExpectNothingBelow(const Statement& statement) const {
    if (!statement.inner.empty())
      RaiseMistake(path_, statement.inner[0].line, Say(say::kNothingBelow, {ToUtf8(statement.words[0].text)}));
  }

  void ReadControl(const Statement& statement, Arguments& arguments, WindowPlan& parent) {
    WindowPlan& plan = parent.controls.emplace_back();
    plan.window.className = arguments.Name(Say(say::kControlWords));
    plan.window.id = arguments.Number(Say(say::kControlId));
    if (arguments.More()) plan.window.text = arguments.Text(Say(say::kControlText));
    arguments.End();
    ReadWindow(statement, plan, false);
  }

  void ReadProperty(const std::string& word, Arguments& arguments, WindowPlan& plan, bool topLevel) {
    simulated::Window& window = plan.window;
    if (word == "class" && topLevel) window.className = arguments.Name(Say(say::kClassName));
    else if (word == "id" && topLevel) window.id = arguments.Number(Say(say::kWindowId));
    else if (word == "process" && topLevel) window.process = ProcessOf(arguments.Name(Say(say::kProcessName)));
    else if (word == "at") ReadPlace(arguments, window.rectangle);
    else if (word == "hidden") window.visible = false;
    else if (word == "disabled") window.enabled = false;
    else if (word == "checked") window.check = 1;
    else if (word == "style") window.style = StyleOf(arguments);
    else if (word == "items") window.entries = arguments.Texts(Say(say::kEntries));
    else if (word == "selected") window.selection = arguments.Number(Say(say::kEntryNumber), 0);
    else if (word == "row") window.rows.push_back({arguments.Texts(Say(say::kCells)), 0});
    else if (word == "marked") window.selectionMark = arguments.Number(Say(say::kRowNumber), 0);
    else if (word == "by-parameter") window.rowFromParameter = true;
    else if (word == "key-time") window.keyTime = arguments.Number("milliseconds for a key", 0);
    else if (word == "message-time") window.messageTime = arguments.Number("milliseconds for a message", 0);
    else if (word == "refuses-text") plan.refusesText = true;
    else if (word == "closes-after" && plan.closesOnCommand)
      plan.closesAfter = arguments.Number(Say(say::kMilliseconds), 0);
    else arguments.Mistake(Say(say::kProperty, {ToUtf8(word)}));
  }

  static void ReadPlace(Arguments& arguments, platform::Rect& place) {
    const std::string expected = Say(say::kPlace);
    constexpr std::int32_t kFarthest = 32767;
    place.left = arguments.Number(expected, -kFarthest, kFarthest);
    place.top = arguments.Number(expected, -kFarthest, kFarthest);
    place.right = place.left + arguments.Number(expected, 0, kFarthest);
    place.bottom = place.top + arguments.Number(expected, 0, kFarthest);
  }

  static std::uint32_t StyleOf(Arguments& arguments) {
    const std::map<std::string, std::uint32_t> styles = {{"checkbox", simulated::BS_AUTOCHECKBOX},
                                                         {"option", simulated::BS_AUTORADIOBUTTON},
                                                         {"frame", simulated::BS_GROUPBOX},
                                                         {"single-selection", simulated::LVS_SINGLESEL}};
    const std::string expected = Say(say::kStyles);
    const auto style = styles.find(arguments.Name(expected));
    if (style == styles.end()) arguments.Mistake(expected);
    return style->second;
  }

  // Windows that name the same process belong together.
  std::uint32_t ProcessOf(const std::string& name) {
    constexpr std::uint32_t kFirst = 5000;
    return processes_.try_emplace(name, kFirst + static_cast<std::uint32_t>(processes_.size())).first->second;
  }

  // What names other windows and controls is read when all are known.
  void ReadReference(const Statement& statement, WindowPlan* plan) {
    Arguments arguments(path_, statement);
    const std::string& word = statement.words[0].text;
    if (word == "on") {
      ReadReaction(statement, arguments, *plan);
    } else if (word == "folder-to") {
      ReadFolderControl(statement, arguments, *plan);
    } else {
      fromStart_.push_back(actions_.ReadDelay(statement, arguments));
      arguments.End();
    }
  }

  void ReadFolderControl(const Statement& statement, Arguments& arguments, WindowPlan& plan) {
    plan.folderControl = FindControl(plan, arguments.Number(Say(say::kChildId)));
    if (plan.folderControl == nullptr) arguments.Mistake(Say(say::kChildId));
    arguments.End();
    ExpectNothingBelow(statement);
  }

  static std::int32_t IdOf(const WindowPlan& plan) { return plan.window.id; }

  void ReadReaction(const Statement& statement, Arguments& arguments, WindowPlan& plan) {
    const std::string expected = Say(say::kEvents);
    const std::string& event = arguments.Name(expected);
    Reaction reaction;
    if (event == "command" || event == "notification") {
      const std::int32_t id = arguments.Number(Say(say::kCommandId));
      const std::int32_t code = event == "command" ? 0 : arguments.Number(Say(say::kNotificationCode), 0, 32767);
      // A command can be that of a menu, but a notification comes from a child.
      if (event == "notification" && std::ranges::count(plan.controls, id, IdOf) == 0)
        arguments.Mistake(Say(say::kSender));
      reaction.wanted = [=](const Message& message) {
        return message.number == platform::WM_COMMAND && message.wParam == code * 65536 + (id & 0xFFFF);
      };
    } else if (event == "key" || event == "character") {
      const std::uint32_t number = event == "key" ? platform::WM_KEYDOWN : platform::WM_CHAR;
      const std::int32_t code = arguments.Number(Say(event == "key" ? say::kKeyCode : say::kCharacterCode));
      reaction.wanted = [=](const Message& message) { return message.number == number && message.wParam == code; };
    } else if (event == "text" || event == "close") {
      const std::uint32_t number = event == "text" ? platform::WM_SETTEXT : platform::WM_CLOSE;
      if (event == "close") plan.staysOnClose = true;
      reaction.wanted = [=](const Message& message) { return message.number == number; };
    } else {
      arguments.Mistake(Say(say::kInsteadOf, {expected, ToUtf8(event)}));
    }
    arguments.End();
    reaction.actions = actions_.Read(statement);
    plan.reactions.push_back(std::move(reaction));
  }

  const std::string& path_;
  ActionReader actions_;
  // Statements with what they belong to; null for the whole desktop.
  std::vector<std::pair<const Statement*, WindowPlan*>> references_;
  std::vector<Action> fromStart_;
  std::vector<std::string> open_;
  std::map<std::string, std::uint32_t> processes_;
};

}  // namespace

void LoadDesktopFile(const std::string& path) { Loader(path).Load(); }

}  // namespace makrun
