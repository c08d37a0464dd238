// Gets the game's files in the site: fetches them from the folder that this script came from.
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

// Compiles the program while it arrives if the server names its type, because browsers refuse to do so otherwise.
export async function fetchProgram(name) {
    const response = await fetchFile(name);
    const streams = response.headers.get("content-type") === "application/wasm";
    const compiled = streams ? WebAssembly.compileStreaming(response) : WebAssembly.compile(await readAll(response, name));
    // These two errors mean that the network was lost; every other one means that the file is no sound program.
    return compiled.catch((error) => {
        throw error instanceof TypeError || error instanceof DOMException ? trouble("unreachable", name, error) : damagedFile(name, error);
    });
}

// The address of a copy in the page, because a server that has been given a newer version no longer has the pictures of this one.
export async function fetchPicture(name) {
    const response = await fetchFile(`pics/${name}.webp`);
    return URL.createObjectURL(await response.blob());
}

// Lets the page start without a network from the next visit on, if the browser allows that.
export function keepForOffline() {
    navigator.serviceWorker?.register("worker.js").catch((error) => console.warn(error));
}
