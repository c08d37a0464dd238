// Where the site's files come from: the folder that this script is in.
import { Trouble } from "./trouble.mjs";

function addressOf(name) {
    return new URL(name, import.meta.url).href;
}

function trouble(reason, name, cause) {
    return new Trouble(reason, { address: addressOf(name), cause });
}

export function damagedFile(name, cause) {
    return trouble("damaged", name, cause);
}

async function fetchFile(name) {
    const response = await fetch(addressOf(name)).catch((error) => { throw trouble("unreachable", name, error); });
    if (!response.ok) throw trouble("missing", name, `${response.status} ${response.statusText}`);
    return response;
}

async function readAll(response, name) {
    return response.arrayBuffer().catch((error) => { throw trouble("unreachable", name, error); });
}

export async function fetchBytes(name) {
    return new Uint8Array(await readAll(await fetchFile(name), name));
}

// Compiles while it arrives, where the server names the right type.
export async function fetchProgram(name) {
    const response = await fetchFile(name);
    const streams = response.headers.get("content-type") === "application/wasm";
    const compiled = streams ? WebAssembly.compileStreaming(response) : WebAssembly.compile(await readAll(response, name));
    // Browsers have many errors for a program that is not one, and these for a network that went.
    return compiled.catch((error) => {
        throw error instanceof TypeError || error instanceof DOMException ? trouble("unreachable", name, error) : damagedFile(name, error);
    });
}

// An address at which the picture stays: a server on which a newer version lies has this one's pictures no more.
export async function fetchPicture(name) {
    const response = await fetchFile(`pics/${name}.webp`);
    return URL.createObjectURL(await response.blob());
}

// From the next visit on the page starts without a network, where the browser allows that.
export function keepForOffline() {
    navigator.serviceWorker?.register("worker.js").catch((error) => console.warn(error));
}
