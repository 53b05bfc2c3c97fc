import { placeof, topwindow } from './windows.js';
import { tell } from './queue.js';

// The keys of a whole window, whatever has the focus: the page may have given it to nothing at all.
document.addEventListener('keydown', (event) => {
    const win = topwindow();
    if (!win || event.defaultPrevented || document.querySelector('dialog[open]')) {
        return;
    }
    const { win: here, view } = placeof(event.target);
    const own = here === win ? view : undefined;
    if (event.altKey && event.key.length === 1 && !event.ctrlKey) {
        press(win, event);
    } else if (event.key === 'Escape' && !event.repeat) {
        tell(win.serial, 'escape');
    } else if (event.key === 'Enter' && !event.repeat && (own || event.target === document.body)) {
        enter(win, own, event);
    }
});

// Alt and a letter press the button or option that has it.
function press(win, event) {
    const letter = event.code.startsWith('Key') ? event.code.at(-1) : event.key.toUpperCase();
    const view = win.views.find(({ record }) => record.key?.toUpperCase() === letter && record.visible && record.enabled);
    if (view) {
        event.preventDefault();
        view.active.click();
    }
}

// Return belongs to what has the focus where that is something to press, else to the window.
function enter(win, view, event) {
    const record = view?.record ?? {};
    const presses = record.kind === 'button' || record.kind === 'bar' || record.clicks ||
        (record.kind === 'textbox' && record.multiline && !record.readonly);
    if (presses) {
        return;
    }
    event.preventDefault();
    if (record.drops) {
        tell(win.serial, 'click', record.control);
    } else if (record.presses) {
        tell(win.serial, 'press', record.control);
    } else {
        tell(win.serial, 'return', record.control ?? -1);
    }
}

// Space on a row is a click, as on a button.
document.addEventListener('keydown', (event) => {
    const { win, view } = placeof(event.target);
    if (event.key === ' ' && view?.record.drops && !event.repeat) {
        event.preventDefault();
        tell(win.serial, 'click', view.record.control);
    }
});
