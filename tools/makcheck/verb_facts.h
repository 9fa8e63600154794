// What a macro line must know of each argument of a verb: what it stands for, and whether the verb can do without it.
// The words and names of the arguments are those of the verb table (engine/verbs.h).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "engine/verbs.h"
#include "platform/class_names.h"

namespace makcheck {

enum class ArgumentKind {
  Text,        // any text
  Number,      // 32 bits; anything else fails the line
  Number16,    // 16 bits
  Decimal,     // may have decimals
  Index,       // a date field, 0 to 20
  EntryIndex,  // of a combo box; anything but a number means 0
  Id,          // of a control; anything but a number fails the line
  CommandId,   // carried in 16 bits by a command: up to 32,767
  MenuId,
  FrameId,
  Window,  // a title
  Exact,   // "1", or anything else for a part
  Class,   // of a control
  FrameClass,
  Control,  // text of a control
  Frame,    // id of a frame, or text of a control
  Title,    // fragment of a title
  Word,     // one of a few words
  File,
  Pattern,  // a file or a pattern
  Folder,
  Destination,  // a folder, with a backslash at its end
  Keys,
  Entry,  // of a combo box
  Mark,
  Unread,
};

struct ArgumentFact {
  std::string_view name;
  ArgumentKind kind;
  bool needed;
};

// The arguments of a verb in their order.
const std::vector<ArgumentFact>& ArgumentsOf(const basMain::Verb& verb);

// The words that an argument of the kind Word knows, in capitals; empty for a verb without such an argument.
std::vector<std::string> WordsOf(std::string_view verbWord);
// Whether the line fails on any other word; if not, the verb takes its default.
bool FailsOnOtherWords(std::string_view verbWord);

// Classes of controls that are seen often.
inline constexpr const char* kClasses[] = {"Button",
                                           "ComboBox",
                                           "STATIC",
                                           "SysListView32",
                                           platform::kCheckBoxClass,
                                           platform::kComboBoxClass,
                                           platform::kCommandButtonClass,
                                           platform::kFrameClass,
                                           platform::kOptionButtonClass,
                                           platform::kTextBoxClass,
                                           platform::kUserControlClass};

// Whether a verb has a value to assign.
bool Yields(const basMain::Verb& verb);

// The verb of a word in upper case; nullptr for none.
const basMain::Verb* FindVerb(std::string_view word);

}  // namespace makcheck
