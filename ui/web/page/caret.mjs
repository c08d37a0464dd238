// The caret of a line. It comes and goes by a timer that sets one style. An animation of the style, however few steps it has, makes Chromium
// prepare a frame every time that the screen is refreshed, which takes three times as much of the processor.
const HalfPeriod = 530;  // milliseconds

const stillness = matchMedia("(prefers-reduced-motion: reduce)");

export class Caret {
    element = document.createElement("span");
    #hasFocus = false;  // the line, in a window that has it too: with the window's focus the line's comes and goes
    #timer = 0;

    constructor(input) {
        this.element.className = "caret";
        for (const type of ["focus", "blur"]) {
            input.addEventListener(type, () => {
                this.#hasFocus = type === "focus";
                this.show();
            });
        }
        document.addEventListener("visibilitychange", () => this.show());
    }

    // Where the caret has moved the player looks for it, so from now on it is in sight for the first half of a period.
    show() {
        clearInterval(this.#timer);
        const { style } = this.element;
        style.opacity = 1;
        if (!this.#hasFocus || document.hidden || stillness.matches) return;
        this.#timer = setInterval(() => { style.opacity = 1 - style.opacity; }, HalfPeriod);
    }
}
