// Fetches what the game needs, all of it at once, puts the story where the program finds it, and starts the program.
import { EventKind } from "./event_queue.mjs";
import { fetchBytes, fetchProgram } from "./files.mjs";
import { Page } from "./page.mjs";
import { PageMenu } from "./page_menu.mjs";
import { SavedGames } from "./saved_games.mjs";
import { loadTextFace } from "./text_face.mjs";
import { askBeforeLeaving } from "./unsaved_steps.mjs";

const ProgramFolder = "/orvel-tavoren";

function note(text) {
    document.getElementById("notice").textContent = text;
}

async function start() {
    const [{ default: createEngine }, program, story, hasArial] =
        await Promise.all([import("./engine.mjs"), fetchProgram("engine.wasm"), fetchBytes("texs.dat"), loadTextFace()]);
    const page = new Page(document.getElementById("stage"), hasArial);
    const engine = await createEngine({
        page,
        noInitialRun: true,
        instantiateWasm(imports, done) {
            WebAssembly.instantiate(program, imports).then((instance) => done(instance, program));
            return {};
        },
    });
    engine.FS.mkdirTree(`${ProgramFolder}/data/saves`);
    engine.FS.writeFile(`${ProgramFolder}/data/texs.dat`, story);
    const savedGames = new SavedGames(engine.FS, `${ProgramFolder}/data/saves`);
    savedGames.onChange = () => page.events.post(EventKind.FilesChanged);
    new PageMenu(engine, savedGames);
    askBeforeLeaving(engine, savedGames);
    note("");
    engine.callMain([]);
}

start().catch((error) => {
    console.error(error);
    note("Hru se nepodařilo načíst. Zkuste prosím stránku otevřít znovu.");
});
