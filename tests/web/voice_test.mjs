// What the page says to those who do not see it, and how a list is searched by typing.
import assert from "node:assert/strict";
import { test } from "node:test";
import { EnglishWords } from "../../ui/web/page/spoken_words.mjs";
import { Move, SentenceVoice } from "../../ui/web/page/sentence_voice.mjs";
import { TypeAhead } from "../../ui/web/page/type_ahead.mjs";

const Lit = "Proceed svítí", Unlit = "Proceed zhaslo";

// A voice that has already told of these sentences.
function voiceBehind(...sentences) {
    const voice = new SentenceVoice();
    voice.tell(Move.Other, "", Unlit, false);
    for (const sentence of sentences) voice.tell(Move.Choice, sentence, Lit, false);
    return voice;
}

test("after each choice the sentence is said as it stands, and the lamp when it has changed", () => {
    const voice = voiceBehind();
    assert.deepEqual(voice.tell(Move.Choice, "Použij", Lit, false), ["Použij.", "Proceed svítí."]);
    assert.deepEqual(voice.tell(Move.Choice, "Použij klíč na ", Lit, false), ["Použij klíč na …"]);
    assert.deepEqual(voice.tell(Move.Other, "Použij klíč na ", Lit, false), []);
    assert.deepEqual(voice.tell(Move.Choice, "Použij klíč na sebe", Lit, false), ["Použij klíč na sebe."]);
    assert.deepEqual(voice.tell(Move.Run, "", Unlit, true), ["Proceed zhaslo."]);
});

test("a choice that the game does not take is not heard as taken", () => {
    assert.deepEqual(voiceBehind("Použij klíč na ").tell(Move.Choice, "Použij klíč na ", Lit, false), ["Beze změny: Použij klíč na …"]);
    assert.deepEqual(voiceBehind().tell(Move.Choice, "", Unlit, false), ["Příkaz je prázdný."]);
});

test("a sentence that is run is never silent, nor one that is dropped or found again", () => {
    assert.deepEqual(voiceBehind("Vezmi").tell(Move.Run, "", Unlit, false), ["Vezmi: nic se nestalo.", "Proceed zhaslo."]);
    assert.deepEqual(voiceBehind().tell(Move.Run, "", Unlit, false), ["Příkaz je prázdný."]);
    assert.deepEqual(voiceBehind("Vezmi").tell(Move.Clearing, "", Lit, false), ["Příkaz je prázdný."]);
    assert.deepEqual(voiceBehind().tell(Move.Other, "Vezmi", Lit, true), ["Vezmi.", "Proceed svítí."]);
});

test("at the title nothing is said of a lamp that nobody has lit", () => {
    assert.deepEqual(new SentenceVoice().tell(Move.Other, "", Lit, false), []);
});

test("English words are told from the Czech ones around them, and from longer ones", () => {
    const english = new EnglishWords();
    assert.deepEqual(english.split("Proceed svítí."), ["Proceed svítí."]);
    for (const word of ["Proceed", "System Panel", "System", "--- OK ---", "×"]) english.add(word);
    assert.deepEqual(english.split("Pokračuj nápisem Proceed."), ["Pokračuj nápisem ", "Proceed", "."]);
    assert.deepEqual(english.split("System Panel"), ["", "System Panel", ""]);
    assert.deepEqual(english.split("--- OK ---"), ["", "--- OK ---", ""]);
    assert.deepEqual(english.split("Systemový × Proceedů"), ["Systemový × Proceedů"]);
});

test("typing finds an entry by its beginning, without regard to case and accents, and goes round", () => {
    const verbs = ["Jdi", "Prozkoumej", "Použij", "Polož", "Otevři", "číselník", "na sever"];
    const type = (text, from, pause = 10) => {
        const typeAhead = new TypeAhead();
        return [...text].map((character, index) => {
            from = Math.max(typeAhead.find(verbs, from, character, 5000 + index * pause), 0);
            return verbs[from];
        });
    };
    assert.deepEqual(type("POL", 0), ["Prozkoumej", "Použij", "Polož"]);
    assert.deepEqual(type("pppp", 0), ["Prozkoumej", "Použij", "Polož", "Prozkoumej"]);
    assert.deepEqual(type("cis", 6), ["číselník", "číselník", "číselník"]);
    assert.deepEqual(type("na s", 0).at(-1), "na sever");
    assert.deepEqual(type("op", 0, 2000), ["Otevři", "Prozkoumej"]);
    const chosen = new TypeAhead();
    chosen.find(verbs, 0, "o", 0);
    chosen.stop();
    assert.equal(verbs[chosen.find(verbs, 4, "j", 10)], "Jdi");
    assert.equal(new TypeAhead().find(verbs, 3, "x", 0), -1);
    assert.equal(new TypeAhead().find([], 0, "x", 0), -1);
});
