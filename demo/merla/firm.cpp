#include "firm.h"

#include <algorithm>

namespace merla {

const std::vector<Client>& Clients() {
  static const std::vector<Client> clients = {
      {"1001", "Gärtnerei Immergrün GmbH"}, {"1002", "Dachdeckerei Höfner & Söhne OHG"},
      {"1003", "Weingut Rößler"},           {"1004", "Praxis Dr. Änne Möslang"},
      {"1005", "Café Löwengrube KG"},       {"4711", "Schreinerei Grünbärtl & Töchter GmbH"}};
  return clients;
}

const Client& OurClient() { return Clients().back(); }

const std::vector<BusinessYear>& BusinessYears() {
  // A change of the currency, a short year, and years that begin in July.
  static const std::vector<BusinessYear> years = {
      {"2001", "01.01.2001", "31.12.2001", "DEM", true, false, false, false},
      {"2002", "01.01.2002", "31.12.2002", "EUR", true, false, true, false},
      {"2003", "01.01.2003", "31.12.2003", "EUR", true, true, true, false},
      {"2004 (Rumpfjahr)", "01.01.2004", "30.06.2004", "EUR", true, false, true, false},
      {"2004/2005", "01.07.2004", "30.06.2005", "EUR", true, true, true, true}};
  return years;
}

const Client* FindClient(const std::string& number) {
  auto found = std::find_if(Clients().begin(), Clients().end(), [&](const Client& c) { return c.number == number; });
  return found == Clients().end() ? nullptr : &*found;
}

}  // namespace merla
