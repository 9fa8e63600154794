// What the tools have in common from outside: a command line, what they complain about, and how they end.
#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "common/texts.h"

namespace tools {

// A command line that cannot be understood; the text says why.
struct UsageError {
  std::string text;
};

// A file or folder that cannot be read or written, or that says something wrong; the text names it.
struct FileError {
  std::string text;
};

// "--version" was among the options; RunTool tells it.
struct VersionAsked {};

// The options of a tool. Each has "--lang de|en", "--help" and "--version" besides its own.
class CommandLine {
 public:
  // An option without a value, which must outlive this object.
  void Flag(const std::string& name, bool& on);
  // An option with a value; one that is given again is taken again.
  void Setting(const std::string& name, std::function<void(const std::string& value)> take);

  // Takes the options and yields the rest in its order. The language is set before anything else, so that what is wrong
  // is told in it. Faults: UsageError, VersionAsked.
  std::vector<std::string> Read(const std::vector<std::string>& arguments);

  // "--help" was among the options.
  bool Help() const { return help_; }

 private:
  bool help_ = false;
  std::map<std::string, bool*> flags_;
  std::map<std::string, std::function<void(const std::string&)>> settings_;
};

// The value of an option as a number from 0 to `highest`. Faults: UsageError.
std::int64_t ReadNumber(const std::string& option, const std::string& value, std::int64_t highest);

// The value of an option that is not empty, such as a path. Faults: UsageError.
std::string ReadSome(const std::string& option, const std::string& value);

// Writes a text in UTF-8: to the console of Windows as characters, to all else as it is. False when it cannot.
bool Write(std::FILE* stream, const std::string& text);

// One line on standard error behind the tool's name.
void Complain(const std::string& tool, const std::string& text);

// A path in UTF-8 as the host's library takes it, and back.
std::filesystem::path PathOf(const std::string& name);
std::string NameOf(const std::filesystem::path& path);

// The bytes of a file, by its path in UTF-8. Faults: FileError.
std::string ReadFile(const std::string& path);

// Runs `body` with the arguments behind the program's name, in UTF-8, and yields its exit status. What it raises is
// complained about; behind a wrong command line stands the usage.
int RunTool(const std::string& tool, const Text& usage, int argc, char** argv,
            const std::function<int(const std::vector<std::string>& arguments)>& body);

}  // namespace tools
