// A window of the game with its controls and picture.
import { EntryList } from "./entry_list.mjs";
import { InputLine } from "./input_line.mjs";
import { LabelArea } from "./label_area.mjs";
import { OutputView } from "./output_view.mjs";
import { newEnglish } from "./spoken_words.mjs";

const Kinds = { OutputView, InputLine, EntryList, LabelArea };

// Positions and sizes are in twips, as in the layouts; style.css makes lengths of them.
function dress(element, layout) {
    for (const name of ["left", "top", "width", "height", "font"]) {
        if (name in layout) element.style.setProperty(`--${name}`, layout[name]);
    }
    element.style.setProperty("--text", layout.text ?? "inherit");
    element.style.setProperty("--background", layout.background);
    element.classList.toggle("bold", layout.bold === true);
    element.classList.toggle("italic", layout.italic === true);
}

export class FormWidget {
    #desktop;
    #picture = "";
    #task = document.createTextNode("");  // what a panel was opened for
    #pictured;
    // Fulfilled when its picture has come.
    pictured = new Promise((pictured) => { this.#pictured = pictured; });

    constructor(layout, form, desktop) {
        this.#desktop = desktop;
        this.element = document.createElement("section");
        this.element.id = layout.name;
        this.element.className = layout.backdrop ? "form backdrop" : layout.framed ? "form main" : "form panel";
        this.element.hidden = true;
        this.isPanel = !layout.backdrop && !layout.framed;
        if (layout.framed) this.element.setAttribute("aria-label", layout.caption);
        if (this.isPanel) this.#giveTitle(layout.caption);
        dress(this.element, layout);
        this.controls = layout.controls.map((each, control) => new Kinds[each.kind](each, { form, control }, desktop));
        this.controls.forEach((control, index) => {
            control.element.id = `${layout.name}.${layout.controls[index].name}`;
            control.element.classList.add("control");
            dress(control.element, layout.controls[index]);
            if (control.takesClicks) this.controls[index - 1].captionButton(control);
        });
        // A new sentence begins at the top of the lists.
        for (const line of this.controls.filter((control) => control.isReadOnly)) {
            line.onEmpty = () => this.controls.forEach((control) => control.rewind?.());
        }
        this.element.append(...this.controls.map((control) => control.element));
    }

    // For a screen reader, which reads it when the panel opens. The windows behind a panel are inert; it has no aria-modal, because screen
    // readers would then leave out the announcer, which lies outside of it.
    #giveTitle(caption) {
        const title = Object.assign(document.createElement("h2"), { id: `${this.element.id}-title`, className: "unseen" });
        title.append(newEnglish(caption), this.#task);
        this.element.setAttribute("role", "dialog");
        this.element.setAttribute("aria-labelledby", title.id);
        this.element.append(title);
    }

    // The sentence that is being built in it.
    get sentence() {
        return this.controls.find((control) => control.isReadOnly).text;
    }

    get lamp() {
        return this.controls.find((control) => control.lamp).lamp;
    }

    // What its boxes and labels have to say since they were last asked.
    takeNews() {
        return this.element.hidden ? [] : this.controls.map((control) => control.takeNews?.() ?? "");
    }

    // Of what a resumed game shows, the player has read all but perhaps the last reply.
    keepLastReply() {
        this.controls.forEach((control) => control.keepLastReply?.());
    }

    // The game has ended: there is nothing left to do but to read.
    retire() {
        this.controls.forEach((control) => { control.element.inert = !(control instanceof OutputView); });
    }

    // `sentence` is the one that is being carried out. It tells a panel for loading from one for saving.
    show(visible, reachable, picture, sentence) {
        if (visible && this.element.hidden) this.#task.data = `: ${sentence}`;
        this.element.hidden = !visible;
        this.element.inert = !reachable;
        if (this.#picture === picture) return;
        this.#picture = picture;
        this.#showPicture(picture);
    }

    // A window whose picture does not come is played without it.
    async #showPicture(picture) {
        try {
            const address = await this.#desktop.files.fetchPicture(picture);
            await Object.assign(new Image(), { src: address }).decode();
            if (this.#picture !== picture) return;
            this.element.style.setProperty("--picture", `url("${address}")`);
            this.#pictured();
        } catch (error) {
            console.warn(error);
        }
    }
}
