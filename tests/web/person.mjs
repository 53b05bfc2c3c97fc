// A person before the page, who does everything by real input: mouse, finger or keyboard. After each act it is waited
// until the program waits again, so that a program that hangs is found at once.

const keys = {
    Tab: 9, Enter: 13, Escape: 27, End: 35, Home: 36, ArrowLeft: 37, ArrowUp: 38, ArrowRight: 39, ArrowDown: 40,
    Backspace: 8, Delete: 46, " ": 32,
};

export const shift = 8, control = 2, alt = 1;

// The window in front.
export const front = "section.screen:not([inert])";

// The selector of a control by its name on the screen in front, of a line, of a button of a message.
export const named = (name) => `${front} [data-control="${name}"]`;
export const line = (list, number) => `${named(list)} [role=option]:nth-child(${number + 1})`;
export const answer = (which) => `dialog[open] [data-answer="${which}"]`;

export class Person {
    constructor(page) {
        this.page = page;
    }

    // Waits until the program waits; gives the screen in front, "message" for a message, "viewer" for the viewer of
    // texts, "" when the program has ended.
    settled() {
        return this.page.run(() => new Promise((done) => {
            const root = document.documentElement;
            const look = () => {
                if (["waiting", "ended"].includes(root.dataset.state)) {
                    observer.disconnect();
                    const front = [...document.querySelectorAll("section.screen:not([inert])")].at(-1);
                    const dialog = document.querySelector("dialog[open]");
                    done(dialog ? Object.keys(dialog.dataset)[0] : front?.dataset.screen ?? "");
                }
            };
            const observer = new MutationObserver(look);
            observer.observe(root, { attributes: true });
            setTimeout(look);
        }));
    }

    // What a control says.
    text(name) {
        return this.page.run((what) => {
            const thing = document.querySelector(what);
            return (thing.value ?? thing.textContent).trim();
        }, named(name));
    }

    async input(kind, parameters) {
        await this.page.call(`Input.dispatch${kind}Event`, parameters);
    }

    // Where a thing is seen, scrolled to where it must be; none where it is not shown.
    at(what, across = 0.5, down = 0.5) {
        return this.page.run((selector, across, down) => {
            const thing = document.querySelector(selector);
            if (!thing) {
                throw new Error(`no ${selector}`);
            }
            thing.scrollIntoView({ block: "nearest", inline: "nearest", behavior: "instant" });
            const { left, top, width, height } = thing.getBoundingClientRect();
            return width * height ? { x: left + width * across, y: top + height * down } : null;
        }, what, across, down);
    }

    async mouse(type, point, more = {}) {
        await this.input("Mouse", { type: `mouse${type}`, ...point, button: "left", clickCount: 1, ...more });
    }

    async clickat(point, more = {}) {
        await this.mouse("Moved", point, { button: "none" });
        await this.mouse("Pressed", point, more);
        await this.mouse("Released", point, more);
        return this.settled();
    }

    async dragto(from, to) {
        await this.mouse("Moved", from, { button: "none" });
        await this.mouse("Pressed", from);
        await this.mouse("Moved", { x: (from.x + to.x) / 2, y: (from.y + to.y) / 2 }, { buttons: 1 });
        return this.letgoat(to);
    }

    async letgoat(point) {
        await this.mouse("Moved", point, { buttons: 1 });
        await this.mouse("Released", point);
        return this.settled();
    }

    async tapat(point) {
        await this.input("Touch", { type: "touchStart", touchPoints: [point] });
        await this.input("Touch", { type: "touchEnd", touchPoints: [] });
        return this.settled();
    }

    async key(key, modifiers = 0) {
        const text = key === "Enter" ? "\r" : key.length > 1 || modifiers & (control | alt) ? "" : key;
        const about = {
            key, modifiers, code: /^[a-z]$/i.test(key) ? `Key${key.toUpperCase()}` : key,
            windowsVirtualKeyCode: keys[key] ?? (/^\w$/.test(key) ? key.toUpperCase().charCodeAt(0) : 0),
        };
        await this.input("Key", { type: text ? "keyDown" : "rawKeyDown", text, ...about });
        await this.input("Key", { type: "keyUp", ...about });
        return this.settled();
    }

    async type(text) {
        for (const letter of text) {
            await this.key(letter);
        }
    }

    // Tabs to a thing, the shorter way.
    async tabto(what) {
        for (let tabs = 0; tabs < 100; ++tabs) {
            const way = await this.page.run((selector) => {
                const here = document.activeElement;
                const before = here?.compareDocumentPosition(document.querySelector(selector)) & 2;
                return here?.matches(selector) ? "there" : before ? "back" : "on";
            }, what);
            if (way === "there") {
                return;
            }
            await this.key("Tab", way === "back" ? shift : 0);
        }
        throw new Error(`Tab does not come to ${what}`);
    }
}

// The three ways to do the same: press a thing, press a line of a list, bring a bar to a row.
const pointing = (person, point) => ({
    press: async (what) => person[point](await person.at(what)),
    line: async (list, number) => person[point](await person.at(line(list, number))),
});

export const hands = {
    mouse: (person) => ({
        ...pointing(person, "clickat"),
        bring: async (bar, row) => person.dragto(await person.at(named(bar)), await person.at(named(row), 0.1)),
    }),
    touch: (person) => ({
        ...pointing(person, "tapat"),
        bring: async (bar, row) => {
            await person.tapat(await person.at(named(bar)));
            await person.tapat(await person.at(named(row), 0.1));
        },
    }),
    keyboard: (person) => {
        // Tab comes to a group of options as a whole.
        const press = async (what) => {
            const [choice, number] = what.match(/="choice\((\d)\)"/) ?? [];
            await person.tabto(choice ? what.replace(choice, '^="choice("') : what);
            for (let down = 0; down < number; ++down) {
                await person.key("ArrowDown");
            }
            return person.key(choice ? "Enter" : " ");
        };
        return {
            press,
            line: async (list, number) => {
                await person.tabto(named(list));
                for (const key of ["Home", ...Array(number).fill("ArrowDown"), " "]) {
                    await person.key(key);
                }
            },
            bring: async (bar, row) => {
                await press(named(bar));
                await press(named(row));
            },
        };
    },
};
