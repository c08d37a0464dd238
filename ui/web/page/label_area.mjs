// A label: the caption of a button, which is its lamp as well; the transparent button that lies over such a caption; or a display. A screen
// reader knows caption and button as one: the button, which is called by the word that is seen, and described by the state of the lamp.
import { EventKind } from "./event_queue.mjs";
import { newEnglish, newUnseen } from "./spoken_words.mjs";

export class LabelArea {
    #spoken;
    #english;
    #button = null;  // the one that lies over this caption
    #caption = null;
    #news = "";
    lamp = "";  // what there is to say of it

    constructor(layout, place, desktop) {
        this.takesClicks = layout.takesClicks;
        this.#spoken = layout.spoken;
        this.#english = desktop.english;
        this.element = document.createElement(this.takesClicks ? "button" : "output");
        this.element.className = "label";
        if (!this.takesClicks) return this.element.setAttribute("aria-live", "off");
        this.element.type = "button";
        this.element.addEventListener("mousedown", (event) => event.preventDefault());  // the focus stays where it is
        this.element.addEventListener("click", () => desktop.events.post(EventKind.ClickLabel, place));
    }

    captionButton(button) {
        this.#button = button;
        this.element.lang = "en";
        this.element.setAttribute("aria-hidden", "true");
    }

    // A display says everything that the program writes on it, even the same again.
    show(caption, colour, state, lit) {
        this.element.style.setProperty("--text", colour);
        if (this.takesClicks) return;  // it has no caption of its own
        this.#english.add(caption);
        this.element.classList.toggle("lit", lit);
        this.element.classList.toggle("unlit", state !== "" && !lit);
        if (this.#button) this.#showOnButton(caption, state);
        else this.#showDisplay(caption);
    }

    #showOnButton(caption, state) {
        this.element.textContent = caption;
        this.lamp = `${caption} ${state}`;
        this.#button.name(caption, state);
    }

    name(caption, state) {
        const name = newUnseen("");
        name.append(newEnglish(caption), `: ${this.#spoken}`);
        this.element.replaceChildren(name);
        this.element.setAttribute("aria-description", state);
    }

    #showDisplay(caption) {
        if (this.#caption !== null) this.#news = caption;
        this.#caption = caption;
        this.element.replaceChildren(newUnseen(`${this.#spoken}: `), newEnglish(caption));
    }

    takeNews() {
        const news = this.#news;
        this.#news = "";
        return news;
    }

    focus() {}

    // The browser itself turns Enter and Space on a button into a click, so the program must not hear of these keys.
    keyDown(event) {
        return this.takesClicks && (event.key === "Enter" || event.key === " ");
    }
}
