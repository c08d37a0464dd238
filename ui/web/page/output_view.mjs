// A read-only box of many lines. They stand in chunks, so that the browser lays out only the last chunk anew when text is added.
import { EventKind } from "./event_queue.mjs";
import { markHidden } from "./hidden_parts.mjs";

const LinesInChunk = 64;  // a chunk that is full is never touched again

function newElement(name, className) {
    const element = document.createElement(name);
    element.className = className;
    return element;
}

export class OutputView {
    #text = newElement("div", "text");
    #probe = newElement("div", "probe");
    #line = null;
    #news = "";
    #newest = null;  // the line where the news began
    #follows = false;  // whether the box keeps its newest words in sight, which it does until the player scrolls away from them
    #shownFrom = 0;  // to where the box was last scrolled to show them

    constructor(layout, place, desktop) {
        this.element = newElement("div", "output");
        this.element.tabIndex = 0;
        this.element.setAttribute("role", "log");
        this.element.setAttribute("aria-live", "off");
        this.element.setAttribute("aria-label", layout.spoken);
        this.#probe.textContent = "1";
        this.#probe.setAttribute("aria-hidden", "true");
        this.element.append(this.#text, this.#probe);
        this.element.addEventListener("focusin", () => desktop.events.post(EventKind.Focus, place));
        this.element.addEventListener("click", () => desktop.takeFocus());
        this.element.addEventListener("scroll", () => {
            const { scrollTop, clientHeight, scrollHeight } = this.element;
            this.#follows = Math.abs(scrollTop - this.#shownFrom) < 2 || scrollTop + clientHeight >= scrollHeight - 2;
            markHidden(this.element);
        });
        // The box becomes smaller when a phone is turned or shows its keyboard; its last words must stay in sight.
        new ResizeObserver(() => this.#follow()).observe(this.element);
        this.clear();
    }

    clear() {
        this.#news = "";
        this.#text.replaceChildren(newElement("div", "chunk"));
        this.#startLine();
    }

    append(text) {
        if (this.#news === "") this.#newest = null;
        this.#news += text;
        for (const [index, line] of text.split("\r\n").entries()) {
            if (index > 0) this.#startLine();
            this.#line.append(line);
            if (line !== "") this.#newest ??= this.#line;
        }
    }

    #startLine() {
        if (this.#text.lastChild.childElementCount === LinesInChunk) this.#text.append(newElement("div", "chunk"));
        this.#line = newElement("p", "");
        this.#text.lastChild.append(this.#line);
    }

    takeNews() {
        const news = this.element.classList.contains("invisible") ? "" : this.#news;
        if (news !== "") this.#news = "";
        return news;
    }

    // Counts only the last paragraph as news, because the player has read the others before the game was resumed.
    keepLastReply() {
        const lines = [...this.#text.querySelectorAll("p")];
        const first = lines.findLastIndex((line) => line.textContent === "") + 1;
        this.#news = lines.slice(first).map((line) => line.textContent).join("\r\n");
        this.#newest = lines[first] ?? null;
        this.#follow();
    }

    show(visible, atEnd) {
        this.element.classList.toggle("invisible", !visible);
        this.#follows = atEnd;
        this.#follow();
        markHidden(this.element);
    }

    // Scrolls to the end. Where the style asks for it, scrolls no further than to the beginning of the news, because in a small box their
    // beginning would be out of sight.
    #follow() {
        if (!this.#follows) return;
        const fromBeginning = getComputedStyle(this.element).getPropertyValue("--news").trim() === "from-beginning";
        this.element.scrollTop = fromBeginning && this.#newest ? this.#newest.offsetTop : this.element.scrollHeight;
        this.#shownFrom = this.element.scrollTop;
    }

    // Divides the height of the text by that of the probe, which holds a single line.
    countLines() {
        const line = this.#probe.getBoundingClientRect().height;
        return line > 0 ? Math.round(this.#text.getBoundingClientRect().height / line) : 1;
    }

    focus() {
        this.element.focus({ preventScroll: true });
    }

    keyDown() {
        return false;
    }
}
