import { addressof } from './pictures.js';
import { caption, make, setattribute, shown } from './elements.js';
import { makebar, maketarget } from './bars.js';
import { makecombo } from './combos.js';
import { makelist } from './lists.js';
import { tell } from './queue.js';

// A control in its window: `root` is what is placed, `active` what is used and has the focus. `update` shows what the
// kind adds to a control.
const faces = ['plain', 'heading', 'reading'];

function makelabel(win, record) {
    const words = make('span');
    const root = make('div', { className: 'label' }, words);
    const view = {
        root,
        active: root,
        update(label) {
            words.textContent = shown(label.text);
            root.style.textAlign = label.align;
            root.classList.toggle('outlined', label.outlined);
            root.classList.toggle('names', label.names >= 0);
            words.style.maxWidth = label.textwidth ? `${label.textwidth}px` : '';
        },
    };
    if (record.drops) {
        maketarget(win, record, view);
    }
    return view;
}

function makebutton(win, record) {
    const root = make('button', { type: 'button', onclick: () => tell(win.serial, 'click', record.control) });
    return {
        root,
        active: root,
        update(button) {
            caption(root, button.text, button.key);
            root.classList.toggle('default', button.default);
        },
    };
}

// With `presses` it answers when the mouse goes down, a finger is lifted, or by Return; a key only selects it.
function makeoption(win, record) {
    const input = make('input', { type: 'radio', name: `${win.serial} ${record.in}` });
    const words = make('span');
    const root = make('label', { className: 'option' }, input, words);
    let pointer = '';
    root.addEventListener('pointerdown', (event) => {
        pointer = event.pointerType;
        if (record.presses && pointer === 'mouse') {
            event.preventDefault();
            tell(win.serial, 'press', record.control);
        }
    });
    root.addEventListener('contextmenu', (event) => record.presses && event.preventDefault());
    input.addEventListener('click', (event) => {
        const by = pointer;
        pointer = '';
        if (!record.presses || by === '') {
            tell(win.serial, 'click', record.control);
            return;
        }
        event.preventDefault(); // a press marks nothing
        if (by !== 'mouse') {
            tell(win.serial, 'press', record.control);
        }
    });
    input.addEventListener('keydown', (event) => {
        pointer = '';
        if (event.key === ' ' && input.checked && !event.repeat) { // browsers say nothing of it
            tell(win.serial, 'click', record.control);
        }
    });
    return {
        root,
        active: input,
        update(option) {
            caption(words, option.text, option.key);
            root.classList.toggle('presses', option.presses);
            input.checked = option.checked;
        },
    };
}

function maketextbox(win, record) {
    const root = record.multiline ? make('textarea') : make('input', { type: 'text', autocomplete: 'off' });
    root.spellcheck = false;
    root.addEventListener('input', () => tell(win.serial, 'type', record.control, 0, root.value.replaceAll('\n', '\r\n')));
    root.addEventListener('keydown', (event) => {
        const step = { ArrowUp: 1, ArrowDown: -1 }[event.key];
        if (step && win.views.some((view) => view.record.buddy === record.control)) {
            event.preventDefault();
            tell(win.serial, 'step', record.control, step);
        }
    });
    return {
        root,
        active: root,
        update(box) {
            root.readOnly = box.readonly;
            const text = box.text.replaceAll('\r\n', '\n');
            if (root.value !== text) {
                root.value = box.readonly ? shown(text) : text;
            }
        },
    };
}

function makeframe() {
    const legend = make('legend');
    const root = make('fieldset', {}, legend);
    return {
        root,
        active: root,
        update(frame) {
            root.classList.toggle('bordered', frame.border);
            legend.hidden = !frame.border;
            legend.textContent = shown(frame.text);
            root.setAttribute('role', frame.border ? 'group' : 'presentation');
        },
    };
}

function makepicture(win, record) {
    const image = make('img', { draggable: false });
    const root = record.clicks
        ? make('button', { type: 'button', onclick: () => tell(win.serial, 'click', record.control) }, image)
        : make('div', {}, image);
    root.classList.add('picture');
    return {
        root,
        active: root,
        update(picture) {
            image.alt = picture.says;
            image.hidden = picture.picture === 0;
            setattribute(image, 'src', addressof(picture.picture));
        },
    };
}

// Steps again and again while it is held.
function makespin(win, record) {
    const first = 500; // milliseconds
    const next = 100;
    const half = (step, words, arrow) => {
        const button = make('button', { type: 'button', tabIndex: -1, textContent: arrow });
        let again = 0;
        const go = (delay) => {
            tell(win.serial, 'step', record.control, step);
            again = delay && setTimeout(() => go(next), delay);
        };
        button.addEventListener('pointerdown', (event) => event.button === 0 && go(first));
        for (const end of ['pointerup', 'pointerleave', 'pointercancel']) {
            button.addEventListener(end, () => clearTimeout(again));
        }
        button.addEventListener('click', (event) => event.detail === 0 && go(0)); // by an assistive tool
        button.setAttribute('aria-label', `${record.says} ${words}`.trim());
        return button;
    };
    const root = make('div', { className: 'spin' }, half(1, 'up', '▲'), half(-1, 'down', '▼'));
    root.setAttribute('role', 'group');
    return { root, active: root, update() {} };
}

const makers = {
    label: makelabel,
    button: makebutton,
    bar: makebar,
    option: makeoption,
    textbox: maketextbox,
    list: makelist,
    combo: makecombo,
    frame: makeframe,
    picture: makepicture,
    spin: makespin,
};

export function makeview(win, record) {
    return makers[record.kind](win, record);
}

export function updateview(win, view, record) {
    const { root, active } = view;
    const { style } = root;
    view.record = { ...view.record, ...record };
    style.backgroundColor = record.opaque ? record.back : 'transparent';
    style.color = record.fore;
    style.fontSize = `${record.size}px`;
    style.setProperty('--size', `${record.size}px`);
    style.fontWeight = record.bold ? 'bold' : 'normal';
    root.classList.add(faces[record.face]);
    root.classList.toggle('surface', record.surface);
    style.order = record.control * 2; // in one column; leaves room for what lies on it
    root.hidden = !record.visible;
    for (const element of [root, ...record.kind === 'frame' ? [] : root.querySelectorAll('input, button')]) {
        element.disabled = !record.enabled;
    }
    setattribute(active, 'aria-disabled', record.enabled ? '' : 'true');
    root.classList.toggle('disabled', !record.enabled);
    setattribute(root, 'title', record.tip);
    setattribute(active, 'aria-label', record.says);
    view.update(view.record);
}
