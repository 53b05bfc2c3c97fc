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

// Follows a pointer that went down on an element until it is let go: `move` and `done` get the event.
export function follow(element, down, move, done) {
    element.setPointerCapture(down.pointerId);
    const moved = (event) => event.pointerId === down.pointerId && move(event);
    const end = (event) => {
        if (event.pointerId === down.pointerId) {
            element.removeEventListener('pointermove', moved);
            element.removeEventListener('pointerup', end);
            element.removeEventListener('pointercancel', end);
            done(event);
        }
    };
    element.addEventListener('pointermove', moved);
    element.addEventListener('pointerup', end);
    element.addEventListener('pointercancel', end);
}

export function setattribute(element, name, value) {
    if (value === null || value === '') {
        element.removeAttribute(name);
    } else if (element.getAttribute(name) !== String(value)) {
        element.setAttribute(name, value);
    }
}
