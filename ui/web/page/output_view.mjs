// A box of many lines that is only read. Its lines stand in chunks, so that new text makes the browser lay out the last chunk alone.
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
    #follows = false;  // whether the newest words are kept in sight: until the player scrolls away from them
    #shownFrom = 0;  // where they were last scrolled to

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
        // The last words stay in sight when a phone is turned, or when its keyboard takes a part of the page.
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

    // Of all that stands there, the last paragraph alone is news.
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

    // Every line is as high as the probe, which has one.
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
