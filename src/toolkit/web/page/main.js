import { nextevent, tell } from './queue.js';
import { fetchpicture, forgetpicture } from './pictures.js';
import { measure, pagesize, settlefocus, show, watchpage } from './windows.js';
import { askmessage, viewtext } from './messages.js';
import { keepfiles, readyfiles, showtools } from './files.js';
import { keepondevice } from './offline.js';
import './keys.js';

// Starts the program and is its page: the other half of toolkit/web/page.h.
const root = document.documentElement;

function ended(words) {
    root.dataset.state = 'ended';
    const again = document.createElement('button');
    again.textContent = 'Start again';
    again.onclick = () => location.reload();
    const note = document.createElement('p');
    note.append(words, again);
    note.id = 'ended';
    document.getElementById('desk').replaceChildren(note);
    again.focus();
}

let started = false; // what the start needs has come

const page = {
    tell,
    nextevent() {
        keepfiles();
        settlefocus();
        if (!started) {
            started = true;
            keepondevice();
        }
        return nextevent();
    },
    fetchpicture,
    measure,
    width: () => pagesize().width,
    height: () => pagesize().height,
    seed() {
        const seed = new URLSearchParams(location.search).get('seed');
        return seed !== null && /^\d+$/.test(seed) ? Number(seed) : -1;
    },
    post(change) {
        if ('message' in change) {
            askmessage(change);
        } else if ('view' in change) {
            viewtext(change.title, change.view);
        } else if ('forget' in change) {
            forgetpicture(change.forget);
        } else if ('ended' in change) {
            keepfiles();
            ended('The game has ended. ');
        } else {
            show(change);
        }
    },
};

// A page that goes into the background may never come back.
document.addEventListener('visibilitychange', () => {
    if (document.visibilityState === 'hidden') {
        tell(0, 'leaving');
    }
});

async function start() {
    const program = { page, onAbort: () => ended('The game has come to a halt. What was set is kept. ') };
    const load = await readyfiles(program);
    program.preRun = [load];
    document.getElementById('starting').remove();
    watchpage();
    showtools();
    await startprogram(program);
}

addEventListener('unhandledrejection', () => ended('The game has come to a halt. What was set is kept. '));
start().catch((fault) => {
    console.error(fault);
    ended(`The game could not be loaded: ${fault.message ?? fault}. `);
});
