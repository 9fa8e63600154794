// The tasks "prüfen" (makcheck) and "proben" (makrun) for the macro that is open.
const vscode = require("vscode");

const PROGRAMS = { prüfen: "makcheck", proben: "makrun" };

function taskNamed(name, definition = { type: "tarven-mak", task: name }) {
  const program = PROGRAMS[name];
  const path = vscode.workspace.getConfiguration("tarvenMak").get(program);
  const execution = new vscode.ShellExecution(path, ["${file}"]);
  const task = new vscode.Task(definition, vscode.TaskScope.Workspace, name, "TARVEN", execution, `$${program}`);
  task.group = name === "prüfen" ? vscode.TaskGroup.Build : vscode.TaskGroup.Test;
  return task;
}

exports.provideTasks = () =>
  vscode.tasks.registerTaskProvider("tarven-mak", {
    provideTasks: () => Object.keys(PROGRAMS).map((name) => taskNamed(name)),
    resolveTask: (task) => (task.definition.task in PROGRAMS ? taskNamed(task.definition.task, task.definition) : undefined),
  });
