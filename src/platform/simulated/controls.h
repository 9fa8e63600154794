// The controls of the simulated desktop: which window is one, and its answer to a message. Nothing is answered where
// the control does no more than any window.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/simulated/state.h"

namespace platform::simulated {

bool IsButton(const Window& window);
std::optional<std::int32_t> ButtonProcedure(std::int32_t hWnd, const Message& message);

bool IsComboBox(const Window& window);
std::optional<std::int32_t> ComboBoxProcedure(std::int32_t hWnd, const Message& message, TextBuffer* buffer);

bool IsListView(const Window& window);
std::optional<std::int32_t> ListViewProcedure(std::int32_t hWnd, const Message& message);

}  // namespace platform::simulated
