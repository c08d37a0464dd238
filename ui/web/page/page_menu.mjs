// The page's own menu, outside of the game's windows: what the browser does with the saved games, and how they
// leave it and come into it as files.
import { IncomingFiles } from "./incoming_files.mjs";
import { zip } from "./zip.mjs";

const Told = "orvel-tavoren-told";  // set once the player has read that the browser promised nothing
const AllFiles = "orvel-tavoren-pozice.zip";

function newElement(name, properties = {}, ...children) {
    const element = Object.assign(document.createElement(name), properties);
    element.append(...children);
    return element;
}

function newButton(textContent, act, label) {
    const button = newElement("button", { type: "button", textContent });
    if (label) button.setAttribute("aria-label", label);
    button.addEventListener("click", act);
    return button;
}

// A private window forgets this when it is closed, so the hint comes again in the next one.
function wasTold() {
    try {
        return localStorage.getItem(Told) !== null;
    } catch {
        return false;
    }
}

function rememberTold() {
    try {
        localStorage.setItem(Told, "");
    } catch {
        // A browser that keeps nothing shows the hint on every visit.
    }
}

export class PageMenu {
    #savedGames;
    #incoming;
    #address = "";  // of what was downloaded last
    #asking = null;
    #told = wasTold();
    #line;
    #where = newElement("p");
    #list = newElement("ul", { id: "saved-games" });
    #answers = newElement("div", { id: "answers" });
    #question = newElement("div", { id: "question", hidden: true });
    #all = newButton("Stáhnout všechny", () => this.#downloadAll());
    #input = newElement("input", { id: "incoming-files", type: "file", multiple: true, hidden: true });
    #dialog = newElement("dialog", { id: "saved-games-dialog", tabIndex: -1 });

    constructor(engine, savedGames, noticeLine) {
        this.#savedGames = savedGames;
        this.#line = noticeLine;
        this.#incoming = new IncomingFiles(engine, savedGames, (question, yes, no) => this.#ask(question, yes, no));
        savedGames.onNews = () => this.#show();
        this.#build();
        this.#takeDrops();
        this.#show();
    }

    #build() {
        const open = newButton("Pozice", () => this.#open(), "Uložené pozice");
        open.id = "open-saved-games";
        open.addEventListener("mousedown", (event) => event.preventDefault());  // the focus stays in the game
        this.#answers.setAttribute("role", "status");
        this.#question.setAttribute("role", "alertdialog");
        this.#question.setAttribute("aria-labelledby", "question-text");
        document.getElementById("page-menu").append(open, this.#line.element);

        const title = newElement("h2", { id: "saved-games-title", textContent: "Uložené pozice" });
        this.#dialog.setAttribute("aria-labelledby", title.id);
        const add = newButton("Přidat ze souborů…", () => this.#input.click());
        const close = newButton("Zavřít", () => this.#dialog.close());
        this.#dialog.append(title, this.#where, this.#list, this.#question, this.#answers,
                            newElement("p", { className: "tools" }, this.#all, add, close), this.#input);
        this.#dialog.addEventListener("close", () => this.#asking?.(false));
        this.#input.addEventListener("change", () => {
            const files = [...this.#input.files];
            this.#input.value = "";
            this.#takeIn(files);
        });
        document.body.append(this.#dialog);
    }

    // A file that is dropped anywhere on the page would otherwise take the game's place in the window.
    #takeDrops() {
        document.addEventListener("dragover", (event) => {
            if (event.dataTransfer.types.includes("Files")) event.preventDefault();
        });
        document.addEventListener("drop", (event) => {
            if (event.dataTransfer.files.length === 0) return;
            event.preventDefault();
            this.#takeIn([...event.dataTransfer.files]);
        });
    }

    #open() {
        if (this.#dialog.open) return;
        this.#answers.replaceChildren();
        this.#show();
        this.#dialog.showModal();
    }

    #show() {
        const warning = this.#savedGames.warning();
        const hint = warning === "" && this.#savedGames.promised === false && !this.#told;
        const text = hint
            ? "Pozice jsou v tomto prohlížeči, ale neslíbil, že je uchová napořád; z anonymního okna zmizí hned. Stahujte si je."
            : warning;
        this.#line.stand("storage", text, ...hint ? [newButton("Rozumím", () => this.#forgetHint())] : []);
        this.#where.textContent = warning ||
            "Ve hře je načtete slovesem Nahraj pozici. Uchovává je tento prohlížeč: když se jeho data vymažou, zmizí i ony; " +
            "zálohou je stažený soubor.";
        const names = this.#savedGames.names();
        this.#all.disabled = names.length === 0;
        this.#keepFocus(() => {
            this.#list.replaceChildren(...names.map((name) => this.#newRow(name)));
            if (names.length === 0) this.#list.append(newElement("li", { textContent: "Zatím tu žádná není." }));
        });
    }

    // A button that is made anew has the focus again; if its saved game is gone, the one in its place has it.
    #keepFocus(renew) {
        const place = [...this.#list.querySelectorAll("button")].indexOf(document.activeElement);
        renew();
        if (place < 0) return;
        const buttons = [...this.#list.querySelectorAll("button")];
        (buttons[Math.min(place, buttons.length - 1)] ?? this.#dialog).focus();
    }

    #forgetHint() {
        this.#told = true;
        rememberTold();
        this.#show();
    }

    #newRow(name) {
        const shown = name || "(bez názvu)";
        return newElement("li", {}, newElement("span", { textContent: shown }),
                          newButton("Stáhnout", () => this.#download(name), `Stáhnout ${shown}`),
                          newButton("Smazat", () => this.#remove(name), `Smazat ${shown}`));
    }

    #hand(name, blob) {
        URL.revokeObjectURL(this.#address);
        this.#address = URL.createObjectURL(blob);
        newElement("a", { href: this.#address, download: name }).click();
    }

    #download(name) {
        this.#hand(this.#savedGames.fileName(name), new Blob([this.#savedGames.bytes(name)], { type: "application/octet-stream" }));
        this.#savedGames.noteDownload(name);
    }

    #downloadAll() {
        const names = this.#savedGames.names();
        this.#hand(AllFiles, zip(names.map((name) => [this.#savedGames.fileName(name), this.#savedGames.bytes(name)])));
        for (const name of names) this.#savedGames.noteDownload(name);
    }

    async #remove(name) {
        if (!await this.#ask(`Opravdu smazat pozici „${name}“?`, "Smazat", "Ponechat")) return;
        try {
            await this.#savedGames.remove(name);
            this.#say(`Pozice „${name}“ je smazaná.`);
        } catch {
            this.#say(`Pozici „${name}“ se nepodařilo smazat.`);
        }
    }

    async #takeIn(files) {
        this.#open();
        this.#answers.replaceChildren();
        for (const file of files) this.#say(await this.#incoming.take(file));
        this.#show();
    }

    #say(sentence) {
        this.#answers.append(newElement("p", { textContent: sentence }));
    }

    // One question at a time: a newer one, or closing the dialog, answers the older with no. The button that refuses has the focus, so
    // that a second Enter, which was meant for the button before, does no harm.
    #ask(question, yes, no) {
        this.#asking?.(false);
        const asked = document.activeElement;
        return new Promise((resolve) => {
            this.#asking = (answer) => {
                this.#asking = null;
                this.#question.hidden = true;
                (this.#dialog.contains(asked) ? asked : this.#dialog).focus();  // its button may have been made anew meanwhile
                resolve(answer);
            };
            const refuse = newButton(no, () => this.#asking?.(false));
            const text = newElement("p", { id: "question-text", textContent: question });
            this.#question.replaceChildren(text, newButton(yes, () => this.#asking?.(true)), refuse);
            this.#question.hidden = false;
            refuse.focus();
        });
    }
}
