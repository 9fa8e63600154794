#include "frame/start_up.h"

#include "engine/run_loop.h"
#include "engine/state.h"
#include "environment/discovery.h"
#include "frame/frmAbout.h"
#include "frame/frmLog.h"
#include "frame/frmMain.h"
#include "frame/frmStatus.h"
#include "frame/press.h"

namespace basMain {

void ConnectForms() {
  frmMain.Events = {
      .Start = [] { GetTeRuDestination(); },
      .Press = Press,
      .ShowLog = [] { frmLog.ShowModal(); },
      .ShowInfo = [] { frmAbout.ShowModal(); },
      .Exit =
          [] {
            frmLog.Unload();
            frmStatus.Unload();
          },
  };
  frmStatus.Resume = [] { ProcessMakro(run.CurrentLine); };
}

}  // namespace basMain
