// The caret of a line. It blinks by a timer that sets one style, because an animation in the style sheet, however few steps it has, makes
// Chromium prepare a frame at every refresh of the screen, which takes three times as much of the processor.
const HalfPeriod = 530;  // milliseconds

const stillness = matchMedia("(prefers-reduced-motion: reduce)");

export class Caret {
    element = document.createElement("span");
    #hasFocus = false;  // whether the line has the focus; a window that loses the focus takes it from its line
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

    // Starts a new period with the caret in sight, because a player looks for a caret that has just moved.
    show() {
        clearInterval(this.#timer);
        const { style } = this.element;
        style.opacity = 1;
        if (!this.#hasFocus || document.hidden || stillness.matches) return;
        this.#timer = setInterval(() => { style.opacity = 1 - style.opacity; }, HalfPeriod);
    }
}
