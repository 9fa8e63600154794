// Window classes of the forms and controls that the driven applications are made of. Classes are compared without case.
#pragma once

namespace platform {

inline constexpr const char* kFormClass = "ThunderRT6FormDC";
inline constexpr const char* kFrameClass = "ThunderRT6Frame";
inline constexpr const char* kUserControlClass = "ThunderRT6UserControlDC";
inline constexpr const char* kTextBoxClass = "ThunderRT6Textbox";
inline constexpr const char* kComboBoxClass = "ThunderRT6ComboBox";
inline constexpr const char* kCheckBoxClass = "ThunderRT6CheckBox";
inline constexpr const char* kOptionButtonClass = "ThunderRT6OptionButton";
inline constexpr const char* kCommandButtonClass = "ThunderRT6CommandButton";

}  // namespace platform
