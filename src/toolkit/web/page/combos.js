import { make, setattribute, shown } from './elements.js';
import { tell } from './queue.js';

// A field with a list to pick from. The list lies over everything else and shows what holds the text typed, or all
// lines where it was opened by hand.
const popup = make('div', { id: 'popup', className: 'list', hidden: true });
popup.setAttribute('role', 'listbox');
document.body.append(popup);
const mostlines = 1000;
let owner = null; // what closes the list of the combo that is open


export function makecombo(win, record) {
    const input = make('input', { type: 'text', autocomplete: 'off', spellcheck: false });
    input.setAttribute('role', 'combobox');
    input.setAttribute('aria-controls', 'popup');
    input.setAttribute('aria-expanded', 'false');
    const arrow = make('button', { type: 'button', tabIndex: -1, textContent: '▾' });
    arrow.setAttribute('aria-label', 'Show all');
    const root = make('div', { className: 'combo' }, input, arrow);
    const view = { root, active: input };
    let current = null;

    const mark = (line) => {
        current?.setAttribute('aria-selected', 'false');
        current = line ?? null;
        current?.setAttribute('aria-selected', 'true');
        current?.scrollIntoView({ block: 'nearest' });
        setattribute(input, 'aria-activedescendant', current?.id ?? '');
    };
    const close = () => {
        popup.hidden = true;
        owner = null;
        mark(null);
        input.setAttribute('aria-expanded', 'false');
    };
    const pick = (line) => {
        close();
        tell(win.serial, 'pick', record.control, line);
    };
    const open = (holding) => {
        owner?.();
        const wanted = holding.toLowerCase();
        const all = view.record.lines.map((text, at) => ({ text, at }))
            .filter(({ text }) => text.toLowerCase().includes(wanted));
        // Of a very long list the part round the line that was picked last.
        const first = Math.min(Math.max(0, view.record.position - mostlines / 2), Math.max(0, all.length - mostlines));
        const lines = all.slice(first, first + mostlines);
        if (lines.length === 0) {
            return;
        }
        popup.replaceChildren(...lines.map(({ text, at }) => {
            const line = make('div', { id: `pick${at}`, textContent: shown(text), onclick: () => pick(at) });
            line.setAttribute('role', 'option');
            return line;
        }));
        const field = root.getBoundingClientRect();
        const below = innerHeight - field.bottom;
        const up = below < 200 && field.top > below;
        Object.assign(popup.style, {
            left: `${field.left}px`,
            width: `${field.width}px`,
            fontSize: `${parseFloat(getComputedStyle(input).fontSize) * win.scale}px`,
            top: up ? 'auto' : `${field.bottom}px`,
            bottom: up ? `${innerHeight - field.top}px` : 'auto',
            maxHeight: `${Math.min(400, up ? field.top : below) - 8}px`,
        });
        popup.hidden = false;
        owner = close;
        input.setAttribute('aria-expanded', 'true');
    };
    // All lines, at the one that was picked last.
    const openall = () => {
        open('');
        mark(document.getElementById(`pick${view.record.position}`));
    };
    arrow.addEventListener('click', () => {
        const isopen = owner === close;
        input.focus();
        if (isopen) {
            close();
        } else {
            openall();
        }
    });
    input.addEventListener('input', () => {
        tell(win.serial, 'type', record.control, 0, input.value);
        close();
        if (input.value !== '') {
            open(input.value);
        }
    });
    input.addEventListener('blur', close);
    input.addEventListener('keydown', (event) => {
        const isopen = owner === close;
        if (event.key === 'ArrowDown' || event.key === 'ArrowUp') {
            event.preventDefault();
            const down = event.key === 'ArrowDown';
            if (event.altKey && !isopen) {
                openall();
            } else if (isopen) {
                mark(current ? (down ? current.nextSibling : current.previousSibling) ?? current : popup.firstChild);
            } else {
                const next = view.record.position + (down ? 1 : -1);
                if (next >= 0 && next < view.record.lines.length) {
                    pick(next);
                }
            }
        } else if (event.key === 'Enter' && isopen && current) {
            event.preventDefault();
            event.stopPropagation();
            pick(Number(current.id.slice(4)));
        } else if (event.key === 'Enter') {
            close();
        } else if (event.key === 'Escape' && isopen) {
            event.stopPropagation();
            close();
        }
    });
    view.update = (combo) => {
        if (input.value !== shown(combo.text)) {
            input.value = shown(combo.text);
        }
    };
    return view;
}

popup.addEventListener('mousedown', (event) => event.preventDefault()); // the field keeps the focus
