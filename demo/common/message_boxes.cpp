#include "message_boxes.h"

#include "journal.h"
#include "look.h"

namespace standin {

namespace {

constexpr int kFirstButtonId = 2901;
constexpr char kQuestionProperty[] = "Frage";

struct Question {
  std::vector<std::string> buttons;
  std::string answer;
  bool open = true;
};

// Puts a message box over its owner. In the middle of the screen a window that stays on top could hide it.
LRESULT CALLBACK PlaceMessageBox(int code, WPARAM wParam, LPARAM lParam) {
  HWND box = reinterpret_cast<HWND>(wParam);
  HWND owner = GetWindow(box, GW_OWNER);
  if (code == HCBT_ACTIVATE && owner != nullptr) {
    RECT place{};
    GetWindowRect(owner, &place);
    SetWindowPos(box, nullptr, place.left + Scaled(40), place.top + Scaled(60), 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  }
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

std::string NameOf(int answer) {
  constexpr const char* kNames[] = {"", "OK", "Abbrechen", "Abbrechen", "Wiederholen", "Ignorieren", "Ja", "Nein"};
  bool known = answer > 0 && answer < static_cast<int>(std::size(kNames));
  return known ? kNames[answer] : std::to_string(answer);
}

LRESULT CALLBACK QuestionProcedure(HWND box, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* question = static_cast<Question*>(GetPropA(box, kQuestionProperty));
  if (question == nullptr) return DefWindowProcA(box, message, wParam, lParam);
  if (message == WM_COMMAND && HIWORD(wParam) == BN_CLICKED) {
    std::size_t button = LOWORD(wParam) - static_cast<std::size_t>(kFirstButtonId);
    if (button < question->buttons.size()) {
      question->answer = question->buttons[button];
      question->open = false;
    } else if (LOWORD(wParam) == IDCANCEL) {
      question->open = false;
    } else {
      Journal("Befehl ohne Schaltfläche: " + std::to_string(LOWORD(wParam)));
    }
    return 0;
  }
  if (message == WM_CLOSE) {
    question->open = false;
    return 0;
  }
  if (message == WM_DESTROY) {
    question->open = false;
    RemovePropA(box, kQuestionProperty);
  }
  return DefWindowProcA(box, message, wParam, lParam);
}

HWND OpenQuestion(HWND form, const std::string& text, Question& question) {
  RECT place{};
  GetWindowRect(form, &place);
  constexpr int kWidth = 380, kHeight = 96, kButtonWidth = 92, kGap = 8;
  HWND box = CreateForm(TextOf(form).c_str(), WS_POPUP | WS_CAPTION | WS_SYSMENU, 0, 0, kWidth, kHeight, nullptr,
                        QuestionProcedure, form);
  SetPropA(box, kQuestionProperty, &question);
  AddControl(box, "Static", text.c_str(), SS_NOPREFIX, -1, 14, 14, kWidth - 28, 34);
  int count = static_cast<int>(question.buttons.size());
  int left = kWidth - 14 - count * kButtonWidth - (count - 1) * kGap;
  for (int i = 0; i < count; ++i) {
    AddControl(box, kButtonClass, question.buttons[static_cast<std::size_t>(i)].c_str(),
               (i == 0 ? BS_DEFPUSHBUTTON : 0u) | WS_TABSTOP, kFirstButtonId + i, left + i * (kButtonWidth + kGap), 58,
               kButtonWidth, 26);
  }
  SetWindowPos(box, nullptr, place.left + Scaled(40), place.top + Scaled(60), 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  return box;
}

}  // namespace

int Report(HWND form, const std::string& text, UINT style) {
  Journal("Meldung: " + text);
  HHOOK hook = SetWindowsHookExA(WH_CBT, PlaceMessageBox, nullptr, GetCurrentThreadId());
  int answer = MessageBoxA(form, text.c_str(), TextOf(form).c_str(), style);
  UnhookWindowsHookEx(hook);
  Journal("Antwort: " + NameOf(answer));
  return answer;
}

std::string Ask(HWND form, const std::string& text, const std::vector<std::string>& buttons) {
  Journal("Meldung: " + text);
  Question question{buttons, ""};
  HWND box = OpenQuestion(form, text, question);
  EnableWindow(form, FALSE);
  ShowWindow(box, SW_SHOW);
  SetFocus(GetDlgItem(box, kFirstButtonId));

  MSG message;
  while (question.open && GetMessageA(&message, nullptr, 0, 0) > 0) HandleMessage(message);
  if (question.open) PostQuitMessage(0);  // the loop below this one is to end too
  // The form must be able to come to the front again before its box goes.
  EnableWindow(form, TRUE);
  DestroyWindow(box);
  Journal("Antwort: " + (question.answer.empty() ? "keine" : question.answer));
  return question.answer;
}

}  // namespace standin
