// Controls: what stands on a form, as data. A control belongs to one form for the program's life; its values are those
// of its design each time the form is loaded. Reading or setting any value loads the form first, so that a control can
// be used at any time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

namespace forms {

class Form;

enum class ControlKind {
  Label,
  TextBox,
  RichTextBox,
  Button,
  OptionButton,
  ComboBox,
  ListView,
  ProgressBar,
  Picture,
};

// Room that a control asks for, in average characters of the dialog font and in lines of it. Zero: as much as its text
// needs, in lines 16 at most. A growing control takes what the form has left.
struct ControlSize {
  int characters = 0;
  int lines = 1;
  bool grows = false;
};

class Control {
 public:
  Control(Form& form, ControlKind kind, std::string name, std::string text, ControlSize size);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  const ControlKind kind;
  const std::string name;
  const ControlSize size;

  bool Enabled();
  void SetEnabled(bool enabled);
  void SetFocus();

  // The window of the control.
  std::int32_t hWnd();

  // What the control shows at the moment; for the realization, which must not load the form by asking.
  struct Values {
    std::string text;
    bool enabled = true;
    int value = 0;
    int maximum = 100;
    std::int32_t handle = 0;  // 0 while the form is not loaded
  };
  Values now;

  // Back to the design; called when the form loads.
  virtual void Reset() { now = design; }

 protected:
  const std::string& Text();
  void SetText(const std::string& text);
  int Value();
  int Maximum();
  void SetValue(int value);
  void SetMaximum(int maximum);

  Form& form;
  Values design;
};

class Label : public Control {
 public:
  Label(Form& owner, std::string controlName, std::string caption = "", ControlSize room = {})
      : Control(owner, ControlKind::Label, std::move(controlName), std::move(caption), room) {}
  const std::string& Caption() { return Text(); }
  void SetCaption(const std::string& caption) { SetText(caption); }
};

class TextBox : public Control {
 public:
  // Asked for each character that the user types, control characters such as backspace included; false swallows it.
  using KeyFilter = std::function<bool(unsigned char)>;

  TextBox(Form& owner, std::string controlName, ControlSize room, KeyFilter keyPress = nullptr)
      : Control(owner, ControlKind::TextBox, std::move(controlName), "", room), KeyPress(std::move(keyPress)) {}
  using Control::SetText;
  using Control::Text;

  const KeyFilter KeyPress;
};

// A text of any length with its own scroll bars, for reading only.
class RichTextBox : public Control {
 public:
  RichTextBox(Form& owner, std::string controlName, ControlSize room)
      : Control(owner, ControlKind::RichTextBox, std::move(controlName), "", room) {}
  using Control::SetText;
  using Control::Text;
};

// The button that Enter presses (Default) or Escape presses (Cancel), wherever the focus is.
enum class ButtonRole { Plain, Default, Cancel };

class Button : public Control {
 public:
  Button(Form& owner, std::string controlName, std::string caption, ButtonRole buttonRole, std::function<void()> click,
         bool enabled = true)
      : Control(owner, ControlKind::Button, std::move(controlName), std::move(caption), {}),
        role(buttonRole),
        Click(std::move(click)) {
    design.enabled = enabled;
  }
  const std::string& Caption() { return Text(); }

  const ButtonRole role;
  const std::function<void()> Click;
};

// One choice of several: the option buttons of a form are one group, of which at most one is set. They stand together
// in the layout. At first none is set; the arrow keys move between them, and the focus alone sets none.
class OptionButton : public Control {
 public:
  OptionButton(Form& owner, std::string controlName, std::string caption)
      : Control(owner, ControlKind::OptionButton, std::move(controlName), std::move(caption), {}) {}
  const std::string& Caption() { return Text(); }
  bool Value() { return Control::Value() != 0; }
  // Setting one clears the others.
  void SetValue(bool set);
};

// A list that drops down and from which one entry is chosen; nothing can be typed into it.
class ComboBox : public Control {
 public:
  ComboBox(Form& owner, std::string controlName, ControlSize room)
      : Control(owner, ControlKind::ComboBox, std::move(controlName), "", room) {
    design.value = -1;
  }
  void AddItem(const std::string& text);
  // Position of the chosen entry from 0, or -1. Faults: InvalidPropertyValue for one that is not in the list; the
  // choice stays as it was.
  int ListIndex() { return Control::Value(); }
  void SetListIndex(int index);

  void Reset() override;
  // For the realization.
  const std::vector<std::string>& Items() const { return items_; }

 private:
  std::vector<std::string> items_;
};

struct ListItem {
  std::string key;
  std::string text;                   // in the first column
  std::vector<std::string> subItems;  // in the further columns
  bool checked = false;
};

// What the user does in a list; what the program does there raises nothing. Items are told by their position.
struct ListEvents {
  std::function<void(std::size_t)> ItemClick;  // an item was selected, by the mouse or a key
  std::function<void(std::size_t)> ItemCheck;  // the box of an item was clicked, or the blank was pressed on the item
  std::function<void()> DblClick;              // anywhere but on a box
};

// A table whose rows carry check boxes in their first column. It holds any number of items; they stay in the order in
// which they were added. The columns come up as wide as their contents; the widest give way where there is no room.
class ListView : public Control {
 public:
  ListView(Form& owner, std::string controlName, std::vector<std::string> columnHeadings, ControlSize room,
           ListEvents listEvents)
      : Control(owner, ControlKind::ListView, std::move(controlName), "", room),
        columns(std::move(columnHeadings)),
        events(std::move(listEvents)) {}

  std::size_t Count();
  // Adds an item behind the last and yields its position. Faults: KeyNotUnique.
  std::size_t Add(const std::string& key, const std::string& text);
  // Faults of all that follows: OutOfRange for an item or a column that is not there. Columns count from 0, the one of
  // the item's text; sub-items are in the columns from 1.
  const ListItem& Item(std::size_t item);
  const std::string& SubItem(std::size_t item, std::size_t column);
  void SetSubItem(std::size_t item, std::size_t column, const std::string& text);
  void SetChecked(std::size_t item, bool checked);
  // At most one item is selected.
  std::optional<std::size_t> Selected();
  void Select(std::size_t item);
  void EnsureVisible(std::size_t item);

  void Reset() override;

  const std::vector<std::string> columns;
  const ListEvents events;

  // For the realization: what is shown, and what the user does.
  const std::vector<ListItem>& Items() const { return items_; }
  void SelectByUser(std::size_t item);
  void ToggleByUser(std::size_t item);

 private:
  std::size_t Existing(std::size_t item) const;

  std::vector<ListItem> items_;
  std::unordered_set<std::string> keys_;
  std::optional<std::size_t> selected_;
};

class ProgressBar : public Control {
 public:
  ProgressBar(Form& owner, std::string controlName, ControlSize room)
      : Control(owner, ControlKind::ProgressBar, std::move(controlName), "", room) {}
  using Control::Maximum;
  using Control::SetMaximum;
  using Control::SetValue;  // a value beyond the maximum shows as the maximum
  using Control::Value;
};

// Shows an icon of the program's resources, in the system's icon size (32 by 32 pixels at 96 dpi).
class Picture : public Control {
 public:
  Picture(Form& owner, std::string controlName)
      : Control(owner, ControlKind::Picture, std::move(controlName), "", {}) {}
  const std::string& Icon() { return Text(); }
  void SetIcon(const std::string& resource) { SetText(resource); }
};

}  // namespace forms
