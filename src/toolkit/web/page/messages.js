import { tell } from './queue.js';
import { make, shown } from './elements.js';

// A window of the browser's own, in front of everything else; gone when it is closed.
function opendialog(title, ...content) {
    const heading = make('h2', { textContent: title });
    const dialog = make('dialog', {}, heading, ...content);
    dialog.setAttribute('aria-label', title);
    document.body.append(dialog);
    dialog.addEventListener('close', () => dialog.remove());
    dialog.showModal();
    return dialog;
}

// Buttons of which one answers; Escape is the last. Gives the name of the button pressed.
export function ask(title, text, answers, look = '') {
    return new Promise((resolve) => {
        const buttons = Object.entries(answers).map(([answer, caption]) => {
            const button = make('button', { textContent: caption, onclick: () => dialog.close(answer) });
            button.dataset.answer = answer;
            return button;
        });
        const dialog = opendialog(title, make('p', { textContent: text, className: look }),
            make('div', { className: 'answers' }, ...buttons));
        dialog.dataset.message = '';
        dialog.addEventListener('close', () => resolve(dialog.returnValue || Object.keys(answers).at(-1)));
    });
}

// A message of the program, which waits for the answer.
export async function askmessage(message) {
    const answers = message.question ? { yes: 'Yes', no: 'No' } : { ok: 'OK' };
    const answer = await ask(message.title, shown(message.text), answers, message.large ? 'large' : '');
    tell(message.message, 'answer', -1, answer === 'no' ? 0 : 1);
}

// A text to read, which the program does not wait for.
export function viewtext(title, text) {
    const close = make('button', { textContent: 'Close', onclick: () => dialog.close() });
    const body = make('pre', { textContent: shown(text), tabIndex: 0 });
    const dialog = opendialog(title, body, make('div', { className: 'answers' }, close));
    dialog.dataset.viewer = '';
    body.focus();
}
