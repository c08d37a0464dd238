// Where this machine has the programs that the page's tests drive: distributions differ in their names and folders.
import { accessSync, constants } from "node:fs";
import path from "node:path";

const Names = {
    chromium: ["chromium", "chromium-browser", "google-chrome", "google-chrome-stable"],
    firefox: ["firefox-esr", "firefox"],
    webkit: ["WebKitWebDriver"],
    screen: ["Xvfb"],
};
const Folders = [...process.env.PATH.split(":"), "/usr/bin", "/usr/local/bin", "/snap/bin", "/opt/google/chrome", "/opt/firefox"];
const NotTested = 77;  // ctest counts a test that ends so as skipped

function isProgram(file) {
    try {
        accessSync(file, constants.X_OK);
        return true;
    } catch {
        return false;
    }
}

// The path of a program. Where there is none, the test that wants it ends here.
export function programOrSkip(kind) {
    const found = Names[kind].flatMap((name) => Folders.map((folder) => path.join(folder, name))).find(isProgram);
    if (found) return found;
    console.error(`Not tested: there is no ${Names[kind].join(" or ")} here`);
    process.exit(NotTested);
}
