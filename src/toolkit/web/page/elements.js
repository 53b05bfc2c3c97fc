// An element with properties and children.
export function make(tag, properties = {}, ...children) {
    const element = Object.assign(document.createElement(tag), properties);
    element.append(...children);
    return element;
}

// A text as it is shown: plain line ends, and a number stays with the "ca." before it.
export function shown(text) {
    return text.replaceAll('\r\n', '\n').replaceAll('\r', '\n').replace(/([.)]) (?=-?\d)/g, '$1\u00a0');
}

// Writes a caption, with the letter that Alt presses underlined.
export function caption(element, text, key) {
    const at = key ? text.toLowerCase().indexOf(key.toLowerCase()) : -1;
    const plain = shown(text);
    if (at < 0) {
        element.textContent = plain;
    } else {
        element.replaceChildren(plain.slice(0, at), make('u', { textContent: plain[at] }), plain.slice(at + 1));
    }
}

// Follows a pointer that went down on an element until it is let go, wherever that is and even if the element has
// gone: `move` and `done` get the event.
export function follow(element, down, move, done = () => {}) {
    element.setPointerCapture(down.pointerId);
    const over = new AbortController();
    const watch = (type, act) => document.addEventListener(type, (event) => {
        if (event.pointerId === down.pointerId) {
            act(event);
        }
    }, { signal: over.signal });
    watch('pointermove', move);
    for (const end of ['pointerup', 'pointercancel']) {
        watch(end, (event) => {
            over.abort();
            done(event);
        });
    }
}

export function setattribute(element, name, value) {
    if (value === '') {
        element.removeAttribute(name);
    } else if (element.getAttribute(name) !== String(value)) {
        element.setAttribute(name, value);
    }
}
