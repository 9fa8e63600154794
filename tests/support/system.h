// A fresh system on a fresh simulated desktop, and short words for what tests do with it.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "rehearsal.h"

namespace support {

// Folder of the program on the simulated desktop.
inline const std::string kProgram = "C:\\QUMA";

// The frame of a run's end in the log.
inline const std::string kStars(80, '*');
inline const std::string kCompleted = "Die Verarbeitung ist erfolgreich abgeschlossen.";
inline const std::string kStopped = "Die Verarbeitung wurde angehalten.";

// Every test starts with a fresh desktop, fresh forms and fresh module state. The log is open, the main form is not
// loaded: macros run directly, without the program around them. It ends with every prepared answer asked for.
class SystemTest : public testing::Test {
 protected:
  SystemTest();
  ~SystemTest() override;

 private:
  rehearsal::FreshSystem system_;
};

// Fails the test if the user was prepared for a dialog, menu, message box or file dialog that has not come up, so that
// what the test expects in there cannot be left out unseen.
void ExpectNoUnaskedAnswers();

// The suite's data directory, as its installation leaves it in the registry.
void InstallSuite(const std::string& directory = "C:\\TeRu");

// What the log tells when C:\TeRu is looked for and is not there yet.
inline const std::vector<std::string> kDiscovery = {"GetTeRuDestination (2. RegValue): C:\\TeRu",
                                                    "Ausgabeverzeichnis erstellt: C:\\TeRu\\"};

// Loads the main form, with the suite's data directory C:\TeRu in the registry so that no question comes up, and
// empties the log, so that it begins with what the test does.
void StartProgram();

// The lines of QUMAEXP.LOG, or of another file, without their line ends.
std::vector<std::string> Log();
std::vector<std::string> LinesOf(const std::string& path);

// Writes the lines as C:\QUMA\TEST.MAK, each ended by CR LF, and loads it.
void LoadLines(const std::vector<std::string>& lines);

// LoadLines and a fresh run; what ProcessMakro yields.
bool RunLines(const std::vector<std::string>& lines);

// The log lines of a completed run: `lines` and the closing frame.
std::vector<std::string> Completed(std::vector<std::string> lines);

// Puts an entry into C:\QUMA\QUMAEXP.INI.
void Setting(const std::string& section, const std::string& key, const std::string& value);

// A window of another process with this caption in front of all others; it becomes MainWindow.
std::int32_t TargetWindow(const std::string& caption);

// Bytes of a UTF-8 text in the program's code page; characters that it lacks become "?".
std::string CodePage(const std::string& utf8);

}  // namespace support
