// Gets the game's files in the page that is one file: its elements hold them in base64, pictures as they are and all others packed with gzip.
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

// Does nothing, because the page has all files in itself.
export function keepForOffline() {}
