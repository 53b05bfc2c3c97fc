import { ask } from './messages.js';
import { make } from './elements.js';

// The program's files: those it is shipped with, those that it writes, which the browser keeps, and timelines of the
// visitor's own, which take the place of shipped ones until they are removed.
const folder = '/game';
const periods = ['Ancient.bd3', 'Classic.bd3', 'Medieval.bd3', 'Modern.bd3'];
const shipped = [...periods, 'bdqord.txt'];
const logfile = 'bdqquiz.log';
const prefix = 'brindor/';
const tools = document.getElementById('tools');
const written = new Map(); // when each file was last written, as far as it is kept
let own = []; // names of the visitor's timelines
let files = null; // of the running program

async function content(name) {
    const answer = await fetch(globalThis.embedded?.[name] ?? name);
    if (!answer.ok) {
        throw new Error(`${name}: ${answer.status}`);
    }
    return new Uint8Array(await answer.arrayBuffer());
}

// ---- timelines of the visitor's own
function database() {
    return new Promise((resolve, reject) => {
        const request = indexedDB.open('brindor', 1);
        request.onupgradeneeded = () => request.result.createObjectStore('timelines');
        request.onsuccess = () => resolve(request.result);
        request.onerror = () => reject(request.error);
    });
}

// One call on the store; its result.
async function instore(mode, call) {
    const store = (await database()).transaction('timelines', mode).objectStore('timelines');
    return new Promise((resolve, reject) => {
        const request = call(store);
        request.onsuccess = () => resolve(request.result);
        request.onerror = () => reject(request.error);
    });
}

async function owntimelines() {
    try {
        own = await instore('readonly', (store) => store.getAllKeys());
        return await Promise.all(own.map((name) => instore('readonly', (store) => store.get(name))));
    } catch {
        own = []; // a browser that keeps nothing
        return [];
    }
}

// Which period a file is to take the place of: that of its name, else the visitor says it.
async function periodof(file) {
    const named = periods.find((name) => name.toLowerCase() === file.name.toLowerCase());
    const answers = Object.fromEntries([...periods.map((name) => [name, name.replace('.bd3', '')]), ['', 'None']]);
    return named ?? ask('A timeline of your own', `Which period shall ${file.name} take the place of?`, answers);
}

async function take(file) {
    const name = await periodof(file);
    if (name === '') {
        return;
    }
    const bytes = new Uint8Array(await file.arrayBuffer());
    try {
        await instore('readwrite', (store) => store.put(bytes, name));
        own = [...new Set([...own, name])];
    } catch {
        await ask('A timeline of your own', 'This browser cannot keep the timeline; it is there until the page is left.',
            { ok: 'OK' });
    }
    files.writeFile(`${folder}/${name}`, bytes);
    await restart(`${file.name} takes the place of the period ${name.replace('.bd3', '')}.`);
}

async function remove(name) {
    await instore('readwrite', (store) => store.delete(name));
    own = own.filter((other) => other !== name);
    files.writeFile(`${folder}/${name}`, await content(name));
    await restart(`${name.replace('.bd3', '')} is the game's own period again.`);
}

async function restart(what) {
    showtools();
    const words = `${what} It counts from the next start or choice of a period. Start the game anew now?`;
    if (await ask('Timelines', words, { yes: 'Yes', no: 'No' }) === 'yes') {
        location.reload();
    }
}

// ---- files that the program writes
// Each character of a kept text is a byte of the file.
const textof = (bytes) => Array.from(bytes, (byte) => String.fromCharCode(byte)).join('');
const bytesof = (text) => Uint8Array.from(text, (character) => character.charCodeAt(0));

// Called whenever the program waits.
export function keepfiles() {
    for (const [name, { timestamp, mode }] of Object.entries(files.lookupPath(folder).node.contents)) {
        if (written.get(name) !== timestamp && files.isFile(mode) && !shipped.includes(name)) {
            written.set(name, timestamp);
            try {
                localStorage.setItem(prefix + name, textof(files.readFile(`${folder}/${name}`)));
            } catch {
                tools.classList.add('keepsnothing');
            }
        }
    }
}

// Names and texts of all that is kept; nothing in a browser that forbids it.
function kept() {
    try {
        return Object.entries(localStorage);
    } catch {
        return [];
    }
}

function savelog() {
    const log = files.analyzePath(`${folder}/${logfile}`).exists ? files.readFile(`${folder}/${logfile}`) : '';
    const link = make('a', { href: URL.createObjectURL(new Blob([log], { type: 'text/plain' })), download: logfile });
    link.click();
    setTimeout(() => URL.revokeObjectURL(link.href), 1000);
}

// Fetches what the program will read; gives the procedure that puts it into the program's folder.
export async function readyfiles(program) {
    const [contents, mine] = await Promise.all([Promise.all(shipped.map(content)), owntimelines()]);
    const wasm = globalThis.embedded?.['brindor-web.wasm'];
    if (wasm) {
        program.wasmBinary = await (await fetch(wasm)).arrayBuffer();
    }
    return () => {
        files = program.FS;
        files.mkdir(folder);
        shipped.forEach((name, i) => files.writeFile(`${folder}/${name}`, contents[i]));
        own.forEach((name, i) => files.writeFile(`${folder}/${name}`, mine[i]));
        for (const [key, text] of kept()) {
            if (key.startsWith(prefix)) {
                files.writeFile(`${folder}/${key.slice(prefix.length)}`, bytesof(text));
            }
        }
    };
}

// ---- what stands below the windows
export function showtools() {
    const button = (textContent, onclick) => make('button', { type: 'button', textContent, onclick });
    const chooser = make('input', { type: 'file', accept: '.bd3', hidden: true });
    chooser.addEventListener('change', () => chooser.files[0] && take(chooser.files[0]));
    tools.replaceChildren(
        button('Save the question log', savelog),
        button('Use a timeline of your own …', () => chooser.click()),
        ...own.map((name) => button(`Remove your own ${name}`, () => remove(name))),
        chooser,
    );
}

document.addEventListener('dragover', (event) => event.preventDefault());
document.addEventListener('drop', (event) => {
    event.preventDefault();
    const file = [...event.dataTransfer.files].find(({ name }) => /\.bd3$/i.test(name));
    if (file && files) {
        take(file);
    }
});
