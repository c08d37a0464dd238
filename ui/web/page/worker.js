// Keeps one version of the page, whole and checked, and answers with it whether there is a network or not. `Version` and `Files`, each with
// its hash, are put in front of this script when the site is made.
const Prefix = `orvel-tavoren ${registration.scope} `;
const Own = Prefix + Version;

// What the browser already keeps will do where it is the right thing.
async function fetchChecked(name, integrity) {
    return fetch(name, { integrity }).catch(() => fetch(name, { integrity, cache: "reload" }));
}

async function keepFile(cache, name, integrity) {
    const response = await fetchChecked(name, integrity);
    if (!response.ok) throw new Error(`${name}: ${response.status}`);
    // Written anew: what came by way of another address is no answer to a navigation.
    await cache.put(name, new Response(response.body, { headers: response.headers }));
}

async function keepAll() {
    const cache = await caches.open(Own);
    await Promise.all(Object.entries(Files).map(([name, integrity]) => keepFile(cache, name, integrity))).catch(async (error) => {
        await caches.delete(Own);
        throw error;
    });
}

// The version before this one stays: a page that is open may still ask for its pictures.
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
