#include "common/tool.h"

#include <cerrno>
#include <charconv>
#include <cstring>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <utility>

#include "common/exit_status.h"
#include "runtime/code_page.h"

#ifdef _WIN32
#include <windows.h>
// Behind windows.h, on which it stands.
#include <io.h>
#include <shellapi.h>
#endif

namespace tools {
namespace {

constexpr Text kNoOption(u8"there is no option %1", u8"die Option %1 gibt es nicht");
constexpr Text kWantsValue(u8"%1 wants a value", u8"%1 braucht einen Wert");
constexpr Text kWantsNumber(u8"%1 wants a number from 0 to %2, not \"%3\"",
                            u8"%1 braucht eine Zahl von 0 bis %2, nicht \"%3\"");
constexpr Text kWantsLanguage(u8"--lang wants de or en, not \"%1\"", u8"--lang braucht de oder en, nicht \"%1\"");
constexpr Text kNotReadable(u8"%1 cannot be read: %2", u8"%1 kann nicht gelesen werden: %2");
constexpr Text kIsFolder(u8"it is a folder", u8"es ist ein Ordner");

std::optional<Language> LanguageNamed(const std::string& name) {
  if (name == "de") return Language::German;
  if (name == "en") return Language::English;
  return std::nullopt;
}

#ifdef _WIN32
std::string ToUtf8(std::wstring_view text) {
  const int size = static_cast<int>(text.size());
  std::string utf8(text.size() * 3, '\0');
  utf8.resize(static_cast<std::size_t>(::WideCharToMultiByte(CP_UTF8, 0, text.data(), size, utf8.data(),
                                                             static_cast<int>(utf8.size()), nullptr, nullptr)));
  return utf8;
}

std::wstring FromUtf8(const std::string& text) {
  std::wstring wide(text.size(), L'\0');
  wide.resize(static_cast<std::size_t>(::MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                                             wide.data(), static_cast<int>(wide.size()))));
  return wide;
}

std::vector<std::string> ArgumentsOf(int, char**) {
  std::vector<std::string> arguments;
  int count = 0;
  LPWSTR* const words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
  for (int i = 1; i < count; ++i) arguments.push_back(ToUtf8(words[i]));
  ::LocalFree(words);
  return arguments;
}

bool WriteToConsole(std::FILE* stream, const std::string& text) {
  const auto console = reinterpret_cast<HANDLE>(::_get_osfhandle(::_fileno(stream)));
  DWORD mode = 0;
  if (!::GetConsoleMode(console, &mode)) return false;
  const std::wstring wide = FromUtf8(text);
  DWORD written = 0;
  return ::WriteConsoleW(console, wide.data(), static_cast<DWORD>(wide.size()), &written, nullptr) != 0;
}
#else
std::vector<std::string> ArgumentsOf(int argc, char** argv) { return {argv + (argc > 0 ? 1 : 0), argv + argc}; }
bool WriteToConsole(std::FILE*, const std::string&) { return false; }
#endif

}  // namespace

// By way of char8_t: what plain characters mean to the library depends on its version.
std::filesystem::path PathOf(const std::string& name) { return std::u8string(name.begin(), name.end()); }

std::string NameOf(const std::filesystem::path& path) {
  const std::u8string name = path.u8string();
  return {name.begin(), name.end()};
}

void CommandLine::Flag(const std::string& name, bool& on) { flags_[name] = &on; }

void CommandLine::Setting(const std::string& name, std::function<void(const std::string& value)> take) {
  settings_[name] = std::move(take);
}

std::vector<std::string> CommandLine::Read(const std::vector<std::string>& arguments) {
  Setting("--lang", [&](const std::string& value) {
    if (!LanguageNamed(value)) throw UsageError{Say(kWantsLanguage, {value})};
  });
  Flag("--help", help_);
  bool version = false;
  Flag("--version", version);

  std::vector<std::pair<std::string, std::string>> given;  // settings and flags with their values
  std::vector<std::string> rest;
  std::optional<std::pair<const Text*, std::string>> mistake;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (settings_.contains(argument)) {
      if (i + 1 == arguments.size()) mistake = mistake.value_or(std::pair(&kWantsValue, argument));
      else given.emplace_back(argument, arguments[++i]);
    } else if (flags_.contains(argument)) {
      given.emplace_back(argument, "");
    } else if (argument.starts_with("--")) {
      mistake = mistake.value_or(std::pair(&kNoOption, argument));
    } else {
      rest.push_back(argument);
    }
  }

  for (const auto& [name, value] : given)
    if (name == "--lang") language = LanguageNamed(value).value_or(language);
  if (mistake) throw UsageError{Say(*mistake->first, {mistake->second})};
  for (const auto& [name, value] : given) {
    if (const auto flag = flags_.find(name); flag != flags_.end()) *flag->second = true;
    else settings_.at(name)(value);
  }
  if (version) throw VersionAsked{};
  return rest;
}

std::int64_t ReadNumber(const std::string& option, const std::string& value, std::int64_t highest) {
  std::int64_t number = 0;
  const char* const last = value.data() + value.size();
  const auto [end, error] = std::from_chars(value.data(), last, number);
  if (error != std::errc() || end != last || number < 0 || number > highest)
    throw UsageError{Say(kWantsNumber, {option, std::to_string(highest), value})};
  return number;
}

std::string ReadSome(const std::string& option, const std::string& value) {
  if (value.empty()) throw UsageError{Say(kWantsValue, {option})};
  return value;
}

bool Write(std::FILE* stream, const std::string& text) {
  if (WriteToConsole(stream, text)) return true;
  return std::fwrite(text.data(), 1, text.size(), stream) == text.size() && std::fflush(stream) == 0;
}

void Complain(const std::string& tool, const std::string& text) { Write(stderr, tool + ": " + text + "\n"); }

std::string ReadFile(const std::string& path) {
  const std::filesystem::path name = PathOf(path);
  std::error_code error;
  if (std::filesystem::is_directory(name, error)) throw FileError{Say(kNotReadable, {path, Say(kIsFolder)})};
  std::ifstream file(name, std::ios::binary);
  std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  if (!file) throw FileError{Say(kNotReadable, {path, std::strerror(errno)})};
  return text;
}

int RunTool(const std::string& tool, const Text& usage, int argc, char** argv,
            const std::function<int(const std::vector<std::string>& arguments)>& body) {
  try {
    return body(ArgumentsOf(argc, argv));
  } catch (const VersionAsked&) {
    if (Write(stdout, tool + " " VERSION "\n")) return kFine;
  } catch (const UsageError& error) {
    Complain(tool, error.text);
    Write(stderr, Say(usage));
    return kWrongUsage;
  } catch (const FileError& error) {
    Complain(tool, error.text);
  } catch (const std::exception& error) {  // of the host: a folder of its, or one for temporary files
    Complain(tool, error.what());
  }
  return kUnreadable;
}

}  // namespace tools
