// Where the files of the page in one file come from: elements of the page, in base64. All but pictures were packed with gzip before.
import { Trouble } from "./trouble.mjs";

export function damagedFile(name, cause) {
    return new Trouble("incomplete", { cause });
}

function contentOf(name) {
    return document.getElementById(`file:${name}`)?.textContent ?? "";
}

export async function fetchBytes(name) {
    try {
        const packed = Uint8Array.from(atob(contentOf(name)), (character) => character.charCodeAt(0));
        const bytes = new Blob([packed]).stream().pipeThrough(new DecompressionStream("gzip"));
        return new Uint8Array(await new Response(bytes).arrayBuffer());
    } catch (error) {
        throw damagedFile(name, error);
    }
}

export async function fetchProgram(name) {
    return WebAssembly.compile(await fetchBytes(name)).catch((error) => { throw damagedFile(name, error); });
}

export async function fetchPicture(name) {
    return `data:image/webp;base64,${contentOf(`pics/${name}.webp`)}`;
}

// It is all there.
export function keepForOffline() {}
