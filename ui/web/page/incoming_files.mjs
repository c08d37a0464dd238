// Adds the player's files to the saved games if the program finds that it could load them.
import { equalBytes } from "./bytes.mjs";
import { inTime } from "./deadline.mjs";

// No more of a file is read than this. It is more than any saved game has, so the program sees of a longer file that it is too long.
const EnoughBytes = 2 ** 22;
const Incoming = "/incoming";

function inspect(engine, bytes) {
    engine.FS.writeFile(Incoming, bytes);
    engine._InspectIncoming();
    engine.FS.unlink(Incoming);
    return engine.desktop.inspection;
}

export class IncomingFiles {
    #engine;
    #savedGames;
    #ask;

    // `ask` puts a question with the words for yes and for no, and promises the answer.
    constructor(engine, savedGames, ask) {
        this.#engine = engine;
        this.#savedGames = savedGames;
        this.#ask = ask;
    }

    // Promises a sentence that says what became of the file.
    async take(file) {
        let bytes;
        try {
            bytes = new Uint8Array(await inTime(file.slice(0, EnoughBytes).arrayBuffer()));
        } catch {
            return `Soubor „${file.name}“ se nepodařilo přečíst.`;
        }
        const { finding, name } = inspect(this.#engine, bytes);
        switch (finding) {  // by the words of app/web.cpp
            case "sound": return this.#takeSound(file, name, bytes);
            case "too long": return `Soubor „${file.name}“ je na uloženou pozici příliš dlouhý.`;
            case "name refused": return `Pozice v souboru „${file.name}“ se uvnitř jmenuje „${name}“ a takový název hra nepřijme.`;
            default: return `Soubor „${file.name}“ není uložená pozice, nebo je poškozený.`;
        }
    }

    async #takeSound(file, name, bytes) {
        if (!this.#savedGames.canName(name)) return `Název pozice v souboru „${file.name}“ je příliš dlouhý.`;
        const present = this.#savedGames.bytes(name);
        if (equalBytes(present, bytes)) return `Pozice „${name}“ už tu je, a úplně stejná.`;
        if (!await this.#mayTake(file, name, present !== undefined)) return `Soubor „${file.name}“ zůstal stranou.`;
        const kept = await this.#savedGames.put(name, bytes).catch(() => false);
        return kept ? `Pozice „${name}“ je přidaná.` : `Pozice „${name}“ je přidaná, ale jen do otevřené stránky: prohlížeč ji neuložil.`;
    }

    // Asks the player if the file has been renamed or would replace a saved game. A renamed file gets the name that was saved in it, because
    // loading it under any other name would end the game.
    async #mayTake(file, name, overwrites) {
        const fileName = this.#savedGames.claimedName(file.name.normalize());
        const renamed = fileName !== name;
        if (!renamed && !overwrites) return true;
        const facts = [
            renamed ? `Soubor „${file.name}“ někdo přejmenoval, pozice v něm se uvnitř jmenuje „${name}“ a jinak se jmenovat nemůže.` : "",
            overwrites ? `Pozice „${name}“ už tu je. Přepsat ji souborem?` : `Přidat ji jako „${name}“?`,
        ];
        return this.#ask(facts.filter(Boolean).join(" "), overwrites ? "Přepsat" : "Přidat", overwrites ? "Ponechat" : "Nepřidávat");
    }
}
