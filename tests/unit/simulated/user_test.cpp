// Forms on the simulated desktop, and the user who works with them.
#include "forms/simulated/user.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "platform/dialogs.h"
#include "platform/messages.h"
#include "platform/shell.h"
#include "platform/simulated/desktop.h"
#include "platform/system.h"
#include "platform/window_lookup.h"
#include "runtime/fault.h"
#include "support/system.h"

namespace {

using forms::simulated::Close;
using forms::simulated::Press;
using forms::simulated::Type;
using forms::simulated::WhenModal;
using platform::simulated::At;

struct Dialog : forms::Form {
  explicit Dialog(const std::string& formName = "frmDialog", forms::FormStyle formStyle = {})
      : Form(formName, "Ein Dialog", formStyle) {}

  forms::Label lblInfo{*this, "lblInfo", "Hinweis"};
  forms::TextBox txtName{*this, "txtName", {20}};
  forms::Button cmdCancel{*this, "cmdCancel", "A&bbrechen", forms::ButtonRole::Cancel, [this] { Answer("Abbrechen"); }};
  forms::Button cmdOK{*this, "cmdOK", "&OK", forms::ButtonRole::Default, [this] {
                        if (staysOpen) happened.push_back("bleibt");
                        else Answer("OK");
                      }};
  forms::Timer Timer1{*this, [this] { happened.push_back("Timer " + std::to_string(platform::simulated::Clock())); }};

  forms::Box Layout() override { return forms::Column({lblInfo, txtName, forms::Buttons({cmdOK, cmdCancel})}); }

  void Answer(const std::string& how) {
    happened.push_back(how);
    Unload();
  }
  void Form_Load() override { happened.push_back("Load"); }
  void Form_Activate() override { happened.push_back("Activate"); }
  void Form_Resize() override { happened.push_back("Resize"); }
  void Form_QueryUnload() override { happened.push_back("QueryUnload"); }
  void Form_Unload() override { happened.push_back("Unload"); }
  void Form_MouseMove(double x) override { happened.push_back("MouseMove " + std::to_string(x)); }

  std::vector<std::string> happened;
  bool staysOpen = false;
};

// A form without a default button and without a layout.
struct Plain : forms::Form {
  Plain() : Form("frmPlain", "Protokoll", {.resizable = true}) {}
  forms::RichTextBox txtText{*this, "txtText", {}};
  forms::ProgressBar bar{*this, "bar", {}};
  forms::Picture picture{*this, "picture"};
  void Form_Resize() override { ++resized; }
  int resized = 0;
};

using Words = std::vector<std::string>;

class SimulatedUser : public testing::Test {
 protected:
  void SetUp() override {
    platform::simulated::Reset();
    forms::simulated::Reset();
  }
  void TearDown() override {
    support::ExpectNoUnaskedAnswers();
    forms::simulated::Reset();
  }

  // All events but those of loading, showing and unloading.
  Words Actions() const {
    Words words;
    for (const std::string& word : dialog.happened) {
      if (word != "Load" && word != "Activate" && word != "QueryUnload" && word != "Unload") words.push_back(word);
    }
    return words;
  }

  Dialog dialog;
  Plain plain;
};

TEST_F(SimulatedUser, LoadedFormIsAnInvisibleWindowOfTheProgram) {
  dialog.Load();
  const auto& window = At(dialog.hWnd());
  EXPECT_EQ(window.className, "QumaForm");
  EXPECT_EQ(window.text, "Ein Dialog");
  EXPECT_EQ(window.process, platform::simulated::kOwnProcess);
  EXPECT_FALSE(window.visible);
}

TEST_F(SimulatedUser, ControlsAreChildrenInTheOrderOfTheLayout) {
  dialog.Load();
  const auto& children = At(dialog.hWnd()).children;
  ASSERT_EQ(children.size(), 4u);
  const Words classes = {"QumaLabel", "Edit", "Button", "Button"};
  const Words texts = {"Hinweis", "", "&OK", "A&bbrechen"};
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(At(children[i]).className, classes[i]);
    EXPECT_EQ(At(children[i]).text, texts[i]);
    EXPECT_EQ(At(children[i]).id, static_cast<std::int32_t>(i) + 1);
  }
  EXPECT_EQ(dialog.cmdOK.hWnd(), children[2]);
}

TEST_F(SimulatedUser, WithoutALayoutControlsStandAsTheyWereDeclared) {
  plain.Load();
  const auto& children = At(plain.hWnd()).children;
  ASSERT_EQ(children.size(), 3u);
  EXPECT_EQ(At(children[0]).className, "RichEdit20A");
  EXPECT_EQ(At(children[1]).className, "msctls_progress32");
  EXPECT_EQ(At(children[2]).className, "QumaPicture");
}

TEST_F(SimulatedUser, LayoutThatForgetsAControlIsAMistake) {
  struct Forgetful : forms::Form {
    Forgetful() : Form("frmForgetful", "") {}
    forms::Label lblA{*this, "lblA"};
    forms::Label lblB{*this, "lblB"};
    forms::Box Layout() override { return forms::Column({lblA}); }
  } forgetful;
  EXPECT_THROW(forgetful.Load(), std::logic_error);
}

TEST_F(SimulatedUser, ValuesOfControlsAreSeenAtTheirWindows) {
  dialog.lblInfo.SetCaption("anders");
  dialog.cmdOK.SetEnabled(false);
  EXPECT_EQ(At(dialog.lblInfo.hWnd()).text, "anders");
  EXPECT_FALSE(At(dialog.cmdOK.hWnd()).enabled);
}

TEST_F(SimulatedUser, TextSentFromOutsideArrivesInTheTextBox) {
  dialog.Load();
  EXPECT_EQ(platform::SendMessageA(dialog.txtName.hWnd(), platform::WM_SETTEXT, 0, "Müller"), 1);
  EXPECT_EQ(dialog.txtName.Text(), "Müller");
  std::string text;
  platform::GetWindowTextA(dialog.txtName.hWnd(), text, 50);
  EXPECT_EQ(text, "Müller") << "of its own process the system asks the field itself";
}

TEST_F(SimulatedUser, ShownFormIsInFrontAndActive) {
  const auto other = platform::simulated::AddWindow({.className = "Ziel"});
  dialog.Show();
  EXPECT_EQ(dialog.happened, (Words{"Load", "Activate"}));
  EXPECT_EQ(platform::GetForegroundWindow(), dialog.hWnd());
  EXPECT_EQ(platform::FindWindowA(nullptr, nullptr), dialog.hWnd());
  EXPECT_EQ(platform::GetWindow(dialog.hWnd(), platform::GW_HWNDNEXT), other);
  dialog.Hide();
  EXPECT_EQ(platform::GetForegroundWindow(), other);
  EXPECT_FALSE(At(dialog.hWnd()).visible);
}

TEST_F(SimulatedUser, TopMostFormStaysAboveWindowsThatComeLater) {
  Dialog top("frmTop", {.topMost = true});
  top.Show();
  const auto later = platform::simulated::AddWindow({.className = "Ziel"});
  platform::simulated::Activate(later);
  EXPECT_EQ(platform::FindWindowA(nullptr, nullptr), top.hWnd());
  top.Unload();
}

TEST_F(SimulatedUser, ResizableFormIsToldItsSizeWhenItComesUp) {
  plain.Show();
  EXPECT_EQ(plain.resized, 1);
}

TEST_F(SimulatedUser, UserWorksOnlyWithWhatIsShownAndEnabled) {
  dialog.Load();
  Press(dialog.cmdOK);
  Type(dialog.txtName, "unsichtbar");
  Close(dialog);
  EXPECT_EQ(Actions(), Words{});
  dialog.Show();
  dialog.cmdOK.SetEnabled(false);
  Press(dialog.cmdOK);
  EXPECT_EQ(Actions(), Words{});
  Type(dialog.txtName, "alt");
  Type(dialog.txtName, "neu");
  EXPECT_EQ(dialog.txtName.Text(), "neu");
  EXPECT_EQ(At(dialog.txtName.hWnd()).text, "neu");
  Press(dialog.cmdCancel);
  EXPECT_EQ(Actions(), Words{"Abbrechen"});
  Press(dialog.cmdCancel);
  EXPECT_EQ(Actions(), Words{"Abbrechen"}) << "the form is unloaded";
}

TEST_F(SimulatedUser, ClosingUnloadsTheForm) {
  dialog.Show();
  const auto window = dialog.hWnd();
  Close(dialog);
  EXPECT_FALSE(dialog.Loaded());
  EXPECT_FALSE(platform::IsWindow(window));
  EXPECT_EQ(dialog.happened, (Words{"Load", "Activate", "QueryUnload", "Unload"}));
}

TEST_F(SimulatedUser, CloseMessageUnloadsTheForm) {
  dialog.Show();
  EXPECT_EQ(platform::SendMessageA(dialog.hWnd(), platform::WM_CLOSE, 0, 0), 0);
  EXPECT_FALSE(dialog.Loaded());
}

TEST_F(SimulatedUser, ClickMessageRunsTheButton) {
  dialog.Show();
  platform::SendMessageA(dialog.cmdCancel.hWnd(), platform::BM_CLICK, 0, 0);
  EXPECT_EQ(Actions(), Words{"Abbrechen"});
}

TEST_F(SimulatedUser, CommandWithoutTheButtonsWindowOrOfADisabledOneDoesNothing) {
  dialog.Show();
  platform::SendMessageA(dialog.hWnd(), platform::WM_COMMAND, 4, 0);
  dialog.cmdCancel.SetEnabled(false);
  platform::SendMessageA(dialog.cmdCancel.hWnd(), platform::BM_CLICK, 0, 0);
  EXPECT_EQ(Actions(), Words{});
}

TEST_F(SimulatedUser, MouseMessageArrivesInTwips) {
  dialog.Load();
  platform::SendMessageA(dialog.hWnd(), platform::WM_MOUSEMOVE, 1, 517);
  platform::SendMessageA(dialog.hWnd(), platform::WM_MOUSEMOVE, 0, 0x0003FFFE);
  EXPECT_EQ(Actions(), (Words{"MouseMove 7755.000000", "MouseMove -30.000000"}));
}

TEST_F(SimulatedUser, FocusIsWhereTheProgramOrTheUserPutIt) {
  dialog.Show();
  EXPECT_EQ(forms::simulated::Focused(), nullptr);
  dialog.cmdOK.SetFocus();
  EXPECT_EQ(forms::simulated::Focused(), &dialog.cmdOK);
  Type(dialog.txtName, "x");
  EXPECT_EQ(forms::simulated::Focused(), &dialog.txtName);
  dialog.Unload();
  EXPECT_EQ(forms::simulated::Focused(), nullptr);
}

TEST_F(SimulatedUser, ButtonIsFoundByItsName) {
  EXPECT_EQ(forms::simulated::FindButton(dialog, "cmdCancel"), &dialog.cmdCancel);
  EXPECT_EQ(forms::simulated::FindButton(dialog, "txtName"), nullptr);
}

TEST_F(SimulatedUser, ResetForgetsFormsWithoutTheirEvents) {
  dialog.Show();
  WhenModal([](forms::Form&) { FAIL() << "forgotten"; });
  platform::simulated::Reset();
  forms::simulated::Reset();
  EXPECT_FALSE(dialog.Loaded());
  EXPECT_FALSE(dialog.Visible());
  EXPECT_EQ(dialog.happened, (Words{"Load", "Activate"}));
  dialog.ShowModal();
  EXPECT_EQ(Actions(), Words{"OK"});
}

// Modal forms.

TEST_F(SimulatedUser, DialogIsAnsweredInTheOrderOfTheAnswers) {
  WhenModal([](forms::Form& form) { Press(*forms::simulated::FindButton(form, "cmdCancel")); });
  WhenModal([this](forms::Form& form) {
    EXPECT_EQ(&form, &dialog);
    EXPECT_TRUE(form.Visible());
    Close(form);
  });
  dialog.ShowModal();
  EXPECT_EQ(Actions(), Words{"Abbrechen"});
  dialog.ShowModal();
  EXPECT_EQ(Actions(), Words{"Abbrechen"});
  dialog.ShowModal();
  EXPECT_EQ(Actions(), (Words{"Abbrechen", "OK"})) << "without an answer the default button is pressed";
}

TEST_F(SimulatedUser, HiddenDialogReturnsAndStaysLoaded) {
  WhenModal([](forms::Form& form) { form.Hide(); });
  dialog.ShowModal();
  EXPECT_TRUE(dialog.Loaded());
}

TEST_F(SimulatedUser, DialogWithoutAnAnswerWaitsForWhatIsScheduled) {
  platform::simulated::Schedule(5000, [this] { Press(dialog.cmdCancel); });
  platform::simulated::Schedule(9000, [] { FAIL() << "the dialog is closed by then"; });
  dialog.ShowModal();
  EXPECT_EQ(Actions(), Words{"Abbrechen"});
  EXPECT_EQ(platform::simulated::Clock(), 5000);
}

TEST_F(SimulatedUser, AnswerIsNotGivenToADialogThatClosesByItself) {
  dialog.Load();
  platform::PostMessageA(dialog.hWnd(), platform::WM_CLOSE, 0, 0);
  WhenModal([](forms::Form&) { FAIL() << "the dialog is gone"; });
  dialog.ShowModal();
  EXPECT_EQ(Actions(), Words{});
  EXPECT_FALSE(dialog.Loaded());
}

TEST_F(SimulatedUser, DialogWithoutADefaultButtonIsClosed) {
  plain.ShowModal();
  EXPECT_FALSE(plain.Loaded());
}

TEST_F(SimulatedUser, DialogThatStaysOpenEndsTheTest) {
  dialog.staysOpen = true;
  try {
    dialog.ShowModal();
    FAIL() << "the dialog must not return";
  } catch (const std::logic_error& error) {
    EXPECT_NE(std::string(error.what()).find("frmDialog"), std::string::npos);
  }
}

TEST_F(SimulatedUser, OtherFormsTakeNoInputWhileADialogIsUp) {
  Dialog status("frmStatus");
  status.Show();
  WhenModal([&](forms::Form& form) {
    EXPECT_FALSE(At(status.hWnd()).enabled);
    Press(status.cmdCancel);
    Type(status.txtName, "verloren");
    Close(status);
    EXPECT_EQ(status.txtName.Text(), "");
    EXPECT_TRUE(status.Visible());
    form.Unload();
  });
  dialog.ShowModal();
  EXPECT_TRUE(At(status.hWnd()).enabled);
  EXPECT_EQ(platform::GetForegroundWindow(), status.hWnd());
  Press(status.cmdCancel);
  EXPECT_FALSE(status.Loaded());
}

TEST_F(SimulatedUser, DialogOfADialogTakesTheInputUntilItCloses) {
  Dialog inner("frmInner");
  inner.Load();
  WhenModal([&](forms::Form&) {
    inner.ShowModal();
    EXPECT_TRUE(At(dialog.hWnd()).enabled);
    Press(dialog.cmdCancel);
  });
  WhenModal([&](forms::Form&) {
    EXPECT_TRUE(At(inner.hWnd()).enabled) << "the outer dialog had disabled it";
    EXPECT_FALSE(At(dialog.hWnd()).enabled);
    Press(inner.cmdOK);
  });
  dialog.ShowModal();
  EXPECT_EQ(Actions(), Words{"Abbrechen"});
  EXPECT_FALSE(inner.Loaded());
}

TEST_F(SimulatedUser, MessageBoxTakesTheInputOfAllForms) {
  dialog.Show();
  platform::simulated::WhileMessageBox([&](const auto&) {
    Press(dialog.cmdCancel);
    EXPECT_TRUE(dialog.Visible());
  });
  platform::MessageBoxA(dialog.hWnd(), "Text", "Titel", 0);
  Press(dialog.cmdCancel);
  EXPECT_FALSE(dialog.Loaded());
}

TEST_F(SimulatedUser, ShownFormCannotBeShownModally) {
  dialog.Show();
  try {
    dialog.ShowModal();
    FAIL() << "a fault is required";
  } catch (const runtime::Fault& fault) {
    EXPECT_EQ(fault.number, runtime::FaultNumber::FormShown);
  }
}

TEST_F(SimulatedUser, EndOfTheProgramInsideADialogFreesTheOthers) {
  Dialog status("frmStatus");
  status.Show();
  WhenModal([](forms::Form&) { platform::EndProgram(); });
  EXPECT_THROW(dialog.ShowModal(), platform::simulated::ProgramEnded);
  EXPECT_TRUE(At(status.hWnd()).enabled);
  status.Unload();
}

TEST_F(SimulatedUser, HookThatIsTakenBackIsNoHook) {
  const auto hook = [](std::int32_t, std::uint32_t, std::int32_t, std::int32_t) -> std::int32_t { return 7; };
  const auto old = platform::SetWindowLongA(dialog.hWnd(), platform::GWL_WNDPROC, hook);
  platform::SetWindowLongA(dialog.hWnd(), platform::GWL_WNDPROC, old);
  EXPECT_EQ(At(dialog.hWnd()).hook, nullptr);
}

// Pumps, timers and menus.

TEST_F(SimulatedUser, TimerTicksInPumpsOnlyAndOnceHoweverLateThePumpIs) {
  dialog.Timer1.SetInterval(1000);
  forms::Pump();
  platform::Sleep(999);
  forms::Pump();
  EXPECT_EQ(Actions(), Words{});
  platform::Sleep(1);
  forms::Pump();
  forms::Pump();
  EXPECT_EQ(Actions(), Words{"Timer 1000"});
  platform::Sleep(5500);
  forms::Pump();
  forms::Pump();
  EXPECT_EQ(Actions(), (Words{"Timer 1000", "Timer 6500"}));
  dialog.Timer1.SetInterval(0);
  platform::Sleep(5000);
  forms::Pump();
  EXPECT_EQ(Actions().size(), 2u);
}

TEST_F(SimulatedUser, TimerEndsWithItsForm) {
  dialog.Timer1.SetInterval(1000);
  dialog.Unload();
  platform::Sleep(5000);
  forms::Pump();
  EXPECT_EQ(Actions(), Words{});
}

TEST_F(SimulatedUser, MainLoopRunsUntilNothingCanHappenAnyMore) {
  dialog.Show();
  platform::simulated::Schedule(1000, [this] { platform::PostMessageA(dialog.hWnd(), platform::WM_MOUSEMOVE, 0, 1); });
  platform::simulated::Schedule(2000, [this] { Press(dialog.cmdOK); });
  platform::simulated::Schedule(3000, [] { FAIL() << "no form is loaded any more"; });
  forms::RunMessageLoop();
  EXPECT_EQ(Actions(), (Words{"MouseMove 15.000000", "OK"}));
  EXPECT_EQ(platform::simulated::Clock(), 2000);
}

TEST_F(SimulatedUser, MenuRunsTheEntryThatIsChosen) {
  int chosen = 0;
  const forms::Menu menu{"mnuDatei", "Datei", {{"mnuA", "A", [&] { chosen = 1; }}, {"mnuB", "B", [&] { chosen = 2; }}}};
  forms::PopupMenu(dialog, menu);
  EXPECT_EQ(chosen, 0) << "without a choice the menu closes";
  forms::simulated::WhenMenu("B");
  forms::simulated::WhenMenu("A");
  forms::PopupMenu(dialog, menu);
  EXPECT_EQ(chosen, 2);
  forms::PopupMenu(dialog, menu);
  EXPECT_EQ(chosen, 1);
  forms::simulated::WhenMenu("C");
  EXPECT_THROW(forms::PopupMenu(dialog, menu), std::logic_error);
}

TEST_F(SimulatedUser, TellsOfAnswersThatNobodyAskedFor) {
  const forms::Menu menu{"mnuDatei", "Datei", {{"mnuA", "A", [] {}}}};
  WhenModal([](forms::Form& form) { Close(form); });
  forms::simulated::WhenMenu("A");
  EXPECT_EQ(forms::simulated::UnaskedAnswers(), (Words{"dialog", "A"}));
  EXPECT_NONFATAL_FAILURE(support::ExpectNoUnaskedAnswers(), "dialog");
  dialog.ShowModal();
  EXPECT_EQ(forms::simulated::UnaskedAnswers(), Words{"A"});
  forms::PopupMenu(dialog, menu);
  EXPECT_EQ(forms::simulated::UnaskedAnswers(), Words{});
}

TEST_F(SimulatedUser, HookOnAFormSeesItsMessagesAndItsEnd) {
  static platform::WNDPROC old = nullptr;
  static std::vector<std::uint32_t> seen;
  seen.clear();
  old = platform::SetWindowLongA(dialog.hWnd(), platform::GWL_WNDPROC,
                                 [](std::int32_t hWnd, std::uint32_t msg, std::int32_t wParam, std::int32_t lParam) {
                                   seen.push_back(msg);
                                   return platform::CallWindowProcA(old, hWnd, msg, wParam, lParam);
                                 });
  ASSERT_NE(old, nullptr);
  platform::PostMessageA(dialog.hWnd(), platform::WM_HOTKEY, 1, 0);
  platform::PostMessageA(dialog.hWnd(), platform::WM_MOUSEMOVE, 0, 1);
  forms::Pump();
  EXPECT_NE(At(dialog.hWnd()).hook, nullptr);
  dialog.Unload();
  EXPECT_EQ(seen, (std::vector<std::uint32_t>{platform::WM_HOTKEY, platform::WM_MOUSEMOVE, platform::WM_NCDESTROY}));
  EXPECT_EQ(Actions(), Words{"MouseMove 15.000000"});
}

}  // namespace
