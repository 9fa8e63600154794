#include "lsp/server.h"

#include <exception>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>

#include "common/texts.h"
#include "lsp/connection.h"
#include "lsp/desktop_files.h"
#include "lsp/features.h"
#include "lsp/names.h"
#include "say.h"

namespace makcheck::lsp {
namespace {

using tools::Say;

// Errors of the protocol.
enum ErrorCode {
  kParseError = -32700,
  kInvalidRequest = -32600,
  kMethodNotFound = -32601,
  kInvalidParams = -32602,
  kNotInitialized = -32002,
  kRequestFailed = -32803,
};

struct RequestError {
  ErrorCode code;
  std::string text;
};

constexpr int kIncremental = 2;  // documents are kept by their changes

class Server {
 public:
  int Run() {
    while (!ended_) {
      const auto message = ReadMessage();
      if (!message) break;
      Handle(*message);
    }
    return ended_ && shutDown_ ? 0 : 1;
  }

 private:
  using Request = std::function<Json(const Json& params)>;
  using Notification = std::function<void(const Json& params)>;

  void Handle(const Json& message) {
    if (message.is_discarded() || !message.is_object()) return Fail(nullptr, {kParseError, "no JSON object"});
    if (!message.contains("method")) return;  // an answer; nothing was asked
    const std::string method = message.value("method", "");
    const Json params = message.value("params", Json::object());
    if (!message.contains("id")) return Notify(method, params);
    try {
      WriteMessage({{"jsonrpc", "2.0"}, {"id", message["id"]}, {"result", Answer(method, params)}});
    } catch (const RequestError& error) {
      Fail(message["id"], error);
    } catch (const Json::exception& error) {
      Fail(message["id"], {kInvalidParams, error.what()});
    }
  }

  static void Fail(const Json& id, const RequestError& error) {
    WriteMessage({{"jsonrpc", "2.0"}, {"id", id}, {"error", {{"code", error.code}, {"message", error.text}}}});
  }

  Json Answer(const std::string& method, const Json& params) {
    if (method != "initialize" && !initialized_) throw RequestError{kNotInitialized, "not initialized"};
    if (shutDown_) throw RequestError{kInvalidRequest, "shut down"};
    const auto request = requests_.find(method);
    if (request == requests_.end()) throw RequestError{kMethodNotFound, method};
    return request->second(params);
  }

  // What is wrong with a notification cannot be told to anybody.
  void Notify(const std::string& method, const Json& params) {
    const auto notification = notifications_.find(method);
    if (notification == notifications_.end()) return;
    try {
      notification->second(params);
    } catch (const Json::exception&) {
      return;
    } catch (const RequestError&) {
      return;
    }
  }

  Json Initialize(const Json& params) {
    initialized_ = true;
    const std::string locale = params.value("locale", "");
    if (locale.starts_with("de")) tools::language = tools::Language::German;
    else if (locale.starts_with("en")) tools::language = tools::Language::English;
    const Json capabilities = {
        {"textDocumentSync", {{"openClose", true}, {"change", kIncremental}}},
        {"completionProvider", {{"triggerCharacters", {"=", ",", "(", "$"}}}},
        {"signatureHelpProvider", {{"triggerCharacters", {"=", ",", "("}}}},
        {"hoverProvider", true},
        {"definitionProvider", true},
        {"referencesProvider", true},
        {"documentSymbolProvider", true},
        {"codeActionProvider", {{"codeActionKinds", {"quickfix"}}}},
        {"documentFormattingProvider", true},
        {"renameProvider", {{"prepareProvider", true}}},
    };
    return {{"capabilities", capabilities}, {"serverInfo", {{"name", "makcheck"}, {"version", QUMAEXP_VERSION}}}};
  }

  // Documents.

  void Open(const Json& params) {
    const Json& document = params.at("textDocument");
    const std::string uri = document.at("uri");
    Document opened(FromEditor(document.at("text").get<std::string>()));
    Publish(uri, documents_.insert_or_assign(uri, std::move(opened)).first->second);
  }

  void Change(const Json& params) {
    const std::string uri = params.at("textDocument").at("uri");
    Document& document = DocumentOf(uri);
    for (const Json& change : params.at("contentChanges")) {
      std::string text = FromEditor(change.at("text").get<std::string>());
      if (change.contains("range")) document.Change(RangeFrom(change["range"]), text);
      else document.Take(std::move(text));
    }
    Publish(uri, document);
  }

  void Close(const Json& params) {
    const std::string uri = params.at("textDocument").at("uri");
    documents_.erase(uri);
    WriteMessage(PublishedDiagnostics(uri, Json::array()));
  }

  void Publish(const std::string& uri, Document& document) {
    document.Check(desktops_.For(uri));
    WriteMessage(PublishedDiagnostics(uri, Diagnostics(document)));
  }

  static Json PublishedDiagnostics(const std::string& uri, const Json& diagnostics) {
    return {{"jsonrpc", "2.0"},
            {"method", "textDocument/publishDiagnostics"},
            {"params", {{"uri", uri}, {"diagnostics", diagnostics}}}};
  }

  Document& DocumentOf(const std::string& uri) {
    const auto document = documents_.find(uri);
    if (document == documents_.end()) throw RequestError{kInvalidParams, uri};
    return document->second;
  }
  Document& DocumentOf(const Json& params) { return DocumentOf(params.at("textDocument").at("uri").get<std::string>()); }

  // A request about a place of a document.
  Request AtPlace(Json (*answer)(const Document&, Position)) {
    return [this, answer](const Json& params) {
      return answer(DocumentOf(params), PositionFrom(params.at("position")));
    };
  }

  // Names.

  std::optional<Name> NameOf(const Json& params) {
    return NameAt(DocumentOf(params), PositionFrom(params.at("position")));
  }

  Json Location(const Json& params, const Range& range) {
    return {{"uri", params.at("textDocument").at("uri")}, {"range", ToJson(range)}};
  }

  Json Definition(const Json& params) {
    const auto name = NameOf(params);
    if (!name) return nullptr;
    const auto place = DeclarationOf(DocumentOf(params), *name);
    return place ? Location(params, *place) : Json(nullptr);
  }

  Json References(const Json& params) {
    const auto name = NameOf(params);
    Json places = Json::array();
    if (!name) return places;
    for (const Range& place : PlacesOf(DocumentOf(params), *name)) places.push_back(Location(params, place));
    return places;
  }

  Json PrepareRename(const Json& params) {
    const auto name = NameOf(params);
    return name ? ToJson(name->place) : Json(nullptr);
  }

  Json Rename(const Json& params) {
    const std::string asked = params.at("newName");
    const auto name = NameOf(params);
    if (!name) throw RequestError{kRequestFailed, Say(say::kNothingToRename)};
    if (!MayBeCalled(DocumentOf(params), *name, FromEditor(asked)))
      throw RequestError{kRequestFailed, Say(say::kNotAName, {asked})};
    Json edits = Json::array();
    for (const Range& place : PlacesOf(DocumentOf(params), *name))
      edits.push_back({{"range", ToJson(place)}, {"newText", asked}});
    return {{"changes", {{params.at("textDocument").at("uri").get<std::string>(), edits}}}};
  }

  std::map<std::string, Document> documents_;
  DesktopFiles desktops_;
  bool initialized_ = false;
  bool shutDown_ = false;
  bool ended_ = false;

  const std::map<std::string, Request> requests_ = {
      {"initialize", [this](const Json& params) { return Initialize(params); }},
      {"shutdown",
       [this](const Json&) {
         shutDown_ = true;
         return Json(nullptr);
       }},
      {"textDocument/completion",
       [this](const Json& params) {
         const Desktop* desktop = desktops_.For(params.at("textDocument").at("uri").get<std::string>());
         return Completion(DocumentOf(params), PositionFrom(params.at("position")), desktop);
       }},
      {"textDocument/signatureHelp", AtPlace(SignatureHelp)},
      {"textDocument/hover", AtPlace(Hover)},
      {"textDocument/definition", [this](const Json& params) { return Definition(params); }},
      {"textDocument/references", [this](const Json& params) { return References(params); }},
      {"textDocument/documentSymbol", [this](const Json& params) { return DocumentSymbols(DocumentOf(params)); }},
      {"textDocument/codeAction",
       [this](const Json& params) {
         return CodeActions(DocumentOf(params), RangeFrom(params.at("range")), params.at("textDocument").at("uri"));
       }},
      {"textDocument/formatting",
       [this](const Json& params) {
         const Json& options = params.at("options");
         return Formatting(DocumentOf(params), options.value("tabSize", 2u), options.value("insertSpaces", true));
       }},
      {"textDocument/prepareRename", [this](const Json& params) { return PrepareRename(params); }},
      {"textDocument/rename", [this](const Json& params) { return Rename(params); }},
  };
  const std::map<std::string, Notification> notifications_ = {
      {"exit", [this](const Json&) { ended_ = true; }},
      {"textDocument/didOpen", [this](const Json& params) { Open(params); }},
      {"textDocument/didChange", [this](const Json& params) { Change(params); }},
      {"textDocument/didClose", [this](const Json& params) { Close(params); }},
  };
};

}  // namespace

int Serve() {
  UseBinaryStreams();
  return Server().Run();
}

}  // namespace makcheck::lsp
