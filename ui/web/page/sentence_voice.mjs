// What a player who does not look is told of the sentence that he builds and of the lamp beside it: after each choice the sentence as it
// stands, so that a choice which the game does not take is not heard as taken.

export const Move = { Choice: 0, Clearing: 1, Run: 2, Other: 3 };

const Empty = "Příkaz je prázdný.";

// "Použij klíč na " lacks its end.
function asItStands(sentence) {
    return sentence.endsWith(" ") ? `${sentence}…` : `${sentence}.`;
}

export class SentenceVoice {
    #sentence = "";
    #lamp = null;  // at the title there has been no move yet

    // The sentence and the lamp as the move has left them; `answered` tells whether the move brought something else to hear.
    tell(move, sentence, lamp, answered) {
        const said = [this.#tellSentence(move, sentence, answered), this.#lamp !== null && lamp !== this.#lamp ? `${lamp}.` : ""];
        this.#sentence = sentence;
        this.#lamp = lamp;
        return said.filter((each) => each !== "");
    }

    #tellSentence(move, sentence, answered) {
        const before = this.#sentence;
        if (move === Move.Run && !answered) return before === "" ? Empty : `${before.trim()}: nic se nestalo.`;
        if (move === Move.Clearing && sentence === "") return Empty;
        if (move === Move.Choice && sentence === before) return sentence === "" ? Empty : `Beze změny: ${asItStands(sentence)}`;
        return sentence === before || sentence === "" ? "" : asItStands(sentence);
    }
}
