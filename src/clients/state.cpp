#include "clients/state.h"

namespace basMain {

ClientState clients;

}  // namespace basMain
