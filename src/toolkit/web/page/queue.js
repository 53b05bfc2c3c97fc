// What a person did, in order, until the program asks for it. The page never calls the program: that waits in
// nextevent and goes on when something has been told.
const queue = [];
const { dataset } = document.documentElement;
let wake = () => {};
let turn = 0;

// `window` is a serial number, `control` the control's place in its screen.
export function tell(window, act, control = -1, number = 0, text = '') {
    queue.push(`${window} ${control} ${number} ${act} ${text}`);
    wake();
}

export async function nextevent() {
    if (queue.length === 0) {
        turn += 1;
        dataset.turn = turn;
        dataset.state = 'waiting';
        await new Promise((resolve) => {
            wake = resolve;
        });
        dataset.state = 'busy';
    }
    return queue.shift();
}
