import { addressof } from './pictures.js';
import { follow, make } from './elements.js';
import { makeview, updateview } from './controls.js';
import { tell } from './queue.js';

// The windows, by serial number; the last one is on top.
const windows = new Map();
const desk = document.getElementById('desk');

const largest = 1.6;
const question = { width: 800, height: 600 }; // the size that the scale of all windows goes by
const narrow = matchMedia('(max-width: 699px)'); // one column then; style.css says the same

const touched = matchMedia('(pointer: coarse)');

// How large the windows are shown.
function scale() {
    const margin = 16;
    const fit = Math.min((desk.clientWidth - margin) / question.width, (desk.clientHeight - margin) / question.height);
    return narrow.matches ? 1 : Math.min(largest, Math.max(0.3, fit));
}

// What windows may take, in their own pixels.
export function pagesize() {
    return { width: Math.floor(desk.clientWidth / scale()), height: Math.floor(desk.clientHeight / scale()) };
}

export function topwindow() {
    return [...windows.values()].at(-1);
}

// The window and the control that an element belongs to, if any.
export function placeof(element) {
    const section = element?.closest?.('.screen');
    const root = element?.closest?.('.control');
    const win = section && windows.get(Number(section.dataset.serial));
    return win && root ? { win, view: win.views[Number(root.dataset.index)] } : { win, view: undefined };
}

function makewindow(serial) {
    const caption = make('h1');
    const close = make('button', { textContent: '✕', tabIndex: -1, onclick: () => tell(serial, 'close') });
    close.dataset.close = '';
    close.setAttribute('aria-label', 'Close');
    const bar = make('header', {}, caption, close);
    const canvas = make('div', { className: 'canvas' });
    const content = make('div', { className: 'content' }, canvas);
    const grip = make('div', { className: 'grip' });
    const section = make('section', { className: 'screen', inert: true }, bar, content, grip);
    section.dataset.serial = serial;
    section.setAttribute('role', 'dialog');
    section.setAttribute('aria-modal', 'true');
    // `focus` is the control that program and page agree on: nothing is told of it again.
    const win = { serial, section, caption, canvas, content, views: [], record: {}, moved: { x: 0, y: 0 }, focus: -1 };
    bar.addEventListener('pointerdown', (down) => drag(win, down, bar, (x, y, at) => {
        win.moved = { x: at.x + x, y: at.y + y };
        fit(win);
    }));
    grip.addEventListener('pointerdown', (down) => drag(win, down, grip, (x, y, at) => {
        const least = 150;
        const growth = 2 / fit(win); // the window stays round its middle
        const width = Math.max(least, Math.round(at.width + x * growth));
        tell(serial, 'resize', 0, 0, `${width} ${Math.max(least, Math.round(at.height + y * growth))}`);
    }));
    desk.append(section);
    windows.set(serial, win);
    return win;
}

// Reports how far the pointer has gone since it went down, and how the window stood then.
function drag(win, down, handle, move) {
    if (narrow.matches || down.button !== 0 || down.target.closest('button')) {
        return;
    }
    const at = { ...win.moved, width: win.record.width, height: win.record.height };
    follow(handle, down, (event) => move(event.clientX - down.clientX, event.clientY - down.clientY, at));
}

// Puts a window in the middle of the page, or where it was moved from there, as large as the page lets it be.
function fit(win) {
    const { width, height } = win.record;
    const shown = Math.min(scale(), desk.clientWidth / width, desk.clientHeight / height);
    const room = { x: (desk.clientWidth - width * shown) / 2, y: (desk.clientHeight - height * shown) / 2 };
    const within = (offset, most) => Math.min(most, Math.max(-most, offset));
    win.moved = { x: within(win.moved.x, room.x), y: within(win.moved.y, room.y) };
    win.section.style.transform = `translate(${room.x + win.moved.x}px, ${room.y + win.moved.y}px) scale(${shown})`;
    win.scale = narrow.matches ? 1 : shown;
    return shown;
}

function updatescreen(win, record) {
    const { section, content } = win;
    win.record = record;
    section.dataset.screen = record.name;
    section.setAttribute('aria-label', record.caption || record.name);
    section.style.setProperty('--back', record.back);
    section.style.width = `${record.width}px`;
    section.style.height = `${record.height}px`;
    section.classList.toggle('pictured', record.backdrop !== 0);
    section.style.setProperty('--backdrop', record.backdrop ? `url("${addressof(record.backdrop)}")` : 'none');
    content.classList.toggle('fixed', !record.scrolls);
    win.caption.textContent = record.caption;
    const maximised = record.state === 2;
    if (maximised && !win.filled) {
        const { width, height } = pagesize();
        tell(win.serial, 'resize', -1, 2, `${width} ${height}`);
    }
    win.filled = maximised;
    fit(win);
}

function updatecontrol(win, record) {
    const known = win.views[record.control];
    const view = known ?? makeview(win, record);
    if (!known) {
        win.views[record.control] = view;
        view.root.classList.add('control');
        view.root.dataset.index = record.control;
        view.active.dataset.control = record.name;
        (record.in < 0 ? win.canvas : win.views[record.in].root).append(view.root);
    }
    updateview(win, view, record);
}

function place(win, places, [width, height]) {
    for (let i = 0; i < places.length; i += 5) {
        const [index, left, top, wide, high] = places.slice(i, i + 5);
        const { style } = win.views[index].root;
        style.left = `${left}px`;
        style.top = `${top}px`;
        style.width = `${wide}px`;
        style.height = `${high}px`;
        // By the height of a picture behind it.
        style.setProperty('--y', top / height);
        style.setProperty('--share', win.views[index].record.size / height);
        win.views[index].root.classList.toggle('low', top > height / 2);
    }
    win.canvas.style.width = `${width}px`;
    win.canvas.style.height = `${height}px`;
}

// Gives a control the focus for the program or the page itself. That is nothing a person did, so it is not told:
// whatever comes of it carries the number that the window has already.
function bring(win, view) {
    if (!view) {
        return;
    }
    win.focus = Number(view.root.dataset.index);
    if (view.active.tabIndex >= 0 && document.activeElement !== view.active) {
        view.active.focus();
    }
}

function present(win) {
    for (const other of windows.values()) {
        other.section.inert = other !== win;
    }
    win.section.classList.add('shown');
    // The question, or whatever else a window says first.
    const words = win.views.find(({ record }) => record.kind === 'label' && record.visible);
    if (words) {
        words.root.id = `words${win.serial}`;
        win.section.setAttribute('aria-describedby', words.root.id);
    }
    // Not an option that answers by itself to a Space that nobody meant.
    const isseen = ({ record }) => record.visible && (record.in < 0 || isseen(win.views[record.in]));
    const first = win.views.find((view) => isseen(view) && view.record.enabled && view.active.tabIndex >= 0 &&
        !(view.record.kind === 'option' && !view.record.presses));
    // A field would bring up the keyboard of a device that is touched.
    if (first && !(touched.matches && ['textbox', 'combo'].includes(first.record.kind))) {
        win.focus = first.record.control;
    }
}

function drop(win) {
    win.section.remove();
    windows.delete(win.serial);
    const below = topwindow();
    if (below) {
        below.section.inert = false;
    }
}

// Puts the focus where the window on top has it, before the page is waited for: not in each window that comes and goes
// on the way there.
export function settlefocus() {
    const win = topwindow();
    if (win && !document.querySelector('dialog[open]') && !win.section.contains(document.activeElement)) {
        bring(win, win.views[win.focus]);
    }
}

// Shows a change of a window that the program has sent.
export function show(change) {
    const win = windows.get(change.window) ?? makewindow(change.window);
    if ('control' in change) {
        updatecontrol(win, change);
    } else if ('places' in change) {
        place(win, change.places, change.canvas);
    } else if ('focus' in change) {
        bring(win, win.views[change.focus]);
    } else if (change.show) {
        present(win);
    } else if (change.drop) {
        drop(win);
    } else {
        updatescreen(win, change);
    }
}

// What a text's height depends on.
function lookof({ text, size, bold, face, surface, textwidth, visible }, width) {
    return [width, size, bold, face, surface, textwidth, visible, narrow.matches, text].join();
}

// The height that a text needs at a width. All texts of a window that have changed are measured together, at the widths
// of their records: the browser then lays the window out once, and not once for each.
export function measure(serial, index, width) {
    const { views } = windows.get(serial);
    const wanted = views[index];
    const widthof = (view) => (view === wanted ? width : view.record.wide);
    if (wanted.measured !== lookof(wanted.record, width)) {
        const fresh = views.filter((view) => ['label', 'button', 'bar', 'option'].includes(view.record.kind) &&
            view.measured !== lookof(view.record, widthof(view)));
        for (const view of fresh) {
            view.root.style.width = `${widthof(view)}px`;
            view.root.style.height = 'auto';
        }
        for (const view of fresh) {
            view.needs = view.root.offsetHeight;
            view.measured = view.needs > 0 ? lookof(view.record, widthof(view)) : '';
        }
    }
    return wanted.needs;
}

// A person brought the focus to a control.
desk.addEventListener('focusin', (event) => {
    const { win, view } = placeof(event.target);
    const index = view ? Number(view.root.dataset.index) : -1;
    if (view && index !== win.focus) {
        win.focus = index;
        tell(win.serial, 'focus', index);
    }
});

// A press beside all controls takes the focus from none.
desk.addEventListener('mousedown', (event) => {
    if (!event.target.closest('[tabindex], button, input, textarea')) {
        event.preventDefault();
    }
});

export function watchpage() {
    new ResizeObserver(() => windows.forEach(fit)).observe(desk);
    narrow.addEventListener('change', () => tell(0, 'page'));
}
