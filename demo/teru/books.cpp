#include "books.h"

#include <cstdint>
#include <cstdio>

namespace teru {

namespace {

struct Account {
  int number;
  const char* name;
  const char* kind;
};

constexpr Account kAccounts[] = {
    {110, "Grundstücke und Gebäude", "Bestand"},
    {130, "Maschinen der Werkstatt", "Bestand"},
    {140, "Fuhrpark", "Bestand"},
    {150, "Büroausstattung", "Bestand"},
    {160, "Geringwertige Wirtschaftsgüter", "Bestand"},
    {210, "Vorräte Holz und Furnier", "Bestand"},
    {220, "Vorräte Beschläge", "Bestand"},
    {310, "Forderungen aus Lieferungen", "Bestand"},
    {330, "Vorsteuer 16 %", "Bestand"},
    {350, "Kasse", "Bestand"},
    {360, "Hausbank München", "Bestand"},
    {370, "Geldtransit", "Bestand"},
    {410, "Gezeichnetes Kapital", "Bestand"},
    {430, "Rückstellungen für Gewährleistung", "Bestand"},
    {450, "Darlehen", "Bestand"},
    {460, "Verbindlichkeiten aus Lieferungen", "Bestand"},
    {470, "Umsatzsteuer 16 %", "Bestand"},
    {480, "Verbindlichkeiten Löhne", "Bestand"},
    {510, "Erlöse Möbelbau 16 %", "Ertrag"},
    {520, "Erlöse Innenausbau 16 %", "Ertrag"},
    {530, "Erlöse Reparaturen 16 %", "Ertrag"},
    {550, "Gewährte Skonti", "Ertrag"},
    {560, "Zinserträge", "Ertrag"},
    {610, "Einkauf Holz und Furnier", "Aufwand"},
    {620, "Einkauf Beschläge", "Aufwand"},
    {640, "Fremdleistungen", "Aufwand"},
    {710, "Löhne", "Aufwand"},
    {720, "Gehälter", "Aufwand"},
    {730, "Gesetzliche soziale Aufwendungen", "Aufwand"},
    {810, "Miete der Lagerhalle", "Aufwand"},
    {820, "Strom, Gas und Wasser", "Aufwand"},
    {830, "Kraftfahrzeugkosten", "Aufwand"},
    {840, "Versicherungen und Beiträge", "Aufwand"},
    {850, "Werkzeuge und Kleingeräte", "Aufwand"},
    {860, "Telefon und Porto", "Aufwand"},
    {870, "Bürobedarf", "Aufwand"},
    {880, "Abschreibungen", "Aufwand"},
    {890, "Steuerberatungskosten", "Aufwand"},
};

struct Customer {
  int number;
  const char* name;
  const char* street;
  const char* place;
};

constexpr Customer kCustomers[] = {
    {10100, "Althoff & Söhne KG", "Brückenstraße 4", "80331;München"},
    {10200, "Bäckerei Zirngibl", "Marktplatz 11", "85049;Ingolstadt"},
    {10300, "Café Löwengrube", "Löwengrube 2", "80333;München"},
    {10400, "Dr. Jürgen Wössner", "Am Weiher 17", "82319;Starnberg"},
    {10500, "Elektro Hämmerle GmbH", "Gewerbering 8", "86150;Augsburg"},
    {10600, "Familie Großkopf", "Tannenweg 5", "82211;Herrsching"},
    {10700, "Gasthof Zum Röhrig", "Dorfstraße 1", "83607;Holzkirchen"},
    {10800, "Hotel Seeblüte GmbH & Co. KG", "Uferpromenade 30", "83684;Tegernsee"},
    {10900, "Ingenieurbüro Öttl", "Schießstättstraße 9", "80339;München"},
    {11000, "Kindergarten Spatzennest e. V.", "Gänsewiese 3", "85221;Dachau"},
    {11100, "Kanzlei Übelacker und Partner", "Maximilianplatz 12", "80333;München"},
    {11200, "Praxis Dr. Änne Möslang", "Rathausgasse 6", "84028;Landshut"},
    {11300, "Stadtbücherei Weißenfeld", "Klosterhof 1", "85591;Vaterstetten"},
    {11400, "Weingut Rößler", "Kirchberg 22", "97070;Würzburg"},
};

// One kind of business that the firm does again and again.
struct Business {
  int debit;
  int credit;
  int smallest;  // euros
  int range;     // euros
  const char* text;
  bool taxed;
};

constexpr Business kBusinesses[] = {
    {310, 510, 900, 8200, "Rechnung Einbauschränke", true},
    {310, 520, 1500, 14000, "Rechnung Innenausbau", true},
    {310, 530, 80, 620, "Rechnung Reparatur Türen", true},
    {360, 310, 400, 9000, "Zahlungseingang", false},
    {610, 460, 300, 4100, "Eiche, Buche, Nußbaum", true},
    {620, 460, 60, 700, "Beschläge und Schlösser", true},
    {460, 360, 300, 4000, "Überweisung an Lieferanten", false},
    {710, 360, 1900, 900, "Lohnzahlung", false},
    {830, 360, 40, 90, "Treibstoff Lieferwagen", true},
    {820, 360, 210, 160, "Abschlag Stromversorgung", true},
    {860, 350, 5, 60, "Porto für Angebote", false},
    {850, 350, 12, 190, "Sägeblätter und Fräser", true},
};

constexpr int kPostings = 480;

// A fixed row of numbers without visible order.
class Dice {
 public:
  int Next(int sides) {
    state_ = state_ * 1664525u + 1013904223u;
    return static_cast<int>((state_ >> 8) % static_cast<std::uint32_t>(sides));
  }

 private:
  std::uint32_t state_ = 2005;
};

std::string Number(const char* format, int number) {
  char text[32];
  std::snprintf(text, sizeof text, format, number);
  return text;
}

std::string Amount(int cents) {
  char text[32];
  std::snprintf(text, sizeof text, "%d,%02d", cents / 100, cents % 100);
  return text;
}

std::string Date(int dayOfYear) {
  constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  int month = 0;
  while (dayOfYear >= kDays[month]) dayOfYear -= kDays[month++];
  char text[32];
  std::snprintf(text, sizeof text, "%02d.%02d.2005", dayOfYear + 1, month + 1);
  return text;
}

}  // namespace

const Firm& OurFirm() {
  static const Firm firm{"0012", "4711", "Schreinerei Grünbärtl & Töchter GmbH", "2005"};
  return firm;
}

Table Accounts() {
  Table table{"Konten.csv", "Konto;Bezeichnung;Art;Eröffnungssaldo", {}};
  Dice dice;
  for (const Account& account : kAccounts) {
    bool hasOpening = std::string(account.kind) == "Bestand";
    int opening = hasOpening ? dice.Next(9000000) : 0;
    table.rows.push_back(Number("%04d", account.number) + ";" + account.name + ";" + account.kind + ";" +
                         Amount(opening));
  }
  return table;
}

Table Customers() {
  Table table{"Debitoren.csv", "Nummer;Name;Straße;PLZ;Ort", {}};
  for (const Customer& customer : kCustomers) {
    table.rows.push_back(Number("%d", customer.number) + ";" + customer.name + ";" + customer.street + ";" +
                         customer.place);
  }
  return table;
}

Table Postings() {
  Table table{"Buchungen.csv", "Nummer;Datum;Beleg;Soll;Haben;Betrag;Steuer;Text", {}};
  Dice dice;
  for (int i = 0; i < kPostings; ++i) {
    const Business& business = kBusinesses[dice.Next(std::size(kBusinesses))];
    int cents = (business.smallest + dice.Next(business.range)) * 100 + dice.Next(100);
    int tax = business.taxed ? cents * 16 / 116 : 0;
    table.rows.push_back(Number("%d", i + 1) + ";" + Date(i * 365 / kPostings) + ";" + Number("RE%05d", 50001 + i) +
                         ";" + Number("%04d", business.debit) + ";" + Number("%04d", business.credit) + ";" +
                         Amount(cents) + ";" + Amount(tax) + ";" + business.text);
  }
  return table;
}

std::vector<std::string> Fields(const std::string& row) {
  std::vector<std::string> fields;
  std::size_t start = 0;
  for (std::size_t end; (end = row.find(';', start)) != std::string::npos; start = end + 1) {
    fields.push_back(row.substr(start, end - start));
  }
  fields.push_back(row.substr(start));
  return fields;
}

}  // namespace teru
