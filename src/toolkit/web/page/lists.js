import { make, setattribute, shown } from './elements.js';
import { tell } from './queue.js';

let ids = 0;

// A list box whose lines are the program's; the current line is the page's own and stays while lines are rebuilt.
export function makelist(win, record) {
    const root = make('div', { className: 'list', tabIndex: 0 });
    root.setAttribute('role', 'listbox');
    let current = -1;
    const mark = (line) => {
        root.children[current]?.classList.remove('current');
        current = Math.max(0, Math.min(line, root.children.length - 1));
        root.children[current]?.classList.add('current');
        setattribute(root, 'aria-activedescendant', root.children[current]?.id ?? '');
    };
    const pick = (line) => {
        mark(line);
        tell(win.serial, 'pick', record.control, line);
    };
    root.addEventListener('click', (event) => {
        const line = [...root.children].indexOf(event.target.closest('[role=option]'));
        if (line >= 0) {
            pick(line);
        }
    });
    root.addEventListener('keydown', (event) => {
        const steps = { ArrowDown: 1, ArrowUp: -1, Home: -Infinity, End: Infinity };
        if (event.key in steps) {
            event.preventDefault();
            mark(current + steps[event.key]);
            root.children[current]?.scrollIntoView({ block: 'nearest' });
        } else if ((event.key === ' ' || event.key === 'Enter') && current >= 0) {
            event.preventDefault();
            if (!event.repeat) {
                pick(current);
            }
        }
    });
    return {
        root,
        active: root,
        update(list) {
            if (list.lines.length !== root.children.length || list.lines.some((line, i) => root.children[i].text !== line)) {
                root.replaceChildren(...list.lines.map((text) => {
                    ids += 1;
                    const line = make('div', { id: `line${ids}`, text }, make('span', { textContent: shown(text) }));
                    line.setAttribute('role', 'option');
                    return line;
                }));
                if (current >= 0) {
                    mark(current);
                }
            }
            root.classList.toggle('columns', list.columns > 1);
            root.style.setProperty('--rows', Math.ceil(list.lines.length / list.columns));
            root.classList.toggle('many', list.multiselect);
            root.classList.toggle('pushesup', list.pushesup);
            setattribute(root, 'aria-multiselectable', list.multiselect);
            list.marked.forEach((on, i) => setattribute(root.children[i], 'aria-selected', on !== 0));
        },
    };
}
