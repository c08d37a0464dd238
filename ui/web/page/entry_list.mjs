// A list box: rows of one height, only whole ones. A list whose focus the program keeps follows the arrows at once, as on every desktop;
// where the program passes the focus on, arrows move a mark and Enter clicks the marked entry.
import { EventKind } from "./event_queue.mjs";

const RowHeight = 16;
const TwipsPerPixel = 15;
const Border = 2;

export class EntryList {
    #page;
    #place;
    #rows = document.createElement("div");
    #entries = [];
    #selected = -1;
    #marked = 0;
    #wholeRows;

    constructor(layout, place, page) {
        this.#page = page;
        this.#place = place;
        this.#wholeRows = Math.floor((layout.height / TwipsPerPixel - Border) / RowHeight);
        this.element = document.createElement("div");
        this.element.className = "list";
        this.element.style.setProperty("--rows", this.#wholeRows);
        this.#rows.className = "rows";
        this.#rows.tabIndex = 0;
        this.#rows.setAttribute("role", "listbox");
        this.#rows.setAttribute("aria-label", layout.spoken);
        this.element.append(this.#rows);
        this.#rows.addEventListener("focusin", () => page.events.post(EventKind.Focus, place));
        // The pointer leaves the focus to the program.
        this.#rows.addEventListener("mousedown", (event) => {
            if (event.target !== this.#rows) event.preventDefault();
        });
        this.#rows.addEventListener("click", (event) => this.#click([...this.#rows.children].indexOf(event.target)));
    }

    #click(index) {
        if (index >= 0) this.#page.events.post(EventKind.ClickEntry, this.#place, { number: index });
    }

    show(entries, selected) {
        if (entries.length !== this.#entries.length || entries.some((entry, index) => entry !== this.#entries[index])) {
            this.#entries = entries;
            this.#rows.replaceChildren(...entries.map((entry, index) => this.#newRow(entry, index)));
            this.#rows.scrollTop = 0;
            this.#marked = 0;
        }
        this.#rows.children[this.#selected]?.setAttribute("aria-selected", "false");
        this.#selected = selected;
        this.#rows.children[selected]?.setAttribute("aria-selected", "true");
        this.#mark(selected >= 0 ? selected : this.#marked, selected >= 0);
    }

    #newRow(entry, index) {
        const row = document.createElement("div");
        row.id = `row-${this.#place.form}-${this.#place.control}-${index}`;
        row.setAttribute("role", "option");
        row.setAttribute("aria-selected", "false");
        row.textContent = entry;
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

    #rowUnderKey(key, from) {
        const last = this.#entries.length - 1;
        switch (key) {
            case "ArrowUp": return Math.max(from - 1, 0);
            case "ArrowDown": return Math.min(from + 1, last);
            case "PageUp": return Math.max(from - this.#wholeRows, 0);
            case "PageDown": return Math.min(Math.max(from, 0) + this.#wholeRows, last);
            case "Home": return 0;
            case "End": return last;
            default: return -1;
        }
    }

    keyDown(event, character) {
        const ownsFocus = this.#page.focused === this;
        const row = this.#rowUnderKey(event.key, ownsFocus ? this.#selected : this.#marked);
        if (row >= 0) {
            if (ownsFocus) this.#click(row);
            else this.#mark(row, true);
        } else if (ownsFocus && character !== 0) {
            this.#page.events.post(EventKind.Key, this.#place, { number: character });
        } else if (event.key === "Enter" || event.key === " ") {
            this.#click(Math.min(this.#marked, this.#entries.length - 1));
        } else {
            return false;
        }
        event.preventDefault();
        return true;
    }
}
