// The language server, spoken to by the protocol's own library for Node. The checker's path is in MAKCHECK, that of the
// installed packages in NODE_MODULES.
import assert from "node:assert/strict";
import { spawn } from "node:child_process";
import { createRequire } from "node:module";
import { after, before, beforeEach, test } from "node:test";

const require = createRequire(`${process.env.NODE_MODULES}/index.js`);
const protocol = require("vscode-languageserver-protocol/node");

const URI = "file:///macros/EXPORT.MAK";
const MACRO = [
  "REM --- Export ---",
  "DIM Größe",
  "Größe=VALUE(1)",
  "BUTONCLICK=2111,Export,1",
  "MARK=Ende",
  "GOTO=ende",
  "MSG=Größe",
  "IF GDPDU=1",
  "MSG=$DATE",
  "ENDIF",
  "",
].join("\r\n");

let server, connection, diagnostics;

async function start(locale) {
  server = spawn(process.env.MAKCHECK, ["--lsp"], { stdio: ["pipe", "pipe", "inherit"] });
  connection = protocol.createProtocolConnection(
    new protocol.StreamMessageReader(server.stdout),
    new protocol.StreamMessageWriter(server.stdin)
  );
  connection.listen();
  diagnostics = [];
  connection.onNotification(protocol.PublishDiagnosticsNotification.type, (params) => diagnostics.push(params));
  const answer = await connection.sendRequest(protocol.InitializeRequest.type, {
    processId: null,
    rootUri: null,
    locale,
    capabilities: {},
  });
  await connection.sendNotification(protocol.InitializedNotification.type, {});
  return answer;
}

async function open(text) {
  diagnostics.length = 0;
  await connection.sendNotification(protocol.DidOpenTextDocumentNotification.type, {
    textDocument: { uri: URI, languageId: "tarven-mak", version: 1, text },
  });
  return published();
}

async function published(count = 1) {
  const end = Date.now() + 10000;
  while (diagnostics.length < count && Date.now() < end) await new Promise((later) => setTimeout(later, 5));
  assert.ok(diagnostics.length >= count, "no findings were published");
  return diagnostics[count - 1].diagnostics;
}

const at = (line, character) => ({ textDocument: { uri: URI }, position: { line, character } });
const range = (line, start, end) => ({ start: { line, character: start }, end: { line, character: end } });
const labels = (items) => items.map((item) => item.label);

before(() => start("en"));
beforeEach(() => open(MACRO));
after(async () => {
  await connection.sendRequest(protocol.ShutdownRequest.type);
  await connection.sendNotification(protocol.ExitNotification.type);
  const code = await new Promise((ended) => server.on("exit", ended));
  assert.equal(code, 0);
});

test("findings of an opened macro", () => {
  const [finding, ...others] = diagnostics[0].diagnostics.filter((d) => d.code === "misspelled-verb");
  assert.deepEqual(others, []);
  assert.deepEqual(finding.range, range(3, 0, 10));
  assert.equal(finding.severity, protocol.DiagnosticSeverity.Error);
  assert.equal(finding.source, "makcheck");
  assert.match(finding.message, /BUTTONCLICK/);
});

test("a change is checked at once, also behind an umlaut", async () => {
  await connection.sendNotification(protocol.DidChangeTextDocumentNotification.type, {
    textDocument: { uri: URI, version: 2 },
    contentChanges: [
      { range: range(3, 3, 3), text: "T" },
      { range: range(6, 9, 9), text: ",Größe" },
    ],
  });
  const findings = await published(2);
  assert.equal(findings.filter((d) => d.code === "misspelled-verb").length, 0);
  const dropped = findings.filter((d) => d.code === "dropped-text");
  assert.deepEqual(dropped.map((d) => d.range), [range(6, 10, 15)]);
});

test("a quick fix mends the line", async () => {
  const actions = await connection.sendRequest(protocol.CodeActionRequest.type, {
    textDocument: { uri: URI },
    range: range(3, 0, 0),
    context: { diagnostics: [] },
  });
  assert.deepEqual(actions[0].edit.changes[URI], [{ range: range(3, 0, 10), newText: "BUTTONCLICK" }]);
  assert.equal(actions[0].kind, "quickfix");
});

test("completion of verbs, variables, words behind $ and marks", async () => {
  const complete = (line, character) => connection.sendRequest(protocol.CompletionRequest.type, at(line, character));
  const verbs = labels(await complete(10, 0));
  assert.ok(verbs.includes("IF STRCOMP") && verbs.includes("Größe"));
  const values = labels(await complete(2, 8));
  assert.ok(values.includes("READINI") && !values.includes("SETTEXT"));
  assert.ok(labels(await complete(6, 4)).includes("Größe"));
  assert.ok(labels(await complete(8, 6)).includes("$GDPDUPATH"));
  assert.ok(labels(await complete(5, 5)).includes("Ende"));
  const [item] = (await complete(8, 6)).filter((i) => i.label === "$WJ");
  assert.deepEqual(item.textEdit.range, range(8, 4, 6));
});

test("a comment and a declaration complete nothing", async () => {
  assert.deepEqual(await connection.sendRequest(protocol.CompletionRequest.type, at(0, 8)), []);
  assert.deepEqual(await connection.sendRequest(protocol.CompletionRequest.type, at(1, 5)), []);
});

test("help for the argument that is being written", async () => {
  const help = await connection.sendRequest(protocol.SignatureHelpRequest.type, at(7, 10));
  assert.equal(help.signatures[0].label, "IF GDPDU=value");
  assert.equal(help.activeParameter, 0);
  const [start, end] = help.signatures[0].parameters[0].label;
  assert.equal(help.signatures[0].label.slice(start, end), "value");
});

test("hover tells what a verb, a variable and a word behind $ are", async () => {
  const hover = async (line, character) =>
    (await connection.sendRequest(protocol.HoverRequest.type, at(line, character)))?.contents.value;
  assert.match(await hover(6, 1), /MSG=text/);
  assert.match(await hover(6, 6), /VALUE\(1\)/);
  assert.match(await hover(8, 6), /\$DATE/);
  assert.equal(await hover(0, 5), undefined);
});

test("definition and references of variables and marks", async () => {
  const definition = await connection.sendRequest(protocol.DefinitionRequest.type, at(5, 6));
  assert.deepEqual(definition.range, range(4, 5, 9));
  const places = await connection.sendRequest(protocol.ReferencesRequest.type, {
    ...at(6, 5),
    context: { includeDeclaration: true },
  });
  assert.deepEqual(places.map((place) => place.range), [range(1, 4, 9), range(2, 0, 5), range(6, 4, 9)]);
});

test("rename changes every place and refuses what cannot be a name", async () => {
  const rename = (newName) => connection.sendRequest(protocol.RenameRequest.type, { ...at(6, 5), newName });
  const edits = (await rename("Länge")).changes[URI];
  assert.deepEqual(edits.map((edit) => edit.newText), ["Länge", "Länge", "Länge"]);
  await assert.rejects(rename("a,b"));
  await assert.rejects(rename(""));
  assert.equal(await connection.sendRequest(protocol.PrepareRenameRequest.type, at(0, 0)), null);
});

test("symbols are headings, variables and marks", async () => {
  const symbols = await connection.sendRequest(protocol.DocumentSymbolRequest.type, { textDocument: { uri: URI } });
  assert.deepEqual(symbols.map((symbol) => symbol.name), ["Export", "Größe", "Ende"]);
});

test("formatting touches indentation alone", async () => {
  const edits = await connection.sendRequest(protocol.DocumentFormattingRequest.type, {
    textDocument: { uri: URI },
    options: { tabSize: 2, insertSpaces: true },
  });
  assert.deepEqual(edits, [{ range: range(8, 0, 0), newText: "  " }]);
});

test("closing a macro takes its findings away", async () => {
  diagnostics.length = 0;
  await connection.sendNotification(protocol.DidCloseTextDocumentNotification.type, { textDocument: { uri: URI } });
  assert.deepEqual(await published(), []);
});

test("what is unknown is refused and does no harm", async () => {
  await assert.rejects(connection.sendRequest("textDocument/unknown", {}), { code: -32601 });
  await assert.rejects(connection.sendRequest("textDocument/hover", {}), { code: -32602 });
  await connection.sendNotification("textDocument/didChange", {});
  await connection.sendNotification("$/setTrace", { value: "off" });
  assert.ok((await open("MSG=a")).length === 0);
});
