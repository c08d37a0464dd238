// A box of many lines that is only read. New text is set at its end; what stands before it is not laid out again.
import { EventKind } from "./event_queue.mjs";

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
    #atEnd = false;

    constructor(layout, place, page) {
        this.element = newElement("div", "output");
        this.element.tabIndex = 0;
        this.element.setAttribute("role", "log");
        this.element.setAttribute("aria-live", "off");
        this.element.setAttribute("aria-label", layout.spoken);
        this.#probe.textContent = "1";
        this.#probe.setAttribute("aria-hidden", "true");
        this.element.append(this.#text, this.#probe);
        this.element.addEventListener("focusin", () => page.events.post(EventKind.Focus, place));
        this.element.addEventListener("click", () => page.takeFocus());
        // An on-screen keyboard must not cover the last words.
        this.element.addEventListener("scroll", () => {
            const { scrollTop, clientHeight, scrollHeight } = this.element;
            this.#atEnd = scrollTop + clientHeight >= scrollHeight - 2;
        });
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

    show(visible, atEnd) {
        this.element.classList.toggle("invisible", !visible);
        this.#atEnd = atEnd;
        this.#follow();
    }

    // To the end; where the style asks for it, only so far that the news are read from their beginning.
    #follow() {
        if (!this.#atEnd) return;
        const fromBeginning = getComputedStyle(this.element).getPropertyValue("--news").trim() === "from-beginning";
        this.element.scrollTop = fromBeginning && this.#newest ? this.#newest.offsetTop : this.element.scrollHeight;
    }

    // All lines are equally high.
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
