// The folder of saved games over a file system in memory, as the program uses it.
import assert from "node:assert/strict";
import { beforeEach, test } from "node:test";
import { SavesFolder, canNameFile } from "../../ui/web/page/saves_folder.mjs";

const Path = "/saves";
const Facts = { errorNumbers: { EINVAL: 1, EIO: 2, ENAMETOOLONG: 3, ENOSPC: 4, ETIMEDOUT: 5 }, draftPrefix: ".draft-", extension: ".TVX" };
const Bytes = (...bytes) => Uint8Array.from(bytes);
let files, node, hashed, folder;

// As much of emscripten's as the folder asks for.
class ErrnoError extends Error {
    constructor(errno) {
        super(`error ${errno}`);
        this.errno = errno;
    }
}

beforeEach(() => {
    files = new Map();
    hashed = new Set();
    node = {
        node_ops: { lookup: "as it was", rename: (file, where, name) => { where.contents[name] = file; } },
        stream_ops: { read: "as it was" },
    };
    const fileSystem = {
        ErrnoError,
        lookupPath: (path) => { assert.equal(path, Path); return { node }; },
        hashRemoveNode: (removed) => { hashed.delete(removed); },
        readdir: () => [".", "..", ...files.keys()],
        readFile: (path) => files.get(path.slice(Path.length + 1)),
        writeFile: (path, bytes) => { files.set(path.slice(Path.length + 1), bytes); },
        unlink: (path) => { files.delete(path.slice(Path.length + 1)); },
    };
    folder = new SavesFolder(fileSystem, Path, Facts);
});

test("files are there by their names, drafts are not", () => {
    folder.write("a.TVX", Bytes(1));
    files.set(".draft-1.tmp", Bytes(2));
    assert.deepEqual(folder.names(), ["a.TVX"]);
    assert.deepEqual(folder.read("a.TVX"), Bytes(1));
    assert.equal(folder.read(".draft-1.tmp"), undefined);
    folder.remove("a.TVX");
    assert.deepEqual(folder.names(), []);
    assert.equal(folder.read("a.TVX"), undefined);
});

test("the program hears whether its files are kept, and why not", async () => {
    let keep;
    folder.keepBy(() => keep());
    const failed = (name) => async () => { throw new DOMException("as the test wants", name); };
    for (const [how, errno] of [
        [async () => true, 0],
        [async () => false, Facts.errorNumbers.EINVAL],
        [failed("QuotaExceededError"), Facts.errorNumbers.ENOSPC],
        [failed("TimeoutError"), Facts.errorNumbers.ETIMEDOUT],
        [failed("AbortError"), Facts.errorNumbers.EIO],
        [() => Promise.reject(null), Facts.errorNumbers.EIO],
    ]) {
        keep = how;
        assert.equal(await node.stream_ops.fsync(), errno);
    }
    assert.equal(node.stream_ops.read, "as it was");
    assert.equal(node.node_ops.lookup, "as it was");
});

test("a replaced file is forgotten, and a name as long as a disk takes is the longest", () => {
    folder.keepBy(async () => true);
    const [old, draft, other] = [{}, {}, {}];
    for (const each of [old, draft, other]) hashed.add(each);
    const where = { contents: { "a.TVX": old, "b.TVX": other } };
    node.node_ops.rename(draft, where, "a.TVX");
    assert.equal(where.contents["a.TVX"], draft);
    assert.deepEqual([...hashed], [draft, other]);
    const longest = "ž".repeat(125) + "a.TVX";
    node.node_ops.rename(draft, where, longest);
    assert.equal(where.contents[longest], draft);
    assert.throws(() => node.node_ops.rename(draft, where, `a${longest}`), { errno: Facts.errorNumbers.ENAMETOOLONG });
    assert.deepEqual([canNameFile(longest), canNameFile(`a${longest}`)], [true, false]);
});
