import { caption, follow, make, setattribute, shown } from './elements.js';
import { placeof } from './windows.js';
import { tell } from './queue.js';

// Bars that are dragged, and the rows that they are dropped on.
let layer = 1; // what was touched last lies on top

const isheld = (view) => view.record.held;

// The row under the pointer, if any; the bar itself where it is still at home.
function under(event, own) {
    for (const element of document.elementsFromPoint(event.clientX, event.clientY)) {
        const { view } = placeof(element);
        if (view) {
            return view;
        }
    }
    return own && undefined;
}

export function makebar(win, record) {
    const root = make('button', { type: 'button', className: 'bar' });
    const view = {
        root,
        active: root,
        update(bar) {
            caption(root, bar.text);
            setattribute(root, 'aria-pressed', bar.held);
            root.classList.toggle('placed', bar.row >= 0);
            if (bar.row >= 0) {
                root.style.order = bar.row * 2 + 1;
            }
            if (bar.held) {
                layer += 1;
                root.style.zIndex = layer;
            }
            describe(win);
        },
    };
    let pointed = false; // the click that follows belongs to a press that has been told
    root.addEventListener('pointerdown', (down) => {
        if (down.button !== 0) {
            return;
        }
        pointed = true;
        tell(win.serial, 'press', record.control);
        let ghost = null;
        let aim = null;
        const point = (target) => {
            aim?.root.classList.remove('aimed');
            aim = target;
            aim?.root.classList.add('aimed');
        };
        const letgo = () => {
            ghost?.remove();
            ghost = null;
            point(null);
            root.classList.remove('away');
        };
        follow(root, down, (event) => {
            if (!isheld(view)) {
                letgo();
                return;
            }
            const x = event.clientX - down.clientX;
            const y = event.clientY - down.clientY;
            if (!ghost && Math.abs(x) + Math.abs(y) > 8) {
                ghost = root.cloneNode(true);
                ghost.classList.add('ghost');
                ghost.removeAttribute('data-control');
                root.parentElement.append(ghost);
                root.classList.add('away');
            }
            if (ghost) {
                ghost.style.translate = `${x / win.scale}px ${y / win.scale}px`;
                const target = under(event);
                point(target?.record.drops ? target : null);
            }
        }, (event) => {
            const dragged = ghost !== null;
            letgo();
            if (!isheld(view) || event.type === 'pointercancel') {
                if (isheld(view)) {
                    tell(win.serial, 'dropnowhere');
                }
                return;
            }
            const target = under(event);
            if (target === view || !dragged) {
                tell(win.serial, 'click', record.control);
            } else if (target?.record.drops) {
                tell(win.serial, 'drop', target.record.control);
            } else {
                tell(win.serial, 'dropnowhere');
            }
        });
    });
    root.addEventListener('click', () => {
        if (!pointed) {
            tell(win.serial, 'click', record.control);
        }
        pointed = false;
    });
    root.addEventListener('keydown', () => {
        pointed = false;
    });
    return view;
}

// Makes a label something to drop a bar on, with the pointer or by a click.
export function maketarget(win, record, view) {
    const { root, update } = view;
    root.tabIndex = 0;
    root.setAttribute('role', 'button');
    root.classList.add('target');
    root.addEventListener('click', () => tell(win.serial, 'click', record.control));
    view.update = (label) => {
        update(label);
        describe(win);
    };
}

// Tells assistive tools which bar lies on which row.
function describe(win) {
    const bars = win.views.filter((view) => view?.record?.kind === 'bar');
    for (const { root, record } of win.views.filter((view) => view?.record?.drops)) {
        const on = bars.filter((bar) => bar.record.row === record.control)
            .sort((a, b) => Number(a.root.style.zIndex) - Number(b.root.style.zIndex)).at(-1);
        root.setAttribute('aria-description', on ? `Holds ${shown(on.record.text)}.` : 'Empty.');
    }
    for (const { root, record } of bars) {
        const row = win.views[record.row];
        setattribute(root, 'aria-description', row ? `On the row ${shown(row.record.text)}.` : '');
    }
}
