// On the desktop the checker is a program beside the editor.
const vscode = require("vscode");
const { LanguageClient } = require("vscode-languageclient/node");
const { provideTasks } = require("./tasks");

let client;

exports.activate = async (context) => {
  context.subscriptions.push(provideTasks());
  const command = vscode.workspace.getConfiguration("tarvenMak").get("makcheck");
  client = new LanguageClient(
    "makcheck",
    "makcheck",
    { command, args: ["--lsp"] },
    { documentSelector: [{ language: "tarven-mak" }] }
  );
  await client.start();
};

exports.deactivate = () => client?.stop();
