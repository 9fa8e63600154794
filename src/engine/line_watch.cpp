#include "engine/line_watch.h"

namespace basMain {

LineWatch lineWatch;

}  // namespace basMain
