// Keeps all files of one version of the page, checked by their hashes, and answers the page's requests from them, with or without a network.
// ui/web/assemble.py puts two constants in front of this script: `Version`, and `Files` with the hash of each file.
const Prefix = `orvel-tavoren ${registration.scope} `;
const Own = Prefix + Version;

// Takes the file from the browser's HTTP cache if its hash is right there, otherwise from the server.
async function fetchChecked(name, integrity) {
    return fetch(name, { integrity }).catch(() => fetch(name, { integrity, cache: "reload" }));
}

async function keepFile(cache, name, integrity) {
    const response = await fetchChecked(name, integrity);
    if (!response.ok) throw new Error(`${name}: ${response.status}`);
    // Kept as a new response, because a browser does not answer a navigation with a response that was redirected.
    await cache.put(name, new Response(response.body, { headers: response.headers }));
}

async function keepAll() {
    const cache = await caches.open(Own);
    await Promise.all(Object.entries(Files).map(([name, integrity]) => keepFile(cache, name, integrity))).catch(async (error) => {
        await caches.delete(Own);
        throw error;
    });
}

// Leaves the previous version there, because a page of that version may be open and still ask for its pictures.
async function dropOldVersions() {
    const others = (await caches.keys()).filter((name) => name.startsWith(Prefix) && name !== Own);
    await Promise.all(others.slice(0, -1).map((name) => caches.delete(name)));
}

function isPage(request) {
    const address = new URL(request.url);
    return request.mode === "navigate" && ["", "index.html"].some((name) => address.pathname === new URL(name, registration.scope).pathname);
}

async function answer(request) {
    const own = await caches.open(Own);
    if (isPage(request)) return (await own.match("./")) ?? fetch(request);
    return (await own.match(request)) ?? (await caches.match(request)) ?? fetch(request);
}

addEventListener("install", (event) => {
    skipWaiting();
    event.waitUntil(keepAll());
});
addEventListener("activate", (event) => event.waitUntil(dropOldVersions().then(() => clients.claim())));
addEventListener("fetch", (event) => {
    if (event.request.method === "GET" && event.request.url.startsWith(registration.scope)) event.respondWith(answer(event.request));
});
