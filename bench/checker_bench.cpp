// How long makcheck takes for a macro, and how soon an editor has the findings of a changed one.
#include <functional>
#include <string>
#include <vector>

#include "checker.h"
#include "lsp/document.h"
#include "timing.h"

namespace {

constexpr double kGrowth = 5.0;          // a search through all lines would cost 10
constexpr double kCheckLimit = 0.5;      // seconds for 100,000 lines
constexpr double kChangeLimit = 0.05;    // seconds from a change to its findings, of a macro of 10,000 lines

const char* const kBlock[] = {
    "REM Export der Stammdaten", "DISPLAYSTATUS='Export für %1, bitte warten',$WJ",
    "MENUCLICK=2101,%MAINWINDOW%", "WAITFORWINDOW=GDPdU-Export,1",
    "SELECTCOMBO=2003,2251,GDPdU-Export,1", "  SETTEXT='$GDPDUPATH',2211,GDPdU-Export,1,ThunderRT6Textbox",
    "IF BUTTONCLICK=2111,GDPdU-Export,1,,ThunderRT6CommandButton", "WAITFORDIALOG=GDPdU-Export,Der Export ist",
    "ENDIF", "MSG=Fertig"};

// As people write them: nothing is found.
std::string Ordinary(int lines) {
  std::string macro;
  for (int i = 0; i < lines; ++i) macro += std::string(kBlock[static_cast<std::size_t>(i) % std::size(kBlock)]) + "\r\n";
  return macro;
}

std::string Repeated(int count, const std::function<std::string(const std::string&)>& lines) {
  std::string macro;
  for (int i = 0; i < count; ++i) macro += lines(std::to_string(i));
  return macro;
}

// Three lines for each.
std::string Variables(int lines) {
  return Repeated(lines / 3, [](const std::string& i) {
    return "DIM Wert" + i + "\r\nWert" + i + "=VALUE(" + i + ")\r\nMSG=Wert" + i + "\r\n";
  });
}

std::string Marks(int lines) {
  return Repeated(lines / 2, [](const std::string& i) { return "GOTO=marke" + i + "\r\nMARK=marke" + i + "\r\n"; });
}

// Each jump is told with the nearest mark, which there are many of.
std::string MissingMarks(int lines) {
  return Repeated(lines / 2, [](const std::string& i) { return "GOTO=mrake" + i + "x\r\nMARK=marke" + i + "\r\n"; });
}

std::string JumpsToUnknownPlaces(int lines) {
  return "DIM m\r\nm=READINI(a,b)\r\n" +
         Repeated(lines / 2, [](const std::string& i) { return "GOTO=m\r\nMARK=marke" + i + "\r\n"; });
}

std::string UnknownVerbs(int lines) {
  return Repeated(lines, [](const std::string& i) { return "BUTONCLICKS" + i + "=1,Export\r\n"; });
}

// Each "ENDIF" that only its own condition's jump could reach is looked at.
std::string Conditions(int lines) {
  return Repeated(lines / 4, [](const std::string& i) {
    return "IF VJ\r\nGOTO=m" + i + "\r\nENDIF\r\nMARK=m" + i + "\r\n";
  });
}

std::string LooseEnds(int lines) { return Repeated(lines, [](const std::string&) { return "ENDIF\r\n"; }); }

// One line with so many arguments.
std::string LongLine(int arguments) {
  return "MSG=" + Repeated(arguments, [](const std::string& i) { return "$wj " + i + ", "; });
}

void RegisterCheck(const std::string& kind, const std::vector<int>& sizes, std::string (*make)(int),
                   bench::Limits limits) {
  bench::Register(kind + "/check", sizes, limits, [make](benchmark::State& state, int size) {
    const std::string macro = make(size);
    bench::Time(state, size, [&] { benchmark::DoNotOptimize(makcheck::CheckFile(macro)); });
  });
}

// A letter comes and goes in the middle of the macro.
void RegisterChange(const std::vector<int>& sizes, bench::Limits limits) {
  bench::Register("ordinary/change", sizes, limits, [](benchmark::State& state, int size) {
    makcheck::lsp::Document document(Ordinary(size));
    const auto line = static_cast<std::size_t>(size) / 20 * 10 + std::size(kBlock) - 1;
    bench::Time(state, size, [&] {
      document.Change({{line, 0}, {line, 1}}, "N");
      document.Check(nullptr);
    });
    if (document.Findings().size() != 1) bench::Fail(state, "the change was to be found");
  });
}

void RegisterAll() {
  const bench::Limits growth{.growth = kGrowth};
  RegisterCheck("ordinary", {1'000, 10'000, 100'000}, Ordinary, {kGrowth, kCheckLimit, 100'000});
  RegisterCheck("variables", {1'000, 10'000, 100'000}, Variables, growth);
  RegisterCheck("marks", {1'000, 10'000, 100'000}, Marks, growth);
  RegisterCheck("missing marks", {1'000, 10'000}, MissingMarks, growth);
  RegisterCheck("jumps to unknown places", {1'000, 10'000, 100'000}, JumpsToUnknownPlaces, growth);
  RegisterCheck("unknown verbs", {1'000, 10'000, 100'000}, UnknownVerbs, growth);
  RegisterCheck("conditions", {1'000, 10'000, 100'000}, Conditions, growth);
  RegisterCheck("loose ends", {1'000, 10'000, 100'000}, LooseEnds, growth);
  RegisterCheck("long line", {1'000, 10'000, 100'000}, LongLine, growth);
  RegisterChange({1'000, 10'000}, {kGrowth, kChangeLimit, 10'000});
}

}  // namespace

int main(int argc, char** argv) { return bench::Main(argc, argv, RegisterAll); }
