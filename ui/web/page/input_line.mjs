// A box of one line. The browser does the editing; the program hears of every key first and of every edit after it, and its answer,
// in which foreign characters are "?" and line breaks are gone, is shown at once. Some keyboards send a letter and its accent as two
// characters; they are joined, because the program knows the joined ones alone.
import { Caret } from "./caret.mjs";
import { EventKind } from "./event_queue.mjs";
import { newEnglish, newUnseen } from "./spoken_words.mjs";

export class InputLine {
    #desktop;
    #place;
    #input = document.createElement("input");
    #beforeCaret = document.createTextNode("");
    #caret = new Caret(this.#input);
    #behindCaret = document.createTextNode("");
    #ruler = document.createElement("div");
    #composing = false;
    #keyTold = false;  // whether a key came before the edit that it makes
    #wordTime = -Infinity;  // when the last whole word came
    #blankAdded = false;  // whether the line ends with a blank that the keyboard added
    #shown = { text: "", caret: 0 };
    onEmpty = () => {};  // the program has emptied it

    constructor(layout, place, desktop) {
        this.#desktop = desktop;
        this.#place = place;
        this.element = document.createElement("form");  // because some keyboards report their Send key by nothing but its submission
        this.element.className = "line";
        Object.assign(this.#input, { type: "text", readOnly: layout.readOnly, autocomplete: "off", spellcheck: false, enterKeyHint: "send" });
        this.#input.inputMode = layout.readOnly ? "none" : layout.digits ? "numeric" : "text";
        this.#input.setAttribute("autocapitalize", "off");
        this.#input.setAttribute("autocorrect", "off");
        this.#input.setAttribute("aria-label", layout.spoken);
        this.element.append(this.#input, this.#newRuler());
        if (layout.touch.caption !== "") this.element.append(this.#newTouchKey(layout.touch));
        this.#listen();
    }

    // Shown where the pointer is a finger.
    #newTouchKey({ caption, text, key, spoken }) {
        const button = Object.assign(document.createElement("button"), { type: "button", className: "touch-key" });
        const seen = newEnglish(caption);
        seen.setAttribute("aria-hidden", "true");
        const heard = newUnseen("");
        heard.append(...this.#desktop.english.mark(spoken));
        button.append(seen, heard);
        button.addEventListener("mousedown", (event) => event.preventDefault());  // the focus stays where it is
        button.addEventListener("click", () => {
            if (text !== "") this.#desktop.events.post(EventKind.Edit, this.#place, { before: text });
            this.#announce(key);
        });
        return button;
    }

    get isReadOnly() {
        return this.#input.readOnly;
    }

    get text() {
        return this.#shown.text;
    }

    // The browser's caret cannot be given a width and a height, so this one stands in an invisible copy of the text.
    #newRuler() {
        this.#ruler.append(this.#beforeCaret, this.#caret.element, this.#behindCaret);
        const frame = document.createElement("div");
        frame.className = "ruler";
        frame.setAttribute("aria-hidden", "true");
        frame.append(this.#ruler);
        return frame;
    }

    #listen() {
        this.element.addEventListener("submit", (event) => {
            event.preventDefault();
            this.#announce(13);
        });
        this.#input.addEventListener("focusin", () => this.#desktop.events.post(EventKind.Focus, this.#place));
        this.#input.addEventListener("beforeinput", (event) => this.#beforeInput(event));
        this.#input.addEventListener("input", () => this.#report());
        this.#input.addEventListener("scroll", () => this.#placeCaret());
        this.#input.addEventListener("compositionstart", () => { this.#composing = true; });
        this.#input.addEventListener("compositionend", (event) => {
            this.#composing = false;
            this.#wordTime = event.timeStamp;
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
        this.#desktop.keySwallowed = false;
        this.#desktop.events.post(EventKind.Key, this.#place, { number: character });
    }

    // If a key event came before, the program has already answered that key. The keyboards of phones send none, so what they type is
    // announced as a key here.
    #beforeInput(event) {
        this.#noteAddedBlank(event);
        if (!event.inputType.startsWith("insert") || event.inputType === "insertFromPaste") return;
        if (!this.#keyTold && event.data) this.#announce([...event.data].at(-1).codePointAt(0));
        else if (this.#desktop.keySwallowed && event.cancelable) event.preventDefault();
        this.#keyTold = false;
    }

    // A keyboard that completes a word adds a blank for the next one, in the same insertion or right after it.
    #noteAddedBlank({ inputType, data, timeStamp }) {
        const completes = inputType.startsWith("insert") && data?.length > 1;
        const follows = timeStamp - this.#wordTime < 50;  // milliseconds; no finger is as quick
        this.#blankAdded = inputType !== "insertFromPaste" && Boolean(data?.endsWith(" ")) && (completes || follows);
        if (completes) this.#wordTime = timeStamp;
    }

    // The added blank is not the player's: until he goes on typing behind it, the program does not hear of it.
    #report() {
        const { value, selectionStart } = this.#input;
        const endOfHis = this.#blankAdded && selectionStart === value.length ? -1 : undefined;
        const before = value.slice(0, selectionStart).slice(0, endOfHis).normalize();
        const after = value.slice(selectionStart).normalize();
        this.#desktop.events.post(EventKind.Edit, this.#place, { before, after });
    }

    // A text that is already shown is not set again, because that would undo the player's selection. Text that his input method still
    // composes is not touched by the answer to an edit, because that would end the composition.
    show(text, caret) {
        if (text === "" && this.#shown.text !== "") this.onEmpty();
        this.#shown = { text, caret };
        if (this.#composing && this.#desktop.events.current.kind === EventKind.Edit) return;
        this.#composing = false;
        if (this.#blankAdded && this.#input.value === `${text} `) return this.#placeCaret();
        const differs = this.#input.value !== text;
        if (differs) this.#input.value = text;
        if (differs || this.#input.selectionStart !== caret) this.#input.setSelectionRange(caret, caret);
        this.#placeCaret();
    }

    #placeCaret() {
        this.#beforeCaret.data = this.#input.value.slice(0, this.#input.selectionEnd);
        this.#behindCaret.data = this.#input.value.slice(this.#input.selectionEnd);
        this.#ruler.style.marginLeft = `${-this.#input.scrollLeft}px`;
        this.#caret.show();
    }

    focus() {
        this.#input.focus({ preventScroll: true });
    }

    keyDown(event, character) {
        if (document.activeElement.matches(".touch-key") && ["Enter", " "].includes(event.key)) return true;  // the browser presses it
        if (character === 0) return false;
        if (!this.#input.readOnly && document.activeElement !== this.#input) this.focus();
        if (this.#input.readOnly || character < 32 && event.key !== "Backspace") event.preventDefault();
        this.#announce(character);
        return true;
    }
}
