#include "support/system.h"

#include "engine/macro_file.h"
#include "engine/run_loop.h"
#include "environment/file_system.h"
#include "forms/simulated/user.h"
#include "frame/log.h"
#include "frame/state.h"
#include "platform/registry.h"
#include "platform/settings.h"
#include "platform/simulated/desktop.h"
#include "platform/simulated/host_paths.h"
#include "rehearsal.h"

namespace support {

namespace simulated = platform::simulated;

SystemTest::SystemTest() {
  basMain::FileSystemState.emplace();
  basMain::OpenLog();
}

SystemTest::~SystemTest() { ExpectNoUnaskedAnswers(); }

void ExpectNoUnaskedAnswers() {
  EXPECT_EQ(forms::simulated::UnaskedAnswers(), std::vector<std::string>{}) << "nobody asked the user for these";
  EXPECT_EQ(simulated::UnaskedAnswers(), std::vector<std::string>{}) << "nobody asked the user for these";
}

void InstallSuite(const std::string& directory) {
  simulated::Registry()["Software\\TARVEN\\Setup\\Destinations"]["Teru"] = {platform::REG_SZ,
                                                                            directory + std::string(1, '\0')};
}

void StartProgram() {
  rehearsal::StartProgram();
  basMain::log = {};
  simulated::PutFile(basMain::LogFile(), "");
  basMain::OpenLog();
}

std::vector<std::string> LinesOf(const std::string& path) {
  const std::string text = simulated::GetFile(path);
  EXPECT_TRUE(text.empty() || text.ends_with("\r\n")) << path << " does not end in CR LF";
  return rehearsal::LinesOf(path);
}

std::vector<std::string> Log() { return LinesOf(kProgram + "\\QUMAEXP.LOG"); }

void LoadLines(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  simulated::PutFile(kProgram + "\\TEST.MAK", text);
  basMain::LoadFile(kProgram + "\\TEST.MAK");
}

bool RunLines(const std::vector<std::string>& lines) {
  LoadLines(lines);
  return basMain::ProcessMakro(0);
}

std::vector<std::string> Completed(std::vector<std::string> lines) {
  lines.push_back(kCompleted);
  lines.push_back(kStars);
  return lines;
}

void Setting(const std::string& section, const std::string& key, const std::string& value) {
  platform::WritePrivateProfileStringA(section, key, value, kProgram + "\\QUMAEXP.INI");
}

std::int32_t TargetWindow(const std::string& caption) {
  const std::int32_t window = simulated::AddWindow({.className = "ThunderRT6FormDC", .text = caption});
  simulated::Activate(window);
  basMain::frame.MainWindow = window;
  return window;
}

std::string CodePage(const std::string& utf8) { return simulated::FromUtf8(utf8); }

}  // namespace support
