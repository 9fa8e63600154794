#include "argument_names.h"

#include <algorithm>
#include <iterator>

#include "common/texts.h"
#include "runtime/code_page.h"

namespace makcheck {
namespace {

constexpr tools::Text kNames[] = {
    {u8"append mode", u8"Anhängen"},
    {u8"area combo id", u8"Kennung des Kombinationsfelds der Bereiche"},
    {u8"block", u8"Sperren"},
    {u8"button", u8"Maustaste"},
    {u8"caption", u8"Beschriftung"},
    {u8"class", u8"Klasse"},
    {u8"client file", u8"Mandantendatei"},
    {u8"client number", u8"Mandantennummer"},
    {u8"column", u8"Spalte"},
    {u8"command", u8"Programmaufruf"},
    {u8"control id", u8"Kennung des Steuerelements"},
    {u8"destination", u8"Ziel"},
    {u8"exact", u8"genau"},
    {u8"expected text", u8"erwarteter Text"},
    {u8"field number", u8"Feldnummer"},
    {u8"file", u8"Datei"},
    {u8"file or pattern", u8"Datei oder Muster"},
    {u8"folder", u8"Ordner"},
    {u8"foreground", u8"Vordergrund"},
    {u8"format", u8"Format"},
    {u8"frame class", u8"Rahmenklasse"},
    {u8"frame id", u8"Rahmenkennung"},
    {u8"frame id or control text", u8"Rahmenkennung oder Text des Steuerelements"},
    {u8"frame number", u8"Rahmennummer"},
    {u8"from", u8"von"},
    {u8"from index", u8"Index von"},
    {u8"id", u8"Kennung"},
    {u8"index", u8"Index"},
    {u8"key", u8"Schlüssel"},
    {u8"keys", u8"Tasten"},
    {u8"lines to skip", u8"Zahl der Kopfzeilen"},
    {u8"list id", u8"Kennung der Liste"},
    {u8"mark", u8"Sprungmarke"},
    {u8"menu id", u8"Kennung des Menüeintrags"},
    {u8"message", u8"Meldung"},
    {u8"milliseconds", u8"Millisekunden"},
    {u8"mode", u8"Modus"},
    {u8"new text", u8"neuer Text"},
    {u8"parent id", u8"Kennung des übergeordneten Elements"},
    {u8"path", u8"Pfad"},
    {u8"piece 1", u8"Teil 1"},
    {u8"piece 2", u8"Teil 2"},
    {u8"piece 3", u8"Teil 3"},
    {u8"piece 4", u8"Teil 4"},
    {u8"piece 5", u8"Teil 5"},
    {u8"search class", u8"Suchklasse"},
    {u8"section", u8"Abschnitt"},
    {u8"separator", u8"Trennzeichen"},
    {u8"source", u8"Quelle"},
    {u8"text", u8"Text"},
    {u8"text fragment", u8"Teil des Textes"},
    {u8"title fragment", u8"Teil des Titels"},
    {u8"to", u8"bis"},
    {u8"to index", u8"Index bis"},
    {u8"type", u8"Typ"},
    {u8"unused", u8"unbenutzt"},
    {u8"value", u8"Wert"},
    {u8"window", u8"Fenster"},
    {u8"x", u8"x"},
    {u8"x offset", u8"Abstand x"},
    {u8"y", u8"y"},
    {u8"y offset", u8"Abstand y"},
    {u8"year combo id", u8"Kennung des Kombinationsfelds der Jahre"},
};

}  // namespace

std::string ArgumentName(std::string_view name) {
  const auto named = std::find_if(std::begin(kNames), std::end(kNames), [name](const tools::Text& text) {
    return std::equal(text.english.begin(), text.english.end(), name.begin(), name.end());
  });
  return named == std::end(kNames) ? std::string(name) : runtime::FromUtf8(tools::Say(*named));
}

}  // namespace makcheck
