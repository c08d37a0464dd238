// Fetches everything that the game needs at once, puts the story into the program's file system, and starts the program.
import createEngine from "engine";  // the script that emscripten makes beside the program; the build says where it lies
import { BrowserStore, askToKeepForGood, isPrivateWindow } from "./browser_store.mjs";
import { Desktop } from "./desktop.mjs";
import { EventKind } from "./event_queue.mjs";
import { PageMenu } from "./page_menu.mjs";
import { Records } from "./records.mjs";
import { keepRunningGame } from "./resuming.mjs";
import { SavedGames } from "./saved_games.mjs";
import { SavesFolder } from "./saves_folder.mjs";
import { Trouble, showTrouble, watchProgram } from "./trouble.mjs";
import { askBeforeLeaving } from "./unsaved_steps.mjs";

const ProgramFolder = "/orvel-tavoren";

// Removes the title's picture when the main window's own picture has come.
async function takeTitleAway(desktop) {
    const title = document.getElementById("title");
    for (const type of ["keydown", "pointerdown"]) addEventListener(type, () => title?.classList.add("behind"), { capture: true, once: true });
    await desktop.pictured;
    requestAnimationFrame(() => setTimeout(() => title?.remove()));
}

// Fetches the faces while the program starts, and not earlier, because they would delay the fetching of the program. Without them the browser
// shows the next family that style.css names.
function fetchFaces() {
    for (const weight of ["normal", "bold"]) document.fonts.load(`${weight} 13px "Orvel Sans"`, "ř").catch((error) => console.warn(error));
}

async function run(files) {
    if (typeof WebAssembly === "undefined") throw new Trouble("webassembly");
    const [program, story] = await Promise.all([files.fetchProgram("engine.wasm"), files.fetchBytes("texs.dat")]);
    fetchFaces();
    const desktop = new Desktop(document.getElementById("stage"), files);
    const engine = await createEngine({
        desktop,
        noInitialRun: true,
        instantiateWasm(imports, done) {
            WebAssembly.instantiate(program, imports).then((instance) => done(instance, program), showTrouble);
            return {};
        },
    });
    engine._TellFacts();
    engine.FS.mkdirTree(`${ProgramFolder}/data/saves`);
    engine.FS.writeFile(`${ProgramFolder}/data/texs.dat`, story);
    const folder = new SavesFolder(engine.FS, `${ProgramFolder}/data/saves`, desktop.facts);
    const records = new Records(new BrowserStore("orvel-tavoren", "saves"), folder);
    const savedGames = new SavedGames(folder, records, { askToKeepForGood, isPrivateWindow });
    savedGames.onChange = () => desktop.events.post(EventKind.FilesChanged);
    new PageMenu(engine, savedGames, desktop.notices);
    askBeforeLeaving(engine, savedGames);
    document.getElementById("notice").textContent = "";
    watchProgram();
    engine.callMain([]);
    keepRunningGame(engine, desktop);
    takeTitleAway(desktop);
    dispatchEvent(new Event("playing"));
    files.keepForOffline();
}

// `files` says where the page's files come from.
export function start(files) {
    dispatchEvent(new Event("starting"));
    run(files).catch(showTrouble);
}
