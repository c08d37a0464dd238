// Fetches what the game needs, all of it at once, puts the story where the program finds it, and starts the program.
import { EventKind } from "./event_queue.mjs";
import { addressOf, fetchBytes, fetchProgram, keepForOffline } from "./files.mjs";
import { Page } from "./page.mjs";
import { PageMenu } from "./page_menu.mjs";
import { SavedGames } from "./saved_games.mjs";
import { loadTextFace } from "./text_face.mjs";
import { Trouble, showTrouble, watchProgram } from "./trouble.mjs";
import { askBeforeLeaving } from "./unsaved_steps.mjs";

const ProgramFolder = "/orvel-tavoren";

function importEngine() {
    return import("./engine.mjs").catch((cause) => {
        const reason = cause instanceof SyntaxError ? "damaged" : "missing";
        throw new Trouble(reason, { address: addressOf("./engine.mjs"), cause });
    });
}

// The main window shall not be seen without its picture; but one that does not come keeps nobody from playing.
async function loadTitlePicture() {
    const loaded = Object.assign(new Image(), { src: addressOf("pics/gui1.webp") }).decode().catch(() => {});
    await Promise.race([loaded, new Promise((late) => { setTimeout(late, 3000); })]);
}

// The main window shows the same picture by the next frame.
function takeTitleAway() {
    requestAnimationFrame(() => setTimeout(() => document.getElementById("title")?.remove()));
}

async function start() {
    if (typeof WebAssembly === "undefined") throw new Trouble("webassembly");
    const [{ default: createEngine }, program, story, hasArial] =
        await Promise.all([importEngine(), fetchProgram("engine.wasm"), fetchBytes("texs.dat"), loadTextFace(), loadTitlePicture()]);
    const page = new Page(document.getElementById("stage"), hasArial);
    const engine = await createEngine({
        page,
        noInitialRun: true,
        instantiateWasm(imports, done) {
            WebAssembly.instantiate(program, imports).then((instance) => done(instance, program), showTrouble);
            return {};
        },
    });
    engine.FS.mkdirTree(`${ProgramFolder}/data/saves`);
    engine.FS.writeFile(`${ProgramFolder}/data/texs.dat`, story);
    const savedGames = new SavedGames(engine.FS, `${ProgramFolder}/data/saves`);
    savedGames.onChange = () => page.events.post(EventKind.FilesChanged);
    new PageMenu(engine, savedGames);
    askBeforeLeaving(engine, savedGames);
    document.getElementById("notice").textContent = "";
    watchProgram();
    engine.callMain([]);
    takeTitleAway();
    dispatchEvent(new Event("playing"));
    keepForOffline();
}

dispatchEvent(new Event("starting"));
start().catch(showTrouble);
