// The reasons why there is no game. index.html has a sentence for each, and loader.js shows it.

export class Trouble extends Error {
    constructor(reason, { address = "", cause } = {}) {
        super(`${reason} ${address}`, { cause });
        Object.assign(this, { reason, address });
    }
}

export function showTrouble(error) {
    console.error(error, error.cause);
    const { reason, address } = error instanceof Trouble ? error : new Trouble("crash");
    dispatchEvent(new CustomEvent("trouble", { detail: { reason, address } }));
}

// Tells the player when the program crashes. A crash is an error of WebAssembly or a C++ exception, which is a number here; it rejects a
// promise that nobody waits for.
export function watchProgram() {
    addEventListener("unhandledrejection", ({ reason }) => {
        if (reason instanceof WebAssembly.RuntimeError || typeof reason === "number") showTrouble(new Trouble("crash", { cause: reason }));
    });
}
