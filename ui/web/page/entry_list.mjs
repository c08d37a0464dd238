// A list box. In the desktop's layout it shows whole rows of one height; the style may set it in columns. A list whose focus the program
// keeps follows the arrows at once, as on every desktop; where the program passes the focus on, arrows and letters move a mark and Enter
// clicks the marked entry.
import { EventKind } from "./event_queue.mjs";
import { markHidden } from "./hidden_parts.mjs";
import { TypeAhead } from "./type_ahead.mjs";

const RowHeight = 16;
const TwipsPerPixel = 15;
const Border = 2;

export class EntryList {
    #desktop;
    #place;
    #rows = document.createElement("div");
    #entries = [];
    #selected = -1;
    #marked = 0;
    #typeAhead = new TypeAhead();
    #spoken;
    #nothing;  // the entry that stands for none

    constructor(layout, place, desktop) {
        this.#desktop = desktop;
        this.#place = place;
        this.element = document.createElement("div");
        this.element.className = "list";
        this.element.style.setProperty("--rows", Math.floor((layout.height / TwipsPerPixel - Border) / RowHeight));
        this.#rows.className = "rows";
        this.#rows.tabIndex = 0;
        this.#rows.setAttribute("role", "listbox");
        this.#spoken = layout.spoken;
        this.#nothing = layout.nothing;
        this.#nameList();
        this.element.append(this.#rows);
        this.#rows.addEventListener("scroll", () => markHidden(this.#rows));
        new ResizeObserver(() => markHidden(this.#rows)).observe(this.#rows);
        this.#rows.addEventListener("focusin", () => {
            this.#typeAhead.stop();
            desktop.events.post(EventKind.Focus, place);
        });
        // A click leaves the focus where it is, because the program decides who gets it.
        this.#rows.addEventListener("mousedown", (event) => {
            if (event.target !== this.#rows) event.preventDefault();
        });
        this.#rows.addEventListener("click", (event) => this.#click([...this.#rows.children].indexOf(event.target)));
    }

    #click(index) {
        if (index >= 0) this.#desktop.events.post(EventKind.ClickEntry, this.#place, { number: index });
    }

    show(entries, selected) {
        if (entries.length !== this.#entries.length || entries.some((entry, index) => entry !== this.#entries[index])) {
            this.#entries = entries;
            this.#nameList();
            this.#rows.replaceChildren(...entries.map((entry, index) => this.#newRow(entry, index)));
            this.#rows.scrollTop = 0;
            this.#marked = 0;
            markHidden(this.#rows);
        }
        this.#rows.children[this.#selected]?.setAttribute("aria-selected", "false");
        this.#selected = selected;
        this.#rows.children[selected]?.setAttribute("aria-selected", "true");
        this.#mark(selected >= 0 ? selected : this.#marked, selected >= 0);
    }

    // A screen reader says nothing of a list's being empty.
    #nameList() {
        this.#rows.setAttribute("aria-label", this.#entries.length === 0 ? `${this.#spoken}: prázdný seznam` : this.#spoken);
    }

    #newRow(entry, index) {
        const row = document.createElement("div");
        row.id = `row-${this.#place.form}-${this.#place.control}-${index}`;
        row.setAttribute("role", "option");
        row.setAttribute("aria-selected", "false");
        row.textContent = entry;
        if (this.#desktop.english.has(entry)) row.lang = "en";
        if (entry === "") row.setAttribute("aria-label", "bez názvu");
        else if (entry === this.#nothing) row.setAttribute("aria-label", "nic");
        return row;
    }

    #mark(index, reveal) {
        this.#rows.children[this.#marked]?.classList.remove("marked");
        this.#marked = index;
        const row = this.#rows.children[index];
        if (row === undefined) return this.#rows.removeAttribute("aria-activedescendant");
        row.classList.add("marked");
        this.#rows.setAttribute("aria-activedescendant", row.id);
        if (reveal) row.scrollIntoView({ block: "nearest" });
    }

    focus() {
        this.#rows.focus({ preventScroll: true });
    }

    // For the next sentence, where the style asks for it.
    rewind() {
        if (getComputedStyle(this.#rows).getPropertyValue("--next-sentence").trim() === "from-top") this.#rows.scrollTop = 0;
    }

    // How many entries are in sight, whole: those are a page.
    #pageSize() {
        const { top, bottom } = this.#rows.getBoundingClientRect();
        const isWhole = (row) => row.getBoundingClientRect().top > top - 2 && row.getBoundingClientRect().bottom < bottom + 2;
        return Math.max([...this.#rows.children].filter(isWhole).length, 1);
    }

    #rowUnderKey(key, from) {
        const last = this.#entries.length - 1;
        switch (key) {
            case "ArrowUp": return Math.max(from - 1, 0);
            case "ArrowDown": return Math.min(from + 1, last);
            case "PageUp": return Math.max(from - this.#pageSize(), 0);
            case "PageDown": return Math.min(Math.max(from, 0) + this.#pageSize(), last);
            case "Home": return 0;
            case "End": return last;
            default: return -1;
        }
    }

    // Moves the mark to the entry that begins with what is typed, and tells whether the key was meant for that. Right after a word with which
    // nothing begins, Enter and the blank choose nothing, because the mark is not where the player means it to be.
    #markTyped({ key, timeStamp }, character) {
        const goesOn = this.#typeAhead.isTyping(timeStamp);
        const wasLost = goesOn && this.#typeAhead.isLost;
        if (key === "Enter" || key === " " && !goesOn) return wasLost;
        if (character < 32) return false;
        const found = this.#typeAhead.find(this.#entries, this.#marked, key, timeStamp);
        if (found >= 0) this.#mark(found, true);
        else if (key !== " ") this.#desktop.say(`„${this.#typeAhead.typed}“ tu není.`);
        return found >= 0 || key !== " " || wasLost;
    }

    keyDown(event, character) {
        const ownsFocus = this.#desktop.focused === this;
        const row = this.#rowUnderKey(event.key, ownsFocus ? this.#selected : this.#marked);
        const isTyped = !ownsFocus && this.#markTyped(event, character);
        if (row >= 0) {
            if (ownsFocus) this.#click(row);
            else this.#mark(row, true);
        } else if (ownsFocus && character !== 0) {
            this.#desktop.events.post(EventKind.Key, this.#place, { number: character });
        } else if (!isTyped && ["Enter", " "].includes(event.key)) {
            this.#typeAhead.stop();
            this.#click(Math.min(this.#marked, this.#entries.length - 1));
        } else if (!isTyped) {
            return false;
        }
        event.preventDefault();
        return true;
    }
}
