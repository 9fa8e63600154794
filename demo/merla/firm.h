// The clients and business years that the stand-in knows: inventions, the same at each start.
#pragma once

#include <string>
#include <vector>

namespace merla {

struct Client {
  std::string number, name;
};

struct BusinessYear {
  std::string name;         // as the combo box shows it
  std::string first, last;  // dd.mm.yyyy
  std::string currency;
  bool taxLaw, calculation, commercialLaw, iasIfrs;
};

const std::vector<Client>& Clients();
// The client whose books are open.
const Client& OurClient();
const std::vector<BusinessYear>& BusinessYears();

// The client with this number, or null.
const Client* FindClient(const std::string& number);

}  // namespace merla
