// What the page tells the player of the saved games: which there are, whether they would outlive the page, and what to do if not.
import { equalBytes } from "./bytes.mjs";
import { canNameFile } from "./saves_folder.mjs";

function listed(names) {
    return names.map((name) => `„${name}“`).join(", ");
}

export class SavedGames {
    #folder;
    #records;
    #browser;
    #downloaded = new Map();
    #wasAsked = false;
    isPrivate = false;  // the browser forgets all records when the window is closed
    promised = null;  // whether the browser will not clear the records when it lacks room; null until it has answered
    onNews = () => {};  // what there is to say has changed
    onChange = () => {};  // the folder has changed without the program's doing

    // `browser` has isPrivateWindow() and askToKeepForGood(). Nothing waits for their answers, because they may never come.
    constructor(folder, records, browser) {
        this.#folder = folder;
        this.#records = records;
        this.#browser = browser;
        folder.keepBy(() => this.#keep());
        records.onNews = () => this.onNews();
        records.onChange = () => this.onChange();
        records.read();
        browser.isPrivateWindow().then((isPrivate) => {
            this.isPrivate = isPrivate;
            this.onNews();
        });
    }

    async #keep() {
        const kept = await this.#records.write();
        if (kept) this.#askForPromise();
        return kept;
    }

    async #askForPromise() {
        if (this.#wasAsked) return;
        this.#wasAsked = true;
        this.promised = await this.#browser.askToKeepForGood();
        this.onNews();
    }

    fileName(name) {
        return name + this.#folder.extension;
    }

    #nameOf(file) {
        return file.slice(0, -this.#folder.extension.length);
    }

    // The name that a file from elsewhere has by its own name.
    claimedName(file) {
        const { extension } = this.#folder;
        return file.toUpperCase().endsWith(extension) ? this.#nameOf(file) : file;
    }

    names() {
        return this.#folder.names().map((file) => this.#nameOf(file)).sort((a, b) => a.localeCompare(b, "cs"));
    }

    // Undefined when there is no such saved game.
    bytes(name) {
        return this.#folder.read(this.fileName(name));
    }

    canName(name) {
        return canNameFile(this.fileName(name));
    }

    // Promises whether the browser keeps it; rejects when that failed. It is in the folder all the same.
    put(name, bytes) {
        this.#folder.write(this.fileName(name), bytes);
        this.onChange();
        return this.#keep();
    }

    // Promises whether the browser has forgotten it, as put does.
    remove(name) {
        this.#folder.remove(this.fileName(name));
        this.onChange();
        return this.#keep();
    }

    noteDownload(name) {
        this.#downloaded.set(name, this.bytes(name));
    }

    #isOnlyHere(name) {
        return this.#records.isUnwritten(this.fileName(name));
    }

    #isInDanger(name) {
        return this.#isOnlyHere(name) || this.isPrivate || this.#records.hasFailed;
    }

    // Whether closing the page would lose a saved game that the player has not downloaded.
    wouldBeLost() {
        return this.names().some((name) => this.#isInDanger(name) && !equalBytes(this.bytes(name), this.#downloaded.get(name)));
    }

    // What endangers the saved games; empty when nothing does.
    warning() {
        const { refused, isSilent, hasFailed } = this.#records;
        if (refused) return "Prohlížeč tu pozice neuchová. Ukládat se dá, ale jen do zavření stránky: pozice si stáhněte.";
        const onlyHere = this.names().filter((name) => this.#isOnlyHere(name));
        if (onlyHere.length > 0) return `Prohlížeč nedokázal uložit: ${listed(onlyHere)}. Stáhněte si je, než stránku zavřete.`;
        if (isSilent) return "Úložiště prohlížeče neodpovídá: dříve uložené pozice tu možná nejsou všechny. Hrát můžete dál.";
        if (hasFailed) return "Úložiště prohlížeče selhalo a pozice v něm nemusí vydržet. Pro jistotu si je stáhněte.";
        return this.isPrivate ? "Tohle je anonymní okno: pozice zmizí, jakmile ho zavřete. Stáhněte si je." : "";
    }
}
