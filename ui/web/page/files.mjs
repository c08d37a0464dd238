// Where the page's files come from: beside this script.

export function addressOf(name) {
    return new URL(name, import.meta.url).href;
}

async function fetchFile(name) {
    const response = await fetch(addressOf(name));
    if (!response.ok) throw new Error(`${name}: ${response.status} ${response.statusText}`);
    return response;
}

export async function fetchBytes(name) {
    return new Uint8Array(await (await fetchFile(name)).arrayBuffer());
}

// Compiles while it arrives, where the server names the right type.
export async function fetchProgram(name) {
    const response = await fetchFile(name);
    if (response.headers.get("content-type") === "application/wasm") return WebAssembly.compileStreaming(response);
    return WebAssembly.compile(await response.arrayBuffer());
}
