// Why there is no game. index.html has a sentence for each reason, and loader.js shows it.

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

// What the program dies of comes from a promise that nobody waits for: an order that its code cannot follow, or an exception of C++.
export function watchProgram() {
    addEventListener("unhandledrejection", ({ reason }) => {
        if (reason instanceof WebAssembly.RuntimeError || typeof reason === "number") showTrouble(new Trouble("crash", { cause: reason }));
    });
}
