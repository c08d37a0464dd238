// The page's own line, outside of the game's windows. A standing sentence, one about each topic, stays for as long as it is true; the passing
// one goes with the player's next command.

function newSentence(id) {
    return Object.assign(document.createElement("p"), { id });
}

export class NoticeLine {
    element = document.createElement("div");
    #passing = newSentence("passing-notice");
    #standing = new Map();  // by topic the sentence with its buttons
    #announcer;
    onFocusLost = () => {};  // the button in which the player stood is gone

    constructor(announcer) {
        this.#announcer = announcer;
        this.element.id = "notice-line";
        this.element.append(this.#passing);
    }

    say(sentence) {
        this.#passing.textContent = sentence;
        this.#announcer.say([sentence]);
    }

    // Takes the passing sentence away.
    pass() {
        if (this.#passing.textContent !== "") this.#passing.textContent = "";
    }

    // An empty sentence takes the last one about its topic away; the buttons stand behind it.
    stand(topic, sentence, ...buttons) {
        if (!this.#standing.has(topic)) {
            this.#standing.set(topic, [newSentence(`${topic}-notice`)]);
            this.#passing.before(...this.#standing.get(topic));
        }
        const [shown, ...former] = this.#standing.get(topic);
        if (shown.textContent === sentence) return;
        const hadFocus = former.includes(document.activeElement);
        shown.textContent = sentence;
        this.#announcer.say([sentence, ...buttons.map(({ textContent }) => `Tlačítko ${textContent}.`)]);
        former.forEach((button) => button.remove());
        if (hadFocus) this.onFocusLost();
        shown.after(...buttons);
        this.#standing.set(topic, [shown, ...buttons]);
        this.element.classList.toggle("telling", [...this.#standing.values()].some(([each]) => each.textContent !== ""));
    }
}
