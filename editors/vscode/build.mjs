// Bundles the extension for the desktop and for the browser, each into one file.
import { build } from "esbuild";

const common = { bundle: true, minify: true, format: "cjs", external: ["vscode"], logLevel: "warning" };
await build({ ...common, entryPoints: ["src/extension.js"], platform: "node", outfile: "dist/extension.js" });
await build({ ...common, entryPoints: ["src/browser.js"], platform: "browser", outfile: "dist/browser.js" });
