// Files that a player gives the page, with a program that finds of each what the test wants.
import { File } from "node:buffer";  // no global in the node of Debian 12
import assert from "node:assert/strict";
import { beforeEach, test } from "node:test";
import { IncomingFiles } from "../../ui/web/page/incoming_files.mjs";

const Bytes = (...bytes) => Uint8Array.from(bytes);
const Findings = ["sound", "damaged", "too long", "name refused"];
let games, written, keeping, questions, answers;

const savedGames = {
    claimedName: (file) => file.replace(/\.tvx$/i, ""),
    canName: (name) => name.length < 100,
    bytes: (name) => games.get(name),
    put(name, bytes) {
        games.set(name, bytes);
        return keeping();
    },
};

// The program reads from a file's first byte what to find, from the others the name.
function engine() {
    const files = new Map();
    const desktop = { inspection: null };
    return {
        desktop,
        FS: {
            writeFile: (name, bytes) => { files.set(name, bytes); written = bytes.length; },
            unlink: (name) => { files.delete(name); },
        },
        _InspectIncoming() {
            const [finding, ...name] = files.get("/incoming");
            desktop.inspection = { finding: Findings[finding], name: String.fromCharCode(...name.slice(0, 200)) };
        },
    };
}

function newFile(name, finding, inside = "hra", more = []) {
    return new File([Bytes(finding, ...[...inside].map((letter) => letter.charCodeAt(0)), ...more)], name);
}

function take(...files) {
    const incoming = new IncomingFiles(engine(), savedGames, async (...question) => {
        questions.push(question);
        return answers.shift();
    });
    return Promise.all(files.map((file) => incoming.take(file)));
}

beforeEach(() => {
    games = new Map();
    keeping = async () => true;
    questions = [];
    answers = [];
});

test("a sound file is added under the name inside it, without a question", async () => {
    assert.deepEqual(await take(newFile("hra.tvx", 0)), ["Pozice „hra“ je přidaná."]);
    assert.deepEqual([...games.keys()], ["hra"]);
    assert.deepEqual(await take(newFile("hra.TVX", 0)), ["Pozice „hra“ už tu je, a úplně stejná."]);
    assert.deepEqual(questions, []);
});

test("what cannot be loaded is named and stays out", async () => {
    const told = await take(newFile("a.TVX", 1), newFile("b.TVX", 2), newFile("c.TVX", 3, "a/b"), newFile(`${"d".repeat(100)}.TVX`, 0, "d".repeat(100)));
    for (const [index, reason] of [/„a.TVX“ není uložená pozice/, /„b.TVX“ .*příliš dlouhý/, /„a\/b“ a takový název/, /příliš dlouhý/].entries()) {
        assert.match(told[index], reason);
    }
    assert.equal(games.size, 0);
    assert.deepEqual(questions, []);
});

test("a renamed file and one that would overwrite are asked about, with words for what will happen", async () => {
    games.set("hra", Bytes(9));
    answers = [false, true, false, true];
    assert.deepEqual(await take(newFile("hra.TVX", 0)), ["Soubor „hra.TVX“ zůstal stranou."]);
    assert.deepEqual(games.get("hra"), Bytes(9));
    assert.deepEqual(await take(newFile("hra.TVX", 0)), ["Pozice „hra“ je přidaná."]);
    assert.notDeepEqual(games.get("hra"), Bytes(9));
    assert.deepEqual(await take(newFile("jiná.TVX", 0, "nová")), ["Soubor „jiná.TVX“ zůstal stranou."]);
    assert.deepEqual(await take(newFile("jiná.TVX", 0, "nova")), ["Pozice „nova“ je přidaná."]);
    assert.deepEqual(questions.map(([, ...words]) => words.join()), ["Přepsat,Ponechat", "Přepsat,Ponechat", "Přidat,Nepřidávat", "Přidat,Nepřidávat"]);
    assert.match(questions[0][0], /^Pozice „hra“ už tu je/);
    assert.match(questions[3][0], /přejmenoval.*uvnitř jmenuje „nova“/);
});

test("a name that a system spells in parts is the same name", async () => {
    const named = new File([Bytes(0, 0xE9)], "e\u0301.tvx");
    assert.deepEqual(await take(named), ["Pozice „é“ je přidaná."]);
    assert.deepEqual(questions, []);
});

test("a browser that does not keep it is told of", async () => {
    keeping = async () => { throw new Error("full"); };
    assert.match((await take(newFile("hra.TVX", 0)))[0], /jen do otevřené stránky/);
    keeping = async () => false;
    assert.match((await take(newFile("b.TVX", 0, "b")))[0], /jen do otevřené stránky/);
});

test("of a huge file only the beginning is read, and one that cannot be read is named", async () => {
    await take(new File([new Uint8Array(5 << 20)], "velký.TVX"));
    assert.equal(written, 1 << 22);
    const lost = { name: "pryč.TVX", slice: () => ({ arrayBuffer: async () => { throw new Error("gone"); } }) };
    assert.deepEqual(await take(lost), ["Soubor „pryč.TVX“ se nepodařilo přečíst."]);
});
