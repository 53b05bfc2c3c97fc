// The service worker: keeps the game on the device, so that it plays with the network gone. The build fills in what
// belongs to this version: its files with what their contents hash to, all of them together, and all pictures together.
const made = { files: {}, version: '', pictures: '' };

// Another copy of the game may lie beside this one on the same server.
const own = `brindor ${registration.scope} `;
const kept = `${own}files ${made.version}`;
const seen = `${own}pictures ${made.pictures}`;

// All files or none: where one cannot be had, or is of another version, the version before stays in force.
async function keep() {
    const cache = await caches.open(kept);
    const requests = Object.entries(made.files).map(
        ([name, integrity]) => new Request(name, { integrity, cache: 'no-cache' }));
    await cache.addAll(requests);
}

async function forgetothers() {
    const others = (await caches.keys()).filter((name) => name.startsWith(own) && name !== kept && name !== seen);
    await Promise.all(others.map((name) => caches.delete(name)));
    await clients.claim();
}

// What belongs to the version comes from the device alone; a picture comes from there once it was seen.
async function give(request) {
    const url = request.url.replace(/\/index\.html(?=$|[?#])/, '/');
    for (const name of [kept, seen]) {
        const here = await (await caches.open(name)).match(url, { ignoreSearch: true, ignoreVary: true });
        if (here) {
            return here;
        }
    }
    const fetched = await fetch(request);
    if (fetched.ok && /\.(png|jpe?g|gif|webp)$/i.test(url)) {
        await (await caches.open(seen)).put(request, fetched.clone());
    }
    return fetched;
}

addEventListener('install', (event) => event.waitUntil(keep()));
addEventListener('activate', (event) => event.waitUntil(forgetothers()));
addEventListener('message', () => skipWaiting());
addEventListener('fetch', (event) => {
    if (event.request.method === 'GET' && event.request.url.startsWith(registration.scope)) {
        event.respondWith(give(event.request));
    }
});
