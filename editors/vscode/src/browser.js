// In a browser the checker runs behind a WebSocket, one message of the protocol in each of the socket's.
const vscode = require("vscode");
const { BaseLanguageClient } = require("vscode-languageclient/browser");
const { AbstractMessageReader, AbstractMessageWriter } = require("vscode-languageserver-protocol/browser");

class SocketReader extends AbstractMessageReader {
  constructor(socket) {
    super();
    this.socket = socket;
  }
  listen(callback) {
    this.socket.addEventListener("message", (event) => callback(JSON.parse(event.data)));
    this.socket.addEventListener("close", () => this.fireClose());
    return { dispose: () => this.socket.close() };
  }
}

class SocketWriter extends AbstractMessageWriter {
  constructor(socket) {
    super();
    this.socket = socket;
  }
  async write(message) {
    this.socket.send(JSON.stringify(message));
  }
  end() {
    this.socket.close();
  }
}

class SocketClient extends BaseLanguageClient {
  constructor(address, options) {
    super("makcheck", "makcheck", options);
    this.address = address;
  }
  async createMessageTransports() {
    const socket = new WebSocket(this.address);
    await new Promise((open, fail) => {
      socket.addEventListener("open", open);
      socket.addEventListener("error", () => fail(new Error(this.address)));
    });
    return { reader: new SocketReader(socket), writer: new SocketWriter(socket) };
  }
}

let client;

exports.activate = async () => {
  const address = vscode.workspace.getConfiguration("tarvenMak").get("bridge");
  if (!address) return;
  client = new SocketClient(address, { documentSelector: [{ language: "tarven-mak" }] });
  await client.start();
};

exports.deactivate = () => client?.stop();
