// Keeps the game on the device. To be called when all that a start needs has been fetched: from then on a newer version
// that the service worker finds may take over, and the next start is the newer version's whole.
export async function keepondevice() {
    if (!('serviceWorker' in navigator) || !document.querySelector('link[rel=manifest]')) {
        return; // a file opened by a double click, or a server without encryption
    }
    const workers = navigator.serviceWorker;
    workers.addEventListener('controllerchange', keepseen);
    const registration = await workers.register('sw.js').catch(() => null); // private windows may refuse
    if (registration) {
        letin(registration);
        registration.addEventListener('updatefound', () => letin(registration));
    }
}

function letin({ waiting, installing }) {
    waiting?.postMessage('take over');
    installing?.addEventListener('statechange', ({ target }) => {
        if (target.state === 'installed') {
            target.postMessage('take over');
        }
    });
}

// Pictures that were shown before the service worker was there: through it, they stay.
function keepseen() {
    for (const { name, initiatorType } of performance.getEntriesByType('resource')) {
        if (initiatorType === 'img') {
            fetch(name).catch(() => {});
        }
    }
}
