// Wires the program: the main form and the status dialog raise events, and here is what follows them.
#pragma once

namespace basMain {

// Puts the events in; before the main form is loaded or a run can fail. Once is enough, more often does no harm.
void ConnectForms();

}  // namespace basMain
