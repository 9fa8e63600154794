#include "layouts.h"

namespace merla {

const Layout& LayoutOf(const std::string& version) {
  static const Layout old{9, 20, 18, 19, 13, 15, 16, 17, 14};
  static const Layout usual{9, 21, 19, 20, 13, 16, 17, 18, 15};
  // The dialog was made anew here: a macro's control paths have to say where its controls went.
  static const Layout remade{60, 61, 70, 71, 80, 81, 82, 83, 84};
  if (version == "260" || version == "280") return usual;
  return version == "2100" ? remade : old;
}

}  // namespace merla
