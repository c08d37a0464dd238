// A box of one line. The browser does the editing; the program hears of every key first and of every edit after it, and its answer,
// in which foreign characters are "?" and line breaks are gone, is shown at once. Accents typed apart are put together.
import { EventKind } from "./event_queue.mjs";

export class InputLine {
    #page;
    #place;
    #input = document.createElement("input");
    #beforeCaret = document.createTextNode("");
    #behindCaret = document.createTextNode("");
    #ruler = document.createElement("div");
    #composing = false;
    #keyTold = false;  // whether a key came before the edit that it makes
    #shown = { text: "", caret: 0 };

    constructor(layout, place, page) {
        this.#page = page;
        this.#place = place;
        this.element = document.createElement("div");
        this.element.className = "line";
        Object.assign(this.#input, { type: "text", readOnly: layout.readOnly, autocomplete: "off", spellcheck: false, enterKeyHint: "send" });
        if (layout.readOnly) this.#input.inputMode = "none";
        this.#input.setAttribute("autocapitalize", "off");
        this.#input.setAttribute("autocorrect", "off");
        this.#input.setAttribute("aria-label", layout.spoken);
        this.element.append(this.#input, this.#newCaret());
        this.#listen();
    }

    // The browser's own caret has no shape. This one stands in an unseen copy of the text.
    #newCaret() {
        const caret = document.createElement("span");
        caret.className = "caret";
        this.#ruler.append(this.#beforeCaret, caret, this.#behindCaret);
        const frame = document.createElement("div");
        frame.className = "ruler";
        frame.setAttribute("aria-hidden", "true");
        frame.append(this.#ruler);
        return frame;
    }

    #listen() {
        this.#input.addEventListener("focusin", () => this.#page.events.post(EventKind.Focus, this.#place));
        this.#input.addEventListener("beforeinput", (event) => this.#beforeInput(event));
        this.#input.addEventListener("input", () => this.#report());
        this.#input.addEventListener("scroll", () => this.#placeCaret());
        this.#input.addEventListener("compositionstart", () => { this.#composing = true; });
        this.#input.addEventListener("compositionend", () => {
            this.#composing = false;
            this.#report();
        });
        document.addEventListener("selectionchange", () => {
            if (document.activeElement !== this.#input) return;
            if (!this.#input.readOnly && this.#input.selectionStart !== this.#shown.caret) this.#report();
            this.#placeCaret();
        });
    }

    #announce(character) {
        this.#keyTold = character >= 32;
        this.#page.keySwallowed = false;
        this.#page.events.post(EventKind.Key, this.#place, { number: character });
    }

    // By now the program has answered to the key. The keyboards of phones tell no keys, only what they type.
    #beforeInput(event) {
        if (event.inputType === "insertLineBreak") {
            event.preventDefault();
            return this.#announce(13);
        }
        if (!event.inputType.startsWith("insert") || event.inputType === "insertFromPaste") return;
        if (!this.#keyTold && event.data) this.#announce([...event.data].at(-1).codePointAt(0));
        else if (this.#page.keySwallowed && event.cancelable) event.preventDefault();
        this.#keyTold = false;
    }

    #report() {
        const { value, selectionStart } = this.#input;
        const before = value.slice(0, selectionStart).normalize();
        const after = value.slice(selectionStart).normalize();
        this.#page.events.post(EventKind.Edit, this.#place, { before, after });
    }

    // What already agrees is left alone: setting it would undo the player's selection. So is what he still composes, until something else
    // than an edit changes the line.
    show(text, caret) {
        this.#shown = { text, caret };
        if (this.#composing && this.#page.events.current.kind === EventKind.Edit) return;
        this.#composing = false;
        const differs = this.#input.value !== text;
        if (differs) this.#input.value = text;
        if (differs || this.#input.selectionStart !== caret) this.#input.setSelectionRange(caret, caret);
        this.#placeCaret();
    }

    #placeCaret() {
        this.#beforeCaret.data = this.#input.value.slice(0, this.#input.selectionEnd);
        this.#behindCaret.data = this.#input.value.slice(this.#input.selectionEnd);
        this.#ruler.style.marginLeft = `${-this.#input.scrollLeft}px`;
    }

    focus() {
        this.#input.focus({ preventScroll: true });
    }

    keyDown(event, character) {
        if (character === 0) return false;
        if (!this.#input.readOnly && document.activeElement !== this.#input) this.focus();
        if (this.#input.readOnly || character < 32 && event.key !== "Backspace") event.preventDefault();
        this.#announce(character);
        return true;
    }
}
