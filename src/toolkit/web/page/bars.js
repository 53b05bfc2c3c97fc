import { caption, follow, make, setattribute, shown } from './elements.js';
import { placeof } from './windows.js';
import { tell } from './queue.js';

// Bars that are dragged, and the rows that they are dropped on.
let layer = 1; // the bar that was picked up last lies on top

// The control under the pointer, if any.
function under(event) {
    return document.elementsFromPoint(event.clientX, event.clientY).map((element) => placeof(element).view).find(Boolean);
}

// A copy of the bar that goes with the hand.
function ghostof(root) {
    const { left, top, width, height } = root.getBoundingClientRect();
    const { backgroundColor, fontSize } = getComputedStyle(root);
    const ghost = make('div', { className: 'bar ghost', textContent: root.textContent });
    Object.assign(ghost.style, {
        left: `${left}px`,
        top: `${top}px`,
        width: `${width}px`,
        height: `${height}px`,
        backgroundColor,
        fontSize: `${parseFloat(fontSize) * (width / root.offsetWidth)}px`,
    });
    document.body.append(ghost);
    return ghost;
}

// What lies beyond the edge of a window that is too low comes to the hand.
function scrolltowards(content, y) {
    const edge = 40;
    const { top, bottom } = content.getBoundingClientRect();
    content.scrollTop += y < top + edge ? -12 : y > bottom - edge ? 12 : 0;
}

function drag(win, view, down) {
    const { root } = view;
    let ghost = null;
    let aim = null;
    const aimat = (target) => {
        aim?.root.classList.remove('aimed');
        aim = target;
        aim?.root.classList.add('aimed');
    };
    const letgo = () => {
        ghost?.remove();
        aimat(null);
        root.classList.remove('away');
    };
    const move = (event) => {
        if (!view.record.held) { // put down by Escape on the way
            letgo();
            return;
        }
        const x = event.clientX - down.clientX;
        const y = event.clientY - down.clientY;
        if (!ghost && Math.abs(x) + Math.abs(y) > 8) {
            ghost = ghostof(root);
            root.classList.add('away');
        }
        if (ghost) {
            ghost.style.translate = `${x}px ${y}px`;
            scrolltowards(win.content, event.clientY);
            const target = under(event);
            aimat(target?.record.drops ? target : null);
        }
    };
    const done = (event) => {
        letgo();
        const target = under(event);
        if (!view.record.held) {
            return;
        }
        if (event.type === 'pointerup' && (!ghost || target === view)) {
            tell(win.serial, 'click', view.record.control);
        } else if (event.type === 'pointerup' && target?.record.drops) {
            tell(win.serial, 'drop', target.record.control);
        } else {
            tell(win.serial, 'dropnowhere');
        }
    };
    follow(root, down, move, done);
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
    root.addEventListener('pointerdown', (down) => {
        if (down.button === 0) {
            tell(win.serial, 'press', record.control);
            drag(win, view, down);
        }
    });
    // A pointer's click has been told with its press, whatever came of that.
    root.addEventListener('click', (event) => event.detail === 0 && tell(win.serial, 'click', record.control));
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
    const views = win.views.filter((view) => view?.record);
    const bars = views.filter(({ record }) => record.kind === 'bar');
    for (const { root, record } of views.filter((view) => view.record.drops)) {
        const on = bars.filter((bar) => bar.record.row === record.control)
            .sort((a, b) => Number(a.root.style.zIndex) - Number(b.root.style.zIndex)).at(-1);
        root.setAttribute('aria-description', on ? `Holds ${shown(on.record.text)}.` : 'Empty.');
    }
    for (const { root, record } of bars) {
        const row = win.views[record.row];
        setattribute(root, 'aria-description', row ? `On the row ${shown(row.record.text)}.` : '');
    }
}
